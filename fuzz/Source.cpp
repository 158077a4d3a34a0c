// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Any text as a source. What compiles is a file without mistakes, which says what the source said.
#include <string>

#include "fuzz/Fuzz.h"
#include "phoneformat/source/Compiler.h"
#include "phoneformat/source/Decoder.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const kindora::SourceText source = kindora::parseSource(kindora::fuzzText(data, size), "input");
  const kindora::CompiledFile compiled = kindora::compilePhoneFormats(source.blocks);
  if (!source.problems.empty() || !compiled.problems.empty()) return 0;

  const kindora::SourceText decoded = kindora::decodePhoneFormats(compiled.data, "file");
  kindora::require(decoded.problems.empty(), "what compiles is clean");
  const std::string text = kindora::writeSource(decoded.blocks);
  const kindora::SourceText again = kindora::parseSource(text, "dump");
  kindora::require(again.problems.empty(), "a dump is a source");
  kindora::require(kindora::writeSource(again.blocks) == text, "a dump says all there is");
  return 0;
}

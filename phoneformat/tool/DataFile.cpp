// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/tool/DataFile.h"

#include <filesystem>
#include <system_error>

namespace kindora {
namespace {

constexpr const char* kOwnProgram = "/proc/self/exe";
constexpr const char* kFromProgram = "../share/kindora/PhoneFormats.dat";

}  // namespace

std::string shippedDataFile() {
  std::error_code error;
  const std::filesystem::path program = std::filesystem::read_symlink(kOwnProgram, error);
  const std::filesystem::path installed = program.parent_path() / kFromProgram;
  if (!error && std::filesystem::is_regular_file(installed, error)) return installed.string();
  return KINDORA_PHONEFORMATS_FILE;
}

}  // namespace kindora

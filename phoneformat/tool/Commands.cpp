// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/tool/Commands.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <system_error>
#include <vector>

#include "phoneformat/LuPhoneFormat.h"
#include "phoneformat/source/Compiler.h"
#include "phoneformat/source/Decoder.h"
#include "phoneformat/source/SourceText.h"
#include "phoneformat/tool/DataFile.h"

namespace kindora {
namespace {

constexpr const char* kUsage =
    R"(usage: kindora-phoneformat format [--country CODE] [--data FILE]   < numbers
       kindora-phoneformat valid [--country CODE] [--data FILE]    < numbers
       kindora-phoneformat dump [--data FILE | FILE]
       kindora-phoneformat compile SOURCE OUTPUT
       kindora-phoneformat lint FILE

format and valid read a number a line and print its layout, or "valid" or "invalid". CODE is a lower-case
country code such as gb; without it only numbers with "+" are known. Without FILE the data that came
with the program is used. SOURCE is a text file, or a folder whose .txt files make one data file.
)";
constexpr const char* kValid = "valid";
constexpr const char* kInvalid = "invalid";
constexpr const char* kSourceSuffix = ".txt";

ExitCode complain(const std::string& what) {
  std::cerr << "kindora-phoneformat: " << what << '\n';
  return ExitCode::badInput;
}

ExitCode report(const Problems& problems) {
  for (const Problem& problem : problems) std::cerr << problem.text() << '\n';
  return problems.empty() ? ExitCode::success : ExitCode::badInput;
}

ExitCode finished() {
  std::cout.flush();
  return std::cout ? ExitCode::success : complain("the output cannot be written");
}

template <typename Answer>
ExitCode answerLines(const Arguments& arguments, Answer answer) {
  const std::string file = arguments.data.value_or(shippedDataFile());
  std::optional<PhoneFormatData> data = readPhoneFormatFile(file);
  if (!data) return complain(file + ": cannot be read");
  LuPhoneFormat formatter(*std::move(data), arguments.country.value_or(""));
  if (arguments.country && !formatter.callingCodeForCountryCode(*arguments.country)) {
    return complain(file + ": knows no country \"" + *arguments.country + "\"");
  }
  for (std::string line; std::getline(std::cin, line);) {
    if (line.ends_with('\r')) line.pop_back();
    std::cout << answer(formatter, line) << '\n';
  }
  return finished();
}

ExitCode format(const Arguments& arguments) {
  return answerLines(arguments, [](LuPhoneFormat& formatter, const std::string& line) {
    return formatter.format(line);
  });
}

ExitCode valid(const Arguments& arguments) {
  return answerLines(arguments, [](LuPhoneFormat& formatter, const std::string& line) {
    return formatter.isPhoneNumberValid(line) ? kValid : kInvalid;
  });
}

ExitCode inspect(const std::string& file, bool print) {
  const std::optional<PhoneFormatData> data = readPhoneFormatFile(file);
  if (!data) return complain(file + ": cannot be read");
  const SourceText text = decodePhoneFormats(*data, file);
  if (print) std::cout << writeSource(text.blocks);
  const ExitCode output = finished();
  const ExitCode content = report(text.problems);
  return output == ExitCode::success ? content : output;
}

ExitCode dump(const Arguments& arguments) {
  if (!arguments.operands.empty()) return inspect(arguments.operands.front(), true);
  return inspect(arguments.data.value_or(shippedDataFile()), true);
}

ExitCode lint(const Arguments& arguments) { return inspect(arguments.operands.front(), false); }

// The files that make up a source, in the order of their names.
std::vector<std::filesystem::path> sourceFiles(const std::filesystem::path& source,
                                               std::error_code& error) {
  if (!std::filesystem::is_directory(source)) return {source};
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(source, error)) {
    if (entry.path().extension() == kSourceSuffix) files.push_back(entry.path());
  }
  std::ranges::sort(files);
  return files;
}

ExitCode compile(const Arguments& arguments) {
  const std::string& source = arguments.operands[0];
  const std::string& output = arguments.operands[1];
  std::error_code error;
  const std::vector<std::filesystem::path> files = sourceFiles(source, error);
  if (error || files.empty()) return complain(source + ": holds no source");
  SourceText all;
  for (const std::filesystem::path& path : files) {
    std::ifstream stream(path, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    if (!stream) return complain(path.string() + ": cannot be read");
    SourceText part = parseSource(text, path.string());
    std::ranges::move(part.blocks, std::back_inserter(all.blocks));
    std::ranges::move(part.problems, std::back_inserter(all.problems));
  }
  if (!all.problems.empty()) return report(all.problems);
  const CompiledFile compiled = compilePhoneFormats(all.blocks);
  if (!compiled.problems.empty()) return report(compiled.problems);
  std::ofstream stream(output, std::ios::binary | std::ios::trunc);
  stream.write(reinterpret_cast<const char*>(compiled.data.data()),
               static_cast<std::streamsize>(compiled.data.size()));
  stream.close();
  return stream ? ExitCode::success : complain(output + ": cannot be written");
}

struct Command {
  const char* name;
  ExitCode (*run)(const Arguments&);
  std::size_t leastOperands;
  std::size_t mostOperands;
  bool takesCountry;
  bool takesData;
};
constexpr Command kCommands[] = {
    {"format", format, 0, 0, true, true}, {"valid", valid, 0, 0, true, true},
    {"dump", dump, 0, 1, false, true},    {"compile", compile, 2, 2, false, false},
    {"lint", lint, 1, 1, false, false},
};

bool fits(const Command& command, const Arguments& arguments) {
  const std::size_t operands = arguments.operands.size();
  return operands >= command.leastOperands && operands <= command.mostOperands &&
         (command.takesCountry || !arguments.country) && (command.takesData || !arguments.data) &&
         !(operands > 0 && arguments.data);
}

}  // namespace

ExitCode runCommand(const Arguments& arguments) {
  const auto* const command = std::ranges::find_if(
      kCommands, [&](const Command& known) { return arguments.command == known.name; });
  if (command == std::end(kCommands) || !fits(*command, arguments)) {
    printUsage();
    return ExitCode::usage;
  }
  return command->run(arguments);
}

void printUsage() { std::cerr << kUsage; }

}  // namespace kindora

// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Runs each file of a folder once. It fails where the folder holds none.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

#include "fuzz/Fuzz.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: one folder\n";
    return 2;
  }
  std::size_t count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(argv[1])) {
    std::cout << entry.path().filename().string() << std::endl;  // before it may end the process
    std::ifstream stream(entry.path(), std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(stream), {}};
    const std::vector<std::uint8_t> data(bytes.begin(), bytes.end());
    LLVMFuzzerTestOneInput(data.data(), data.size());
    ++count;
  }
  return count > 0 ? 0 : 1;
}

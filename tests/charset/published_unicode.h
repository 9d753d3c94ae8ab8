// The published Unicode 3.0.0 files, read by the tests' own means: no code is
// shared with the generator of the tables.

#ifndef CANTOREL_TESTS_CHARSET_PUBLISHED_UNICODE_H_
#define CANTOREL_TESTS_CHARSET_PUBLISHED_UNICODE_H_

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace cantorel {

struct PublishedCharacter {
  std::string name;
  std::string category;
  std::string decomposition;
  std::string digit;
  std::string upper;
  std::string lower;
  int block = -1;
};

inline std::vector<std::string> SplitAtSemicolons(const std::string& line) {
  std::vector<std::string> parts;
  std::istringstream in(line);
  for (std::string part; std::getline(in, part, ';');) parts.push_back(part);
  return parts;
}

// All of U+0000 to U+FFFF; an unassigned one has no category.
inline std::vector<PublishedCharacter> ReadPublishedCharacters() {
  std::vector<PublishedCharacter> characters(0x10000);
  const std::string folder = CANTOREL_TEST_DATA "/unicode/";
  std::size_t first_of_range = 0;
  std::ifstream data(folder + "UnicodeData-3.0.0.txt");
  for (std::string line; std::getline(data, line);) {
    std::vector<std::string> fields = SplitAtSemicolons(line);
    fields.resize(15);
    const std::size_t code_point = std::stoul(fields[0], nullptr, 16);
    if (fields[1].find(", First>") != std::string::npos) first_of_range = code_point;
    const bool ends_range = fields[1].find(", Last>") != std::string::npos;
    for (std::size_t c = ends_range ? first_of_range : code_point; c <= code_point; ++c) {
      characters.at(c) = {fields[1], fields[2], fields[5], fields[6], fields[12], fields[13]};
    }
  }
  std::ifstream blocks(folder + "Blocks-3.0.0.txt");
  int number = 0;
  for (std::string line; std::getline(blocks, line); ++number) {
    if (line.empty() || line[0] == '#') continue;
    const std::vector<std::string> fields = SplitAtSemicolons(line);
    const std::size_t last = std::stoul(fields[1], nullptr, 16);
    for (std::size_t c = std::stoul(fields[0], nullptr, 16); c <= last; ++c) {
      characters.at(c).block = number;
    }
  }
  return characters;
}

// The octets of a code point up to U+FFFF.
inline std::string Utf8Of(std::uint32_t c) {
  if (c < 0x80) return {static_cast<char>(c)};
  const char last = static_cast<char>(0x80 + c % 64);
  if (c < 0x800) return {static_cast<char>(0xC0 + c / 64), last};
  return {static_cast<char>(0xE0 + c / 4096), static_cast<char>(0x80 + c / 64 % 64), last};
}

}  // namespace cantorel

#endif  // CANTOREL_TESTS_CHARSET_PUBLISHED_UNICODE_H_

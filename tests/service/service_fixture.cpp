#include "service/service_fixture.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include "service/service_objects.h"

namespace cantorel {
namespace {

constexpr std::string_view kVocabulary =
    "[Instruments]\n"
    "FLUTE=flute\n"
    "PIANO=piano\n"
    "VIOLIN=violin\n"
    "ORCHESTRA=orchestra\n"
    "[Ensembles]\n"
    "ORCHESTRA=orchestra\n";

std::string Digits(std::size_t number, int width) {
  char digits[24];
  std::snprintf(digits, sizeof(digits), "%0*zu", width, number);
  return digits;
}

// Each pair of hexadecimal digits as an octet, the delimiter as "$".
std::string Decoded(std::string_view hex) {
  std::string text;
  for (std::size_t i = 0; i + 1 < hex.size(); i += 2) {
    const char c = static_cast<char>(std::stoi(std::string(hex.substr(i, 2)), nullptr, 16));
    text += c == '\x1F' ? '$' : c;
  }
  return text;
}

std::string NewFolder() {
  std::random_device random;
  const std::string name = "cantorel-service-" + std::to_string(random());
  const std::filesystem::path folder = std::filesystem::temp_directory_path() / name;
  std::filesystem::create_directory(folder);
  return folder.string() + "/";
}

}  // namespace

std::string Delimited(std::string_view text) {
  std::string delimited(text);
  for (char& c : delimited) {
    if (c == '$') c = '\x1F';
  }
  return delimited;
}

std::string SampleImage(char type, const std::vector<SampleField>& fields) {
  std::string directory;
  std::string data;
  for (const SampleField& field : fields) {
    const std::string text =
        std::string(field.indicators) + Delimited(field.text) + std::string(1, '\x1E');
    directory += std::string(field.tag) + Digits(text.size(), 4) + Digits(data.size(), 5);
    data += text;
  }
  const std::size_t base = 24 + directory.size() + 1;
  const std::size_t length = base + data.size() + 1;
  std::string leader = Digits(length, 5) + "c" + std::string(1, type) + "m a22";
  leader += Digits(base, 5) + "   4500";
  return leader + directory + '\x1E' + data + '\x1D';
}

std::vector<std::string> Readable(std::string_view returned_fields) {
  std::vector<std::string> readable;
  std::istringstream lines{std::string(returned_fields)};
  for (std::string line; std::getline(lines, line);) {
    const std::size_t tab = line.find('\t');
    readable.push_back(line.substr(0, tab) + " " + line.substr(tab + 1, 3) + " " +
                       line.substr(tab + 4, 2) + " " + Decoded(line.substr(tab + 6)));
  }
  return readable;
}

void WriteFile(const std::string& path, std::string_view content) {
  std::ofstream(path, std::ios::binary) << content;
}

std::string ReadFile(const std::string& path) {
  std::ostringstream content;
  content << std::ifstream(path, std::ios::binary).rdbuf();
  return content.str();
}

ServiceTest::ServiceTest() : folder_(NewFolder()) {
  WriteFile(folder_ + "MusicMedium.Lcmpt.txt", kVocabulary);
  WriteFile(folder_ + "Music6xxTo655.txt", "[FileSignature]\nFilePresent=True\n");
  cantorel_.ConfigurationPath(folder_);
  cantorel_.LookUpWith(nullptr);  // no test asks the network
}

ServiceTest::~ServiceTest() {
  ReleaseServiceObjects();
  std::filesystem::remove_all(folder_);
}

std::vector<std::string> ServiceTest::Lines(const std::vector<SampleField>& fields,
                                            std::int32_t mode) {
  cantorel_.AddFields(SampleImage('c', fields), mode);
  return Readable(cantorel_.ReturnedFields());
}

}  // namespace cantorel

#include "platform/profile_text.h"

namespace cantorel {
namespace {

std::string_view WithoutQuotes(std::string_view value) {
  if (value.size() < 2) return value;
  const char first = value.front();
  if ((first != '"' && first != '\'') || value.back() != first) return value;
  return value.substr(1, value.size() - 2);
}

}  // namespace

std::string_view TrimProfileBlanks(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string_view SkipUtf8Signature(std::string_view text) {
  constexpr std::string_view kSignature = "\xEF\xBB\xBF";
  if (text.substr(0, kSignature.size()) == kSignature) text.remove_prefix(kSignature.size());
  return text;
}

std::string_view TakeProfileLine(std::string_view& text) {
  const std::size_t end = text.find('\n');
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  return line;
}

ProfileLine ReadProfileLine(std::string_view line) {
  ProfileLine read;
  read.trimmed = TrimProfileBlanks(line);
  if (read.trimmed.empty() || read.trimmed.front() == ';') return read;

  if (read.trimmed.front() == '[') {
    const std::size_t end = read.trimmed.find(']');
    if (end != std::string_view::npos) {
      read.kind = ProfileLine::Kind::kSection;
      read.name = TrimProfileBlanks(read.trimmed.substr(1, end - 1));
      return read;
    }
  }

  const std::size_t equals = read.trimmed.find('=');
  if (equals == std::string_view::npos) {
    read.kind = ProfileLine::Kind::kOther;
    return read;
  }
  read.kind = ProfileLine::Kind::kSetting;
  read.name = TrimProfileBlanks(read.trimmed.substr(0, equals));
  read.value = WithoutQuotes(TrimProfileBlanks(read.trimmed.substr(equals + 1)));
  read.value = read.value.substr(0, read.value.find('\0'));
  return read;
}

}  // namespace cantorel

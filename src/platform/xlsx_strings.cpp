#include "platform/xlsx_strings.h"

#include <charconv>
#include <cstddef>

namespace cantorel {
namespace {

void AppendBasicPlane(std::uint32_t code_point, std::string& out) {
  const auto add = [&out](std::uint32_t octet) { out += static_cast<char>(octet); };
  if (code_point < 0x80) return add(code_point);
  if (code_point < 0x800) {
    add(0xC0 | code_point >> 6);
  } else {
    add(0xE0 | code_point >> 12);
    add(0x80 | (code_point >> 6 & 0x3F));
  }
  add(0x80 | (code_point & 0x3F));
}

constexpr std::size_t kEscapeLength = 7;  // "_x000D_"

// Whether `text` begins with an escape of a character that can stand alone.
bool BeginsWithEscape(std::string_view text, std::uint32_t& code_point) {
  if (text.size() < kEscapeLength || !text.starts_with("_x") || text[6] != '_') return false;
  const char* const end = text.data() + 6;
  const auto [stop, error] = std::from_chars(text.data() + 2, end, code_point, 16);
  const bool is_surrogate = code_point >= 0xD800 && code_point <= 0xDFFF;
  return error == std::errc() && stop == end && code_point != 0 && !is_surrogate;
}

}  // namespace

void AppendUnescaped(std::string_view text, std::string& out) {
  while (true) {
    const std::size_t start = text.find("_x");
    out.append(text.substr(0, start));
    if (start == std::string_view::npos) return;
    text.remove_prefix(start);
    std::uint32_t code_point = 0;
    const bool escape = BeginsWithEscape(text, code_point);
    if (escape) {
      AppendBasicPlane(code_point, out);
    } else {
      out += text.front();
    }
    text.remove_prefix(escape ? kEscapeLength : 1);
  }
}

void RichText::Clear() {
  text_.clear();
  in_text_ = false;
  in_phonetic_run_ = false;
}

void RichText::Start(std::string_view name) {
  if (name == "rPh") in_phonetic_run_ = true;
  if (name == "t") in_text_ = !in_phonetic_run_;
}

void RichText::End(std::string_view name) {
  if (name == "rPh") in_phonetic_run_ = false;
  if (name == "t") in_text_ = false;
}

bool RichText::Text(std::string_view text) {
  if (in_text_) text_.append(text);
  return text_.size() <= kLongestCell;
}

void SharedStrings::Start(std::string_view name, const XmlAttributes& /*attributes*/) {
  if (name == "si") item_.Clear();
  item_.Start(name);
}

void SharedStrings::End(std::string_view name) {
  item_.End(name);
  if (name != "si") return;
  AppendUnescaped(item_.Raw(), texts_);
  ends_.push_back(static_cast<std::uint32_t>(texts_.size()));
}

void SharedStrings::Text(std::string_view text) {
  if (!item_.Text(text)) Stop(WorkbookError::kDamaged);
}

bool SharedStrings::Find(std::string_view number, std::string_view& text) const {
  std::size_t index = 0;
  const char* const end = number.data() + number.size();
  const auto [stop, error] = std::from_chars(number.data(), end, index);
  if (error != std::errc() || stop != end || index >= ends_.size()) return false;
  const std::size_t start = index == 0 ? 0 : ends_[index - 1];
  text = std::string_view(texts_).substr(start, ends_[index] - start);
  return true;
}

}  // namespace cantorel

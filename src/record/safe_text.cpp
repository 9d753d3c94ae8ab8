#include "record/safe_text.h"

#include <algorithm>
#include <cstddef>

#include "charset/marc_control.h"

namespace cantorel {

namespace {

// Text built from its end to its start.
class BackwardText {
 public:
  explicit BackwardText(std::size_t expected) { reversed_.reserve(expected); }

  void Prepend(char c) { reversed_ += c; }
  void Prepend(std::string_view text) { reversed_.append(text.rbegin(), text.rend()); }
  void DropFront(std::size_t count) { reversed_.resize(reversed_.size() - count); }
  char TakeFront() {
    const char c = reversed_.back();
    reversed_.pop_back();
    return c;
  }
  bool Empty() const { return reversed_.empty(); }
  char Front() const { return reversed_.back(); }
  void DropBlanksAtFront() {
    while (!reversed_.empty() && reversed_.back() == ' ') reversed_.pop_back();
  }
  void DropBlanksAtEnd() {
    const std::size_t end = reversed_.find_first_not_of(' ');
    reversed_.erase(0, std::min(end, reversed_.size()));
  }
  bool BeginsWith(std::string_view text) const {
    return reversed_.size() >= text.size() &&
           std::equal(text.begin(), text.end(), reversed_.rbegin());
  }
  std::string Take() const { return {reversed_.rbegin(), reversed_.rend()}; }

 private:
  std::string reversed_;
};

std::string Join(std::string_view a, std::string_view b, std::string_view c) {
  std::string out;
  out.reserve(a.size() + b.size() + c.size());
  out.append(a).append(b).append(c);
  return out;
}

bool EndsWithDoubled(const std::string& text, std::string_view sought) {
  const std::size_t n = sought.size();
  if (text.size() < 2 * n) return false;
  const std::string_view view = text;
  return view.substr(view.size() - n) == sought && view.substr(view.size() - 2 * n, n) == sought;
}

}  // namespace

std::string SafeStuff(std::string_view text, std::int32_t position, std::int32_t length,
                      std::string_view insertion) {
  if (position < 1) return Join(insertion, text, {});
  const std::size_t start = std::min(static_cast<std::size_t>(position - 1), text.size());
  const std::size_t removed =
      length < 1 ? 0 : std::min(static_cast<std::size_t>(length), text.size() - start);
  return Join(text.substr(0, start), insertion, text.substr(start + removed));
}

std::int32_t Rat(std::string_view text, std::string_view sought) {
  if (sought.empty()) return 0;
  const std::size_t place = text.rfind(sought);
  return place == std::string_view::npos ? 0 : static_cast<std::int32_t>(place + 1);
}

std::string ReplaceCharacters(std::string_view text, std::string_view sought,
                              std::string_view replacement, bool squeeze) {
  if (sought.empty() || sought == replacement) return std::string(text);
  std::string result;
  if (text.find(sought) == std::string_view::npos) {
    result = text;
  } else {
    BackwardText out(text.size());
    for (std::size_t i = text.size(); i-- > 0;) {
      out.Prepend(text[i]);
      if (!out.BeginsWith(sought)) continue;
      out.DropFront(sought.size());
      out.Prepend(replacement);
    }
    result = out.Take();
  }
  if (squeeze && replacement == " ") SqueezeBlanks(result);
  return result;
}

std::string RemoveRepeatedCharacters(std::string_view text, std::string_view sought) {
  if (sought.empty()) return std::string(text);
  std::string out;
  out.reserve(text.size());
  for (char c : text) {
    out += c;
    if (EndsWithDoubled(out, sought)) out.resize(out.size() - sought.size());
  }
  return out;
}

void SqueezeBlanks(std::string& text) {
  const auto both_blank = [](char a, char b) { return a == ' ' && b == ' '; };
  text.erase(std::unique(text.begin(), text.end(), both_blank), text.end());
}

std::string RemoveSpaces(std::string_view text) {
  std::string out(text);
  std::erase(out, ' ');
  return out;
}

std::string AddSpacesAroundDelimiters(std::string_view text) {
  BackwardText out(text.size() + text.size() / 8);
  for (std::size_t i = text.size(); i-- > 0;) {
    if (text[i] != kDelimiter || i + 1 >= text.size()) {
      out.Prepend(text[i]);
      continue;
    }
    const char code = out.TakeFront();
    out.Prepend(' ');
    out.Prepend(code);
    out.Prepend(kDelimiter);
    if (i > 0) out.Prepend(' ');
  }
  return out.Take();
}

std::string RemoveSpacesAroundDelimiters(std::string_view text) {
  BackwardText out(text.size());
  bool before_delimiter = false;  // the text to come stands right before a delimiter
  for (std::size_t i = text.size(); i-- > 0;) {
    if (text[i] == ' ' && before_delimiter) continue;
    before_delimiter = text[i] == kDelimiter;
    if (before_delimiter && !out.Empty()) {
      const char code = out.TakeFront();
      out.DropBlanksAtFront();
      out.DropBlanksAtEnd();
      out.Prepend(code);
    }
    out.Prepend(text[i]);
  }
  return out.Take();
}

std::string LeftPad(std::string_view text, std::int32_t width, std::string_view pad) {
  if (width < 1) return {};
  const auto n = static_cast<std::size_t>(width);
  if (text.size() >= n) return std::string(text.substr(text.size() - n));
  // A pad of no octets pads nothing; of a longer one the first octet counts.
  const std::string padding(pad.empty() ? 0 : n - text.size(), pad.empty() ? ' ' : pad[0]);
  return Join(padding, text, {});
}

}  // namespace cantorel

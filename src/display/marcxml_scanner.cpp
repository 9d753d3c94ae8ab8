#include "display/marcxml_scanner.h"

#include <algorithm>
#include <array>

#include "charset/utf8.h"

namespace cantorel {
namespace {

constexpr std::string_view kCdataStart = "<![CDATA[";
constexpr std::string_view kCdataEnd = "]]>";

struct Aside {
  std::string_view start;
  std::string_view end;
};
constexpr Aside kAsides[] = {{"<!--", "-->"}, {kCdataStart, kCdataEnd}, {"<?", "?>"}, {"<!", ">"}};

constexpr bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// Octets that a tag must be looked at for.
constexpr std::array<bool, 256> kTagMarks = [] {
  std::array<bool, 256> marks{};
  for (const char c : {'<', '>', '"', '\''}) marks[Octet(c)] = true;
  return marks;
}();

// The position of the ">" that ends the tag whose name ends at `position`, or of
// a "<" that shows that it is none; the length of the text when neither comes.
// A ">" inside quotation marks counts only when they are not closed.
std::size_t FindTagEnd(std::string_view xml, std::size_t position) {
  std::size_t first = xml.size();  // ">" inside the marks
  char mark = '\0';
  for (std::size_t i = position; i < xml.size(); ++i) {
    const char c = xml[i];
    if (!kTagMarks[Octet(c)]) continue;
    if (c == '<') return std::min(first, i);
    if (c == '>') {
      if (mark == '\0') return i;
      first = std::min(first, i);
    } else if (mark == '\0') {
      mark = c;
    } else if (c == mark) {
      mark = '\0';
      first = xml.size();
    }
  }
  return xml.size();
}

constexpr bool EndsName(char c) {
  return IsBlank(c) || c == '/' || c == '<' || c == '>';
}

void SkipBlanks(std::string_view& text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
}

// What a leaf element may not hold: where one of these begins, it has ended.
bool IsStructural(std::string_view name) {
  static constexpr std::string_view kNames[] = {"record", "leader", "controlfield", "datafield",
                                                "subfield"};
  return std::find(std::begin(kNames), std::end(kNames), name) != std::end(kNames);
}

void AppendEscapedAmpersands(std::string_view text, std::string& out) {
  for (const char c : text) {
    out += c;
    if (c == '&') out += "amp;";
  }
}

}  // namespace

XmlTag XmlTagAt(std::string_view xml, std::size_t position) {
  XmlTag tag;
  std::size_t name = position + 1;
  if (name < xml.size() && xml[name] == '/') {
    tag.is_end = true;
    ++name;
  }
  std::size_t name_end = name;
  while (name_end < xml.size() && !EndsName(xml[name_end])) ++name_end;
  if (name_end == name && name < xml.size()) return tag;
  const std::size_t end = FindTagEnd(xml, name_end);
  tag.is_cut = end == xml.size();
  if (tag.is_cut || xml[end] != '>') return tag;
  tag.is_empty = end > name_end && xml[end - 1] == '/';
  tag.name = xml.substr(name, name_end - name);
  tag.attributes = xml.substr(name_end, end - name_end - (tag.is_empty ? 1 : 0));
  tag.length = end + 1 - position;
  return tag;
}

std::size_t XmlAsideLength(std::string_view xml, std::size_t position) {
  const std::string_view mark = xml.substr(position + 1, 1);
  if (mark != "!" && mark != "?") return 0;
  for (const Aside& aside : kAsides) {
    if (xml.compare(position, aside.start.size(), aside.start) != 0) continue;
    const std::size_t end = xml.find(aside.end, position + aside.start.size());
    return end == xml.npos ? xml.size() - position : end + aside.end.size() - position;
  }
  return 0;
}

std::string_view XmlAttribute(std::string_view attributes, std::string_view name, bool& found) {
  found = true;
  while (true) {
    SkipBlanks(attributes);
    const std::size_t equals = attributes.find('=');
    if (equals == attributes.npos) break;
    std::string_view present = attributes.substr(0, equals);
    while (!present.empty() && IsBlank(present.back())) present.remove_suffix(1);
    attributes.remove_prefix(equals + 1);
    SkipBlanks(attributes);
    if (attributes.empty()) break;
    const char mark = attributes.front();
    attributes.remove_prefix(1);
    const std::size_t end = std::min(attributes.find(mark), attributes.size());
    if (present == name) return attributes.substr(0, end);
    attributes.remove_prefix(std::min(end + 1, attributes.size()));
  }
  found = false;
  return {};
}

bool MarcXmlScanner::Next(MarcXmlPart& part) {
  while (!at_end_) {
    position_ = xml_.find('<', position_);
    if (position_ == xml_.npos) break;
    if (const std::size_t aside = XmlAsideLength(xml_, position_); aside != 0) {
      position_ += aside;
      continue;
    }
    const XmlTag tag = XmlTagAt(xml_, position_);
    position_ += std::max<std::size_t>(tag.length, 1);
    if (ReadTag(tag, part)) return true;
  }
  at_end_ = true;
  return false;
}

// The name without the prefix; empty for an element that is not of ours.
std::string_view MarcXmlScanner::LocalName(std::string_view name) const {
  if (name.substr(0, prefix_.size()) != prefix_) return {};
  return name.substr(prefix_.size());
}

// True when the tag begins a part.
bool MarcXmlScanner::ReadTag(const XmlTag& tag, MarcXmlPart& part) {
  const std::string_view name = LocalName(tag.name);
  if (tag.is_end) {
    if (name == "datafield") in_data_field_ = false;
    at_end_ = name == "record";
    return false;
  }
  part.attributes = tag.attributes;
  part.text = {};
  if (name == "datafield") {
    in_data_field_ = !tag.is_empty;
    part.kind = MarcXmlPart::kDataField;
    return true;
  }
  if (name == "leader") {
    part.kind = MarcXmlPart::kLeader;
  } else if (name == "controlfield") {
    part.kind = MarcXmlPart::kControlField;
  } else if (name == "subfield" && in_data_field_) {
    part.kind = MarcXmlPart::kSubfield;
  } else {
    return false;
  }
  if (!tag.is_empty) part.text = ReadText(tag.name);
  return true;
}

// The text of a leaf element up to its end tag.  A "<" that begins nothing of a
// record is text.
std::string_view MarcXmlScanner::ReadText(std::string_view name) {
  assembled_.clear();
  std::size_t start = position_;
  std::size_t end = start;
  while ((end = xml_.find('<', end)) != xml_.npos) {
    if (const std::size_t aside = XmlAsideLength(xml_, end); aside != 0) {
      assembled_ += xml_.substr(start, end - start);
      std::string_view inside = xml_.substr(end, aside);
      if (inside.substr(0, kCdataStart.size()) == kCdataStart) {
        inside.remove_prefix(kCdataStart.size());
        AppendEscapedAmpersands(inside.substr(0, inside.rfind(kCdataEnd)), assembled_);
      }
      end = start = end + aside;
      continue;
    }
    const XmlTag tag = XmlTagAt(xml_, end);
    if (IsStructural(LocalName(tag.name))) {
      position_ = tag.is_end && tag.name == name ? end + tag.length : end;
      break;
    }
    ++end;
  }
  if (end == xml_.npos) end = position_ = xml_.size();
  const std::string_view last = xml_.substr(start, end - start);
  if (assembled_.empty()) return last;
  return assembled_ += last;
}

}  // namespace cantorel

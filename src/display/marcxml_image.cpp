#include "display/marcxml_image.h"

#include <algorithm>
#include <cstddef>

#include "charset/marc_control.h"
#include "charset/utf8.h"
#include "display/xml_references.h"
#include "record/record_image.h"

namespace cantorel {
namespace {

constexpr std::size_t kLongestField = 9999;  // with its end
constexpr std::size_t kLongestRecord = 99999;

constexpr bool IsPrintableAscii(char c) {
  return c > ' ' && c < '\x7F';
}

// Octets that cannot be text of a field: line ends, which lay out the XML, and
// what holds a record together.
constexpr bool IsNoText(char c) {
  return Octet(c) < ' ' && (c == '\n' || c == '\r' || c == '\0' || c == kDelimiter ||
                            c == kEndOfField || c == kEndOfRecord);
}

// A leader that lost blanks on its way gets them back; otherwise it is filled up
// or cut.
void SettleLeader(std::string& leader) {
  const LeaderLoss loss = FindLeaderLoss(leader);
  if (leader.size() < kLeaderLength && loss.blanks > 0) {
    leader.insert(loss.position, loss.blanks, ' ');
  }
  leader.resize(kLeaderLength, ' ');
  std::replace_if(
      leader.begin(), leader.end(), [](char c) { return c != ' ' && !IsPrintableAscii(c); }, ' ');
}

}  // namespace

bool MarcXmlImage::Make(std::string_view xml, std::string_view prefix, std::string& image,
                        std::string& fault) {
  leader_.clear();
  directory_.clear();
  data_.clear();
  in_field_ = false;
  MarcXmlScanner scanner(xml, prefix);
  for (MarcXmlPart part; scanner.Next(part);) {
    if (!AddPart(part, fault)) return false;
  }
  if (!EndField(fault)) return false;
  if (leader_.empty()) {
    fault = "Record has no leader";
    return false;
  }
  const std::size_t length = kLeaderLength + directory_.size() + 1 + data_.size() + 1;
  if (length > kLongestRecord) {
    fault = "Record of " + std::to_string(length) + " octets is too long for ISO 2709";
    return false;
  }
  WriteImage(image);
  return true;
}

bool MarcXmlImage::AddPart(const MarcXmlPart& part, std::string& fault) {
  if (part.kind == MarcXmlPart::kSubfield) return AddSubfield(part, fault);
  if (!EndField(fault)) return false;
  if (part.kind == MarcXmlPart::kLeader) {
    leader_.clear();
    AppendUnreferenced(part.text, true, leader_);
    std::erase_if(leader_, IsNoText);
    SettleLeader(leader_);
    return true;
  }
  if (!BeginField(part.attributes, fault)) return false;
  if (part.kind == MarcXmlPart::kControlField) {
    AddText(part.text);
  } else {
    AddIndicator(part.attributes, "ind1");
    AddIndicator(part.attributes, "ind2");
  }
  return true;
}

bool MarcXmlImage::BeginField(std::string_view attributes, std::string& fault) {
  tag_ = Attribute(attributes, "tag");
  if (tag_.size() != 3 || !std::all_of(tag_.begin(), tag_.end(), IsPrintableAscii)) {
    fault = "A field has \"" + tag_ + "\" for its tag";
    return false;
  }
  in_field_ = true;
  field_start_ = data_.size();
  return true;
}

bool MarcXmlImage::EndField(std::string& fault) {
  if (!in_field_) return true;
  in_field_ = false;
  data_ += kEndOfField;
  const std::size_t length = data_.size() - field_start_;
  if (length > kLongestField) {
    fault = "Field " + tag_ + " of " + std::to_string(length) + " octets is too long for ISO 2709";
    return false;
  }
  char numbers[9];
  WriteDigits(length, 4, numbers);
  WriteDigits(field_start_, 5, numbers + 4);
  directory_.append(tag_).append(numbers, sizeof numbers);
  return true;
}

bool MarcXmlImage::AddSubfield(const MarcXmlPart& part, std::string& fault) {
  if (!in_field_) {
    fault = "A subfield stands outside of any field";
    return false;
  }
  const std::string_view code = Attribute(part.attributes, "code");
  if (code.size() != 1 || IsNoText(code[0])) {
    fault = "A subfield of " + tag_ + " has \"" + std::string(code) + "\" for its code";
    return false;
  }
  data_ += kDelimiter;
  data_ += code;
  AddText(part.text);
  return true;
}

// An indicator that is no printable character is blank.
void MarcXmlImage::AddIndicator(std::string_view attributes, std::string_view name) {
  const std::string_view value = Attribute(attributes, name);
  data_ += value.size() == 1 && IsPrintableAscii(value[0]) ? value[0] : ' ';
}

// The value of an attribute; empty without one.
std::string_view MarcXmlImage::Attribute(std::string_view attributes, std::string_view name) {
  bool found = false;
  const std::string_view value = XmlAttribute(attributes, name, found);
  if (value.find('&') == value.npos) return value;
  attribute_.clear();
  AppendUnreferenced(value, true, attribute_);
  return attribute_;
}

void MarcXmlImage::AddText(std::string_view text) {
  const std::size_t start = data_.size();
  AppendUnreferenced(text, true, data_);
  const auto begin = data_.begin() + static_cast<std::ptrdiff_t>(start);
  data_.erase(std::remove_if(begin, data_.end(), IsNoText), data_.end());
}

void MarcXmlImage::WriteImage(std::string& image) const {
  const std::size_t base = kLeaderLength + directory_.size() + 1;
  image = leader_;
  image += directory_;
  image += kEndOfField;
  image += data_;
  image += kEndOfRecord;
  WriteDigits(image.size(), 5, image.data());
  WriteDigits(base, 5, image.data() + 12);
  image.replace(10, 2, "22");
  image.replace(20, 4, "4500");
  if (!IsAscii(data_)) image[9] = 'a';
}

}  // namespace cantorel

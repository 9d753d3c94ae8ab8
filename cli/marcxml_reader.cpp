#include "cli/marcxml_reader.h"

#include <algorithm>
#include <string>

#include "charset/octet_text.h"

namespace cantorel::cli {
namespace {

constexpr std::string_view kPrefixes[] = {"", "marc:", "marcxml:"};
constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::string_view kUtf8Signature = "\xEF\xBB\xBF";
constexpr std::size_t kLongestDeclaration = 256;

// The prefix of a name that ends with `local`; false when it has another.
bool HasLocalName(std::string_view name, std::string_view local, std::string_view& prefix) {
  if (name.size() < local.size() || name.substr(name.size() - local.size()) != local) return false;
  prefix = name.substr(0, name.size() - local.size());
  return std::find(std::begin(kPrefixes), std::end(kPrefixes), prefix) != std::end(kPrefixes);
}

bool IsRecord(const XmlTag& tag) {
  std::string_view prefix;
  return HasLocalName(tag.name, "record", prefix);
}

bool IsCollection(const XmlTag& tag) {
  std::string_view prefix;
  return HasLocalName(tag.name, "collection", prefix);
}

bool IsPartOf(std::string_view record_prefix, const XmlTag& tag) {
  std::string_view prefix;
  for (const std::string_view part : {"subfield", "datafield", "controlfield", "leader"}) {
    if (HasLocalName(tag.name, part, prefix)) return prefix == record_prefix;
  }
  return false;
}

// The encoding that an XML declaration at the start of `text` names; empty
// without one.
std::string DeclaredEncoding(std::string_view text) {
  constexpr std::string_view kStart = "<?xml";
  if (text.substr(0, kStart.size()) != kStart) return {};
  text = text.substr(kStart.size(), text.find("?>") - kStart.size());
  bool found = false;
  return std::string(XmlAttribute(text, "encoding", found));
}

bool IsUtf8Name(std::string name) {
  std::transform(name.begin(), name.end(), name.begin(), AsciiUpper);
  return name.empty() || name == "UTF-8" || name == "UTF8" || name == "US-ASCII";
}

}  // namespace

bool MarcXmlReader::Next(Piece& piece) {
  input_.Skip(length_);
  looked_at_ -= std::min(looked_at_, length_);
  length_ = 0;
  in_record_ = false;
  if (finished_) return false;
  if (!opened_ && !CanRead()) return GiveFault(fault_, piece);
  while (FindRecord()) {
    switch (MeasureRecord()) {
      case Extent::kWhole:
        return GiveRecord(piece);
      case Extent::kBroken:
        return GiveFault("Record element does not end", piece);
      case Extent::kWrapper:
        in_record_ = false;
    }
  }
  return GiveEnd(piece);
}

// Takes the signature off and asks for the encoding.
bool MarcXmlReader::CanRead() {
  opened_ = true;
  if (input_.Peek(3).substr(0, 3) == kUtf8Signature) input_.Skip(3);
  const std::string_view first = input_.Peek(kLongestDeclaration).substr(0, kLongestDeclaration);
  const std::string encoding =
      first.find('\0') != first.npos
          ? "UTF-16"
          : DeclaredEncoding(From(first, first.find_first_not_of(kBlanks)));
  if (IsUtf8Name(encoding)) return true;
  fault_ = "MARCXML in " + encoding + " is not read, only UTF-8";
  finished_ = true;
  return false;
}

// Goes to the next start of a record element; false at the end of the input.
bool MarcXmlReader::FindRecord() {
  for (XmlTag tag; NextTag(tag);) {
    if (IsCollection(tag)) collection_open_ = !tag.is_end && !tag.is_empty;
    std::string_view prefix;
    if (tag.is_end || !HasLocalName(tag.name, "record", prefix)) continue;
    prefix_ = prefix;
    in_record_ = true;
    input_.Skip(tag_start_);
    looked_at_ -= tag_start_;
    return true;
  }
  return false;
}

// Finds out where the record element ends that the input stands at.  One that
// holds another, and nothing of a record ahead of it, is a wrapper of another
// make.
MarcXmlReader::Extent MarcXmlReader::MeasureRecord() {
  bool has_parts = false;
  for (XmlTag tag; looked_at_ < kMostOctets && NextTag(tag);) {
    const bool is_record = IsRecord(tag);
    if (is_record && tag.is_end && tag.name.size() == prefix_.size() + 6) {
      length_ = looked_at_;
      return Extent::kWhole;
    }
    if ((is_record && !tag.is_end) || (IsCollection(tag) && tag.is_end)) {
      // The tag is to be seen again.
      looked_at_ = tag_start_;
      if (!has_parts) return Extent::kWrapper;
      length_ = tag_start_;
      return Extent::kBroken;
    }
    has_parts = has_parts || IsPartOf(prefix_, tag);
  }
  length_ = looked_at_;
  return Extent::kBroken;
}

// The next tag behind those read; false at the end of the input.  It is good
// until the next one is asked for.
bool MarcXmlReader::NextTag(XmlTag& tag) {
  while (true) {
    const std::string_view text = input_.Peek(0);
    const std::size_t start = std::min(text.find('<', looked_at_), text.size());
    looked_at_ = start;
    if (start == text.size()) {
      if (!More()) return false;
      continue;
    }
    if (const std::size_t aside = XmlAsideLength(text, start); aside != 0) {
      // One that reaches the end of what is at hand may go on behind it.
      if (start + aside == text.size() && More()) continue;
      looked_at_ = start + aside;
      continue;
    }
    tag = XmlTagAt(text, start);
    if (tag.is_cut && More()) continue;
    tag_start_ = start;
    looked_at_ = start + std::max<std::size_t>(tag.length, 1);
    if (tag.length != 0) return true;
  }
}

// Gets more octets to hand; false when there are none, or too many already.
// What no record element holds is given up.
bool MarcXmlReader::More() {
  if (!in_record_) {
    input_.Skip(looked_at_);
    looked_at_ = 0;
  }
  const std::size_t at_hand = input_.Peek(0).size();
  return at_hand < 2 * kMostOctets && input_.Peek(at_hand + 1).size() > at_hand;
}

bool MarcXmlReader::GiveRecord(Piece& piece) {
  const std::string_view element = input_.Peek(length_).substr(0, length_);
  if (!maker_.Make(element, prefix_, image_, fault_)) return GiveFault(fault_, piece);
  piece = {image_, ++count_, input_.Offset(), {}, element};
  return true;
}

bool MarcXmlReader::GiveFault(std::string_view fault, Piece& piece) {
  piece = {input_.Peek(length_).substr(0, length_), ++count_, input_.Offset(), fault};
  return true;
}

// What is wrong with the end of the input; false when nothing is.
bool MarcXmlReader::GiveEnd(Piece& piece) {
  finished_ = true;
  if (collection_open_) return GiveFault("Input ends inside its collection", piece);
  return count_ == 0 && GiveFault("No MARCXML record found", piece);
}

}  // namespace cantorel::cli

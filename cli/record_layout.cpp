#include "cli/record_layout.h"

#include <algorithm>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "record/record_image.h"

namespace cantorel::cli {
namespace {

bool IsNumber(std::string_view digits) {
  return std::all_of(digits.begin(), digits.end(), IsAsciiDigit);
}

bool IsControlTag(std::string_view tag) {
  return tag.substr(0, 2) == "00";
}

// A field with a $6 that names its own tag is loaded as an 880, even when the
// tag is none.
bool LinksToItself(std::string_view tag, std::string_view text) {
  static constexpr std::string_view kLink = "\0376";
  const std::size_t link = text.find(kLink);
  return link != text.npos && text.substr(link + kLink.size(), 3) == tag;
}

}  // namespace

void RecordLayout::Read(std::string_view image, bool drops_repeated_035) {
  const auto base = static_cast<std::size_t>(BaseAddress(image));
  directory_ = {};
  if (base > kLeaderLength) directory_ = image.substr(kLeaderLength, base - 1 - kLeaderLength);
  data_ = image.substr(base, image.size() - 1 - base);
  ReadEntries();
  NumberRows(drops_repeated_035);
}

void RecordLayout::ReadEntries() {
  entries_.clear();
  movable_ = true;
  bool without_gap = true;
  std::size_t end = 0;
  for (std::size_t i = 0; i + kDirectoryEntryLength <= directory_.size();
       i += kDirectoryEntryLength) {
    const DirectoryEntry read = ReadDirectoryEntry(directory_, i, data_);
    FieldEntry entry{.whole = read.whole, .text = read.text};
    entry.start = static_cast<std::size_t>(LeadingNumber(read.whole.substr(7)));
    const std::size_t told = static_cast<std::size_t>(LeadingNumber(read.whole.substr(3, 4)));
    entry.length = std::min(told, data_.size() - std::min(entry.start, data_.size()));
    entry.overruns = entry.length > 0 && told > entry.length;
    movable_ = movable_ && IsNumber(read.whole.substr(7));
    without_gap =
        without_gap && entry.start == end && entry.length == told && IsNumber(read.whole.substr(3));
    end = entry.start + entry.length;
    entries_.push_back(entry);
  }
  in_sequence_ = without_gap && end == data_.size();
}

// Numbers the fields as loading does: one without text, one that is no field, a
// second 008 and a 035 that repeats the 001 get no row.
void RecordLayout::NumberRows(bool drops_repeated_035) {
  std::int32_t rows = 0;
  std::string_view text_of_001;
  bool has_008 = false;
  for (FieldEntry& entry : entries_) {
    if (entry.text.empty()) continue;
    const std::string_view tag = entry.Tag();
    const bool is_control = IsControlTag(tag);
    if (tag == "001" && entry.text.find(kDelimiter) == entry.text.npos) text_of_001 = entry.text;
    if (drops_repeated_035 && tag == "035" && entry.text.size() > 4 &&
        entry.text.substr(4) == text_of_001) {
      continue;
    }
    if (tag == "008" && has_008) continue;
    has_008 = has_008 || tag == "008";
    if (!IsNumber(tag) && (is_control || !LinksToItself(tag, From(entry.text, 2)))) continue;
    entry.row = rows++;
  }
}

bool RecordLayout::SharesOctets(std::size_t index) const {
  const FieldEntry& field = entries_[index];
  for (const FieldEntry& other : entries_) {
    if (&other == &field) continue;
    if (other.start < field.start + field.length && field.start < other.start + other.length) {
      return true;
    }
  }
  return false;
}

}  // namespace cantorel::cli

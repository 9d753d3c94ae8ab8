#include "cli/image_translator.h"

#include <algorithm>
#include <numeric>

#include "charset/decomposition.h"
#include "charset/marc8_mapping.h"
#include "charset/marc8_reader.h"
#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "charset/unicode_category.h"
#include "charset/utf8.h"
#include "charset/utf8_code_point.h"
#include "cli/record_editor.h"
#include "record/record_image.h"

namespace cantorel::cli {
namespace {

constexpr std::size_t kSchemePosition = 9;
constexpr std::string_view k066 = "066";
constexpr std::string_view k880 = "880";
constexpr std::string_view kToken = "[MARC+";
constexpr std::string_view kNotation = "&#x";
constexpr char kOctets[] = "the octet itself (indicator or subfield code)";

bool IsControlTag(std::string_view tag) {
  return tag.substr(0, 2) == "00";
}

// What no character set touches on the way in.
bool IsFixedField(std::string_view tag) {
  return tag >= "005" && tag <= "008";
}

bool IsWellFormedUtf8(std::string_view text) {
  for (std::size_t i = 0; i < text.size();) {
    if (Octet(text[i]) < 0x80) {
      ++i;
      continue;
    }
    const std::string_view character = Utf8CharAt(text, i);
    if (Utf8CodePoint(character) == kNoCodePoint) return false;
    i += character.size();
  }
  return true;
}

// MARC-8 has the double quotation marks, but in its Arabic and Greek sets alone.
bool IsQuotationMark(std::uint32_t code_point) {
  return code_point == 0x201C || code_point == 0x201D;
}

// Whether a character goes out as it is.
bool HasForm(std::uint32_t code_point, bool is_880) {
  Marc8Form form;
  return Marc8FormOf(code_point, form) && (is_880 || !IsQuotationMark(code_point));
}

void AppendDigits(std::size_t number, std::size_t width, std::string& out) {
  out.resize(out.size() + width);
  WriteDigits(number, width, out.data() + out.size() - width);
}

}  // namespace

bool ImageTranslator::Translate(std::string_view image, std::string& translated,
                                std::string& fault) {
  stands_.clear();
  base_ = static_cast<std::size_t>(BaseAddress(image));
  layout_.Read(image, false);
  set_in_ = DecideSet(image);
  Survey();
  // The variants of MARC-8 are told by signs that may mislead: nothing is changed
  // for them unless the caller knows.
  const bool stays = set_in_ == to_ || (to_ == 'M' && set_in_ != 'U' && from_ == '\0');
  if (stays || (IsSameText() && !Has066())) {
    translated = image;
    if (translated.size() > kSchemePosition) translated[kSchemePosition] = to_ == 'U' ? 'a' : ' ';
    return true;
  }
  if (!PlaceEntries()) {
    fault = "Its directory and its data do not agree";
    return false;
  }
  record_.SetFormatCode(image.substr(0, kLeaderLength));
  format_ = record_.MarcRecordFormat();
  TranslateEntries();
  return Assemble(image, translated, fault);
}

char ImageTranslator::DecideSet(std::string_view image) const {
  if (from_ != '\0') return from_;
  if (image[kSchemePosition] == 'a') return 'U';
  const char letter = record_.CharacterizeCharacterSet(image)[0];
  if (letter == 'X') return 'V';
  return letter == 'Y' ? 'M' : letter;
}

void ImageTranslator::Survey() {
  const std::string_view data = layout_.Data();
  const bool ascii = IsAscii(data);
  tells_set_ = !ascii || data.find(kEscape) != data.npos;
  octets_disagree_ = !ascii && IsWellFormedUtf8(data) != (set_in_ == 'U');
}

bool ImageTranslator::IsSameText() const {
  const std::string_view data = layout_.Data();
  return set_in_ == 'U' ? IsSameInUtf8(data) : IsSameInMarc8(data);
}

bool ImageTranslator::Has066() const {
  const std::vector<FieldEntry>& entries = layout_.Entries();
  return std::any_of(entries.begin(), entries.end(),
                     [](const FieldEntry& entry) { return entry.Tag() == k066; });
}

// Finds in which order the fields lie in the data.  False unless every octet of
// these belongs to one field: then a translated one has no certain place.
bool ImageTranslator::PlaceEntries() {
  const std::vector<FieldEntry>& entries = layout_.Entries();
  order_.clear();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (static_cast<std::size_t>(LeadingNumber(entries[i].whole.substr(3, 4))) !=
        entries[i].length) {
      return false;
    }
    if (entries[i].length > 0) order_.push_back(i);
  }
  if (!layout_.Movable()) return false;
  std::stable_sort(order_.begin(), order_.end(), [&](std::size_t a, std::size_t b) {
    return entries[a].start < entries[b].start;
  });
  std::size_t end = 0;
  for (const std::size_t i : order_) {
    if (entries[i].start != end) return false;
    end += entries[i].length;
  }
  return end == layout_.Data().size();
}

// --- The fields ----------------------------------------------------------------

void ImageTranslator::TranslateEntries() {
  const std::vector<FieldEntry>& entries = layout_.Entries();
  placed_.assign(entries.size(), {});
  data_.clear();
  sets_used_.Clear();
  if (set_in_ != 'U') record_.CharacterSetIn(std::string_view(&set_in_, 1));
  for (const std::size_t i : order_) {
    Placed& placed = placed_[i];
    placed.start = data_.size();
    placed.dropped = entries[i].Tag() == k066;
    if (!placed.dropped) TranslateEntry(entries[i]);
    placed.length = data_.size() - placed.start;
  }
  Add066();
}

// Appends the octets of a field in the other set.
void ImageTranslator::TranslateEntry(const FieldEntry& entry) {
  const std::string_view octets = layout_.Data().substr(entry.start, entry.length);
  const std::string_view tag = entry.Tag();
  const bool is_control = IsControlTag(tag);
  const bool untouched = set_in_ == 'U' ? is_control || IsSameInUtf8(octets)
                                        : IsFixedField(tag) || IsSameInMarc8(octets);
  if (untouched) {
    data_ += octets;
    return;
  }
  // The length says where the field ends; what stands there is kept.
  const std::string_view body = octets.substr(0, octets.size() - 1);
  const std::size_t indicators = is_control ? 0 : std::min<std::size_t>(2, body.size());
  const std::string_view text = body.substr(indicators);
  indicators_ = body.substr(0, indicators);
  text_ = text;
  if (set_in_ != 'U') TranslateInward(tag);
  if (to_ != 'U') TranslateOutward(tag);
  NoteStands(kToken, ']', entry, text);
  NoteStands(kNotation, ';', entry, text);
  const std::size_t start = data_.size();
  data_ += indicators_;
  data_ += text_;
  data_ += octets.back();
  // Indicators and subfield codes are one octet each, whatever they are.
  if (to_ == 'U' && !IsWellFormedUtf8(std::string_view(data_).substr(start))) {
    stands_.push_back({tag, base_ + entry.start, kOctets});
  }
}

void ImageTranslator::TranslateInward(std::string_view tag) {
  bool changed = false;
  bool error = false;
  record_.TranslateMarc2Utf8OneField(format_, tag, indicators_, text_, changed, error);
}

void ImageTranslator::TranslateOutward(std::string_view tag) {
  Decompose(text_, tag == k880);
  text_.clear();
  Marc8Writer writer(to_, tag == k880, marks_, text_);
  writer.Write(decomposed_);
  sets_used_.Add(writer.Used());
}

// Takes apart what MARC-8 has no form for; what has one stays as it is, so that
// the way back gives the same again.
void ImageTranslator::Decompose(std::string_view text, bool is_880) {
  decomposed_.clear();
  std::size_t begin = 0;
  for (std::size_t i = 0; i < text.size();) {
    const std::string_view character = Utf8CharAt(text, i);
    if (character.size() > 1 && HasForm(Utf8CodePoint(character), is_880)) {
      DecomposeStretch(text.substr(begin, i - begin));
      decomposed_ += character;
      begin = i + character.size();
    }
    i += character.size();
  }
  DecomposeStretch(From(text, begin));
}

void ImageTranslator::DecomposeStretch(std::string_view stretch) {
  if (IsAscii(stretch) || !DecomposeText(stretch, stretch_)) {
    decomposed_ += stretch;
    return;
  }
  CountReplaceable(stretch, 1);
  CountReplaceable(stretch_, -1);
  decomposed_ += stretch_;
}

// Counts the characters that are neither letters nor marks up or down.
void ImageTranslator::CountReplaceable(std::string_view text, std::int64_t step) {
  for (std::size_t i = 0; i < text.size();) {
    const std::string_view character = Utf8CharAt(text, i);
    i += character.size();
    const std::uint32_t code_point = Utf8CodePoint(character);
    if (character.size() == 1 || code_point == kNoCodePoint) continue;
    const std::string_view category = CategoryName(CategoryOf(character));
    if (category.empty() || category[0] == 'L' || category[0] == 'M') continue;
    if ((replaced_[code_point] += step) == 0) replaced_.erase(code_point);
  }
}

// Notes what begins and ends so in the new text and stood not in the one before.
void ImageTranslator::NoteStands(std::string_view opening, char closing, const FieldEntry& entry,
                                 std::string_view before) {
  const std::string_view after = text_;
  for (std::size_t i = after.find(opening); i != after.npos; i = after.find(opening, i + 1)) {
    const std::string_view token = after.substr(i, after.find(closing, i) - i + 1);
    if (const std::size_t known = before.find(token); known != before.npos) {
      before.remove_prefix(known + token.size());
      continue;
    }
    stands_.push_back({entry.Tag(), base_ + entry.start, std::string(token)});
  }
}

// The field that announces the sets used, ahead of the first of a higher tag.
void ImageTranslator::Add066() {
  added_066_.clear();
  const std::string sets = sets_used_.FieldText();
  if (sets.empty()) return;
  added_066_ = "  " + sets + kEndOfField;
  const std::vector<FieldEntry>& entries = layout_.Entries();
  place_066_ = 0;
  while (place_066_ < entries.size() &&
         (entries[place_066_].length == 0 || entries[place_066_].Tag() <= k066)) {
    ++place_066_;
  }
  start_066_ = place_066_ < entries.size() ? placed_[place_066_].start : data_.size();
  for (Placed& placed : placed_) {
    if (placed.start >= start_066_) placed.start += added_066_.size();
  }
  data_.insert(start_066_, added_066_);
}

// --- The new image -------------------------------------------------------------

bool ImageTranslator::Assemble(std::string_view image, std::string& translated,
                               std::string& fault) const {
  const std::vector<FieldEntry>& entries = layout_.Entries();
  translated.assign(image.substr(0, kLeaderLength));
  translated[kSchemePosition] = to_ == 'U' ? 'a' : ' ';
  const auto append_entry = [&](std::string_view tag, std::size_t length, std::size_t start) {
    translated += tag;
    AppendDigits(length, 4, translated);
    AppendDigits(start, 5, translated);
  };
  for (std::size_t i = 0; i <= entries.size(); ++i) {
    if (!added_066_.empty() && i == place_066_) append_entry(k066, added_066_.size(), start_066_);
    if (i == entries.size() || placed_[i].dropped) continue;
    if (placed_[i].length == 0) {
      translated += entries[i].whole;
      continue;
    }
    if (placed_[i].length > kLongestField) {
      fault = "Field " + std::string(entries[i].Tag()) + " would be longer than " +
              std::to_string(kLongestField) + " octets";
      return false;
    }
    append_entry(entries[i].Tag(), placed_[i].length, placed_[i].start);
  }
  // A directory that ends within an entry stays so.
  translated += From(layout_.Directory(), entries.size() * kDirectoryEntryLength);
  translated += kEndOfField;
  const std::size_t base = translated.size();
  translated += data_;
  translated += kEndOfRecord;
  return CompleteLeader(base, translated, fault);
}

}  // namespace cantorel::cli

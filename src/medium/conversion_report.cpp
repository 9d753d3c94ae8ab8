#include "medium/conversion_report.h"

#include <algorithm>

#include "charset/marc_control.h"
#include "charset/octet_text.h"

namespace cantorel {
namespace {

constexpr std::array<std::string_view, 6> kTypeNames = {
    "Unknown",
    "382 non-productive",
    "655 general message",
    "655 non-productive",
    "Unrecognized instrument",
    "Unrecognized place",
};

// Puts "$" before every small "z".  It is meant for the code of a subdivision,
// but the letter is changed wherever it stands, which is deliberate: "Waltzes"
// reads "Walt$zes".
std::string MarkLetterZ(std::string_view text) {
  std::string marked;
  marked.reserve(text.size() + 8);
  for (const char c : text) {
    if (c == 'z') marked += '$';
    marked += c;
  }
  return marked;
}

// A non-productive heading without its tag.
std::string MarkedHeading(const std::string* heading) {
  if (heading == nullptr) return {};
  const std::size_t delimiter = heading->find(kDelimiter);
  if (delimiter == std::string::npos) return {};
  return MarkLetterZ(std::string_view(*heading).substr(delimiter));
}

std::string MarkedPlace(std::string_view place) {
  std::string marked = MarkLetterZ(place);
  if (marked.ends_with("$z")) marked.resize(marked.size() - 2);
  return marked;
}

void SetHeading(std::string_view tag, std::string_view text, std::string& heading) {
  heading = tag;
  heading += text;
}

// Lists of identifiers are written up to about this length.
constexpr std::size_t kListLimit = 255;
constexpr std::size_t kListCutFrom = 239;  // from 0

// Whether nothing that is added to the list would ever be written.
bool ListIsFull(std::string_view list) {
  return list.size() > kListLimit && list.find(' ', kListCutFrom) != std::string_view::npos;
}

std::string CutList(std::string_view list) {
  if (list.size() <= kListLimit) return std::string(list);
  const std::size_t blank = list.find(' ', kListCutFrom);
  if (blank == std::string_view::npos) return std::string(list.substr(0, kListCutFrom + 1)) + "...";
  return std::string(list.substr(0, blank)) + " ...";
}

}  // namespace

// --- Filling -------------------------------------------------------------------

void ConversionReport::AddNonProductive382(std::string_view tag, std::string_view text) {
  SetHeading(tag, text, non_productive_382_.Append());
}

void ConversionReport::AddNonProductive655(std::string_view tag, std::string_view text) {
  SetHeading(tag, text, non_productive_655_.Append());
}

void ConversionReport::AddMessage(std::string_view record_id, std::string_view text,
                                  std::string_view detail1, std::string_view detail2) {
  GeneralMessage& message = messages_.Append();
  message.record_id = record_id;
  message.text = text;
  message.detail1 = detail1;
  message.detail2 = detail2;
}

void ConversionReport::CountUnrecognizedItem(std::string_view item, std::string_view record_id) {
  UnrecognizedItem* entry = unrecognized_items_.Find(item);
  if (entry == nullptr) {
    unrecognized_items_.Add(item, UnrecognizedItem());
    entry = unrecognized_items_.Find(item);
  }
  ++entry->count;
  if (record_id.empty() || ListIsFull(entry->record_ids)) return;
  if (!entry->record_ids.empty()) entry->record_ids += ' ';
  entry->record_ids += record_id;
}

void ConversionReport::CountUnrecognizedInstrument(std::string_view term,
                                                   std::string_view record_id,
                                                   std::string_view heading) {
  instruments_.Add(term, record_id, heading);
}

void ConversionReport::CountUnrecognizedPlace(std::string_view place, std::string_view record_id) {
  places_.Add(place, record_id, {});
}

void ConversionReport::ClearCounts() {
  non_productive_382_.Clear();
  messages_.Clear();
  non_productive_655_.Clear();
  instruments_.Clear();
  places_.Clear();
  band_ends_.fill(0);
  message_index_ = 0;
  instrument_index_ = -1;
  place_index_ = 0;
}

void ConversionReport::ClearAll() {
  ClearCounts();
  unrecognized_items_.RemoveAll();
}

// --- The five bands --------------------------------------------------------------

std::int32_t ConversionReport::MessageCount() {
  const std::array<std::int32_t, 5> counts = {
      non_productive_382_.Count(),   messages_.Count(),        non_productive_655_.Count(),
      UnrecognizedInstrumentTotal(), UnrecognizedPlaceTotal(),
  };
  std::int32_t total = 0;
  for (std::size_t band = 0; band < counts.size(); ++band) {
    total += counts[band];
    band_ends_[band] = total;
  }
  message_index_ = 0;
  return total;
}

void ConversionReport::MessageIndex(std::int32_t index) {
  message_index_ = index >= 1 && index <= band_ends_.back() ? index : 0;
  const std::int32_t band = MessageType();
  if (band == kNoMessage) return;
  const std::int32_t first_band = kNonProductive382;
  const std::int32_t before =
      band == first_band ? 0 : band_ends_[static_cast<std::size_t>(band - first_band - 1)];
  const std::int32_t own_index = index - before;
  switch (band) {
    case kNonProductive382:
      non_productive_382_.Index(own_index);
      break;
    case kGeneralMessage:
      messages_.Index(own_index);
      break;
    case kNonProductive655:
      non_productive_655_.Index(own_index);
      break;
    case kUnrecognizedInstrument:
      UnrecognizedInstrumentIndex(own_index);
      break;
    default:
      UnrecognizedPlaceIndex(own_index);
  }
}

std::int32_t ConversionReport::MessageType() const {
  if (message_index_ == 0) return kNoMessage;
  const auto band = std::lower_bound(band_ends_.begin(), band_ends_.end(), message_index_);
  return static_cast<std::int32_t>(band - band_ends_.begin()) + kNonProductive382;
}

std::string ConversionReport::MessageTypeName() const {
  return std::string(kTypeNames[static_cast<std::size_t>(MessageType())]);
}

std::string ConversionReport::MessageText() const {
  switch (MessageType()) {
    case kGeneralMessage:
      return messages_.Selected() == nullptr ? std::string() : messages_.Selected()->text;
    case kUnrecognizedInstrument:
      return UnrecognizedInstrumentName();
    default:
      return {};
  }
}

std::string ConversionReport::MessageTerms() const {
  switch (MessageType()) {
    case kNonProductive382:
      return MarkedHeading(non_productive_382_.Selected());
    case kGeneralMessage: {
      const GeneralMessage* message = messages_.Selected();
      return message == nullptr ? std::string() : message->detail1 + ' ' + message->detail2;
    }
    case kNonProductive655:
      return MarkedHeading(non_productive_655_.Selected());
    case kUnrecognizedInstrument: {
      std::string terms = UnrecognizedInstrumentTerms();
      std::replace(terms.begin(), terms.end(), kDelimiter, '$');
      return terms;
    }
    case kUnrecognizedPlace:
      return MarkedPlace(UnrecognizedPlaceTerm());
    default:
      return {};
  }
}

std::string ConversionReport::MessageRecordIds() const {
  switch (MessageType()) {
    case kGeneralMessage:
      return messages_.Selected() == nullptr ? std::string() : messages_.Selected()->record_id;
    case kUnrecognizedInstrument:
      return UnrecognizedInstrumentRecordIds();
    case kUnrecognizedPlace:
      return UnrecognizedPlaceRecordIds();
    default:
      return {};
  }
}

std::int32_t ConversionReport::MessageTotal() const {
  switch (MessageType()) {
    case kUnrecognizedInstrument:
      return UnrecognizedInstrumentCount();
    case kUnrecognizedPlace:
      return UnrecognizedPlaceCount();
    default:
      return 0;
  }
}

// --- One list ----------------------------------------------------------------------

std::string ConversionReport::GeneralMessageItem() const {
  const GeneralMessage* message = messages_.Selected();
  if (message == nullptr) return {};
  return message->record_id + '\t' + message->text + '\t' + message->detail1 + '\t' +
         message->detail2;
}

std::string ConversionReport::NonProductive655Item() const {
  const std::string* heading = non_productive_655_.Selected();
  return heading == nullptr ? std::string() : *heading;
}

std::int32_t ConversionReport::UnrecognizedInstrumentTotal() {
  instruments_readable_ = true;
  instrument_index_ = -1;
  return instruments_.Count();
}

void ConversionReport::UnrecognizedInstrumentIndex(std::int32_t index) {
  const bool accepted = instruments_readable_ && index >= 1 && index <= instruments_.Count();
  instrument_index_ = accepted ? index : -1;
}

const CountedTerm* ConversionReport::SelectedInstrument() const {
  return instrument_index_ < 1 ? nullptr : &instruments_.Term(instrument_index_);
}

std::string ConversionReport::UnrecognizedInstrumentName() const {
  return instrument_index_ < 1 ? std::string() : instruments_.Name(instrument_index_);
}

std::int32_t ConversionReport::UnrecognizedInstrumentCount() const {
  const CountedTerm* term = SelectedInstrument();
  return term == nullptr ? 0 : term->count;
}

std::string ConversionReport::UnrecognizedInstrumentRecordIds() const {
  const CountedTerm* term = SelectedInstrument();
  return term == nullptr ? std::string() : std::string(Trim(term->record_ids));
}

std::string ConversionReport::UnrecognizedInstrumentTerms() const {
  const CountedTerm* term = SelectedInstrument();
  return term == nullptr ? std::string() : term->headings.substr(2, term->headings.size() - 4);
}

void ConversionReport::UnrecognizedPlaceIndex(std::int32_t index) {
  place_index_ = index >= 1 && index <= places_.Count() ? index : 0;
}

const CountedTerm* ConversionReport::SelectedPlace() const {
  return place_index_ == 0 ? nullptr : &places_.Term(place_index_);
}

std::string ConversionReport::UnrecognizedPlaceTerm() const {
  return place_index_ == 0 ? std::string() : places_.Name(place_index_);
}

std::int32_t ConversionReport::UnrecognizedPlaceCount() const {
  const CountedTerm* term = SelectedPlace();
  return term == nullptr ? 0 : term->count;
}

std::string ConversionReport::UnrecognizedPlaceRecordIds() const {
  const CountedTerm* term = SelectedPlace();
  return term == nullptr ? std::string() : std::string(Trim(term->record_ids));
}

void ConversionReport::WriteUnrecognizedItems(std::FILE* file, bool& done) {
  done = false;
  if (file == nullptr) return;
  for (auto& [item, entry] : unrecognized_items_) {
    const std::string line =
        item + '\t' + std::to_string(entry.count) + '\t' + CutList(entry.record_ids) + '\n';
    if (std::fwrite(line.data(), 1, line.size(), file) != line.size()) return;
    entry.record_ids.clear();
  }
  done = true;
}

}  // namespace cantorel

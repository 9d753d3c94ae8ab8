#include "cli/report.h"

#include <algorithm>
#include <tuple>

#include "service/cantorel_class.h"

namespace cantorel::cli {
namespace {

constexpr std::size_t kMostExamples = 5;
constexpr char kBetween = '\x1F';

// Subfields that tell counts, sources and links, not terms.
constexpr std::string_view kNoTerms = "0123456789enrst";

// Beginnings of general messages, as the component words them.
constexpr std::string_view kUnknownInstrument = "Unrecognized instrument ";
constexpr std::string_view kUnknownPlace = "Reconstructed $z not found";
constexpr std::string_view kUnknownNationality = "Nationality not found: ";
constexpr std::string_view kCode = "Code ";
constexpr std::string_view kFrom = " from ";
constexpr std::string_view kNotInRecord = " not found in record";

enum Band : std::int32_t { kNo382 = 1, kGeneral = 2, kNo655 = 3, kInstrument = 4 };

// The comparison forms of a place, each behind a "z" in small letters where all
// others are great: "6XX zMASSACHUSETTSzBOSTON".
std::string PlaceOf(std::string_view terms) {
  std::string place;
  const std::size_t first = terms.find('z');
  for (const char c : terms.substr(std::min(terms.size(), first))) {
    if (c != 'z') {
      place += c;
    } else if (!place.empty()) {
      place += " -- ";
    }
  }
  if (place.ends_with(" -- ")) place.resize(place.size() - 4);
  return place;
}

std::string_view Behind(std::string_view text, std::string_view beginning) {
  return text.substr(beginning.size());
}

}  // namespace

// --- Counting ------------------------------------------------------------------

void ReportTable::Add(const Words& words, std::string_view example) {
  key_.clear();
  for (const std::string_view word : words) (key_ += word) += kBetween;
  ReportCount& count = counts_[key_];
  ++count.count;
  if (example.empty() || count.examples.size() == kMostExamples) return;
  if (count.examples.empty() || count.examples.back() != example) {
    count.examples.emplace_back(example);
  }
}

std::vector<ReportTable::Row> ReportTable::Rows() const {
  std::vector<Row> rows;
  for (const auto& [key, count] : counts_) {
    Row row{{}, &count};
    std::string_view rest = key;
    for (std::string_view& word : row.words) {
      word = rest.substr(0, rest.find(kBetween));
      rest.remove_prefix(word.size() + 1);
    }
    rows.push_back(row);
  }
  std::sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) {
    return std::tie(b.count->count, a.words) < std::tie(a.count->count, b.words);
  });
  return rows;
}

// --- Reading answers -----------------------------------------------------------

void Report::Add(const RecordAnswer& answer) {
  if (answer.result == kNotMusic) ++totals.not_music;
  const std::string example = answer.control_number.empty()
                                  ? "record " + std::to_string(answer.record)
                                  : answer.control_number;
  for (const FieldAnswer& field : answer.fields) AddField(field, example);
  for (const MessageAnswer& message : answer.messages) AddMessage(message, example);
}

void Report::AddUnread(const ConversionItem& item, std::string_view fault) {
  ++totals.unread;
  const bool is_record = item.read_error.empty();
  unread.Add({item.source, fault}, is_record ? "record " + std::to_string(item.number) : "");
}

void Report::AddField(const FieldAnswer& field, std::string_view example) {
  const std::string_view action = field.IsReplacement() ? "replace" : "add";
  for (const Subfield& subfield : SplitSubfields(field.text)) {
    if (subfield.code.empty() || kNoTerms.find(subfield.code) != kNoTerms.npos) continue;
    fields.Add({field.tag, subfield.text, action}, example);
  }
}

void Report::AddMessage(const MessageAnswer& message, std::string_view example) {
  const std::string_view text = message.text;
  if (message.type == kNo382 || message.type == kNo655) {
    headings.Add({message.type == kNo382 ? "382" : "655", message.terms}, example);
  } else if (message.type == kInstrument) {
    instruments.Add({text}, example);
  } else if (message.type != kGeneral) {
    return;
  } else if (text.starts_with(kUnknownInstrument)) {
    instruments.Add({Behind(text, kUnknownInstrument)}, example);
  } else if (text == kUnknownPlace) {
    places.Add({PlaceOf(message.terms)}, example);
  } else if (text.starts_with(kUnknownNationality)) {
    languages.Add({"not found", Behind(text, kUnknownNationality)}, example);
  } else if (text.starts_with(kCode) && text.ends_with(kNotInRecord)) {
    const std::size_t name = std::min(text.find(kFrom), text.size() - kFrom.size()) + kFrom.size();
    const std::size_t end = text.size() - kNotInRecord.size();
    languages.Add({"not in the record", text.substr(name, end - std::min(name, end))}, example);
  }
}

}  // namespace cantorel::cli

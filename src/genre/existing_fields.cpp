// The fields of a record that a derived one may equal: 046, 370, 385, 386, 388
// and 655, each under a key of tag, code and comparison form.

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "charset/marc_control.h"
#include "medium/music_650_to_382_class.h"
#include "platform/event_pump.h"

namespace cantorel {
namespace {

constexpr std::string_view kDateCodes = "abcdejklmnop";
constexpr std::string_view kPlaceCodes = "cfg";

// What there is room for beside the line number.  Rows of 500 or more are not
// written to in any case.
constexpr std::int32_t kHighestRow = 999;

bool Holds(std::string_view codes, std::string_view code) {
  return code.size() == 1 && codes.find(code) != std::string_view::npos;
}

std::string FirstText(Utf8MarcRecordClass& record, std::string_view code) {
  return record.SfdFindFirst(code, {}) ? record.SfdText() : std::string();
}

void AppendSubfield(std::string_view code, std::string_view text, std::string& out) {
  out += kDelimiter;
  out += code;
  out += text;
}

// The record's current field under a key; a key that is there already is left.
class ExistingFields {
 public:
  ExistingFields(GenreState& state, Utf8MarcRecordClass& record) : state_(state), record_(record) {}

  void Read() {
    const std::string_view tag = record_.FldTagView();
    if (tag == "046") return ReadDates();
    if (tag == "370") return ReadPlaces();
    if (tag == "385" || tag == "386") return ReadCharacteristic();
    if (tag == "388") return ReadTerm();
    if (tag == "655") return ReadGenre();
  }

 private:
  // Deliberate: the text of a derived $o holds the $p as well, so that a range
  // of years never has the key of an existing one.
  void ReadDates() {
    std::string key = "046";
    for (bool more = record_.SfdMoveFirst(true); more; more = record_.SfdMoveNext(true)) {
      if (!Holds(kDateCodes, record_.SfdCodeView())) continue;
      key += record_.SfdCodeView();
      key += record_.SfdNormView();
    }
    if (key.size() > 3) Register(key);
  }

  // A place for each field: one of several places is split.
  void ReadPlaces() {
    const std::string source = FirstText(record_, "2");
    if (source != "naf" && source != "lcsh") return;
    std::vector<Place> places;
    std::string remainder;
    for (bool more = record_.SfdMoveFirst(true); more; more = record_.SfdMoveNext(true)) {
      if (Holds(kPlaceCodes, record_.SfdCodeView())) {
        places.push_back({record_.SfdCode(), record_.SfdText(), record_.SfdNorm()});
      } else {
        AppendSubfield(record_.SfdCodeView(), record_.SfdTextView(), remainder);
      }
    }
    if (places.size() == 1) Register(KeyOf(places.front()));
    if (places.size() > 1) Split(places, remainder);
  }

  struct Place {
    std::string code;
    std::string text;
    std::string norm;
  };

  static std::string KeyOf(const Place& place) { return "370" + place.code + place.norm; }

  void Split(const std::vector<Place>& places, const std::string& remainder) {
    const std::int16_t row = record_.FldPointer();
    const std::string indicators = record_.FldInd();
    record_.FldDelete();
    for (const Place& place : places) {
      std::string text;
      AppendSubfield(place.code, place.text, text);
      record_.FldAdd("370", indicators, text + remainder);
      Register(KeyOf(place));
    }
    // The walk goes on from where the field stood.
    record_.FldPointer(row);
  }

  void ReadCharacteristic() {
    const std::string source = "2" + record_.NormString(FirstText(record_, "2"), true, "V");
    if (source != "2LCDGT" && source != "2LCSH" && source != "2") return;
    if (!record_.SfdFindFirst("a", {})) return;
    const std::string key = record_.FldTag() + "a" + record_.SfdNorm();
    if (!Register(key + source)) return;
    if (source != "2") state_.existing_keys_without_source.Add(key + "2", true);
  }

  void ReadTerm() {
    if (record_.SfdFindFirst("a", {})) Register("388a" + record_.SfdNorm());
  }

  void ReadGenre() {
    if (FirstText(record_, "2") != "lcgft") return;
    if (!record_.SfdFindFirst("a", {})) return;
    const std::string key = "655a" + record_.SfdNorm();
    if (key == "655aCANONS" || key == "655aFUGUES") state_.canons_or_fugues_assigned = true;
    Register(key);
  }

  // False for a repeated key.
  bool Register(const std::string& key) {
    const auto number = static_cast<std::int32_t>(state_.existing_field_lines.size()) + 1;
    const std::int32_t row = std::min<std::int32_t>(record_.FldPointer(), kHighestRow);
    if (!state_.existing_field_keys.Add(key, number * 1000 + row)) return false;
    std::string line = record_.FldTag() + record_.FldInd();
    record_.AppendFldText(line);
    state_.existing_field_lines.push_back(std::move(line));
    return true;
  }

  GenreState& state_;
  Utf8MarcRecordClass& record_;
};

}  // namespace

void Music650To382Class::Private_655_CollectExistingFields(Utf8MarcRecordClass& record) {
  ExistingFields fields(genre_, record);
  for (record.FldMoveTop(); record.FldMoveNext(true);) {
    YieldToHost();
    fields.Read();
  }
}

}  // namespace cantorel

// Correction of a 382 field that stands in a record.

#include <cstdint>

#include "charset/octet_text.h"
#include "medium/group_words.h"
#include "medium/music_650_to_382_class.h"

namespace cantorel {

namespace {

struct Performers {
  std::int64_t total = 0;
  bool has_ensemble = false;
};

// Adds up the performers of the current field.  False when one has no count.
bool AddUpPerformers(Utf8MarcRecordClass& record, bool ensembles_take_e, Performers& performers) {
  std::string performer_code;
  for (bool found = record.SfdMoveFirst(true); found;) {
    const std::string code = record.SfdCode();
    if (code == "a" || code == "b") {
      const bool is_ensemble = IsCommonEnsemble(record.SfdNormView());
      performers.has_ensemble |= is_ensemble;
      performer_code = code;
      if (!record.SfdMoveNext(true)) return false;
      const bool has_n = record.SfdCodeView() == "n";
      if (!has_n && record.SfdCodeView() != "e") return false;
      if (has_n && is_ensemble && ensembles_take_e) record.SfdCode("e");
      continue;
    }
    if (code == "d" || code == "p") {
      performer_code = code;
    } else if (code == "e") {
      performers.has_ensemble = true;
    } else if (code == "n" && (performer_code == "a" || performer_code == "b")) {
      performers.total += LeadingNumber(record.SfdTextView());
    }
    found = record.SfdMoveNext(true);
  }
  return true;
}

void DeleteTotals(Utf8MarcRecordClass& record) {
  for (bool found = record.SfdMoveFirst(true); found; found = record.SfdMoveNext(true)) {
    if (record.SfdCodeView() == "s") record.SfdDelete();
  }
}

}  // namespace

void Music650To382Class::CorrectRecord382(Utf8MarcRecordClass& record) {
  if (record.FldTagView() != "382") return;
  Performers performers;
  if (!AddUpPerformers(record, session_.ensembles_take_e, performers)) return;
  DeleteTotals(record);
  if (performers.total > 0 && !performers.has_ensemble) {
    record.SfdAdd("s", std::to_string(performers.total));
  }
}

}  // namespace cantorel

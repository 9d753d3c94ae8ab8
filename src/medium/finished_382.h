// A finished 382 field: its marked form, its comparison forms and its totals.
//
// The marked form of a field is its text with an optional prefix for the
// indicators: one character and ":" give the first (the second is "1"), two
// characters and ":" give both; without a prefix they are "0" and "1".

#ifndef CANTOREL_MEDIUM_FINISHED_382_H_
#define CANTOREL_MEDIUM_FINISHED_382_H_

#include <string>
#include <string_view>

#include "medium/medium_vocabulary.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

struct MarkedForm {
  bool has_prefix = false;
  char indicators[2] = {'0', '1'};
  std::string_view text;  // of the field, without the prefix

  std::string_view Indicators() const { return {indicators, 2}; }
};

MarkedForm ReadMarkedForm(std::string_view field);

// The codes that make two fields the same, and those that make them the same
// but for their counts.
inline constexpr std::string_view kWholeMediumCodes = "abdenpv3";
inline constexpr std::string_view kMediumWithoutCountCodes = "abdp3";

// The comparison form of the subfields whose codes stand in `codes`, prefix and
// codes left out.
void Comparison382Form(const Utf8MarcRecordClass& record, std::string_view field,
                       std::string_view codes, std::string& form);

// Whether a field counts anything: it has a $e, $n, $s or $t.
bool HasCountSubfield(std::string_view field);

// Makes the totals of a finished field anew: $s for the performers of a field
// without an ensemble, $r and $t with one, put ahead of $2.  A field in which a
// performer has no count is left without totals.  With `ensembles_take_e` the
// $n behind an ensemble becomes $e.
void CorrectFinished382(Utf8MarcRecordClass& record, MediumVocabulary& vocabulary,
                        bool ensembles_take_e, std::string& text);

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_FINISHED_382_H_

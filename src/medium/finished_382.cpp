#include "medium/finished_382.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "charset/octet_text.h"
#include "medium/field_382.h"

namespace cantorel {

namespace {

struct Totals {
  std::int64_t performers = 0;
  std::int64_t ensembles = 0;
  bool has_ensemble = false;
};

bool NamesEnsemble(Utf8MarcRecordClass& record, MediumVocabulary& vocabulary,
                   std::string_view term) {
  std::string norm;
  record.AppendNormString(term, true, norm);
  return norm.ends_with(" ENSEMBLE") || vocabulary.IsEnsembleName(record, norm);
}

// Adds up the counts of a field, and takes out the totals that it has.  False
// when a performer has no count.
bool AddUpCounts(Utf8MarcRecordClass& record, MediumVocabulary& vocabulary, bool ensembles_take_e,
                 std::string& text, Totals& totals) {
  char previous_code = '\0';
  for (SubfieldScanner subfield(text); subfield.Next();) {
    const char code = subfield.Code();
    const char code_ahead = previous_code;
    previous_code = code;
    if (subfield.Text().empty()) continue;
    switch (code) {
      case 'a':
      case 'b': {
        const bool is_ensemble = NamesEnsemble(record, vocabulary, subfield.Text());
        totals.has_ensemble |= is_ensemble;
        if (subfield.End() + 1 >= text.size()) return false;
        char& next_code = text[subfield.End() + 1];
        if (next_code != 'n' && next_code != 'e') return false;
        if (is_ensemble && ensembles_take_e) next_code = 'e';
        break;
      }
      case 'e':
        totals.ensembles += LeadingNumber(subfield.Text());
        break;
      case 'n':
        // Doublings and alternatives are played by someone already counted.
        if (code_ahead != 'd' && code_ahead != 'p') {
          totals.performers += LeadingNumber(subfield.Text());
        }
        break;
      case 'r':
      case 's':
      case 't':
        // A total amid the field leaves its length in blanks behind.
        if (subfield.IsLast()) {
          text.resize(subfield.Start());
        } else {
          text.replace(subfield.Start(), subfield.Whole().size(), subfield.Whole().size(), ' ');
        }
        break;
      default:
        break;
    }
  }
  return true;
}

std::string TotalSubfields(const Totals& totals, bool has_soloist) {
  std::string made;
  if (totals.ensembles > 0) {
    if (!totals.has_ensemble) return made;
    if (has_soloist && totals.performers > 0) {
      AppendSubfield(made, 'r', std::to_string(totals.performers));
    }
    AppendSubfield(made, 't', std::to_string(totals.ensembles));
  } else if (!totals.has_ensemble && totals.performers > 0) {
    AppendSubfield(made, 's', std::to_string(totals.performers));
  }
  return made;
}

}  // namespace

MarkedForm ReadMarkedForm(std::string_view field) {
  MarkedForm form;
  form.text = field;
  const std::size_t colon = field.substr(0, 3).find(':');
  if (colon != 1 && colon != 2) return form;
  form.has_prefix = true;
  form.indicators[0] = field[0];
  if (colon == 2) form.indicators[1] = field[1];
  form.text.remove_prefix(colon + 1);
  return form;
}

void Comparison382Form(const Utf8MarcRecordClass& record, std::string_view field,
                       std::string_view codes, std::string& form) {
  const std::string_view text = ReadMarkedForm(field).text;
  std::string compared(text.substr(0, text.find(kDelimiter)));
  for (SubfieldScanner subfield(text); subfield.Next();) {
    compared += ' ';
    if (codes.find(subfield.Code()) != std::string_view::npos) compared += subfield.Text();
  }
  form.clear();
  record.AppendNormString(compared, true, form);
}

bool HasCountSubfield(std::string_view field) {
  return HasSubfield(field, 'e') || HasSubfield(field, 'n') || HasSubfield(field, 's') ||
         HasSubfield(field, 't');
}

void CorrectFinished382(Utf8MarcRecordClass& record, MediumVocabulary& vocabulary,
                        bool ensembles_take_e, std::string& text) {
  if (!HasSubfield(text, 'n') && !HasSubfield(text, 'e')) return;
  Totals totals;
  if (!AddUpCounts(record, vocabulary, ensembles_take_e, text, totals)) return;

  constexpr char kSourceSubfield[] = {kDelimiter, '2'};
  const std::size_t source = text.find(std::string_view(kSourceSubfield, 2));
  text.insert(std::min(source, text.size()), TotalSubfields(totals, HasSubfield(text, 'b')));
}

}  // namespace cantorel

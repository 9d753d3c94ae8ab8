#include "medium/title_medium.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>

#include "charset/octet_text.h"
#include "medium/field_382.h"
#include "medium/group_words.h"
#include "medium/heading_grammar.h"
#include "medium/music_650_to_382_class.h"
#include "medium/text_find.h"
#include "medium/title_medium_forms.h"
#include "platform/event_pump.h"

namespace cantorel {
namespace {

// A medium with any of these, in any case, does not say who plays.
constexpr std::string_view kIndefiniteWords[] = {
    "brasses", "acc.", "percussion", "ensemble", "plucked instruments", "keyboard instruments",
};

// These do say it together with a title that counts the players.
constexpr std::string_view kFamilies[] = {"strings", "woodwinds", "winds"};
constexpr std::string_view kCountingWords[] = {"trio", "quartet", "quintet"};

// The code of an ensemble until it is known whether it has soloists.
constexpr char kEnsembleCode = '9';

std::optional<std::string_view> FirstSubfield(std::string_view field, char code) {
  for (SubfieldScanner subfield(field); subfield.Next();) {
    if (subfield.Code() == code) return subfield.Text();
  }
  return std::nullopt;
}

bool IsTitleOf(std::string_view title, std::string_view singular) {
  if (title.ends_with('S')) title.remove_suffix(1);
  return title == singular;
}

const TitleMediumForm* FindForm(std::string_view medium, std::string_view title) {
  const auto* form = std::find_if(
      std::begin(kTitleMediumForms), std::end(kTitleMediumForms), [&](const TitleMediumForm& f) {
        return f.medium == medium && (f.title.empty() || IsTitleOf(title, f.title));
      });
  return form == std::end(kTitleMediumForms) ? nullptr : form;
}

// Whether the medium is a family of instruments and the title does not tell how
// many play.
bool IsUncountedFamily(std::string_view medium, std::string_view title) {
  const bool names_family = std::any_of(
      std::begin(kFamilies), std::end(kFamilies),
      [medium](std::string_view family) { return medium.find(family) != std::string_view::npos; });
  return names_family &&
         std::none_of(std::begin(kCountingWords), std::end(kCountingWords),
                      [title](std::string_view word) { return ContainsNoCase(title, word); });
}

// Takes the number of hands off the end of a medium, "piano (4 hands)".  A bare
// number goes as well, so that "violins (2)" is counted as one violin, which is
// deliberate.  False when the hands stand without a parenthesis, or the
// parenthesis is not whole.
bool SettleLastParenthesis(std::string& medium) {
  if (!medium.ends_with(')')) return !ContainsNoCase(medium, "hands");
  const std::size_t open = FindLastGroup(medium);
  if (open == std::string::npos) return false;

  std::string inside = medium.substr(open + 1, medium.size() - open - 2);
  inside = Utf8MarcRecordClass::ReplaceCharacters(inside, " hands", {});
  inside = Utf8MarcRecordClass::ReplaceCharacters(inside, " Hands", {});
  const bool only_number = inside.find_first_not_of("0123456789-") == std::string::npos;
  medium.resize(open);
  if (only_number) {
    medium.resize(TrimRight(medium).size());
  } else {
    medium += '(' + inside + ')';
  }
  return true;
}

void AppendPerformers(std::string_view list, std::string& text) {
  while (!list.empty()) {
    const std::string_view item = list.substr(0, list.find(','));
    list = From(list, item.size() + 1);
    if (!Trim(item).empty()) AppendSubfield(text, 'a', Trim(item));
  }
}

bool IsPerformer(char code) {
  return code == 'a' || code == 'b';
}

}  // namespace

std::string_view TitleOfHeading(std::string_view field_text) {
  const auto title = FirstSubfield(field_text, 't');
  return title ? *title : FirstSubfield(field_text, 'a').value_or(std::string_view());
}

bool ReadTitleMedium(const Utf8MarcRecordClass& record, std::string_view field_text,
                     std::string& text) {
  text.clear();
  if (HasSubfield(field_text, 'o')) return false;
  const auto subfield_m = FirstSubfield(field_text, 'm');
  if (!subfield_m) return false;
  std::string medium(*subfield_m);
  if (std::any_of(std::begin(kIndefiniteWords), std::end(kIndefiniteWords),
                  [&](std::string_view word) { return ContainsNoCase(medium, word); })) {
    return false;
  }

  const std::string title = record.NormString(TitleOfHeading(field_text), true, "V");
  if (const TitleMediumForm* form = FindForm(record.NormString(medium, true, "V"), title)) {
    text = form->written_out;
    AppendPerformers(form->performers, text);
    return true;
  }
  if (IsUncountedFamily(medium, title)) return false;

  if (!medium.empty() && std::string_view(";,.").find(medium.back()) != std::string_view::npos) {
    medium.pop_back();
  }
  medium = Trim(medium);
  if (!SettleLastParenthesis(medium)) return false;
  AppendPerformers(medium, text);
  return !text.empty();
}

void CountTitlePerformers(const Utf8MarcRecordClass& record, std::string& text) {
  std::string counted;
  std::string norm;
  std::int64_t total = 0;
  bool has_ensemble = false;
  for (SubfieldScanner subfield(text); subfield.Next();) {
    YieldToHost();
    // A $n that stands already is kept beside the one made here, so that two
    // violins written out read "$aviolin$n1$n2", which is deliberate.
    if (!IsPerformer(subfield.Code())) {
      counted += subfield.Whole();
      continue;
    }
    std::string_view term = subfield.Text();
    norm.clear();
    record.AppendNormString(term, true, norm);
    has_ensemble |= IsCommonEnsemble(norm);

    const std::size_t open = term.find('(');
    std::int32_t number = open == std::string_view::npos ? 0 : LeadingNumber(term.substr(open + 1));
    if (number > 0) {
      term = Trim(term.substr(0, open));
    } else {
      number = 1;
    }
    AppendSubfield(counted, subfield.Code(), term);
    AppendSubfield(counted, 'n', std::to_string(number));
    total += number;
  }
  if (total > 0 && !has_ensemble) AppendSubfield(counted, 's', std::to_string(total));
  text = std::move(counted);
}

void VerifyTitlePerformers(MediumVocabulary& vocabulary, Utf8MarcRecordClass& record,
                           std::string_view text, std::string& result) {
  result.clear();
  std::string preferred;
  bool all_known = true;
  bool any_ensemble = false;
  bool any_soloist = false;
  for (SubfieldScanner subfield(text); subfield.Next();) {
    if (!IsPerformer(subfield.Code())) {
      result += subfield.Whole();
      continue;
    }
    bool is_ensemble = false;
    if (!vocabulary.VerifyMediumTerm(subfield.Text(), preferred, is_ensemble, record)) {
      all_known = false;
      result += subfield.Whole();
      continue;
    }
    AppendSubfield(result, is_ensemble ? kEnsembleCode : subfield.Code(), preferred);
    any_ensemble |= is_ensemble;
    any_soloist |= !is_ensemble;
  }
  if (any_ensemble && any_soloist) ChangeCodes(result, 'a', 'b');
  ChangeCodes(result, kEnsembleCode, 'a');
  // The code is fixed: another source set for the headings is not followed here.
  if (all_known) AppendSubfield(result, '2', "lcmpt");
}

// --- The members of the class -------------------------------------------------------

void Music650To382Class::ConvertTitleMedium(std::string_view /*leader_type*/,
                                            std::string_view field_text,
                                            Utf8MarcRecordClass& record, std::string_view record_id,
                                            std::string& trailing, std::int32_t& result) {
  buffer_.clear();
  trailing.clear();
  result = kHeadingGaveNothing;
  std::string performers;
  if (!ReadTitleMedium(record, field_text, performers)) return;
  CountTitlePerformers(record, performers);
  VerifyTitlePerformers(vocabulary_, record, performers, buffer_);
  MediumContext context{record, vocabulary_, report_, field_text, record_id};
  SettleSoloists(context, buffer_);
  result = kHeadingGaveField;
}

void Music650To382Class::Convert650To382_SubfieldM_TitleExtract(std::string_view field_text,
                                                                bool normalised,
                                                                const Utf8MarcRecordClass& record,
                                                                std::string& title) {
  const std::string_view found = TitleOfHeading(field_text);
  title = normalised ? record.NormString(found, true, "V") : std::string(Trim(found));
}

void Music650To382Class::Convert650To382_SubfieldM_Parentheses(const Utf8MarcRecordClass& record,
                                                               std::string& text) {
  CountTitlePerformers(record, text);
}

void Music650To382Class::Convert650To382_SubfieldM_Verify(std::string_view text,
                                                          Utf8MarcRecordClass& record,
                                                          std::string& result) {
  VerifyTitlePerformers(vocabulary_, record, text, result);
}

}  // namespace cantorel

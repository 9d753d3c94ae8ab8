// One item of a medium phrase.

#include <cstddef>

#include "medium/group_words.h"
#include "medium/medium_phrase.h"
#include "medium/text_find.h"

namespace cantorel {

namespace {

// An item while it is read.
struct ItemReading {
  MediumContext& context;
  std::string_view item;
  std::string_view norm;
  std::string& term;
  std::string& count;
  std::string& note;
  bool& all_terms_known;
};

// The first word of a comparison form; `rest` is what follows its blank.
std::string_view FirstWord(std::string_view norm, std::string_view& rest) {
  const std::size_t blank = norm.find(' ');
  rest = blank == std::string_view::npos ? std::string_view() : norm.substr(blank + 1);
  return norm.substr(0, blank);
}

std::int32_t Unrecognized(const ItemReading& r, std::string_view term) {
  r.context.report.CountUnrecognizedItem(term, r.context.record_id);
  return kUnrecognized;
}

bool FindInstrument(const ItemReading& r, std::string_view name) {
  return r.context.vocabulary.FindInstrument(r.context.record, name, r.term);
}

bool IsBrassBaritone(const ItemReading& r, std::string_view name) {
  return (name == "BARITONE" || name == "BARITONES") &&
         BaritoneMeansHorn(r.context.heading_text, r.term);
}

bool FindEnsemble(const ItemReading& r, std::string_view name) {
  bool is_known = true;
  if (ResolveEnsembleItem(r.context, name, r.term, r.count, is_known) == 0) return false;
  if (!is_known) r.all_terms_known = false;
  return true;
}

// "4 hands", "2 pianos".
std::int32_t ReadCountedItem(const ItemReading& r) {
  std::string_view rest;
  const std::string_view count = FirstWord(r.norm, rest);
  if (rest == "HAND" || rest == "HANDS") {
    r.note = r.item;
    r.count = HalfRoundedUp(count);
    return kHandsForm;
  }
  if (!FindInstrument(r, rest)) return Unrecognized(r, rest);
  r.count = count;
  return kSingleMedium;
}

// "flute", "piano trio", "guitar ensemble".
std::int32_t ReadPlainItem(const ItemReading& r) {
  if (FindInstrument(r, r.norm) || IsBrassBaritone(r, r.norm)) {
    if (IsCountedMedium(r.term)) r.count = "1";
    return kSingleMedium;
  }
  const std::string_view combination = StandardCombination(r.norm);
  if (!combination.empty()) {
    r.term = combination;
    return kStandardCombination;
  }
  return FindEnsemble(r, r.norm) ? kSingleMedium : Unrecognized(r, r.norm);
}

// "pianos (2)", "piano (4 hands)".  Any other parenthesis makes the item
// unrecognised.
std::int32_t ReadParenthesizedItem(const ItemReading& r, std::size_t open) {
  const std::string inner = r.context.Norm(r.item.substr(open + 1));
  if (!BeginsWithCount(inner)) return Unrecognized(r, r.norm);

  std::string_view rest;
  r.count = FirstWord(inner, rest);
  if (!rest.empty()) {
    if (!rest.starts_with("HAND")) return Unrecognized(r, r.norm);
    r.note = r.item;
    r.count = HalfRoundedUp(r.count);
  }
  // An ensemble comes back with the count 1, whatever the parenthesis says.
  const std::string name = r.context.Norm(r.item.substr(0, open));
  if (!FindInstrument(r, name) && !IsBrassBaritone(r, name) && !FindEnsemble(r, name)) {
    return Unrecognized(r, name);
  }
  return r.note.empty() ? kSingleMedium : kMediumWithNote;
}

}  // namespace

std::int32_t ParseMediumItem(MediumContext& context, std::string_view item, std::string_view norm,
                             std::string& term, std::string& count, std::string& note,
                             bool& all_terms_known) {
  term.clear();
  count.clear();
  note.clear();
  const ItemReading reading{context, item, norm, term, count, note, all_terms_known};
  if (BeginsWithCount(item)) return ReadCountedItem(reading);
  const std::size_t open = item.rfind('(');
  if (open == std::string_view::npos) return ReadPlainItem(reading);
  return ReadParenthesizedItem(reading, open);
}

std::int32_t ParseMediumItem(MediumContext& context, std::string_view item, std::string& term,
                             std::string& count, std::string& note, bool& all_terms_known) {
  const std::string norm = context.Norm(item);
  return ParseMediumItem(context, item, norm, term, count, note, all_terms_known);
}

}  // namespace cantorel

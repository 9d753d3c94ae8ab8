#include "medium/medium_phrase.h"

#include <algorithm>
#include <cstddef>

#include "charset/octet_text.h"
#include "medium/field_382.h"
#include "medium/group_words.h"
#include "medium/text_find.h"
#include "platform/event_pump.h"
#include "record/safe_text.h"

namespace cantorel {

namespace {

constexpr std::string_view kWith = " with ";
constexpr std::string_view kAnd = " and ";

// Names that hold an "and" of their own, in comparison form.
struct JoinedName {
  std::string_view before;
  std::string_view behind;
};

constexpr JoinedName kJoinedNames[] = {{"DRUM", "BUGLE CORPS"}, {"FIFE", "DRUM CORPS"}};

// Whether the "and" at this place of a list belongs to a name.
bool JoinsName(const MediumContext& context, std::string_view list, std::size_t place) {
  const std::string_view ahead = list.substr(0, place);
  const std::string before = context.Norm(ahead.substr(ahead.rfind(' ') + 1));
  const std::string_view behind = list.substr(place + kAnd.size());
  for (const JoinedName& name : kJoinedNames) {
    if (before != name.before) continue;
    return context.Norm(behind.substr(0, name.behind.size())) == name.behind;
  }
  return false;
}

// Puts a comma for each "and" that parts two items.  The blanks that keep the
// length are trimmed with the items.
void PartItemsAtAnd(const MediumContext& context, std::string& list) {
  for (std::size_t place = FindNoCase(list, kAnd); place != std::string::npos;
       place = FindNoCase(list, kAnd, place + kAnd.size() - 1)) {
    if (JoinsName(context, list, place)) continue;
    list.replace(place, kAnd.size(), ",    ");
  }
}

// Reads the items of one phrase into a field.
class PhraseReader {
 public:
  PhraseReader(MediumContext& context, std::string& buffer, bool& all_terms_known)
      : context_(context), buffer_(buffer), all_terms_known_(all_terms_known) {}

  // Reads a list of items as $a, or as $b for soloists.  False when the phrase
  // ends here, for good or ill.
  bool ReadList(std::string_view list, char code, bool is_accompaniment);

  std::int32_t Result() const { return result_; }

 private:
  bool ReadItem(std::string_view item, char code, bool is_accompaniment);
  void AppendMedium(char code, bool takes_count);
  void AppendCombination(char code);
  bool ApplyHands(std::string_view item);

  MediumContext& context_;
  std::string& buffer_;
  bool& all_terms_known_;
  std::int32_t result_ = 0;
  std::string previous_item_;
  std::string norm_;
  std::string term_;
  std::string count_;
  std::string note_;
};

bool PhraseReader::ReadList(std::string_view list, char code, bool is_accompaniment) {
  while (!list.empty()) {
    YieldToHost();
    const std::size_t comma = std::min(list.find(','), list.size());
    const std::string_view item = Trim(list.substr(0, comma));
    list = From(list, comma + 1);
    context_.Norm(item, norm_);
    if (norm_.empty()) continue;
    if (!ReadItem(item, code, is_accompaniment)) return false;
    previous_item_ = item;
  }
  return true;
}

bool PhraseReader::ReadItem(std::string_view item, char code, bool is_accompaniment) {
  const std::int32_t kind =
      ParseMediumItem(context_, item, norm_, term_, count_, note_, all_terms_known_);
  switch (kind) {
    case kSingleMedium: {
      // A single accompanying "electronics" is counted, one with a note or among
      // the main performers is not; the difference is deliberate.
      const bool takes_count =
          is_accompaniment ? term_ != "continuo" && term_ != "percussion" : IsCountedMedium(term_);
      AppendMedium(code, takes_count);
      result_ |= kSingleMedium;
      return true;
    }
    case kStandardCombination:
      AppendCombination(code);
      result_ |= kStandardCombination;
      return true;
    case kHandsForm:
      return ApplyHands(item);
    case kMediumWithNote:
      AppendMedium(code, IsCountedMedium(term_));
      AppendSubfield(buffer_, 'v', TidyNote(context_, note_));
      result_ |= kMediumWithNote | kSingleMedium;
      return true;
    default:
      // The note of an item that failed is written all the same.
      if (!note_.empty()) AppendSubfield(buffer_, 'v', TidyNote(context_, note_));
      result_ |= kUnrecognized;
      return false;
  }
}

void PhraseReader::AppendMedium(char code, bool takes_count) {
  AppendSubfield(buffer_, code, term_);
  if (!count_.empty()) {
    AppendSubfield(buffer_, 'n', count_);
  } else if (takes_count) {
    AppendSubfield(buffer_, 'n', "1");
  }
}

void PhraseReader::AppendCombination(char code) {
  if (code != 'a') ChangeCodes(term_, 'a', code);
  buffer_ += term_;
}

// "4 hands" behind "piano": the count of the piano becomes 2, and a note tells
// the rest.  Without a count at the end of the field the phrase ends here.
bool PhraseReader::ApplyHands(std::string_view item) {
  constexpr char kCountSubfield[] = {kDelimiter, 'n'};
  const std::size_t count = buffer_.rfind(kCountSubfield, std::string::npos, 2);
  if (count == std::string::npos) return false;
  if (buffer_.find(kDelimiter, count + 1) != std::string::npos) return false;
  buffer_.replace(count + 2, std::string::npos, count_);

  previous_item_ += ", ";
  previous_item_ += item;
  AppendSubfield(buffer_, 'v', TidyNote(context_, previous_item_));
  result_ |= kHandsForm | kSingleMedium;
  return true;
}

}  // namespace

std::int32_t ParseMediumPhrase(MediumContext& context, std::string_view phrase, std::string& buffer,
                               bool& all_terms_known) {
  const std::size_t with = phrase.find(kWith);
  const bool has_accompaniment = with != std::string_view::npos;

  std::string_view performers = Trim(phrase.substr(0, with));
  if (performers.starts_with('(')) performers = Trim(performers.substr(1));
  std::string list(performers);
  PartItemsAtAnd(context, list);

  PhraseReader reader(context, buffer, all_terms_known);
  if (!reader.ReadList(list, has_accompaniment ? 'b' : 'a', false)) return reader.Result();
  if (!has_accompaniment) return reader.Result();

  list = ReplaceCharacters(Trim(phrase.substr(with + kWith.size())), kWith, ", ");
  if (list.find(kAnd) != std::string::npos) list = ReplaceCharacters(list, kAnd, ", ");
  reader.ReadList(list, 'a', true);
  return reader.Result();
}

}  // namespace cantorel

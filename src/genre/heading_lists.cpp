#include "genre/heading_lists.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>

#include "charset/octet_text.h"
#include "genre/heading_lists_parentheses_table.h"
#include "medium/group_words.h"
#include "medium/text_find.h"
#include "record/safe_text.h"

namespace cantorel {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

// Qualifiers behind commas are taken off one by one.  Headings have two or
// three; a text made of commas is read no deeper than this.
constexpr int kMostQualifiers = 16;

enum class FirstWords {
  kFamily,       // "Brass quartets": chamber music
  kSacredSongs,  // "Sacred songs with piano": by the performers
  kSacredVocal,  // "Sacred vocal trios with ...": by the performers
  kSacred,       // "Sacred quartets"
  kSongs,        // "Songs with piano": by the performers
  kStrings,      // "String trios", not "String trios with ..."
  kVocalises,
};

struct FirstWordsRow {
  std::string_view prefix;
  FirstWords kind;
  bool of_whole_a = false;  // of the $a itself, not what stands before a qualifier
};

// The first row that fits decides.  "VOCAL " is not among them, which is
// deliberate: "Vocal trios" gets no term here.
constexpr FirstWordsRow kFirstWords[] = {
    {"BRASS ", FirstWords::kFamily},
    {"PIANO ", FirstWords::kFamily},
    {"PLUCKED INSTRUMENT ", FirstWords::kFamily},
    {"SACRED SONGS WITH ", FirstWords::kSacredSongs, true},
    {"SACRED VOCAL ", FirstWords::kSacredVocal, true},
    {"SACRED ", FirstWords::kSacred, true},
    {"SONGS WITH ", FirstWords::kSongs, true},
    {"STRING ", FirstWords::kStrings},
    {"VOCALISES WITH ", FirstWords::kVocalises, true},
    {"WIND ", FirstWords::kFamily},
    {"WOODWIND ", FirstWords::kFamily},
};

// Performers too many for chamber music.
constexpr std::string_view kLargeEnsembles[] = {
    "BAND", "ORCHESTRA", "CHAMBER ORCHESTRA", "JAZZ ENSEMBLE", "STRING ORCHESTRA",
};

// Takes an ending off a text; false when it ends otherwise.
bool TakeEnding(std::string_view& text, std::string_view ending) {
  if (!text.ends_with(ending)) return false;
  text.remove_suffix(ending.size());
  return true;
}

// Puts the record's cursors back at the end of a scope.
class CursorKeeper {
 public:
  explicit CursorKeeper(Utf8MarcRecordClass& record)
      : record_(record), field_(record.FldPointer()), subfield_(record.SfdPointer()) {}
  ~CursorKeeper() { Restore(); }
  CursorKeeper(const CursorKeeper&) = delete;
  CursorKeeper& operator=(const CursorKeeper&) = delete;

  void Restore() {
    record_.FldPointer(field_);
    record_.SfdPointer(subfield_);
  }

 private:
  Utf8MarcRecordClass& record_;
  std::int16_t field_;
  std::int16_t subfield_;
};

}  // namespace

bool IsEnsembleWord(std::string_view word) {
  bool is_group = false;
  return NumberFromGroupWord(word, is_group) > 2;
}

std::string TableKey(std::string_view norm) {
  std::string key(norm);
  std::replace(key.begin(), key.end(), ' ', '_');
  return key;
}

std::string LowerCase(std::string_view norm) {
  std::string lower(norm);
  std::transform(lower.begin(), lower.end(), lower.begin(), AsciiLower);
  return lower;
}

bool HeadingLists::TestHeading(std::string_view text, bool strip_arranged) {
  if (depth_ == kMostQualifiers) return false;
  ++depth_;
  CursorKeeper cursors(context_.record);
  const std::size_t comma = text.rfind(',');
  const std::size_t open = FindLastGroup(text);
  bool found = false;
  if (comma != kNone) {
    const std::string_view before = text.substr(0, comma);
    std::string key, value;
    found = TestComma(before, Norm(before), Trim(text.substr(comma + 1)), key, value);
    cursors.Restore();
  }
  std::string_view parenthetical;
  if (open != kNone) {
    parenthetical = text.substr(open);
    found = TestParentheses(Norm(text.substr(0, open)), parenthetical);
    cursors.Restore();
  }
  // A heading with a comma alone is not read for its wording.
  if (!found && (open != kNone || comma == kNone)) {
    text = Trim(text.substr(0, std::min(comma, open)));
    found = TestWording(text, parenthetical, strip_arranged);
  }
  --depth_;
  return found;
}

// --- Wording ---------------------------------------------------------------------

bool HeadingLists::TestWording(std::string_view text, std::string_view parenthetical,
                               bool strip_arranged) {
  const std::string base_norm = Norm(text);
  const std::string full_norm(context_.record.SfdNormView());
  std::string_view full = full_norm;
  if (strip_arranged && TakeEnding(full, " ARRANGED")) full = Trim(full);

  const auto* row =
      std::find_if(std::begin(kFirstWords), std::end(kFirstWords), [&](const FirstWordsRow& r) {
        return (r.of_whole_a ? full : std::string_view(base_norm)).starts_with(r.prefix);
      });
  if (row == std::end(kFirstWords)) return TestLastWords(full);

  std::string_view rest = row->of_whole_a ? full : std::string_view(base_norm);
  rest.remove_prefix(row->prefix.size());
  const std::string_view word = TakeWord(rest);
  const std::size_t with = FindNoCase(text, " with ");
  const std::string_view performers =
      with == kNone ? std::string_view() : Trim(text.substr(with + 6));
  switch (row->kind) {
    case FirstWords::kFamily:
      if (IsEnsembleWord(word)) return AddChamberMusic();
      break;
    case FirstWords::kSacredSongs:
      context_.AddGenre("Songs");
      context_.AddGenre("Sacred music");
      AddUnlessLargeEnsemble(performers, " and ", " with ");
      return true;
    case FirstWords::kSacredVocal:
      if (!IsEnsembleWord(word) && !(word == "ENSEMBLES" && rest.starts_with("WITH "))) break;
      context_.AddGenre("Sacred music");
      AddUnlessLargeEnsemble(performers, " and ", " with ");
      return true;
    case FirstWords::kSacred:
      if (IsEnsembleWord(word)) return AddAndStop("Sacred music");
      break;
    case FirstWords::kSongs:
      context_.AddGenre("Songs");
      AddUnlessLargeEnsemble(performers, " and ", " with ");
      return true;
    case FirstWords::kStrings:
      if (IsEnsembleWord(word) && (!parenthetical.empty() || rest.empty())) {
        return AddChamberMusic();
      }
      break;
    case FirstWords::kVocalises:
      return AddAndStop("Vocalises");
  }
  return TestLastWords(full);
}

bool HeadingLists::TestLastWords(std::string_view full) {
  if (full.ends_with(" ENSEMBLE")) return TestEnsemble(full);
  std::string_view rest = full;
  if (TakeEnding(rest, " ENSEMBLES")) return IsInstrument(rest) && AddChamberMusic();
  return full.ends_with(" MUSIC") && TestDuo(full);
}

// "Flute with string ensemble", "Flute with jazz ensemble".
bool HeadingLists::TestEnsemble(std::string_view full) {
  const std::size_t with = full.find(" WITH ");
  if (with == kNone || !IsInstrument(full.substr(0, with))) return false;
  if (!TakeEnding(full, " WITH JAZZ ENSEMBLE")) return AddChamberMusic();
  return IsInstrument(full) && AddAndStop("Jazz");
}

// "Flute and piano music".
bool HeadingLists::TestDuo(std::string_view full) {
  const std::size_t and_word = full.find(" AND ");
  return and_word != kNone && IsInstrument(full.substr(0, and_word)) &&
         IsMusicOfInstrument(Trim(full.substr(and_word + 5))) && AddChamberMusic();
}

// --- Steps that several ways share -----------------------------------------------

void HeadingLists::AddUnlessLargeEnsemble(std::string_view performers, std::string_view and_word,
                                          std::string_view with_word) {
  std::string list = ReplaceCharacters(performers, and_word, ", ");
  list = ReplaceCharacters(list, with_word, ", ");
  for (std::string_view rest = list; !rest.empty();) {
    const std::string_view item = rest.substr(0, rest.find(','));
    rest = From(rest, item.size() + 1);
    const std::string norm = Norm(item);
    if (std::find(std::begin(kLargeEnsembles), std::end(kLargeEnsembles), norm) !=
        std::end(kLargeEnsembles)) {
      return;
    }
  }
  AddChamberMusic();
}

bool HeadingLists::AddChamberMusic() {
  return AddAndStop(kChamberMusic);
}

bool HeadingLists::AddAndStop(std::string_view term) {
  context_.AddGenre(term);
  return true;
}

bool HeadingLists::IsInstrument(std::string_view name) {
  if (name.empty()) return false;
  bool found = false;
  context_.music.Private_ReadInstrumentObjectAndFile(context_.record, name, preferred_, found);
  return found;
}

bool HeadingLists::IsMusicOfInstrument(std::string_view name) {
  return TakeEnding(name, " MUSIC") && IsInstrument(name);
}

// --- The members of the class -----------------------------------------------------

void Music650To382Class::Private_655_TestHeading(std::string_view text, Utf8MarcRecordClass& record,
                                                 std::string& new_lines, bool strip_arranged,
                                                 bool& found) {
  GenreContext context{*this, genre_, record, new_lines};
  found = HeadingLists(context, derivation_table_).TestHeading(text, strip_arranged);
}

void Music650To382Class::Private_655_List1_Comma(Utf8MarcRecordClass& record,
                                                 std::string_view after_comma, std::string& key,
                                                 std::string& value, std::string& new_lines,
                                                 bool& found, std::string_view before_comma,
                                                 std::string_view before_comma_norm) {
  GenreContext context{*this, genre_, record, new_lines};
  found = HeadingLists(context, derivation_table_)
              .TestComma(before_comma, before_comma_norm, after_comma, key, value);
}

void Music650To382Class::Private_655_List1_Parentheses(Utf8MarcRecordClass& record,
                                                       std::string_view base_norm,
                                                       std::string_view parenthetical,
                                                       std::string& new_lines, bool& found) {
  GenreContext context{*this, genre_, record, new_lines};
  found = HeadingLists(context, derivation_table_).TestParentheses(base_norm, parenthetical);
}

std::int32_t Music650To382Class::Private_655_FindOpenParenthesis(std::string_view text) {
  const std::size_t open = FindLastGroup(text);
  return open == kNone ? 0 : static_cast<std::int32_t>(open + 1);
}

}  // namespace cantorel

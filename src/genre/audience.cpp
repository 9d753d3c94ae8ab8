// Subdivisions that name a language, a nationality or a style in words, into 655
// with 385 (audience) or 386 (creator).

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "genre/audience_phrases.h"
#include "genre/genre_context.h"
#include "genre/heading_lists.h"
#include "medium/music_650_to_382_class.h"
#include "medium/text_find.h"
#include "platform/profile_file.h"

namespace cantorel {
namespace {

constexpr std::string_view kAudience = "385";
constexpr std::string_view kCreator = "386";
constexpr std::string_view kDemographicTerms = "lcdgt";

constexpr std::string_view kLanguages = "LanguagesByName";
constexpr std::int32_t kLongestCodes = 200;
constexpr std::string_view kStyles = "MusicalStyle";
constexpr std::int32_t kLongestStyle = 1000;

// "ITALIAN" of "ITALIAN SPEAKERS"; empty for any other text.
std::string_view LanguageOfSpeakers(std::string_view norm) {
  constexpr std::string_view kSpeakers = " SPEAKERS";
  constexpr std::size_t kShortest = 11;
  if (norm.size() < kShortest || !norm.ends_with(kSpeakers)) return {};
  return norm.substr(0, norm.size() - kSpeakers.size());
}

bool IsYear(std::string_view norm) {
  return norm.size() == 4 && std::all_of(norm.begin(), norm.end(), IsAsciiDigit);
}

// The record's current subdivision.
class PhraseReader {
 public:
  PhraseReader(GenreContext& context, Utf8MarcRecordClass& scratch_record,
               std::string_view derivation_table, std::string& spare)
      : context_(context),
        scratch_record_(scratch_record),
        derivation_table_(derivation_table),
        spare_(spare) {}

  void Read() {
    const std::string_view text = context_.record.SfdTextView();
    for (const SubdivisionPhrase& phrase : kSubdivisionPhrases) {
      if (!StartsWithNoCase(text, phrase.beginning)) continue;
      rest_ = context_.record.NormString(text.substr(phrase.beginning.size()), true, "V");
      return ReadPhrase(phrase);
    }
  }

 private:
  void ReadPhrase(const SubdivisionPhrase& phrase) {
    switch (phrase.kind) {
      case PhraseKind::kLanguage:
        return ReadLanguage(phrase.genre);
      case PhraseKind::kYear:
        return ReadYear(phrase.genre);
      case PhraseKind::kJuvenileDictionary:
        return ReadJuvenileDictionary(phrase.genre);
      case PhraseKind::kSpeakers:
        return ReadSpeakers(phrase.genre, LanguageOfSpeakers(rest_));
      case PhraseKind::kSpeakersAtAuthority:
        return ReadSpeakersAtAuthority(phrase.genre, LanguageOfSpeakers(rest_));
      case PhraseKind::kTextbookSpeakers:
        return ReadTextbookSpeakers(phrase.genre);
      case PhraseKind::kNationality:
        return ReadNationality(phrase.genre);
      case PhraseKind::kStyle:
        ReadStyle(phrase.genre);
        return;
      case PhraseKind::kMethodStyle:
        return ReadMethodStyle(phrase.genre);
    }
  }

  // --- Languages -----------------------------------------------------------------

  void ReadLanguage(std::string_view genre) {
    if (!FindLanguage(rest_)) return;
    context_.AddGenre(genre);
    Consume(rest_);
  }

  void ReadJuvenileDictionary(std::string_view genre) {
    const std::string language = NextSubdivision();
    if (!FindLanguage(language)) return;
    context_.AddGenre(genre);
    AddPeople(kAudience, "Children", kDemographicTerms);
    Consume(language);
  }

  void ReadSpeakers(std::string_view genre, std::string_view language) {
    if (!FindLanguage(language)) return;
    context_.AddGenre(genre);
    AddPeople(kAudience, SpeakersOf(language), kDemographicTerms);
    Consume(language);
  }

  void ReadTextbookSpeakers(std::string_view genre) {
    if (rest_ == "FOREIGN SPEAKERS") return ReadSpeakers(genre, NextSubdivision());
    ReadSpeakers(genre, LanguageOfSpeakers(rest_));
  }

  void ReadSpeakersAtAuthority(std::string_view genre, std::string_view language) {
    if (!FindLanguage(language)) return;
    context_.AddGenre(genre);
    const std::string speakers = SpeakersOf(language);
    std::string authorized;
    bool found = false;
    context_.music.Private_655_LookUpTerm(kDemographicTerms, speakers, authorized, scratch_record_,
                                          found);
    if (found) {
      AddPeople(kAudience, authorized, kDemographicTerms);
    } else {
      AddPeople(kAudience, speakers, {});
    }
    Consume(language);
  }

  // Whether the table knows a language by its name in comparison form.
  bool FindLanguage(std::string_view name) {
    return !name.empty() && FindIniValue(derivation_table_, kLanguages, TableKey(LowerCase(name)),
                                         kLongestCodes, language_codes_);
  }

  // Later subdivisions of the heading are not read any more.
  void Consume(std::string_view language) {
    context_.state.subdivision_consumed = true;
    context_.music.Private_655_TestLanguageCode(language_codes_, language, context_.record);
  }

  // --- Years and nationalities -----------------------------------------------------

  void ReadYear(std::string_view genre) {
    if (!IsYear(rest_)) return;
    context_.AddGenre(genre);
    context_.state.subdivision_consumed = true;
  }

  // The authority is asked whether there is such a people; the words are the
  // heading's.
  void ReadNationality(std::string_view genre) {
    std::string authorized;
    bool found = false;
    context_.music.Private_655_LookUpNationality(context_.record, scratch_record_, rest_,
                                                 authorized, spare_, found);
    if (!found) {
      return context_.music.Private_655_AddMessage("Nationality not found: " + rest_,
                                                   context_.record.FldTagView(),
                                                   context_.record.FldText());
    }
    context_.AddGenre(genre);
    AddPeople(kCreator, SpeakersOf(rest_), kDemographicTerms);
    context_.state.subdivision_consumed = true;
  }

  // --- Styles ------------------------------------------------------------------------

  // False for a style that the table does not know.  The table of single
  // subdivisions is consulted in any case.
  bool ReadStyle(std::string_view genre) {
    std::string value;
    if (!FindIniValue(derivation_table_, kStyles, TableKey(LowerCase(rest_)), kLongestStyle,
                      value)) {
      return false;
    }
    context_.AddGenre(genre);
    value = context_.music.Private_655_DecodeEscapes(value);
    std::replace(value.begin(), value.end(), kDelimiter, '$');
    const std::string_view style = value;
    const std::size_t source = style.find("$2");
    AddStyle(style.substr(0, source), source == std::string_view::npos
                                          ? std::string_view()
                                          : Trim(style.substr(source + 2)));
    return true;
  }

  void AddStyle(std::string_view term, std::string_view source) {
    context_.music.Private_655_AddField(context_.record, "655", " 7", "a", term, source,
                                        context_.new_lines);
  }

  void ReadMethodStyle(std::string_view genre) {
    if (!ReadStyle(genre)) {
      if (rest_ == "BIG BAND") context_.state.big_band_method_seen = true;
    } else if (NextSubdivision() == "SELF INSTRUCTION") {
      context_.AddGenre("Programmed instructional materials");
    }
  }

  // --- Common ------------------------------------------------------------------------

  // Comparison form of the subfield behind this one when it is a subdivision,
  // otherwise empty.
  std::string NextSubdivision() {
    Utf8MarcRecordClass& record = context_.record;
    const std::int16_t row = record.SfdPointer();
    std::string norm;
    if (record.SfdMoveNext(true) && (record.SfdCodeView() == "v" || record.SfdCodeView() == "x")) {
      norm = record.SfdNorm();
    }
    record.SfdPointer(row);
    return norm;
  }

  std::string SpeakersOf(std::string_view name) const {
    return context_.record.UCaseFirstWord(LowerCase(name)) + " speakers";
  }

  void AddPeople(std::string_view tag, std::string_view people, std::string_view source) {
    context_.music.Private_655_AddField(context_.record, tag, " 7", "a", people, source,
                                        context_.new_lines);
  }

  GenreContext& context_;
  Utf8MarcRecordClass& scratch_record_;
  std::string_view derivation_table_;
  std::string& spare_;
  std::string rest_;            // comparison form of what follows the beginning
  std::string language_codes_;  // of the language found
};

}  // namespace

void Music650To382Class::Private_655_TestSubdivisionPhrases(Utf8MarcRecordClass& record,
                                                            Utf8MarcRecordClass& scratch_record,
                                                            std::string& new_lines,
                                                            std::string& spare) {
  GenreContext context{*this, genre_, record, new_lines};
  PhraseReader(context, scratch_record, derivation_table_, spare).Read();
}

}  // namespace cantorel

// Look-ups of places, speakers and nationalities at the linked-data service of
// the national library, which knows the authorized headings.
//
// A label is searched for; the answer is a page, in which the first identifier
// of the vocabulary is looked for; the authority record of that identifier tells
// the authorized form.  An answer counts by its text alone, so that a page saying
// that nothing was found, or that the service has a fault, is one without an
// identifier; only a request without any answer is a failure.

#include "genre/linked_data.h"

#include <string>
#include <utility>

#include "charset/octet_text.h"
#include "genre/heading_lists.h"
#include "medium/music_650_to_382_class.h"
#include "platform/http_get.h"
#include "record/safe_text.h"

namespace cantorel {
namespace {

constexpr const char* kUserAgent = "Mozilla/4.0 (compatible; MSIE 6.0; Windows NT 5.0)";

// Stands for the answer to a request that failed: it holds no identifier and no
// record.
constexpr const char* kNoAnswer = "Frammis";

constexpr std::size_t kLongestTermIdentifier = 50;
constexpr std::size_t kLongestNationalityIdentifier = 500;

struct Vocabulary {
  std::string_view name;
  std::string_view scheme_path;
  std::string_view marker;  // what an identifier begins with on an answered page
};

constexpr std::string_view kDemographicTerms = "authorities/demographicTerms";
constexpr std::string_view kDemographicMarker = "/authorities/demographicTerms/d";

constexpr Vocabulary kVocabularies[] = {
    {"afset", "vocabulary/ethnographicTerms", "/vocabulary/ethnographicTerms/afset"},
    {"lcdgt", kDemographicTerms, kDemographicMarker},
    {"lcgft", "authorities/genreForms", "/authorities/genreForms/g"},
    {"lcmpt", "authorities/performanceMediums", "/authorities/performanceMediums/m"},
    {"lcsh", "authorities/subjects", "/authorities/subjects/s"},
    {"naf", "authorities/names", "/authorities/names/n"},
};

const Vocabulary* FindVocabulary(std::string_view name) {
  for (const Vocabulary& vocabulary : kVocabularies) {
    if (vocabulary.name == name) return &vocabulary;
  }
  return nullptr;
}

// --- Addresses -----------------------------------------------------------------

std::string_view WithoutSlash(std::string_view url) {
  while (url.ends_with('/')) url.remove_suffix(1);
  return url;
}

// Letters, digits and "+" stand for themselves; the delimiter shows as "|".
void AppendEncoded(char octet, std::string& out) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  if (IsAsciiDigit(octet) || IsAsciiLower(octet) || IsAsciiUpper(octet) || octet == '+') {
    out += octet;
  } else if (octet == '\x1F') {
    out += '|';
  } else {
    const auto code = static_cast<unsigned char>(octet);
    out += {'%', kDigits[code >> 4], kDigits[code & 15]};
  }
}

std::string EncodedLabel(std::string_view label) {
  std::string cleaned = RemoveRepeatedCharacters(label, " ");
  cleaned = ReplaceCharacters(cleaned, " --", "--");
  cleaned = ReplaceCharacters(cleaned, "-- ", "--");
  std::string encoded;
  for (const char octet : cleaned) AppendEncoded(octet, encoded);
  return encoded;
}

std::string SearchUrl(const MusicSession& session, std::string_view label,
                      std::string_view scheme_path) {
  const std::string service(LinkedDataUrl(session));
  std::string url = service + "/search/?q=aLabel:%22";
  url += label;
  url += "%22&q=scheme:" + service + "/";
  url += scheme_path;
  return url;
}

bool Ask(const MusicSession& session, const std::string& url, std::string& text) {
  HttpAnswer answer;
  if (session.http_get == nullptr || !session.http_get->Get(url, kUserAgent, answer)) return false;
  text = std::move(answer.body);
  return true;
}

// --- Answers -------------------------------------------------------------------

// The identifier that begins `text`, up to the quotation mark behind it.
std::string IdentifierAt(std::string_view text, std::size_t longest) {
  text = text.substr(0, longest);
  return RemoveSpaces(text.substr(0, text.find('"')));
}

// The identifier begins with the last letter of the marker: "s" or "n", say.  Of
// "afset" that leaves "t", so that these identifiers are asked for without their
// "afse", which is deliberate.
std::string TermIdentifier(std::string_view page, std::string_view marker) {
  const std::size_t at = page.find(marker);
  if (at == std::string_view::npos) return {};
  return IdentifierAt(page.substr(at + marker.size() - 1), kLongestTermIdentifier);
}

// The heading of an authority record, subdivisions behind "--".
std::string HeadingOf(Utf8MarcRecordClass& authority) {
  std::string heading;
  if (!authority.FldFindFirst("1", {})) return heading;
  bool first = true;
  for (authority.SfdMoveTop(); authority.SfdMoveNext(true); first = false) {
    constexpr std::string_view kSubdivisions = "vxyz";
    const bool subdivision = kSubdivisions.find(authority.SfdCodeView()) != std::string_view::npos;
    if (!first) heading += subdivision ? "--" : " ";
    heading += authority.SfdTextView();
  }
  return heading;
}

// Whether a 072 says that a demographic term is of a nationality or an ethnic
// group.
bool NamesPeople(Utf8MarcRecordClass& authority) {
  for (bool found = authority.FldFindFirst("072", {}); found; found = authority.FldFindNext()) {
    for (bool a = authority.SfdFindFirst("a", {}); a; a = authority.SfdFindNext()) {
      const std::string_view category = authority.SfdNormView();
      if (category == "ETH" || category == "NAT") return true;
    }
  }
  return false;
}

// The $a of the heading; empty when another subfield follows it.
std::string SoleTerm(Utf8MarcRecordClass& authority) {
  if (!authority.FldFindFirst("1", {}) || !authority.SfdFindFirst("a", {})) return {};
  std::string term = authority.SfdText();
  return authority.SfdMoveNext(true) ? std::string() : term;
}

enum class Nationality { kNotListed, kFound, kUndecided };

// Looks for one form of a nationality's name.  Only the first identifier of the
// answer is tried: what its record does not settle stays undecided.
Nationality FindNationality(Music650To382Class& music, const MusicSession& session,
                            const std::string& name, Utf8MarcRecordClass& scratch_record,
                            std::string& form) {
  std::string page;
  if (!Ask(session, SearchUrl(session, name, kDemographicTerms), page)) {
    return Nationality::kUndecided;
  }
  if (page.find("500 Internal Server Error") != std::string::npos) return Nationality::kUndecided;
  const std::size_t at = page.find(kDemographicMarker);
  if (at == std::string::npos) return Nationality::kNotListed;

  const std::size_t row_end = page.find("</tr>", at);
  const std::string_view row = std::string_view(page).substr(at, row_end - at);
  const std::string identifier =
      IdentifierAt(row.substr(kDemographicMarker.size() - 1), kLongestNationalityIdentifier);
  bool fetched = false;
  music.Private_655_FetchAuthorityRecord(identifier, kDemographicTerms, scratch_record, fetched);
  if (!fetched || !NamesPeople(scratch_record)) return Nationality::kUndecided;
  form = SoleTerm(scratch_record);
  return form.empty() ? Nationality::kUndecided : Nationality::kFound;
}

}  // namespace

std::string_view LinkedDataUrl(const MusicSession& session) {
  return WithoutSlash(session.linked_data_url.empty() ? CANTOREL_LINKED_DATA_URL
                                                      : std::string_view(session.linked_data_url));
}

std::string_view PermalinkUrl(const MusicSession& session) {
  return WithoutSlash(session.permalink_url.empty() ? CANTOREL_PERMALINK_URL
                                                    : std::string_view(session.permalink_url));
}

void Music650To382Class::Private_655_LookUpTerm(std::string_view vocabulary, std::string_view label,
                                                std::string& authorized_form,
                                                Utf8MarcRecordClass& scratch_record, bool& found) {
  const std::string encoded_label = EncodedLabel(label);  // before the form: they may be one
  authorized_form.clear();
  found = false;
  const Vocabulary* row = FindVocabulary(vocabulary);
  if (genre_.look_up_offline || session_.http_get == nullptr || row == nullptr) return;

  const auto ask = [this](const std::string& url) {
    std::string text;
    if (Ask(session_, url, text)) return text;
    genre_.look_up_offline = true;
    return std::string(kNoAnswer);
  };
  const std::string page = ask(SearchUrl(session_, encoded_label, row->scheme_path));
  const std::string identifier = TermIdentifier(page, row->marker);
  if (identifier.empty()) return;
  std::string url(PermalinkUrl(session_));
  url += '/' + identifier + "/marcxml";
  scratch_record.XmlRecordIn(ask(url));
  authorized_form = HeadingOf(scratch_record);
  found = !authorized_form.empty();
}

void Music650To382Class::Private_655_LookUpNationality(Utf8MarcRecordClass& /*record*/,
                                                       Utf8MarcRecordClass& scratch_record,
                                                       std::string_view label, std::string& form,
                                                       std::string& /*spare*/, bool& found) {
  const std::string name = LowerCase(label);
  form.clear();
  found = false;
  if (const std::string* known = genre_.nationalities.Find(name)) {
    found = *known != kNoNationality;
    if (found) form = *known;
    return;
  }
  for (const char* suffix : {"s", ""}) {
    const Nationality outcome =
        FindNationality(*this, session_, name + suffix, scratch_record, form);
    if (outcome == Nationality::kNotListed) continue;
    found = outcome == Nationality::kFound;
    if (found) genre_.nationalities.Add(name, form);
    return;
  }
  genre_.nationalities.Add(name, std::string(kNoNationality));
}

void Music650To382Class::Private_655_FetchAuthorityRecord(std::string_view identifier,
                                                          std::string_view collection_path,
                                                          Utf8MarcRecordClass& scratch_record,
                                                          bool& found) {
  std::string url(LinkedDataUrl(session_));
  url += '/';
  url += collection_path;
  url += '/' + RemoveSpaces(identifier) + ".marcxml.xml";
  std::string text;
  found = Ask(session_, url, text);
  if (found) scratch_record.XmlRecordIn(text);
}

}  // namespace cantorel

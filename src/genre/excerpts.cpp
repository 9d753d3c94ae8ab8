// Headings of excerpts.

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "medium/music_650_to_382_class.h"

namespace cantorel {
namespace {

// Headings whose genre holds for excerpts too.
constexpr std::string_view kKeptHeadings[] = {
    "ANIMATED FILM MUSIC", "CONCERT FILMS", "INCIDENTAL MUSIC",  "MOTION PICTURE MUSIC",
    "MUSICAL FILMS",       "ROCK FILMS",    "SILENT FILM MUSIC", "TELEVISION MUSIC",
};

bool IsKept(std::string_view heading) {
  return std::find(std::begin(kKeptHeadings), std::end(kKeptHeadings), heading) !=
         std::end(kKeptHeadings);
}

bool IsOfExcerpts(Utf8MarcRecordClass& record) {
  for (bool more = record.SfdMoveFirst(true); more; more = record.SfdMoveNext(true)) {
    const std::string_view code = record.SfdCodeView();
    if (code != "v" && code != "x") continue;
    const std::string_view norm = record.SfdNormView();
    if (norm == "INSTRUMENTAL SETTINGS") return true;
    if (norm != "EXCERPTS" && norm != "EXCERPTS ARRANGED") continue;
    return !record.SfdFindFirst("a", {}) || !IsKept(record.SfdNormView());
  }
  return false;
}

}  // namespace

bool Music650To382Class::Private_655_TestExcerpts(Utf8MarcRecordClass& record) {
  const std::int16_t subfield = record.SfdPointer();
  const bool is_of_excerpts = IsOfExcerpts(record);
  record.SfdPointer(subfield);
  return is_of_excerpts;
}

}  // namespace cantorel

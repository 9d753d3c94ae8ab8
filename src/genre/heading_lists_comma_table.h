// Headings that take a language behind a comma, "Hymns, English", and the terms
// that they stand for.

#ifndef CANTOREL_GENRE_HEADING_LISTS_COMMA_TABLE_H_
#define CANTOREL_GENRE_HEADING_LISTS_COMMA_TABLE_H_

#include <algorithm>
#include <iterator>
#include <string_view>

namespace cantorel {

struct LanguageHeading {
  std::string_view heading;   // comparison form
  std::string_view genre;     // 655
  std::string_view audience;  // 385, or empty
  std::string_view creator;   // 386, or empty
  // The genre in a record that is not in UTF-8, where it differs.
  std::string_view genre_marc8 = {};
};

// In the order of the headings.
inline constexpr LanguageHeading kLanguageHeadings[] = {
    {"BALLADS", "Ballads", "", ""},
    {"BHAJANS", "Sacred music", "", ""},
    {"BUDDHIST HYMNS", "Hymns", "Buddhists", "Buddhists"},
    {"CANZONETS PART SONGS", "Canzonets (Part songs)", "", ""},
    {"CAROLS", "Carols", "", ""},
    {"CHILDRENS SONGS", "Songs", "", "Children"},
    {"DUMY", "Dumy (Music)", "", ""},
    {"FOLK SONGS", "Folk songs", "", ""},
    {"HINDU HYMNS", "Hymns", "Hindus", "Hindus"},
    {"HYMNS", "Hymns", "", ""},
    // Deliberate: spelled so, it never meets the heading "Lullabies, English".
    {"LULLALIBIES", "Lullabies", "", ""},
    {"MADRIGALS", "Madrigals (Music)", "", ""},
    {"MYSTERIES AND MIRACLE PLAYS", "Mysteries and miracle plays", "", ""},
    {"PART SONGS", "Part songs", "", ""},
    {"SCHOOL SONGBOOKS", "Songbooks", "School children", ""},
    {"SONGBOOKS", "Songbooks", "", ""},
    {"SONGS", "Songs", "", ""},
    // Dot below and macron; they stand behind the letters "s" and "a" in both
    // forms, which is deliberate.
    {"YAKSAGANA PLAYS",
     "Yaks\xCC\xA3"
     "aga\xCC\x84na plays",
     "", "",
     "Yaks\xF2"
     "aga\xE5na plays"},
};

static_assert(std::is_sorted(std::begin(kLanguageHeadings), std::end(kLanguageHeadings),
                             [](const LanguageHeading& a, const LanguageHeading& b) {
                               return a.heading < b.heading;
                             }));

}  // namespace cantorel

#endif  // CANTOREL_GENRE_HEADING_LISTS_COMMA_TABLE_H_

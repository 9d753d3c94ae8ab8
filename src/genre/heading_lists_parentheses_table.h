// Headings that take a medium in parentheses, "Sonatas (Flute and piano)", and
// the terms that they stand for.

#ifndef CANTOREL_GENRE_HEADING_LISTS_PARENTHESES_TABLE_H_
#define CANTOREL_GENRE_HEADING_LISTS_PARENTHESES_TABLE_H_

#include <algorithm>
#include <iterator>
#include <string_view>

namespace cantorel {

struct MediumHeading {
  std::string_view heading;  // comparison form
  std::string_view genre;
  std::string_view second_genre = {};
  bool scans_performers = false;  // chamber music by the performers behind "with"
};

inline constexpr std::string_view kChamberMusic = "Chamber music";

// In the order of the headings.
inline constexpr MediumHeading kMediumHeadings[] = {
    {"CANONS FUGUES ETC", "Art music"},
    {"CANTATAS SACRED", "Cantatas", "Sacred music"},
    {"CHACONNES", "Chaconnes"},
    {"CHORALE PRELUDES", "Chorale preludes"},
    {"CHORUSES SACRED", "Sacred music"},
    {"CONCERTOS", "Concertos"},
    {"DUETS", kChamberMusic},
    {"INTABULATIONS", "Intabulations"},
    {"MARCHES", "Marches (Music)"},
    {"MASSES", "Masses"},
    {"MINUETS", "Minuets (Music)"},
    {"MONOLOGUES WITH MUSIC", "Monologues (Music)"},
    {"NONETS", kChamberMusic},
    {"OCTETS", kChamberMusic},
    {"OVERTURES", "Overtures"},
    {"PASSACAGLIAS", "Passacaglias"},
    {"POLKAS", "Polkas (Music)"},
    {"POLONAISES", "Polonaises (Music)"},
    {"POTPOURRIS", "Medleys (Music)"},
    {"PRELUDES", "Preludes (Music)"},
    {"QUARTETS", kChamberMusic},
    {"QUINTETS", kChamberMusic},
    {"RECORDED ACCOMPANIMENTS", "Recorded accompaniments"},
    {"REQUIEMS", "Requiems"},
    {"RONDOS", "Rondos"},
    {"SACRED MONOLOGUES WITH MUSIC", "Sacred music", "Monologues (Music)"},
    {"SACRED MUSIC", "Sacred music"},
    {"SACRED SONGS", "Songs", "Sacred music", true},
    {"SARABANDS", "Sarabands (Music)"},
    {"SCHERZOS", "Scherzos"},
    {"SEPTETS", kChamberMusic},
    {"SEXTETS", kChamberMusic},
    {"SOLO CANTATAS", "Cantatas"},
    {"SOLO CANTATAS SACRED", "Cantatas", "Sacred music"},
    {"SOLO CANTATAS SECULAR", "Cantatas"},
    {"SONATAS", "Sonatas"},
    {"SONGS", "Songs", "", true},
    {"SUITES", "Suites"},
    {"SYMPHONIC POEMS", "Symphonic poems"},
    {"SYMPHONIES", "Symphonies"},
    {"TOCCATAS", "Toccatas"},
    {"TRIO SONATAS", "Sonatas", kChamberMusic},
    {"TRIOS", kChamberMusic},
    {"VARIATIONS", "Variations (Music)"},
    {"VOCALISES", "Vocalises"},
    {"WALTZES", "Waltzes (Music)"},
};

static_assert(std::is_sorted(std::begin(kMediumHeadings), std::end(kMediumHeadings),
                             [](const MediumHeading& a, const MediumHeading& b) {
                               return a.heading < b.heading;
                             }));

}  // namespace cantorel

#endif  // CANTOREL_GENRE_HEADING_LISTS_PARENTHESES_TABLE_H_

// Style words that headings carry in parentheses, such as "Piano music (Jazz)".
// The medium is read without them; the genre side turns them into terms.

#ifndef CANTOREL_MEDIUM_STYLE_QUALIFIERS_H_
#define CANTOREL_MEDIUM_STYLE_QUALIFIERS_H_

#include <array>
#include <string>
#include <string_view>

namespace cantorel {

struct StyleQualifier {
  std::string_view name;  // lower case, without the parentheses
  std::string_view term;  // genre/form term; empty for a name that has none
};

inline constexpr std::array<StyleQualifier, 38> kStyleQualifiers = {{
    {"alternative rock", "Alternative rock music"},
    {"barrelhouse", "Blues (Music)"},
    {"big band", ""},
    {"bluegrass", "Bluegrass music"},
    {"blues", "Blues (Music)"},
    {"blues-rock", "Blues-rock music"},
    {"blues rock", ""},
    {"boogie-woogie", ""},
    {"boogie woogie", "Boogie woogie (Music)"},
    {"bop", "Bop (Music)"},
    {"celtic", "Celtic music"},
    {"country", "Country music"},
    {"dixieland", "Dixieland music"},
    {"flamenco", "Flamenco music"},
    {"folk", "Folk music"},
    {"folk rock", "Folk-rock music"},
    {"folk-rock", ""},
    {"funk", "Funk (Music)"},
    {"gospel", "Gospel music"},
    {"heavy metal", "Heavy metal (Music)"},
    {"honky-tonk", "Honky-tonk music"},
    {"honky tonk", ""},
    {"jazz", "Jazz"},
    {"jazz-rock", "Jazz-rock (Music)"},
    {"jazz rock", ""},
    {"latin jazz", "Latin jazz"},
    {"popular music", "Popular music"},
    {"progressive rock", "Progressive rock (Music)"},
    {"punk rock", "Punk rock music"},
    {"ragtime", "Ragtime music"},
    {"reggae", "Reggae music"},
    {"rhythm and blues", "Rhythm and blues music"},
    {"rock", "Rock music"},
    {"rockabilly", "Rock music"},
    {"salsa", "Salsa (Music)"},
    // Deliberate: soul has always been given the term of swing.
    {"soul", "Swing (Music)"},
    {"swing", "Swing (Music)"},
    {"western swing", "Western swing (Music)"},
}};

// Appends `heading` to `out` without its style qualifiers, each with its
// parentheses and in any case; repeated blanks are reduced to one and none
// stands at either end.
void AppendWithoutStyleQualifiers(std::string_view heading, std::string& out);

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_STYLE_QUALIFIERS_H_

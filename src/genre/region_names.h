// Names of part of a place: "Mekong River Delta", "Boston Metropolitan Area".

#ifndef CANTOREL_GENRE_REGION_NAMES_H_
#define CANTOREL_GENRE_REGION_NAMES_H_

#include <string>
#include <string_view>

namespace cantorel {

// Whether `text`, without regard to a qualifier in parentheses, ends in a word for
// part of a place.  `place` receives the text without that word, which is empty
// when there is no more to it, and without a comma ahead of it.
bool SplitRegionName(std::string_view text, std::string& place);

}  // namespace cantorel

#endif  // CANTOREL_GENRE_REGION_NAMES_H_

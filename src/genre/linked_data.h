// What the look-ups of Music650To382Class at the linked-data service share with
// those who set them up.

#ifndef CANTOREL_GENRE_LINKED_DATA_H_
#define CANTOREL_GENRE_LINKED_DATA_H_

#include <string_view>

#include "medium/music_session.h"

namespace cantorel {

// In the cache of nationalities: the service knows none of that name.
inline constexpr std::string_view kNoNationality = "NOPE!";

// Addresses of the services that a session asks, without a slash at the end: its
// own, else those that the program was built with.  The first searches headings
// and has authority records; the second has the records of subjects and names.
std::string_view LinkedDataUrl(const MusicSession& session);
std::string_view PermalinkUrl(const MusicSession& session);

}  // namespace cantorel

#endif  // CANTOREL_GENRE_LINKED_DATA_H_

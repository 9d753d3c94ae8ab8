// The genre of chamber music, concluded from the number of performers.

#ifndef CANTOREL_SERVICE_CHAMBER_MUSIC_H_
#define CANTOREL_SERVICE_CHAMBER_MUSIC_H_

#include <string_view>

#include "service/field_snapshot.h"

namespace cantorel {

// Appends a 655 "Chamber music" to `after` when a 382 of either list is for 2 to
// 25 performers without an ensemble, unless such a 655 is met first or later.
// `punctuated_tags` lists the tags whose fields end in a point.
void AddChamberMusicGenre(const SnapshotList& before, SnapshotList& after,
                          std::string_view punctuated_tags);

}  // namespace cantorel

#endif  // CANTOREL_SERVICE_CHAMBER_MUSIC_H_

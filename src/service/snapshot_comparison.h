// What changed between two lists of snapshots, and how a host is told.

#ifndef CANTOREL_SERVICE_SNAPSHOT_COMPARISON_H_
#define CANTOREL_SERVICE_SNAPSHOT_COMPARISON_H_

#include <string>

#include "service/field_snapshot.h"

namespace cantorel {

// Compares by key.  A field that stands in both lists with the same text is
// unchanged: its tag in `after` is emptied.  One whose text differs replaces
// its counterpart: it takes the identifier and the $0 and $1 of the last field
// of `before` with its key.
void SettleAgainst(const SnapshotList& before, SnapshotList& after);

// The fields of `after` that are not settled as lines for the host, separated
// by line feeds: replacements first, then additions.  A negative identifier is
// never reported.
void AppendReturnedLines(const SnapshotList& after, std::string& lines);

}  // namespace cantorel

#endif  // CANTOREL_SERVICE_SNAPSHOT_COMPARISON_H_

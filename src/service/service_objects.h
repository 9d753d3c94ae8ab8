// The service objects of a thread: one set each, made on first use.
//
// The set hangs on a raw thread-local pointer and is never freed by itself, so
// that a host may unload the component safely.  A program that ends worker
// threads calls ReleaseServiceObjects at the end of each.

#ifndef CANTOREL_SERVICE_SERVICE_OBJECTS_H_
#define CANTOREL_SERVICE_SERVICE_OBJECTS_H_

#include "charset/utf8_char_class.h"
#include "medium/music_650_to_382_class.h"
#include "medium/music_session.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

// The record under work; each AddFields replaces it.
Utf8MarcRecordClass& TheMarcRecord();
// A scratch record, and the configuration folder of last resort.
Utf8MarcRecordClass& TheSecondRecord();
// A scratch record of the dialogs.
Utf8MarcRecordClass& TheOptionsRecord();
Utf8CharClass& TheCharClass();
Music650To382Class& TheMusicClass();
// What the objects above share.
MusicSession& TheMusicSession();

// Frees the set of the calling thread; the next use makes a new one.
void ReleaseServiceObjects();

}  // namespace cantorel

#endif  // CANTOREL_SERVICE_SERVICE_OBJECTS_H_

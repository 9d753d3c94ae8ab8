// The service objects of a thread: one set each, made on first use.
//
// The set hangs on a raw thread-local pointer and is never freed by itself, so
// that a host may unload the component safely.  A program that ends worker
// threads calls ReleaseServiceObjects at the end of each.

#ifndef CANTOREL_SERVICE_SERVICE_OBJECTS_H_
#define CANTOREL_SERVICE_SERVICE_OBJECTS_H_

#include <string>

#include "charset/utf8_char_class.h"
#include "medium/music_650_to_382_class.h"
#include "medium/music_session.h"
#include "record/utf8_marc_record_class.h"
#include "service/field_snapshot.h"
#include "service/options_form.h"

namespace cantorel {

// The service's own state; the objects below keep theirs.
struct ServiceState {
  // Name of the settings file, held for the host's convenience: nothing reads it.
  std::string ini_file_name;
  // Ends in a backslash once set.
  std::string configuration_folder;
  // Result of the last complete AddFields.
  std::string returned_fields_text;

  // Working memory of AddFields, kept for the next record.
  SnapshotList before;
  SnapshotList after;
  std::string image;
};

ServiceState& TheServiceState();

// The record under work; each AddFields replaces it.
Utf8MarcRecordClass& TheMarcRecord();
// A scratch record, and the configuration folder of last resort.
Utf8MarcRecordClass& TheSecondRecord();
// A scratch record of the dialogs, in UTF-8.
Utf8MarcRecordClass& TheOptionsRecord();
Utf8CharClass& TheCharClass();
Music650To382Class& TheMusicClass();
// What the objects above share.
MusicSession& TheMusicSession();
// The options; never shown by AddFields.
OptionsForm& TheOptionsForm();

// Frees the set of the calling thread; the next use makes a new one.
void ReleaseServiceObjects();

}  // namespace cantorel

#endif  // CANTOREL_SERVICE_SERVICE_OBJECTS_H_

// Puts the fields of an answer into the image of a record, and leaves everything
// else as it came, octet for octet: the other fields, their order, and the
// leader but for the two numbers in it.

#ifndef CANTOREL_CLI_RECORD_EDITOR_H_
#define CANTOREL_CLI_RECORD_EDITOR_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "charset/marc8_writer.h"
#include "charset/pending_marks.h"
#include "cli/answer.h"
#include "cli/record_layout.h"

namespace cantorel {
class Utf8MarcRecordClass;
}

namespace cantorel::cli {

// The most octets that the structure has room for.
inline constexpr std::size_t kLongestField = 9999;  // with indicators and end of field
inline constexpr std::size_t kLongestRecord = 99999;

// Writes length and base address into the leader of an image that is otherwise
// complete.  False, with the reason, when it is longer than ISO 2709 has room for.
bool CompleteLeader(std::size_t base, std::string& image, std::string& fault);

class RecordEditor {
 public:
  // `record` tells in which order fields stand and how it numbers those of an
  // image: the one that the answers are made with.
  explicit RecordEditor(Utf8MarcRecordClass& record) : record_(record) {}

  // Makes `edited` of an image that IsMarc passes and the fields of its answer.
  //
  // A replacement takes the place of the field that it names, and keeps its
  // subfields $9, which answers leave out; of two for one field the later one
  // counts.  A new field goes where the fewest others stand on its wrong side;
  // none is moved for it.  Text is written in the character set that leader
  // position 09 tells, UTF-8 or MARC-8; scripts that it brings into a MARC-8
  // record are announced in its 066.
  //
  // False when the record cannot be written whole; `fault` tells why.
  bool Apply(std::string_view image, const std::vector<FieldAnswer>& fields, std::string& edited,
             std::string& fault);

  // What Apply did to one field of the image.
  struct Change {
    std::string_view tag;
    std::string_view before;  // indicators and text; empty for a new field
    std::string_view after;
  };
  // All that the last Apply did, in the order of the directory.  Valid until the
  // next.
  std::vector<Change> Changes() const;

 private:
  // A field to write, and the octets of the data that give way to it.
  struct Edit {
    std::string tag;
    std::string body;            // indicators, text, end of field
    bool is_new = false;         // else it replaces an entry
    std::size_t entry = 0;       // the one replaced; for a new field how many stand before it
    std::string_view order_key;  // of a new field
    std::size_t offset = 0;      // in the data as they came
    std::size_t removed = 0;
    std::size_t start = 0;    // of the body in the new data
    std::int64_t growth = 0;  // of the data up to here, this edit included
  };

  bool Prepare(const FieldAnswer& field, std::string& fault);
  Edit& EditFor(const FieldAnswer& field, std::size_t replaced);
  bool MakeBody(const FieldAnswer& field, std::string& body, std::string& fault);
  void AppendText(std::string_view text, std::string& body);
  bool AnnounceScripts(std::string& fault);
  std::string WithScripts(std::string_view announced) const;

  // Numbers of entries; the count of them when none will do.
  std::size_t FindReplaced(const FieldAnswer& field) const;
  std::size_t FindAmongNamed(const FieldAnswer& field) const;
  std::string ComparableText(std::string_view text) const;

  void PlaceNewFields();
  std::string_view OrderKeyOf(const FieldEntry& entry);
  void ReadOrderKeys();
  std::size_t BestPlace(std::string_view key) const;
  std::size_t BehindLinkedFields(std::string_view key, std::size_t place);

  void PlaceBodies();
  void PlaceNewBodies();
  void PlaceReplacements();
  void ShiftBodies();
  std::size_t Moved(std::size_t start) const;
  void AppendDirectory(std::string& edited) const;
  void AppendEntry(const FieldEntry& entry, std::string& edited) const;
  void AppendData(std::string& edited) const;

  Utf8MarcRecordClass& record_;
  // The memory of all this serves every record.
  RecordLayout layout_;
  bool utf8_ = false;
  PendingMarks marks_;
  Marc8SetsUsed sets_;  // of the text written in MARC-8
  std::vector<Edit> edits_;
  std::size_t edit_count_ = 0;
  std::vector<std::string_view> order_keys_;  // of the entries; empty: stands anywhere
  std::vector<Edit*> new_fields_;             // in the order of the directory
  std::vector<Edit*> replacements_;
  std::vector<Edit*> by_offset_;  // all of them
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_RECORD_EDITOR_H_

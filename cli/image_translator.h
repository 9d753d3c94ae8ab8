// Translates the image of a record from one character set to another, and leaves
// everything else as it came: the fields, their order and their other octets, and
// the leader but for its two numbers and position 09.

#ifndef CANTOREL_CLI_IMAGE_TRANSLATOR_H_
#define CANTOREL_CLI_IMAGE_TRANSLATOR_H_

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "charset/marc8_writer.h"
#include "charset/pending_marks.h"
#include "cli/record_layout.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel::cli {

// A character that the other set lacks, as it was written instead.
struct Stand {
  std::string_view tag;
  std::size_t offset = 0;  // of the field in the image, from 0
  std::string token;       // "[MARC+9F]", "&#x2603;", or words for an octet left as it was
};

class ImageTranslator {
 public:
  // Character sets are "U" UTF-8, "M" MARC-8, and its variants "O" and "V".
  // `from` is the set of every record, or '\0': as the component decides on
  // loading, by leader position 09 and the octets.  `to` is "U" or "M".
  ImageTranslator(char from, char to) : from_(from), to_(to) {}

  // Makes `translated` of an image that IsMarc passes.  What is in the set wanted
  // comes as it is; without `from`, MARC-8 is left in whichever variant it is.
  //
  // False when the record cannot be written whole; `fault` tells why.
  bool Translate(std::string_view image, std::string& translated, std::string& fault);

  // --- Of the image last translated ---

  // The set that it was read in.
  char SetIn() const { return set_in_; }
  // It has octets that tell its set: some above 127, or an escape.
  bool TellsSet() const { return tells_set_; }
  // It was read as UTF-8 and is none, or as MARC-8 and is well-formed UTF-8.
  bool OctetsDisagree() const { return octets_disagree_; }
  const std::vector<Stand>& Stands() const { return stands_; }

  // How many characters of all images, by code point, were written as others that
  // mean the same, such as a quotation mark as that of ASCII.  Letters taken apart
  // do not count.
  const std::map<std::uint32_t, std::int64_t>& Replaced() const { return replaced_; }

 private:
  char DecideSet(std::string_view image) const;
  void Survey();
  bool IsSameText() const;
  bool Has066() const;
  bool PlaceEntries();
  void TranslateEntries();
  void TranslateEntry(const FieldEntry& entry);
  void TranslateInward(std::string_view tag);
  void TranslateOutward(std::string_view tag);
  void Decompose(std::string_view text, bool is_880);
  void DecomposeStretch(std::string_view stretch);
  void CountReplaceable(std::string_view text, std::int64_t step);
  void NoteStands(std::string_view opening, char closing, const FieldEntry& entry,
                  std::string_view before);
  void Add066();
  bool Assemble(std::string_view image, std::string& translated, std::string& fault) const;

  const char from_;
  const char to_;
  char set_in_ = 'U';
  bool tells_set_ = false;
  bool octets_disagree_ = false;
  std::vector<Stand> stands_;
  std::map<std::uint32_t, std::int64_t> replaced_;

  // The memory of all this serves every record.
  Utf8MarcRecordClass record_;
  RecordLayout layout_;
  std::string format_;
  std::size_t base_ = 0;            // where the data begin in the image
  std::vector<std::size_t> order_;  // entries that have data, in the order of these

  struct Placed {
    std::size_t start = 0;  // in the new data
    std::size_t length = 0;
    bool dropped = false;
  };
  std::vector<Placed> placed_;  // the entries
  std::string data_;            // the new ones
  std::string added_066_;       // indicators, text, end of field; empty: none
  std::size_t place_066_ = 0;   // the entry that it stands before
  std::size_t start_066_ = 0;
  Marc8SetsUsed sets_used_;
  PendingMarks marks_;
  std::string indicators_;
  std::string text_;
  std::string decomposed_;
  std::string stretch_;
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_IMAGE_TRANSLATOR_H_

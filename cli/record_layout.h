// The layout of an ISO 2709 image: what each entry of its directory stands for.

#ifndef CANTOREL_CLI_RECORD_LAYOUT_H_
#define CANTOREL_CLI_RECORD_LAYOUT_H_

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace cantorel::cli {

// A field as the directory tells it.  Views are of the image.
struct FieldEntry {
  std::string_view whole;  // the 12 characters of the directory
  std::string_view text;   // with indicators, without end of field; empty: none
  std::size_t start = 0;   // in the data, from 0
  std::size_t length = 0;  // with end of field, as far as there are data
  bool overruns = false;   // the directory tells more octets than there are
  std::int32_t row = -1;   // number of the field in the record as loaded, from 0; -1 not loaded

  std::string_view Tag() const { return whole.substr(0, 3); }
};

class RecordLayout {
 public:
  // `image` is one that IsMarc passes, and must live as long as its entries are
  // asked for.  `drops_repeated_035`: as RemoveDuplicative035Fields of the record
  // that numbers the rows.
  void Read(std::string_view image, bool drops_repeated_035);

  const std::vector<FieldEntry>& Entries() const { return entries_; }
  std::string_view Directory() const { return directory_; }  // without its end of field
  std::string_view Data() const { return data_; }            // without the end of record

  // Every octet of the data belongs to one field, in the order of the directory.
  bool InSequence() const { return in_sequence_; }
  // Every start is a number, so that it can be told anew when data are moved.
  bool Movable() const { return movable_; }
  // Whether another field lies on octets of the one at `index`.
  bool SharesOctets(std::size_t index) const;

 private:
  void ReadEntries();
  void NumberRows(bool drops_repeated_035);

  std::string_view directory_;
  std::string_view data_;
  std::vector<FieldEntry> entries_;
  bool in_sequence_ = false;
  bool movable_ = false;
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_RECORD_LAYOUT_H_

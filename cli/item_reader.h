// Reads the inputs of cantorel convert, one behind the other.

#ifndef CANTOREL_CLI_ITEM_READER_H_
#define CANTOREL_CLI_ITEM_READER_H_

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "cli/conversion_item.h"
#include "cli/input_file.h"
#include "cli/record_reader.h"

namespace cantorel::cli {

class ItemReader {
 public:
  // `files` must live as long as the items that name them.
  ItemReader(const std::vector<std::string>& files, bool lines) : files_(files), lines_(lines) {}

  // The next record, or the failure of an input; false when all is read.
  bool Next(ConversionItem& item);

 private:
  void Open(const std::string& file);
  void Take(const Piece& piece, ConversionItem& item) const;

  const std::vector<std::string>& files_;
  const bool lines_;
  std::size_t opened_ = 0;  // how many of the files
  bool begins_with_marcxml_ = false;
  std::unique_ptr<InputFile> source_;
  std::unique_ptr<RecordReader> reader_;  // null between two files
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_ITEM_READER_H_

#include "cli/item_reader.h"

namespace cantorel::cli {

bool ItemReader::Next(ConversionItem& item) {
  item.read_error.clear();
  while (true) {
    if (reader_ == nullptr) {
      if (opened_ == files_.size()) return false;
      Open(files_[opened_++]);
    }
    item.source = files_[opened_ - 1];
    if (Piece piece; reader_->Next(piece)) {
      item.number = piece.number;
      item.offset = piece.offset;
      item.octets = piece.octets;
      item.fault = piece.fault;
      return true;
    }
    reader_.reset();
    if (source_->Error().empty()) continue;
    item.read_error = source_->Error();
    return true;
  }
}

void ItemReader::Open(const std::string& file) {
  source_ = std::make_unique<InputFile>(file);
  if (lines_) {
    reader_ = std::make_unique<LineReader>(*source_);
  } else {
    reader_ = OpenRecordReader(*source_);
  }
}

}  // namespace cantorel::cli

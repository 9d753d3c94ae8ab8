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
      Take(piece, item);
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
  if (opened_ == 1) begins_with_marcxml_ = reader_->ReadsMarcXml();
}

void ItemReader::Take(const Piece& piece, ConversionItem& item) const {
  item.number = piece.number;
  item.offset = piece.offset;
  item.octets = piece.octets;
  item.element = piece.element;
  item.fault = piece.fault;
  item.begins_with_marcxml = begins_with_marcxml_;
}

}  // namespace cantorel::cli

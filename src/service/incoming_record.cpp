#include "service/incoming_record.h"

#include <cstddef>
#include <cstdint>

#include "charset/octet_text.h"
#include "platform/event_pump.h"
#include "service/text_parts.h"

namespace cantorel {
namespace {

// Where the pieces of the 008 stand in the first line, and where they go
// (both from 0).
struct FixedPiece {
  std::size_t from;
  std::size_t length;
  std::int16_t to;
};
constexpr FixedPiece kFixedPieces[] = {
    {2, 3, 15},  // place of publication
    {5, 1, 20},  // format of music
    {6, 1, 21},  // music parts
    {7, 2, 18},  // form of composition
};
constexpr std::size_t kTypeAndLevel = 2;
constexpr std::size_t kPadding = 20;

void BeginRecord(std::string_view first_line, Utf8MarcRecordClass& record) {
  record.NewRecord(first_line.substr(0, 1), first_line.substr(1, 1));
  if (first_line.size() > kTypeAndLevel) {
    std::string padded(first_line);
    padded.append(kPadding, ' ');
    for (const FixedPiece& piece : kFixedPieces) {
      record.Change008Value(piece.to, std::string_view(padded).substr(piece.from, piece.length));
    }
  }
  // A title that only makes the record valid.
  record.FldAdd("245", "00",
                "\x1F"
                "aFrammis");
}

void AddLine(std::string_view line, Utf8MarcRecordClass& record) {
  std::string_view field;
  ChopAtFirst(line, field, "\t");
  const std::string_view identifier = line;

  const std::int16_t fields_before = record.FieldCount();
  record.FldAdd(field.substr(0, 3), From(field, 3).substr(0, 2), From(field, 5));
  // A line that was refused has no field to take the identifier.
  if (identifier.empty() || record.FieldCount() == fields_before) return;
  record.SfdAdd("9", identifier);
}

}  // namespace

bool LoadIncomingRecord(std::string_view data, Utf8MarcRecordClass& record,
                        std::string& control_number) {
  if (record.IsMarc(data)) {
    record.MarcRecordIn(data);
    if (record.FldFindFirst("001", "")) control_number = record.FldText();
    return true;
  }
  std::string_view first_line;
  ChopAtFirst(data, first_line, "\n");
  if (first_line.size() < kTypeAndLevel) return false;
  BeginRecord(first_line, record);
  while (!data.empty()) {
    YieldToHost();
    std::string_view line;
    ChopAtFirst(data, line, "\n");
    AddLine(line, record);
  }
  return true;
}

}  // namespace cantorel

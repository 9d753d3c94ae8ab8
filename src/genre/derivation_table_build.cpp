#include "genre/derivation_table_build.h"

#include "genre/derivation_sheets.h"
#include "medium/configuration_files.h"
#include "platform/file_layer.h"
#include "platform/new_file.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

// That a file is a table is told by this line.
constexpr std::string_view kSignature =
    "\n[FileSignature]\n"
    "FilePresent=True\n";

// Terms that say what a score looks like, and instrument families.
constexpr std::string_view kFixedSections =
    "\n[FormatOfNotatedMusic]\n"
    "ANTIPHONARIES_SERVICE_BOOKS=Y\n"
    "CHORUS_SCORES=Y\n"
    "FAKEBOOKS_MUSIC=Y\n"
    "GRADUALS_SERVICE_BOOKS=Y\n"
    "HYMNALS=Y\n"
    "INTABULATIONS=Y\n"
    "KYRIALES=Y\n"
    "LEAD_SHEETS=Y\n"
    "MISSALS_SERVICE_BOOKS=Y\n"
    "NOTATED_MUSIC=Y\n"
    "PART_BOOKS=Y\n"
    "PARTS_MUSIC=Y\n"
    "PIANO_SCORES=Y\n"
    "SCORES=Y\n"
    "SEQUENTIARIES_SERVICE_BOOKS=Y\n"
    "SERVICE_BOOKS=Y\n"
    "SHAPE_NOTE_HYMNALS=Y\n"
    "SONGBOOKS=Y\n"
    "TUNE_BOOKS=Y\n"
    "VOCAL_SCORES=Y\n"
    "\n[MusicalInstrumentFamily]\n"
    "BRASS=Y\n"
    "HARP=Y\n"
    "PERCUSSION=Y\n"
    "PLUCKED INSTRUMENT=Y\n"
    "STRING=Y\n"
    "WIND=Y\n";

// The fields of a key are numbered from 1.
void AppendSection(std::string_view name, const FieldsByKey& list, std::string& text) {
  if (list.Count() == 0) return;
  text.append("\n[").append(name).append("]\n");
  for (const auto& [key, fields] : list) {
    int number = 0;
    for (const std::string& field : fields) {
      text.append(key).append("_").append(std::to_string(++number));
      text.append("=").append(field).append("\n");
    }
  }
}

WorkbookError ReadWorkbookOf(std::string_view folder, const Utf8MarcRecordClass& record,
                             std::string& text, DerivationBuild& build) {
  WorkbookError error = WorkbookError::kNone;
  const auto workbook =
      OpenWorkbook(std::string(folder) + std::string(kDerivationWorkbookName), error);
  return workbook ? MakeDerivationTable(*workbook, record, text, build) : error;
}

std::string_view ReasonOf(LeftOut why) {
  switch (why) {
    case LeftOut::kNot:
      break;
    case LeftOut::kNoKey:
      return "has no key";
    case LeftOut::kNoHeading:
      return "has nothing in column A";
    case LeftOut::kNoSubdivision:
      return "has no subdivision in its key";
    case LeftOut::kRepeatedKey:
      return "repeats the key of a row above, which counts";
    case LeftOut::kNoCells:
      return "has no fields";
    case LeftOut::kNoTerm:
      return "has no term in its fields";
    case LeftOut::kBehindBlankRows:
      return "and all below are not read, because blank rows stand above";
  }
  return "counts";
}

}  // namespace

std::string Describe(const LeftOutRow& row) {
  std::string text(row.sheet);
  text.append(", row ").append(std::to_string(row.row)).append(" ");
  return text.append(ReasonOf(row.why));
}

std::string WhyNotWritten(const DerivationBuild& build) {
  if (build.written) return {};
  if (!build.folder_takes_files) return "nothing can be written in the folder";
  if (build.workbook_error == WorkbookError::kNone) return "the disk does not take it";
  return std::string(kDerivationWorkbookName) + " " + std::string(Describe(build.workbook_error));
}

WorkbookError MakeDerivationTable(Workbook& workbook, const Utf8MarcRecordClass& record,
                                  std::string& text, DerivationBuild& build) {
  text.clear();
  DerivationSheets sheets(record, build);
  const WorkbookError error = sheets.Read(workbook);
  if (error != WorkbookError::kNone) return error;
  text.append(sheets.PlainSections()).append(kSignature);
  AppendSection("List2", sheets.List2(), text);
  AppendSection("List3", sheets.List3(), text);
  AppendSection("List5", sheets.List5(), text);
  AppendSection("List6", sheets.List6(), text);
  text.append(kFixedSections);
  return WorkbookError::kNone;
}

void BuildDerivationTable(std::string_view folder, const Utf8MarcRecordClass& record,
                          DerivationBuild& build) {
  build = {};
  NewFile table(NativePath(std::string(folder) + std::string(kDerivationTableFileName)));
  build.folder_takes_files = table.IsOpen();
  if (!table.IsOpen()) return;
  std::string text;
  build.workbook_error = ReadWorkbookOf(folder, record, text, build);
  if (build.workbook_error == WorkbookError::kNone) {
    build.written = table.Write(text) && table.Complete();
  }
}

}  // namespace cantorel

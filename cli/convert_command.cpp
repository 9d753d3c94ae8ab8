#include "cli/convert_command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cli/answer.h"
#include "cli/answer_writers.h"
#include "cli/ask.h"
#include "cli/common_options.h"
#include "cli/conversion_options.h"
#include "cli/input_buffer.h"
#include "cli/output.h"
#include "cli/record_reader.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel::cli {
namespace {

const std::map<std::string, Format> kFormats = {{"text", Format::kText}, {"json", Format::kJson}};

struct ConvertOptions {
  ConversionOptions conversion;
  Format format = Format::kText;
  bool lines = false;
  std::vector<std::string> files;
};

class Conversion {
 public:
  Conversion(CantorelClass& cantorel, const ConvertOptions& options)
      : cantorel_(cantorel), options_(options) {}

  ExitStatus Run() {
    for (const std::string& file : options_.files) {
      if (!ConvertFile(file)) return kInputOutputFailed;
    }
    return FinishOutput() ? status_ : kInputOutputFailed;
  }

 private:
  // False when nothing more can be written.
  bool ConvertFile(const std::string& file) {
    answer_.source = file;
    FileSource source(file);
    const std::unique_ptr<RecordReader> reader = MakeReader(source);
    for (Piece piece; reader->Next(piece);) {
      answer_.record = piece.number;
      if (!ConvertPiece(piece)) return false;
    }
    if (!source.Error().empty()) {
      std::fprintf(stderr, "cantorel: cannot read %s: %s\n", file.c_str(), source.Error().c_str());
      status_ = kInputOutputFailed;
    }
    return true;
  }

  std::unique_ptr<RecordReader> MakeReader(OctetSource& source) const {
    if (options_.lines) return std::make_unique<LineReader>(source);
    return std::make_unique<Iso2709Reader>(source);
  }

  bool ConvertPiece(const Piece& piece) {
    if (!options_.lines && !record_.IsMarc(piece.octets)) {
      const std::string fault = record_.IsMarcErrorText();
      // Loading repairs a leader that lost blanks on its way.
      record_.MarcRecordIn(piece.octets);
      const std::string repaired = record_.MarcRecordIn();
      if (repaired.empty()) {
        SayUnreadable(piece, fault);
        return true;
      }
      return Answer(repaired);
    }
    if (options_.lines && piece.octets.find('\n') < 2) {
      SayUnreadable(piece, "First line has no record type and level");
      return true;
    }
    return Answer(piece.octets);
  }

  bool Answer(std::string_view record) {
    AskAboutRecord(cantorel_, record, options_.conversion.mode, answer_);
    out_.clear();
    AppendAnswer(options_.format, answer_, out_);
    return WriteOutput(out_);
  }

  void SayUnreadable(const Piece& piece, const std::string& fault) {
    std::fprintf(stderr, "cantorel: %s: record %" PRIu64 " at offset %" PRIu64 ": %s\n",
                 answer_.source.c_str(), piece.number, piece.offset, fault.c_str());
    status_ = std::max(status_, kUnreadableRecords);
  }

  CantorelClass& cantorel_;
  const ConvertOptions& options_;
  ExitStatus status_ = kAllWell;
  Utf8MarcRecordClass record_;  // judges and repairs what was read
  RecordAnswer answer_;         // its memory serves every record
  std::string out_;
};

ExitStatus RunConvert(const ConvertOptions& options) {
  Converter converter;
  if (!converter.Prepare(options.conversion)) return kWrongCall;
  return Conversion(converter.Component(), options).Run();
}

}  // namespace

void AddConvertCommand(CLI::App& app, Action& action) {
  CLI::App* const command =
      app.add_subcommand("convert", "Read MARC records and write the fields that each should have");
  const auto options = std::make_shared<ConvertOptions>();
  AddConversionOptions(*command, options->conversion);
  AddChoice(*command, "--format", options->format, kFormats, "Form of the answers");
  command->add_flag("--lines", options->lines,
                    "Read field lines, with $ as delimiter and a blank line between records");
  AddFileArguments(*command, options->files);
  command->callback([&action, options] { action = [options] { return RunConvert(*options); }; });
}

}  // namespace cantorel::cli

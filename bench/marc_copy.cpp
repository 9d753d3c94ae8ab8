// Reads or copies a file of records, for timing beside other programs.
//
//   marc_copy read FILE    loads every record
//   marc_copy copy FILE    loads every record and writes it to standard output

#include <cstdio>
#include <exception>
#include <ios>
#include <string>
#include <string_view>

#include "cli/input_buffer.h"
#include "cli/output.h"
#include "cli/record_reader.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel::bench {
namespace {

int Run(const std::string& file, bool copy) {
  cli::FileSource source(file);
  cli::Iso2709Reader reader(source);
  Utf8MarcRecordClass record;
  std::string out;
  for (cli::Piece piece; reader.Next(piece);) {
    record.MarcRecordIn(piece.octets);
    if (!copy) continue;
    record.MarcRecordOut(out);
    if (!cli::WriteOutput(out)) return 3;
  }
  if (!source.Error().empty()) {
    std::fprintf(stderr, "marc_copy: %s: %s\n", file.c_str(), source.Error().c_str());
    return 3;
  }
  return cli::FinishOutput() ? 0 : 3;
}

}  // namespace
}  // namespace cantorel::bench

int main(int argc, char** argv) {
  const std::string_view mode = argc == 3 ? argv[1] : "";
  if (mode != "read" && mode != "copy") {
    std::fputs("usage: marc_copy read|copy FILE\n", stderr);
    return 2;
  }
  std::ios::sync_with_stdio(false);
  try {
    return cantorel::bench::Run(argv[2], mode == "copy");
  } catch (const std::exception& error) {
    std::fprintf(stderr, "marc_copy: %s\n", error.what());
    return 3;
  }
}

#include "bench_input.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "cli/input_buffer.h"
#include "cli/record_reader.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel::bench {
namespace {

std::string Environment(const char* name, const char* otherwise) {
  const char* const value = std::getenv(name);
  return value != nullptr ? value : otherwise;
}

std::vector<std::string> ReadRecords() {
  const std::string file = Environment("CANTOREL_BENCH_FILE", CANTOREL_SAMPLE);
  cli::FileSource source(file);
  cli::Iso2709Reader reader(source);
  Utf8MarcRecordClass record;
  std::vector<std::string> records;
  for (cli::Piece piece; reader.Next(piece);) {
    if (record.IsMarc(piece.octets)) records.emplace_back(piece.octets);
  }
  if (records.empty()) {
    std::fprintf(stderr, "no records in %s\n", file.c_str());
    std::exit(2);
  }
  return records;
}

std::vector<Heading> ReadHeadings() {
  Utf8MarcRecordClass record;
  std::vector<Heading> headings;
  for (const std::string& image : Records()) {
    record.MarcRecordIn(image);
    for (bool found = record.FldFindFirst("650", ""); found; found = record.FldFindNext()) {
      if (record.FldInd2() == "0")
        headings.push_back({record.GetLeaderValue(6, 1), record.FldText()});
    }
  }
  if (headings.empty()) {
    std::fprintf(stderr, "no subject headings in the records\n");
    std::exit(2);
  }
  return headings;
}

}  // namespace

std::string ConfigurationFolder() {
  return Environment("CANTOREL_BENCH_CONFIG", CANTOREL_CONFIG);
}

const std::vector<std::string>& Records() {
  static const std::vector<std::string> records = ReadRecords();
  return records;
}

const std::vector<Heading>& Headings() {
  static const std::vector<Heading> headings = ReadHeadings();
  return headings;
}

}  // namespace cantorel::bench

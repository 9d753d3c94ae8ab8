// What cantorel convert tells about a whole run.

#ifndef CANTOREL_CLI_REPORT_H_
#define CANTOREL_CLI_REPORT_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "cli/answer.h"
#include "cli/conversion_item.h"

namespace cantorel::cli {

struct RunTotals {
  std::uint64_t records = 0;
  std::uint64_t not_music = 0;  // counted for reports only, as the next
  std::uint64_t unread = 0;
  std::uint64_t changed = 0;
  std::uint64_t fields_added = 0;
  std::uint64_t fields_replaced = 0;
  std::uint64_t written = 0;
  std::uint64_t rejected = 0;
  bool interrupted = false;
};

// How often something was met, and in which records first.
struct ReportCount {
  std::uint64_t count = 0;
  std::vector<std::string> examples;
};

// Counts by up to three words.
class ReportTable {
 public:
  using Words = std::array<std::string_view, 3>;
  struct Row {
    Words words;
    const ReportCount* count;
  };

  void Add(const Words& words, std::string_view example);
  // The most frequent first.  Good until the next Add.
  std::vector<Row> Rows() const;

 private:
  std::unordered_map<std::string, ReportCount> counts_;
  std::string key_;
};

// Grows with the number of distinct terms only.
struct Report {
  RunTotals totals;
  ReportTable fields;       // tag, term, "add" or "replace"
  ReportTable headings;     // that gave nothing: "382" or "655", heading
  ReportTable instruments;  // not recognised
  ReportTable places;       // not verified
  ReportTable languages;    // not verified: what is wrong, name
  ReportTable unread;       // file, fault

  void Add(const RecordAnswer& answer);
  void AddUnread(const ConversionItem& item, std::string_view fault);

 private:
  void AddField(const FieldAnswer& field, std::string_view example);
  void AddMessage(const MessageAnswer& message, std::string_view example);
};

// Whether a name tells one of the forms: .html, .tsv, .json.
bool HasReportForm(std::string_view name);
// Appends a report in the form that the name of its file tells.  All forms hold
// the same; octets that are not UTF-8 are shown as U+FFFD.
void AppendReport(std::string_view name, const Report& report, std::string& out);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_REPORT_H_

// Series practice in series authority records.
//
// MARC 21 authority tells it in repeated fields, one an institution:
//   642 $a numbering example   645 $a tracing practice
//   644 $a analysis practice   646 $a classification practice
// each with the institution in $5.

#include <string>
#include <string_view>

#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

constexpr std::string_view kNumbering = "642";
constexpr std::string_view kAnalysis = "644";
constexpr std::string_view kTracing = "645";
constexpr std::string_view kClassification = "646";

constexpr std::string_view kDlc = "DLC";
constexpr std::string_view kDpcc = "DPCC";

}  // namespace

// The $a of the first such field whose $5 names the institution.  One field may
// name several; letters are compared by their comparison form, as the codes are
// written in many ways.
std::string Utf8MarcRecordClass::SeriesPolicy(std::string_view tag,
                                              std::string_view institution) const {
  const std::string sought = NormString(institution, true, "V");
  if (format_code_ != 'A' || sought.empty()) return {};
  for (std::int16_t row = NextLiveField(tag, first_field_); row != kNoRow;
       row = NextLiveField(tag, table_.Field(row).next)) {
    const FieldRecord& field = table_.Field(row);
    for (std::int16_t five = table_.FindLive(field, '5', field.first_subfield); five != kNoRow;
         five = table_.FindLive(field, '5', table_.Subfield(field, five).next)) {
      if (NormString(table_.Subfield(field, five).text, true, "V") != sought) continue;
      const std::int16_t a = table_.FindLive(field, 'a', field.first_subfield);
      return a == kNoRow ? std::string() : std::string(table_.Subfield(field, a).text);
    }
  }
  return {};
}

std::string Utf8MarcRecordClass::SeriesNumberingPatternDlc() const {
  return SeriesPolicy(kNumbering, kDlc);
}
std::string Utf8MarcRecordClass::SeriesNumberingPatternDpcc() const {
  return SeriesPolicy(kNumbering, kDpcc);
}
std::string Utf8MarcRecordClass::SeriesNumberingPatternLocal() const {
  return SeriesPolicy(kNumbering, nuc_);
}

std::string Utf8MarcRecordClass::SeriesAnalysisPolicyDlc() const {
  return SeriesPolicy(kAnalysis, kDlc);
}
std::string Utf8MarcRecordClass::SeriesAnalysisPolicyDpcc() const {
  return SeriesPolicy(kAnalysis, kDpcc);
}
std::string Utf8MarcRecordClass::SeriesAnalysisPolicyLocal() const {
  return SeriesPolicy(kAnalysis, nuc_);
}

std::string Utf8MarcRecordClass::SeriesTracingPolicyDlc() const {
  return SeriesPolicy(kTracing, kDlc);
}
std::string Utf8MarcRecordClass::SeriesTracingPolicyDpcc() const {
  return SeriesPolicy(kTracing, kDpcc);
}
std::string Utf8MarcRecordClass::SeriesTracingPolicyLocal() const {
  return SeriesPolicy(kTracing, nuc_);
}

std::string Utf8MarcRecordClass::SeriesClassificationPolicyDlc() const {
  return SeriesPolicy(kClassification, kDlc);
}
std::string Utf8MarcRecordClass::SeriesClassificationPolicyDpcc() const {
  return SeriesPolicy(kClassification, kDpcc);
}
std::string Utf8MarcRecordClass::SeriesClassificationPolicyLocal() const {
  return SeriesPolicy(kClassification, nuc_);
}

}  // namespace cantorel

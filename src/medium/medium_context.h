// What the heading grammar and the phrase parser share while they read one
// heading.

#ifndef CANTOREL_MEDIUM_MEDIUM_CONTEXT_H_
#define CANTOREL_MEDIUM_MEDIUM_CONTEXT_H_

#include <string>
#include <string_view>

#include "medium/conversion_report.h"
#include "medium/medium_vocabulary.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

struct MediumContext {
  Utf8MarcRecordClass& record;
  MediumVocabulary& vocabulary;
  ConversionReport& report;
  std::string_view heading_text;  // the whole field text of the heading
  std::string_view record_id;     // "NONE" for a record without a 001
  bool of_interest = false;       // the heading is of a kind that carries a medium

  // The comparison form that everything is looked up by.
  std::string Norm(std::string_view text) const { return record.NormString(text, true, "V"); }
  // The same into a string that the caller reuses.
  void Norm(std::string_view text, std::string& norm) const {
    norm.clear();
    record.AppendNormString(text, true, norm);
  }
};

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_MEDIUM_CONTEXT_H_

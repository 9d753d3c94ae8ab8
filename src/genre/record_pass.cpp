#include "genre/record_pass.h"

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "genre/fixed_field_genres.h"
#include "platform/event_pump.h"

namespace cantorel {
namespace {

constexpr std::string_view kOtherHeadingTags[] = {"600", "610", "611", "630", "651"};

bool IsOtherHeading(std::string_view tag) {
  for (const std::string_view heading_tag : kOtherHeadingTags) {
    if (tag == heading_tag) return true;
  }
  return false;
}

bool IsSubdivision(std::string_view code) {
  return code == "v" || code == "x";
}

void AppendLine(std::string_view line, std::string& lines) {
  if (!lines.empty()) lines += '\n';
  lines += line;
}

}  // namespace

RecordPass::RecordPass(GenreContext& context, Utf8MarcRecordClass& scratch_record,
                       std::string& spare, std::string& control_number)
    : context_(context),
      music_(context.music),
      state_(context.state),
      record_(context.record),
      scratch_record_(scratch_record),
      new_lines_(context.new_lines),
      spare_(spare),
      control_number_(control_number) {}

void RecordPass::Run() {
  state_.BeginRecordPass();
  control_number_.clear();
  const std::string type = record_.GetLeaderValue(6, 1);
  if (type == "c" || type == "d") DeriveFromMusicFormat(context_);
  for (record_.FldMoveTop(); record_.FldMoveNext(true);) {
    YieldToHost();
    ReadField();
  }
}

void RecordPass::ReadField() {
  const std::string_view tag = record_.FldTagView();
  if (tag == "001") {
    control_number_ = record_.FldText();
  } else if (tag == "008") {
    music_.Private_655_TestCompositionCode(record_.Get008Value(18, 2), record_, new_lines_);
  } else if (tag == "047") {
    ReadCompositionCodes();
  } else if (tag == "650") {
    ReadHeading(true);
  } else if (IsOtherHeading(tag)) {
    ReadHeading(false);
  }
}

void RecordPass::ReadCompositionCodes() {
  for (bool more = record_.SfdMoveFirst(true); more; more = record_.SfdMoveNext(true)) {
    if (record_.SfdCodeView() != "a") continue;
    music_.Private_655_TestCompositionCode(record_.SfdTextView(), record_, new_lines_);
  }
}

// --- Headings ------------------------------------------------------------------

void RecordPass::ReadHeading(bool is_topical) {
  const std::string_view indicators = record_.FldIndView();
  if (indicators.size() < 2 || indicators[1] != '0') return;
  if (!BeginHeading()) return;
  if (is_topical) {
    ReadTopicalHeading();
  } else {
    ReadOtherHeading();
  }
  ReadSubdivisions();
  if (!state_.productive) {
    music_.Report().AddNonProductive655(record_.FldTagView(), state_.current_field_text);
  }
}

// Stands on the $a; false for a heading without one.
bool RecordPass::BeginHeading() {
  state_.productive = false;
  state_.current_field_text.clear();
  record_.AppendFldText(state_.current_field_text);
  state_.subfield_3_part.clear();
  if (record_.SfdFindFirst("3", {})) {
    state_.subfield_3_part += kDelimiter;
    state_.subfield_3_part += '3';
    state_.subfield_3_part += record_.SfdTextView();
  }
  if (!record_.SfdFindFirst("a", {})) return false;
  heading_norm_ = record_.SfdNormView();
  return true;
}

void RecordPass::ReadTopicalHeading() {
  if (heading_norm_.starts_with("CANONS FUGUES ETC")) state_.canons_fugues_heading_seen = true;
  AppendLine(record_.FldTagView(), state_.candidate_fields);
  state_.candidate_fields += record_.FldIndView();
  state_.candidate_fields += state_.current_field_text;

  if (music_.Private_655_TestExcerpts(record_)) return;
  bool found = false;
  music_.Private_655_TestHeading(record_.SfdText(), record_, new_lines_, false, found);
  if (found) return;
  // Deliberate: this is still what the heading before left, so that one whose
  // subdivision was understood keeps the next one from being looked up.
  if (state_.subdivision_consumed) return;
  LookUpFirstSubdivision();
  music_.Private_655_TestAndAdd("List3", heading_norm_, record_, new_lines_);
}

void RecordPass::ReadOtherHeading() {
  if (music_.Private_655_TestExcerpts(record_)) {
    AppendLine(heading_norm_, state_.excluded_for_excerpts);
  } else {
    LookUpFirstSubdivision();
  }
}

// The heading with the subdivision right behind its $a.  The letter of the key is
// "v" for $x as well.
void RecordPass::LookUpFirstSubdivision() {
  if (!record_.SfdFindFirst("a", {}) || !record_.SfdMoveNext(true)) return;
  if (!IsSubdivision(record_.SfdCodeView())) return;
  key_ = heading_norm_;
  key_ += 'v';
  key_ += record_.SfdNormView();
  music_.Private_655_TestAndAdd("List2", key_, record_, new_lines_);
}

// --- Subdivisions --------------------------------------------------------------

// What subdivisions give does not make the heading productive.
void RecordPass::ReadSubdivisions() {
  state_.subdivision_consumed = false;
  const bool productive = state_.productive;
  for (bool more = record_.SfdMoveFirst(true); more; more = record_.SfdMoveNext(true)) {
    YieldToHost();
    const std::string_view code = record_.SfdCodeView();
    if (IsSubdivision(code)) {
      ReadSubdivision();
    } else if (code == "y") {
      music_.Private_655_AddDates(record_, new_lines_);
    } else if (code == "z") {
      ReadPlace();
    }
  }
  state_.productive = productive;
}

void RecordPass::ReadSubdivision() {
  const std::string norm = record_.SfdNorm();
  // Deliberate: the subdivision before may be the last of the heading before.
  if (!state_.previous_subdivision.empty()) {
    key_ = state_.previous_subdivision;
    key_ += 'v';
    key_ += norm;
    music_.Private_655_TestAndAdd("List5", key_, record_, new_lines_);
  }
  state_.previous_subdivision = norm;
  if (state_.subdivision_consumed) return;
  music_.Private_655_TestSubdivisionPhrases(record_, scratch_record_, new_lines_, spare_);
  if (state_.subdivision_consumed) return;
  music_.Private_655_TestAndAdd("List6", norm, record_, new_lines_);
}

// A $z, together with the one right behind it.
void RecordPass::ReadPlace() {
  const std::int16_t row = record_.SfdPointer();
  const std::string first(Trim(record_.SfdTextView()));
  std::string second;
  if (record_.SfdMoveNext(true) && record_.SfdCodeView() == "z") {
    second = Trim(record_.SfdTextView());
  } else {
    record_.SfdPointer(row);
  }
  bool found = false;
  music_.Private_655_AddPlace(record_, scratch_record_, first, second, new_lines_, spare_, found);
}

}  // namespace cantorel

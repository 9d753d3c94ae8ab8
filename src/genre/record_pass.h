// The walk over a record that turns coded data and subject headings into lines
// of new fields.

#ifndef CANTOREL_GENRE_RECORD_PASS_H_
#define CANTOREL_GENRE_RECORD_PASS_H_

#include <string>
#include <string_view>

#include "genre/genre_context.h"

namespace cantorel {

class RecordPass {
 public:
  // `control_number` receives the 001 that messages name.
  RecordPass(GenreContext& context, Utf8MarcRecordClass& scratch_record, std::string& spare,
             std::string& control_number);

  // Everything but what is concluded at the end of the record.
  void Run();

 private:
  void ReadField();
  void ReadCompositionCodes();

  void ReadHeading(bool is_topical);
  bool BeginHeading();
  void ReadTopicalHeading();
  void ReadOtherHeading();
  void LookUpFirstSubdivision();

  void ReadSubdivisions();
  void ReadSubdivision();
  void ReadPlace();

  std::string Norm(std::string_view text) const { return record_.NormString(text, true, "V"); }

  GenreContext& context_;
  Music650To382Class& music_;
  GenreState& state_;
  Utf8MarcRecordClass& record_;
  Utf8MarcRecordClass& scratch_record_;
  std::string& new_lines_;
  std::string& spare_;
  std::string& control_number_;

  std::string heading_norm_;  // of the $a of the heading under work
  std::string key_;
};

}  // namespace cantorel

#endif  // CANTOREL_GENRE_RECORD_PASS_H_

// One heading while it is read: its parts, and the field made so far.

#ifndef CANTOREL_MEDIUM_HEADING_PARSE_H_
#define CANTOREL_MEDIUM_HEADING_PARSE_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "medium/heading_grammar.h"
#include "medium/medium_context.h"

namespace cantorel {

// What a reading of the heading came to.
enum class Outcome {
  kField,     // the buffer holds a field, which the subdivisions may still change
  kFinished,  // the buffer holds a field that is complete
  kNothing,   // the heading gives no field
  kGeneral,   // the reading does not decide: the general patterns run
};

struct HeadingParse {
  HeadingParse(MediumContext& the_context, const HeadingSettings& the_settings,
               std::string& the_buffer)
      : context(the_context), settings(the_settings), buffer(the_buffer) {}
  HeadingParse(const HeadingParse&) = delete;
  HeadingParse& operator=(const HeadingParse&) = delete;

  MediumContext& context;
  const HeadingSettings& settings;
  std::string& buffer;  // the text of the 382 under construction

  std::string_view main;   // text of the $a, cleaned
  std::string_view rest;   // what follows the $a, delimiters included
  std::string first_word;  // of `main`, comparison form

  // False once a term was made by rule: the field then takes no $2.
  bool all_terms_known = true;
  // What the phrase parser made of the parenthesis in "... music (...)", and
  // the count that its first item gave; 0 and empty for every other heading.
  std::int32_t pattern_code = 0;
  std::string pattern_count;

  // `main` in comparison form, made when first asked for.
  const std::string& HeadingNorm();

  // Replaces the buffer by a literal in which "$" stands for the delimiter.
  Outcome SetField(std::string_view dollar_form);
  // The same with a number behind it.
  Outcome SetField(std::string_view dollar_form, std::int32_t number);

  // Lets the phrase parser append to the buffer.
  Outcome ReadPhrase(std::string_view phrase);

  // Memory behind `main` and `rest` when they are not views of the field.
  std::string own_main;
  std::string own_rest;

 private:
  std::string heading_norm_;
  bool heading_norm_made_ = false;
};

// Splits a field text and cleans its parts; a $3 goes into `trailing`.  False
// when the heading is no candidate for a medium.
bool PrepareHeading(HeadingParse& parse, std::string_view field_text, std::string& trailing);

// What stands behind the first "(" of a text, without a ")" at the very end;
// empty without a "(".
std::string_view InsideParenthesis(std::string_view text);

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_HEADING_PARSE_H_

#include "medium/heading_grammar.h"

#include "medium/heading_dispatch.h"
#include "medium/heading_parse.h"
#include "medium/heading_patterns.h"
#include "medium/heading_tail.h"

namespace cantorel {

HeadingResult ParseHeading(MediumContext& context, const HeadingSettings& settings,
                           std::string_view field_text, std::string& buffer,
                           std::string& trailing) {
  buffer.clear();
  trailing.clear();
  context.of_interest = false;
  const std::int32_t prepared = context.vocabulary.Prepare();
  if (prepared != 0) return static_cast<HeadingResult>(prepared);

  HeadingParse parse(context, settings, buffer);
  if (!PrepareHeading(parse, field_text, trailing)) return kHeadingIsNoCandidate;
  Outcome outcome = ReadByFirstWord(parse);
  if (outcome == Outcome::kGeneral) {
    buffer.clear();
    outcome = ReadByPattern(parse);
  }
  HeadingResult result = kHeadingGaveNothing;
  if (outcome == Outcome::kField) result = FinishHeading(parse);
  if (outcome == Outcome::kFinished) result = kHeadingGaveField;
  if (result == kHeadingGaveNothing) buffer.clear();
  return result;
}

}  // namespace cantorel

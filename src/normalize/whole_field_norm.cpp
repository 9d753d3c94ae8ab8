// Comparison forms of a whole field.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "normalize/naco_norm.h"
#include "normalize/squeezing_writer.h"
#include "normalize/tables/normalized_subfields.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

constexpr std::string_view kBibliographicFormats = "BDFMPSU";

constexpr std::string_view kOpensA = "\x1F\x61";  // delimiter and code of a $a

// Codes of control subfields, which an authority heading is compared without.
constexpr std::string_view kControlCodes = "w0123456789";

bool IsBibliographic(std::string_view format) {
  return format.size() == 1 && kBibliographicFormats.find(format) != std::string_view::npos;
}

bool Holds(std::string_view text, std::string_view sought) {
  return text.find(sought) != std::string_view::npos;
}
bool Holds(std::string_view text, char sought) {
  return text.find(sought) != std::string_view::npos;
}

// True when `tag` is one of the blank-separated tags.
bool IsOneOf(std::string_view tag, std::string_view tags) {
  return tag.size() == 3 && !Holds(tag, ' ') && Holds(tags, tag);
}

template <std::size_t kRows>
const NormalizedSubfields* RowOf(std::string_view tag, const NormalizedSubfields (&rows)[kRows]) {
  const auto* row = std::find_if(std::begin(rows), std::end(rows), [&](const auto& candidate) {
    return IsOneOf(tag, candidate.tags);
  });
  return row == std::end(rows) ? nullptr : row;
}

// Walks the subfields of a field text that have a text, trimmed.  What stands
// before the first delimiter counts as $a.
class SubfieldWalk {
 public:
  explicit SubfieldWalk(std::string_view field_text) : rest_(field_text) {}

  bool Next() {
    while (!rest_.empty() && rest_[0] == kDelimiter) {
      code_ = rest_.substr(1, 1);
      rest_ = From(rest_, 2);
    }
    if (rest_.empty()) return false;
    const std::size_t end = std::min(rest_.find(kDelimiter), rest_.size());
    text_ = Trim(rest_.substr(0, end));
    rest_.remove_prefix(end);
    return true;
  }

  std::string_view Code() const { return code_; }
  std::string_view Text() const { return text_; }

 private:
  std::string_view rest_;
  std::string_view code_ = "a";
  std::string_view text_;
};

void AppendDelimiter(std::string_view code, std::string& out) {
  out += kDelimiter;
  out += code;
}

// The field text from the text of its first $a on, or all of it.
std::string_view FromFirstA(std::string_view text) {
  const std::size_t place = text.find(kOpensA);
  return place == std::string_view::npos ? text : Trim(text.substr(place + 2));
}

// True for a heading whose $a is no personal name, in which a comma therefore
// does not invert anything.  The lists are searched as text.
bool TakesWholeA(std::string_view format, std::string_view tag) {
  if (format == "A") return !Holds("100 400 500", tag);
  return IsBibliographic(format) && !Holds("100 400 500 600 700 800", tag);
}

// Appends the form of a $a: of an inverted name by its parts, unless `whole`.
void AppendHeadingNorm(std::string_view text, char set, bool whole, std::string& out) {
  if (!whole && AppendInvertedNameNorm(text, set, false, out)) return;
  AppendTextNorm(text, true, set, false, out);
}

std::string NormOfCurrentField(std::string_view scheme, Utf8MarcRecordClass& record) {
  if (record.FldPointer() < 0) return {};
  std::string cleaned;
  return record.NormalizeWholeField(scheme, record.MarcRecordFormat(), record.FldTagView(),
                                    record.FldIndView(), record.FldText(), cleaned);
}

}  // namespace

std::string Utf8MarcRecordClass::ListSubfieldsForNormalization(std::string_view format,
                                                               std::string_view tag) {
  if (format == "A") {
    const NormalizedSubfields* row = RowOf(tag, kAuthoritySubfields);
    if (row == nullptr) return std::string(kEverySubfield);
    return std::string(kSubdivisions).append(row->codes);
  }
  if (!IsBibliographic(format)) return std::string(kEverySubfield);
  const NormalizedSubfields* row = RowOf(tag, kBibliographicSubfields);
  std::string codes(tag.substr(0, 1) == "6" ? kSubdivisions : std::string_view());
  return codes.append(row == nullptr ? kEverySubfield : row->codes);
}

std::string Utf8MarcRecordClass::NormalizeWholeField(std::string_view scheme,
                                                     std::string_view format, std::string_view tag,
                                                     std::string_view indicators,
                                                     std::string_view text, std::string& cleaned) {
  const bool naco = scheme == "P" || scheme == "Q";
  const bool whole_a = scheme == "Q" && TakesWholeA(format, tag);
  const std::string codes = ListSubfieldsForNormalization(format, tag);
  std::string live_indicators(indicators);
  std::string pieces;
  std::string norm;
  for (SubfieldWalk walk(FromFirstA(text)); walk.Next();) {
    const std::string_view code = walk.Code();
    if (!Holds(codes, code)) continue;
    std::string filed;
    std::string_view piece = walk.Text();
    if (code == "a") {
      filed = RemoveNonfilingCharacters(format, tag, live_indicators, piece, true);
      piece = filed;
    }
    AppendDelimiter(code, pieces);
    pieces += piece;
    if (!naco) {
      norm += ' ';
      AppendTextNorm(piece, true, character_set_out_, false, norm);
    } else if (code == "a") {
      AppendDelimiter(code, norm);
      AppendHeadingNorm(piece, character_set_out_, whole_a, norm);
    } else if (format != "A" || !Holds(kControlCodes, code)) {
      AppendDelimiter(code, norm);
      const NormKeeps keeps = NacoKeeps(scheme, format, tag, code);
      AppendNacoNorm(piece, true, character_set_out_, keeps, norm);
    }
  }
  cleaned = std::move(pieces);
  std::string result;
  AppendTidy(norm, result);
  return result;
}

std::string Utf8MarcRecordClass::GenerateNacoFormFromRaw(std::string_view tag,
                                                         std::string_view text) const {
  std::string norm;
  for (SubfieldWalk walk(text); walk.Next();) {
    const std::string_view code = walk.Code();
    if (code == "a") {
      norm.clear();  // deliberate: the form begins anew with every $a
      AppendDelimiter(code, norm);
      AppendHeadingNorm(walk.Text(), character_set_out_, false, norm);
    } else if (!Holds(kControlCodes, code)) {
      AppendDelimiter(code, norm);
      const NormKeeps keeps = NacoKeeps("P", "A", tag, code);
      AppendNacoNorm(walk.Text(), true, character_set_out_, keeps, norm);
    }
  }
  return norm;
}

std::string Utf8MarcRecordClass::FldNorm() {
  return NormOfCurrentField("V", *this);
}
std::string Utf8MarcRecordClass::FldNormNaco() {
  return NormOfCurrentField("P", *this);
}
std::string Utf8MarcRecordClass::FldNormNacoAlmost() {
  return NormOfCurrentField("Q", *this);
}

std::string Utf8MarcRecordClass::FldTextNormalizable() const {
  if (!HasField()) return {};
  const FieldRecord& field = CurrentField();
  if (field.Tag().substr(0, 2) == "00") return FldText();
  const std::string codes = ListSubfieldsForNormalization(MarcRecordFormat(), field.Tag());
  std::string text;
  for (std::int16_t row = field.first_subfield; row != kNoRow;) {
    const SubfieldRecord& subfield = table_.Subfield(field, row);
    if (!subfield.deleted && Holds(codes, subfield.code)) {
      AppendDelimiter({&subfield.code, 1}, text);
      text += subfield.text;
    }
    row = subfield.next;
  }
  return text;
}

void Utf8MarcRecordClass::FldLoadInfoNormalizable(std::string& tag, std::string& indicators,
                                                  std::string& text) const {
  tag = FldTag();
  indicators = FldInd();
  text = FldTextNormalizable();
}

}  // namespace cantorel

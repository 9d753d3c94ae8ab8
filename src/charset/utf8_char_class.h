// Utf8CharClass: one character, in three forms at once.
//
// An object holds a current character as UTF-8 octets, as UCS octets (UTF-16,
// high octet first) and as the number that its UTF-8 octets make, and answers
// questions about it.  It is made once and reused:
//
//   Utf8CharClass character;
//   character.Utf8Char("\xC3\xA9 and more text");  // takes the first character
//   character.UcsHex();            // "00E9"
//   character.Utf8CharCategory();  // "Ll"
//   character.Utf8CharUCase();     // "\xC3\x89"
//
// All text is octets, one a char; lengths and positions count octets.  Nothing
// here fails: continuation bits are not checked, a wrong length gives the
// leading octets untranslated, a bad hexadecimal digit counts 15.  Loops that
// only ask one question use the free functions (charset/unicode_category.h,
// charset/unicode_case.h, normalize/character_norm.h), which give the same
// answers without an object.

#ifndef CANTOREL_CHARSET_UTF8_CHAR_CLASS_H_
#define CANTOREL_CHARSET_UTF8_CHAR_CLASS_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "charset/marc_control.h"
#include "charset/unicode_category.h"

namespace cantorel {

class Utf8CharClass {
 public:
  // --- The current character -------------------------------------------------

  // Writing takes the first character of `text`, as long as its first octet
  // announces or as the text is.  An empty text leaves no character.
  std::string Utf8Char() const { return utf8_char_; }
  void Utf8Char(std::string_view text);

  // Two octets, or four for a surrogate pair.  One or three octets are ignored;
  // of more than four the first two count.
  std::string UcsChar() const { return ucs_char_; }
  void UcsChar(std::string_view octets);

  // UcsChar in upper-case hexadecimal digits, two an octet.  Writing reads the
  // digits as UcsHex2Utf8 does.
  std::string UcsHex() const;
  void UcsHex(std::string_view digits);

  // Utf8Char in upper-case hexadecimal digits, two an octet.
  std::string Utf8CharHex() const;

  // The UTF-8 octets read as one big-endian number.  Writing rebuilds the
  // character with quotients that are rounded (ties to even), not truncated, so
  // that most values above 127 do not come back as they went in.  That is
  // deliberate.  A negative value leaves no character.
  std::int64_t Utf8CharAsc() const { return octet_value_; }
  void Utf8CharAsc(std::int64_t value);

  // Makes a MARC-8 character the current one: one octet of the Latin set, or the
  // letter of a set ("M", "O", "V"), a code such as "(N" (see below) and the
  // octets.  Nothing happens for octets that are no character.  Only the UTF-8
  // side is written, deliberately: UcsChar and UcsHex stay as they were.
  void Marc8Char(std::string_view marc8);

  // The length, 1 to 4, that the first octet of `text` announces; a continuation
  // octet announces 1.  For an empty text, the length of the current character.
  std::int16_t Utf8CharOctets(std::string_view text) const;

  // --- Questions about the current character ---------------------------------

  // The two letters of its category (charset/unicode_category.h); empty for none.
  std::string Utf8CharCategory() const;

  // The MARC-8 set that has it, one character: "1" Basic Latin and ANSEL, "3"
  // East Asian (EACC), "5" Hebrew, "6" Cyrillic, "7" Arabic, "8" Greek; "?" for
  // none of these.
  std::string Utf8CharCategoryMarc8() const;

  // True from U+0370 on, but for super- and subscripts (U+2070 to U+209F) and
  // the combining half marks U+FE20 to U+FE23.
  bool Utf8CharNonRoman() const;

  // Makes `character` the current one.  True when it is a decimal digit of any
  // script (category "Nd"); `value` is then 0 to 9, otherwise 0.
  bool Utf8CharVal(std::string_view character, std::int16_t& value);

  // Its other case, or itself (charset/unicode_case.h).
  std::string Utf8CharLCase() const;
  std::string Utf8CharUCase() const;

  // Its comparison form: empty, one or several characters.  `scheme` "P" keeps
  // "@"; NormalizationScheme "P" keeps the subfield delimiter.
  // (normalize/character_norm.h)
  std::string Utf8CharNorm(std::string_view scheme) const;

  // "P" (NACO) or "V" (plain), the default.  Writing trims, takes the first
  // character in upper case, and makes "V" of anything but these two.
  std::string NormalizationScheme() const { return std::string(1, normalization_scheme_); }
  void NormalizationScheme(std::string_view scheme);

  // --- Conversions -----------------------------------------------------------

  // The last four octets (at most) as one big-endian number.
  static std::int64_t Utf8Asc(std::string_view octets);

  // UCS octets of one character to UTF-8.  Two octets are a code point, four a
  // surrogate pair; any other length gives the first two octets as they are.
  // The second and third octets made of a surrogate pair are not those of
  // RFC 3629.  That is deliberate.
  static std::string Ucs2Utf8(std::string_view octets);

  // UTF-8 octets of one character to UCS octets, two or, for four octets, a
  // surrogate pair.  Five octets and more give the first one as it is.
  static std::string Utf82Ucs(std::string_view octets);

  // Hexadecimal digits of a code point to UTF-8: one, two or four digits, eight
  // for a surrogate pair, otherwise the first four count.  Of three digits the
  // second is ignored, deliberately: "ABC" gives U+0A0C.
  static std::string UcsHex2Utf8(std::string_view digits);

  // A code point to UTF-8; above FFFF the low 16 bits count.
  static std::string UcsNumericToUtf8(std::int32_t code_point);

  // The position (from 1) of the first octet of the character that covers
  // `position`; 0 for an empty text, 1 for 0 and 1.  Past the end counts as the
  // end; a negative position comes back.
  static std::int32_t Utf8CharFindFirstOctet(std::string_view text, std::int32_t position);

  // The first octet as two upper-case hexadecimal digits; empty for none.
  static std::string Char2Hex(std::string_view octet);

  // The octet of the last two digits, or of one; empty for none.  Lower-case
  // letters are no digits here: they count 15 as any other character.
  static std::string Hex2Char(std::string_view digits);

  // --- MARC-8 and substitutes ------------------------------------------------

  // One MARC-8 character to UTF-8.  `set_in` is "M", "O" or "V"; `code` says
  // which set the octets are of: its short code ("1" to ";"), or what an escape
  // designates it with ("s", "g", "b", "p", "(N", ")N", "$1", ")!E", ...).
  // `changed`: the translation differs from the octets.  `error`, with `utf8`
  // empty: unknown code, or octets that are not one character of the set.
  // (charset/marc8_character.h)
  static void TranslateMarc2Utf8OneCharacter(std::string_view set_in, std::string_view code,
                                             std::string_view octets, std::string& utf8,
                                             bool& changed, bool& error);

  // The MARC-8 octets of one UTF-8 character, and the short code of the first set
  // that has it.  `set_out` is "M", "O" or "V".  `error`, with empty answers:
  // there is none.
  static std::string TranslateUtf82MarcOneCharacter(std::string_view set_out,
                                                    std::string_view octets, std::string& code,
                                                    bool& error);

  // What stands behind the escape for a short code: "6" gives "(N".  Any other
  // value comes back.
  static std::string TranslateUtf82MarcShortCodeToLong(std::string_view short_code);

  // MARC-8 text without fields to UTF-8: marks (224 to 251, 254) go behind their
  // letters, the runs behind an escape and "p", "b" or "g" become superscripts,
  // subscripts and Greek letters.  Octets and escapes that are none of these
  // stay.  `set_in` as above.
  static std::string Marc82Utf8(std::string_view text, std::string_view set_in);

  // What stands for a character that records do not hold as it is: a letter and
  // its marks for a precomposed letter, "-" for a dash, an ideograph for a
  // private-use character (charset/substitutes.h).  False, with the text itself,
  // if nothing does.
  static bool SubstituteUtf8Char(std::string_view text, std::string& replacement);

  // --- Fixed characters ------------------------------------------------------

  std::string MarcDelimiter() const { return std::string(1, kDelimiter); }
  std::string MarcEndOfField() const { return std::string(1, kEndOfField); }
  std::string MarcEndOfRecord() const { return std::string(1, kEndOfRecord); }
  std::string MarcFill() const { return std::string(1, kFill); }
  std::string MarcEscape() const { return std::string(1, kEscape); }
  std::string MarcNonSortBegin() const { return std::string(kMarcNonSortBegin); }
  std::string MarcNonSortEnd() const { return std::string(kMarcNonSortEnd); }

  // The same in UTF-8; only the non-sort pair differs.
  std::string Utf8Delimiter() const { return MarcDelimiter(); }
  std::string Utf8EndOfField() const { return MarcEndOfField(); }
  std::string Utf8EndOfRecord() const { return MarcEndOfRecord(); }
  std::string Utf8Fill() const { return MarcFill(); }
  std::string Utf8Escape() const { return MarcEscape(); }
  std::string Utf8NonSortBegin() const { return std::string(kUtf8NonSortBegin); }
  std::string Utf8NonSortEnd() const { return std::string(kUtf8NonSortEnd); }

  // Each name of named_characters.inc gives two members, such as Marc8Umlaut()
  // and Utf8Umlaut(): its form in MARC-8 and in UTF-8.  The MARC-8 form of those
  // that have an octet of their own in the 8-bit set "V" takes the letter of the
  // set, as in Marc8Sharp("V"); any other letter gives the form in MARC-8.
#define NAMED_CHARACTER(name, marc8, code_point) \
  std::string Marc8##name() const {              \
    return marc8;                                \
  }                                              \
  std::string Utf8##name() const {               \
    return UcsNumericToUtf8(code_point);         \
  }
#define NAMED_CHARACTER_BY_SET(name, marc8, octet_in_v, code_point) \
  std::string Marc8##name(std::string_view set) const {             \
    return set == "V" ? (octet_in_v) : (marc8);                     \
  }                                                                 \
  std::string Utf8##name() const {                                  \
    return UcsNumericToUtf8(code_point);                            \
  }
#include "charset/named_characters.inc"
#undef NAMED_CHARACTER
#undef NAMED_CHARACTER_BY_SET

  // The one with three forms: of set "V", of set "O", of any other.
  std::string Marc8LScript(std::string_view set) const {
    return set == "V" ? "\xAF" : set == "O" ? "\xBE" : "\xC1";
  }
  std::string Utf8LScript() const {
    return UcsNumericToUtf8(0x2113);
  }

 private:
  Category CurrentCategory() const;

  std::string utf8_char_;
  std::string ucs_char_;
  std::int64_t octet_value_ = 0;
  std::int16_t octet_count_ = 0;
  char normalization_scheme_ = 'V';

  // The two character setters call each other; the guard ends that.
  bool in_setter_ = false;

  // The category is looked up when first asked for.
  mutable bool category_valid_ = false;
  mutable Category category_ = Category::kNone;
};

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_UTF8_CHAR_CLASS_H_

#include "charset/marc8_character.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

#include "charset/utf8.h"

namespace cantorel {

namespace {

using Shift = Marc8Designation::Shift;

struct DesignationCode {
  std::string_view code;
  Marc8Designation designation;
};

constexpr DesignationCode kDesignationCodes[] = {
    {"s", {Marc8Set::kLatin, Shift::kNone}},
    {"(B", {Marc8Set::kLatin, Shift::kNone}},
    {")!E", {Marc8Set::kLatin, Shift::kNone}},
    {"(!E", {Marc8Set::kLatin, Shift::kAdd128}},
    {"g", {Marc8Set::kGreekSymbols, Shift::kNone}},
    {"b", {Marc8Set::kSubscripts, Shift::kNone}},
    {"p", {Marc8Set::kSuperscripts, Shift::kNone}},
    {"(2", {Marc8Set::kHebrew, Shift::kNone}},
    {")2", {Marc8Set::kHebrew, Shift::kTake128Off}},
    {"(N", {Marc8Set::kCyrillic, Shift::kNone}},
    {")N", {Marc8Set::kCyrillic, Shift::kTake128Off}},
    {")Q", {Marc8Set::kExtendedCyrillic, Shift::kNone}},
    {"(Q", {Marc8Set::kExtendedCyrillic, Shift::kAdd128}},
    {"(3", {Marc8Set::kArabic, Shift::kNone}},
    {")3", {Marc8Set::kArabic, Shift::kTake128Off}},
    {")4", {Marc8Set::kExtendedArabic, Shift::kNone}},
    {"(4", {Marc8Set::kExtendedArabic, Shift::kAdd128}},
    {"(S", {Marc8Set::kGreek, Shift::kNone}},
    {")S", {Marc8Set::kGreek, Shift::kTake128Off}},
    {"$1", {Marc8Set::kEacc, Shift::kNone}},
};

// In the order of the short codes.
constexpr std::string_view kLongCodes[] = {"(B", "g",  "b",  "p",  "(2", "(N",
                                           "(3", "(S", "$1", ")Q", ")4"};

bool IsShortCode(char code) {
  return code >= static_cast<char>(Marc8Set::kLatin) &&
         code <= static_cast<char>(Marc8Set::kExtendedArabic);
}

constexpr char16_t kScriptL = 0x2113;
constexpr unsigned kScriptLInO = 0xBE;

// In "V" the named form of script l is AF, but AF is alpha, too: the octet that
// translation uses is A0.
constexpr unsigned kScriptLInV = 0xA0;

// The characters that "V" has in octets of its own; 0 for the other octets.
constexpr std::array<char16_t, 256> OctetsOfV() {
  std::array<char16_t, 256> characters{};
#define NAMED_CHARACTER(name, marc8, code_point)
#define NAMED_CHARACTER_BY_SET(name, marc8, octet_in_v, code_point) \
  characters[Octet((octet_in_v)[0])] = code_point;
#include "charset/named_characters.inc"
#undef NAMED_CHARACTER
#undef NAMED_CHARACTER_BY_SET
  characters[kScriptLInV] = kScriptL;
  return characters;
}

constexpr std::array<char16_t, 256> kOctetsOfV = OctetsOfV();

// The character that a variant has in place of MARC-8's in the Latin set; 0 where
// they agree.
std::uint32_t UcsOfVariantOctet(char letter, unsigned octet) {
  if (letter == 'V') return kOctetsOfV[octet];
  return letter == 'O' && octet == kScriptLInO ? kScriptL : 0;
}

// The octet that a variant has for a character in the Latin set; 0 for none.
unsigned VariantOctetOf(char letter, std::uint32_t code_point) {
  if (letter == 'O') return code_point == kScriptL ? kScriptLInO : 0;
  const auto* const found = std::find(kOctetsOfV.begin(), kOctetsOfV.end(), code_point);
  return found == kOctetsOfV.end() ? 0 : static_cast<unsigned>(found - kOctetsOfV.begin());
}

// Beyond the octets that a set's table has, a graphic octet with the high bit
// taken off may be punctuation, but never a blank or a control: these would be
// read as marks of the record.
std::uint32_t UcsOfHighOctet(Marc8Set set, unsigned octet) {
  const unsigned low = octet & 0x7F;
  if (low <= 0x20 || low == 0x7F) return kNoCodePoint;
  return UcsOfMarc8(set, static_cast<unsigned char>(low));
}

std::uint32_t UcsOfLowOctet(Marc8Set set, unsigned octet) {
  const std::uint32_t code_point = UcsOfMarc8(set, static_cast<unsigned char>(octet | 0x80));
  return code_point == kNoCodePoint ? octet : code_point;
}

std::uint32_t UcsOfOctet(char letter, Marc8Designation designation, unsigned octet) {
  const bool is_high = octet >= 0x80;
  if (designation.shift == Shift::kTake128Off && is_high) {
    return UcsOfHighOctet(designation.set, octet);
  }
  if (designation.shift == Shift::kAdd128 && !is_high) {
    return UcsOfLowOctet(designation.set, octet);
  }
  if (designation.set == Marc8Set::kLatin && is_high) {
    if (const std::uint32_t own = UcsOfVariantOctet(letter, octet); own != 0) return own;
  }
  return UcsOfMarc8(designation.set, static_cast<unsigned char>(octet));
}

std::uint32_t UcsOfEaccOctets(std::string_view octets) {
  if (octets == " ") return ' ';
  if (octets.size() != 3) return kNoCodePoint;
  return UcsOfEacc(Octet(octets[0]) << 16 | Octet(octets[1]) << 8 | Octet(octets[2]));
}

}  // namespace

bool ReadMarc8Designation(std::string_view code, Marc8Designation& designation) {
  if (code.size() == 1 && IsShortCode(code[0])) {
    designation = {static_cast<Marc8Set>(code[0]), Shift::kNone};
    return true;
  }
  for (const DesignationCode& known : kDesignationCodes) {
    if (known.code != code) continue;
    designation = known.designation;
    return true;
  }
  return false;
}

std::string_view Marc8LongCode(Marc8Set set) {
  const char code = static_cast<char>(set);
  if (!IsShortCode(code)) return {};
  return kLongCodes[static_cast<std::size_t>(code - static_cast<char>(Marc8Set::kLatin))];
}

std::uint32_t UcsOfMarc8Octets(char letter, Marc8Designation designation, std::string_view octets) {
  if (designation.set == Marc8Set::kEacc) return UcsOfEaccOctets(octets);
  if (octets.size() != 1) return kNoCodePoint;
  return UcsOfOctet(letter, designation, Octet(octets[0]));
}

bool Marc8FormOf(char letter, std::uint32_t code_point, Marc8Form& form) {
  if (code_point < 0x80 || (letter != 'V' && letter != 'O')) return Marc8FormOf(code_point, form);
  if (const unsigned octet = VariantOctetOf(letter, code_point); octet != 0) {
    form = {Marc8Set::kLatin, 1, {static_cast<char>(octet)}};
    return true;
  }
  Marc8Form plain;
  if (!Marc8FormOf(code_point, plain)) return false;
  // An octet that the variant uses for another character cannot stand for this.
  const bool is_latin = plain.set == Marc8Set::kLatin;
  if (is_latin && UcsOfVariantOctet(letter, Octet(plain.octets[0])) != 0) return false;
  form = plain;
  return true;
}

}  // namespace cantorel

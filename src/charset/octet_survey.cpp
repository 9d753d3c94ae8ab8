#include "charset/octet_survey.h"

#include <algorithm>

#include "charset/utf8.h"

namespace cantorel {

namespace {

struct OctetRange {
  unsigned first;
  unsigned last;
};

constexpr OctetRange kIllegal[] = {
    {0, 26},    {28, 28},   {127, 143}, {145, 145}, {151, 159},
    {206, 207}, {222, 223}, {252, 253}, {255, 255},
};

// Signs of the variant that keeps its symbols in single octets.
constexpr OctetRange kSingleOctetSigns[] = {
    {144, 144}, {146, 150}, {160, 160}, {175, 175}, {187, 187}, {191, 191}, {199, 205}, {208, 221},
};

constexpr OctetRange kPlain = {29, 126};

// All octets are looked at, as narrow as they are, so that many go at once.
bool IsPlain(std::string_view text) {
  constexpr auto kFirst = static_cast<unsigned char>(kPlain.first);
  constexpr auto kSpan = static_cast<unsigned char>(kPlain.last - kPlain.first);
  unsigned char outside = 0;
  for (char c : text) {
    const auto above = static_cast<unsigned char>(static_cast<unsigned char>(c) - kFirst);
    outside = static_cast<unsigned char>(outside | (above > kSpan ? 1 : 0));
  }
  return outside == 0;
}

}  // namespace

OctetSurvey::OctetSurvey(std::string_view text) : plain_(IsPlain(text)) {
  if (plain_) return;
  for (char c : text) seen_[Octet(c)] = true;
}

bool OctetSurvey::Any(unsigned first, unsigned last) const {
  return std::any_of(seen_.begin() + first, seen_.begin() + last + 1, [](bool s) { return s; });
}

char OctetSurvey::Letter() const {
  if (plain_) return 'M';
  const bool symbols = Any(192, 198);
  const bool script_l = seen_[190];
  const bool escape = seen_[27];
  const bool single = std::any_of(std::begin(kSingleOctetSigns), std::end(kSingleOctetSigns),
                                  [&](const OctetRange& r) { return Any(r.first, r.last); });
  if (symbols) {
    if (escape) return 'O';
    return single ? 'V' : 'Y';
  }
  if (script_l) {
    if (single) return 'V';
    return escape ? 'O' : 'X';
  }
  if (!single) return 'M';
  return escape ? 'X' : 'V';
}

std::string OctetSurvey::Describe() const {
  std::string text(1, Letter());
  if (plain_) return text;
  std::string illegal;
  for (const OctetRange& range : kIllegal) {
    for (unsigned octet = range.first; octet <= range.last; ++octet) {
      if (seen_[octet]) illegal += " " + std::to_string(octet);
    }
  }
  return illegal.empty() ? text : text + " Illegal character(s):" + illegal;
}

}  // namespace cantorel

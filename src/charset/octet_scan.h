// Finds octets of certain kinds in a text.
//
// What is sought stands close together or not at all, so a search per hit spends
// its time on starting.  Sixteen octets are compared at once where the machine
// can; plain loops serve elsewhere.

#ifndef CANTOREL_CHARSET_OCTET_SCAN_H_
#define CANTOREL_CHARSET_OCTET_SCAN_H_

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "charset/marc_control.h"
#include "charset/utf8.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace cantorel {

// `places` receives the positions (from 0) of `c` in `text`, in order.
inline void FindOctets(std::string_view text, char c, std::vector<std::uint32_t>& places) {
  places.clear();
  std::size_t i = 0;
#ifdef __SSE2__
  const __m128i sought = _mm_set1_epi8(c);
  for (; i + 16 <= text.size(); i += 16) {
    const __m128i octets = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text.data() + i));
    auto hits = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(octets, sought)));
    for (; hits != 0; hits &= hits - 1) {
      places.push_back(static_cast<std::uint32_t>(i) +
                       static_cast<unsigned>(std::countr_zero(hits)));
    }
  }
#endif
  for (i = text.find(c, i); i != std::string_view::npos; i = text.find(c, i + 1)) {
    places.push_back(static_cast<std::uint32_t>(i));
  }
}

// The first position, from `from` on, of an octet that may mean something else in
// MARC-8 than in UTF-8: one above 127, an escape, or the "&" of a numeric
// notation.  The length of the text without one.
inline std::size_t FindMarc8Sign(std::string_view text, std::size_t from) {
  std::size_t i = from;
#ifdef __SSE2__
  const __m128i escape = _mm_set1_epi8(kEscape);
  const __m128i ampersand = _mm_set1_epi8('&');
  for (; i + 16 <= text.size(); i += 16) {
    const __m128i octets = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text.data() + i));
    const __m128i signs =
        _mm_or_si128(_mm_cmpeq_epi8(octets, escape), _mm_cmpeq_epi8(octets, ampersand));
    const auto hits = static_cast<unsigned>(_mm_movemask_epi8(_mm_or_si128(octets, signs)));
    if (hits != 0) return i + static_cast<unsigned>(std::countr_zero(hits));
  }
#endif
  while (i < text.size() && Octet(text[i]) < 0x80 && text[i] != kEscape && text[i] != '&') ++i;
  return i < text.size() ? i : text.size();
}

}  // namespace cantorel

#endif  // CANTOREL_CHARSET_OCTET_SCAN_H_

#include "charset/marc8_mapping.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "charset/tables/marc8_mapping_table.h"
#include "charset/two_stage_table.h"

namespace cantorel {

namespace {

constexpr std::uint32_t kFirstEaccOctet = 0x21;
constexpr std::uint32_t kEaccOctets = 94;

// The code point that a cell of the tables stands for.
std::uint32_t CodePointOfCell(std::uint16_t cell) {
  if (cell == 0) return kNoCodePoint;
  const std::uint32_t beyond = cell - kFirstBeyond;
  return beyond < std::size(kMarc8Beyond) ? kMarc8Beyond[beyond] : cell;
}

// The cell under which the way back has a code point; 0, which has no form, for
// those that it lacks.
std::uint32_t CellOfCodePoint(std::uint32_t code_point) {
  if (code_point <= kLastTableCodePoint) {
    const bool stands_for_another = code_point - kFirstBeyond < std::size(kMarc8Beyond);
    return stands_for_another ? 0 : code_point;
  }
  const auto* const found = std::find(std::begin(kMarc8Beyond), std::end(kMarc8Beyond), code_point);
  if (found == std::end(kMarc8Beyond)) return 0;
  return kFirstBeyond + static_cast<std::uint32_t>(found - std::begin(kMarc8Beyond));
}

Marc8Form SingleOctetForm(Marc8Set set, std::uint32_t octet) {
  return {set, 1, {static_cast<char>(octet)}};
}

// A form as the tables pack it: the set's short code above its octets.
Marc8Form Unpack(std::uint32_t packed) {
  const auto set = static_cast<Marc8Set>(packed >> 24);
  if (set != Marc8Set::kEacc) return SingleOctetForm(set, packed & 0xFF);
  return {set,
          3,
          {static_cast<char>(packed >> 16 & 0xFF), static_cast<char>(packed >> 8 & 0xFF),
           static_cast<char>(packed & 0xFF)}};
}

// A further set's form of a character that another set has first.
bool OtherFormIn(std::uint32_t code_point, Marc8Set set, Marc8Form& form) {
  const auto [first, last] = std::equal_range(std::begin(kMarc8OtherCharacters),
                                              std::end(kMarc8OtherCharacters), code_point);
  for (const auto* character = first; character != last; ++character) {
    const std::uint32_t packed = kMarc8OtherForms[character - std::begin(kMarc8OtherCharacters)];
    if (static_cast<Marc8Set>(packed >> 24) != set) continue;
    form = Unpack(packed);
    return true;
  }
  return false;
}

}  // namespace

std::uint32_t UcsOfMarc8(Marc8Set set, unsigned char octet) {
  if (set == Marc8Set::kEacc) return kNoCodePoint;
  const auto number = static_cast<std::size_t>(set) - static_cast<std::size_t>(Marc8Set::kLatin);
  const std::uint16_t cell = kMarc8SingleOctet[number << 8 | octet];
  if (cell != 0) return cell;
  return octet < 0x80 ? octet : kNoCodePoint;
}

std::uint32_t UcsOfEacc(std::uint32_t code) {
  // Octets below the first one wrap round and are too large, too.
  const std::uint32_t plane = (code >> 16) - kFirstEaccOctet;
  const std::uint32_t row_of_plane = (code >> 8 & 0xFF) - kFirstEaccOctet;
  if (plane >= kEaccOctets || row_of_plane >= kEaccOctets) return kNoCodePoint;
  const EaccRow& row = kEaccRows[kEaccRowNumbers[plane * kEaccOctets + row_of_plane]];
  const std::uint32_t place = (code & 0xFF) - row.first;
  return place < row.count ? CodePointOfCell(kEaccCharacters[row.start + place]) : kNoCodePoint;
}

bool Marc8FormOf(std::uint32_t code_point, Marc8Form& form) {
  if (code_point < 0x80) {
    form = SingleOctetForm(Marc8Set::kLatin, code_point);
    return true;
  }
  const std::uint32_t packed =
      TwoStageLookUp(kMarc8FormPages, kMarc8FormValues, CellOfCodePoint(code_point));
  if (packed == 0) return false;
  form = Unpack(packed);
  return true;
}

bool Marc8FormIn(std::uint32_t code_point, Marc8Set set, Marc8Form& form) {
  Marc8Form first;
  if (!Marc8FormOf(code_point, first)) return false;
  if (first.set == set) {
    form = first;
    return true;
  }
  if (code_point <= 0x20 && set != Marc8Set::kEacc) {
    form = SingleOctetForm(set, code_point);
    return true;
  }
  return OtherFormIn(code_point, set, form);
}

}  // namespace cantorel

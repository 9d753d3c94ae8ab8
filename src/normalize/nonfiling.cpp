#include "normalize/nonfiling.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "charset/marc_control.h"
#include "charset/octet_text.h"
#include "charset/utf8.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {
namespace {

constexpr std::string_view kOpensA = "\x1F\x61";  // delimiter and code of a $a

// Each entry: tag, colon, the indicator that holds the count, a blank.
constexpr std::size_t kEntrySize = 6;
struct NonfilingTags {
  std::string_view formats;
  std::string_view entries;
};
constexpr NonfilingTags kNonfilingTags[] = {
    {"A", "130:2 430:2 530:2"},
    {"BDFMPSU", "130:1 240:2 242:2 243:2 245:2 440:2 630:1 730:1 740:1 830:2"},
    {"Q", "245:2 440:2 630:1 730:1 740:1"},
};
// Any other format goes by a list that deliberately matches no tag.
constexpr std::string_view kNoNonfilingTags = "Superscript6Superscript6Superscript6X";

std::string_view NonfilingEntries(std::string_view format) {
  if (format.size() != 1) return kNoNonfilingTags;
  for (const NonfilingTags& row : kNonfilingTags) {
    if (row.formats.find(format) != std::string_view::npos) return row.entries;
  }
  return kNoNonfilingTags;
}

bool HoldsAt(std::string_view text, std::size_t position, std::string_view sought) {
  return From(text, position).substr(0, sought.size()) == sought;
}

bool HoldsAny(std::string_view text, const NonfilingMarkers& markers) {
  return text.find(markers.begin) != std::string_view::npos ||
         text.find(markers.end) != std::string_view::npos;
}

// Takes the zones out of one subfield text, from left to right.
class ZoneRemover {
 public:
  ZoneRemover(std::string_view text, const NonfilingMarkers& markers, std::string& out)
      : text_(text), markers_(markers), out_(out), start_(out.size()) {}

  void Run() {
    for (std::size_t i = 0; i < text_.size();) {
      if (HoldsAt(text_, i, markers_.begin)) {
        zone_found_ = true;
        open_.push_back(out_.size());
        i += markers_.begin.size();
      } else if (HoldsAt(text_, i, markers_.end)) {
        Close();
        i += markers_.end.size();
      } else {
        out_ += text_[i++];
      }
    }
    // A zone without an end reaches to the end of the subfield.
    if (!open_.empty()) out_.resize(open_.front());
  }

  bool ZoneFound() const { return zone_found_; }
  // An end marker stood before any begin marker: what it ended is out as well.
  bool StrayEndFound() const { return stray_end_found_; }

 private:
  void Close() {
    if (!open_.empty()) {
      out_.resize(open_.back());
      open_.pop_back();
    } else if (zone_found_) {
      out_ += markers_.end;  // deliberate: a second end for one begin stays
    } else {
      stray_end_found_ = true;
      out_.resize(start_);
    }
  }

  const std::string_view text_;
  const NonfilingMarkers markers_;
  std::string& out_;
  const std::size_t start_;
  std::vector<std::size_t> open_;  // where the open zones begin in out_
  bool zone_found_ = false;
  bool stray_end_found_ = false;
};

// The octets of the first `count` characters, or of all there are.
std::size_t OctetsOfCharacters(std::string_view text, std::size_t count, bool utf8) {
  std::size_t octets = 0;
  for (; count > 0 && octets < text.size(); --count) {
    octets += utf8 ? Utf8CharAt(text, octets).size() : 1;
  }
  return octets;
}

}  // namespace

NonfilingMarkers NonfilingMarkersOf(bool utf8) {
  if (utf8) return {kUtf8NonSortBegin, kUtf8NonSortEnd};
  return {kMarcNonSortBegin, kMarcNonSortEnd};
}

std::size_t NonfilingIndicator(std::string_view format, std::string_view tag) {
  const std::string_view entries = NonfilingEntries(format);
  for (std::size_t i = 0; i + 4 < entries.size(); i += kEntrySize) {
    if (entries[i + 3] == ':' && entries.substr(i, 3) == tag) return Octet(entries[i + 4]) - '0';
  }
  return 0;
}

std::size_t NonfilingCount(std::string_view indicators, std::size_t indicator) {
  if (indicator == 0 || indicator > indicators.size()) return 0;
  const char count = indicators[indicator - 1];
  return IsAsciiDigit(count) ? static_cast<std::size_t>(count - '0') : 0;
}

bool MayHaveNonfilingPart(std::string_view format, std::string_view tag,
                          std::string_view indicators, std::string_view text, bool utf8) {
  if (NonfilingCount(indicators, NonfilingIndicator(format, tag)) > 0) return true;
  return HoldsAny(text, NonfilingMarkersOf(utf8));
}

// Zones do not reach over a delimiter, so each subfield is treated by itself.
void Utf8MarcRecordClass::RemoveNonfilingZone(std::string& text, bool& found) const {
  found = false;
  const NonfilingMarkers markers = NonfilingMarkersOf(Utf8());
  if (!HoldsAny(text, markers)) return;
  const std::string_view all = text;
  std::string out;
  for (std::size_t i = 0; i < all.size();) {
    const bool delimited = all[i] == kDelimiter;
    const std::size_t begin = delimited ? std::min(i + 2, all.size()) : i;
    const std::size_t end = std::min(all.find(kDelimiter, begin), all.size());
    out += all.substr(i, begin - i);
    const std::size_t place = out.size();
    ZoneRemover remover(all.substr(begin, end - begin), markers, out);
    remover.Run();
    if (remover.StrayEndFound()) {
      out.replace(place, std::string::npos, UCaseFirstWord(out.substr(place)));
    }
    // A stray end in a subfield does not count as a zone, at the start of an
    // undelimited text it does; that is deliberate.
    found = found || remover.ZoneFound() || (remover.StrayEndFound() && !delimited);
    i = end;
  }
  // Behind a delimiter and code that open the text, as a rule; position 3 counts
  // whatever stands ahead of it.
  const bool opens_text = HoldsAt(all, 0, markers.begin) || HoldsAt(all, 2, markers.begin);
  text = opens_text ? UCaseFirstWord(out) : out;
}

std::string Utf8MarcRecordClass::RemoveNonfilingCharacters(std::string_view format,
                                                           std::string_view tag,
                                                           std::string& indicators,
                                                           std::string_view text,
                                                           bool capitalise) const {
  std::string filed(text);
  bool zone_found = false;
  RemoveNonfilingZone(filed, zone_found);
  const std::size_t indicator = NonfilingIndicator(format, tag);
  if (indicator == 0) return filed;

  const std::size_t count = NonfilingCount(indicators, indicator);
  if (!zone_found || count > 0) {
    indicators = SafeStuff(indicators, static_cast<std::int32_t>(indicator), 1, "0");
  }
  if (zone_found || count == 0) return filed;

  const std::size_t code_a = filed.find(kOpensA);
  const std::size_t front = code_a == std::string::npos ? 0 : code_a + 2;
  const std::string_view rest = From(filed, front);
  const std::size_t octets = OctetsOfCharacters(rest, count, Utf8());
  if (octets == 0) return filed;
  const std::string_view kept = rest.substr(octets);
  return filed.substr(0, front) + (capitalise ? UCaseFirstWord(kept) : std::string(kept));
}

}  // namespace cantorel

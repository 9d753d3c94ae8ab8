#include "cli/utf8_fields.h"

#include <algorithm>

#include "charset/marc8_reader.h"
#include "charset/octet_text.h"
#include "record/record_image.h"

namespace cantorel::cli {
namespace {

constexpr std::size_t kScheme = 9;  // position in the leader, from 0

}  // namespace

void Utf8Fields::Open(std::string_view image) {
  leader_ = image.substr(0, kLeaderLength);
  const auto base = static_cast<std::size_t>(BaseAddress(image));
  const std::size_t directory = std::min(kLeaderLength, base - 1);
  directory_ = image.substr(directory, base - 1 - directory);
  data_ = image.substr(base, image.size() - 1 - base);
  position_ = 0;

  translated_ = false;
  if (leader_[kScheme] == 'a') return;
  // As a record is loaded.
  char set = translator_.CharacterizeCharacterSet(image)[0];
  if (set == 'X') set = 'V';
  if (set == 'Y') set = 'M';
  if (set == 'U') return;
  translated_ = true;
  translator_.CharacterSetIn(std::string_view(&set, 1));
  translator_.SetFormatCode(leader_);
  format_ = translator_.MarcRecordFormat();
}

bool Utf8Fields::Next(Utf8Field& field) {
  while (position_ + kDirectoryEntryLength <= directory_.size()) {
    const DirectoryEntry entry = ReadDirectoryEntry(directory_, position_, data_);
    position_ += kDirectoryEntryLength;
    if (entry.text.empty()) continue;
    field.tag = entry.tag;
    field.is_control = entry.tag.substr(0, 2) == "00";
    field.has_tokens = false;
    const std::size_t indicators =
        field.is_control ? 0 : std::min<std::size_t>(2, entry.text.size());
    field.indicators = entry.text.substr(0, indicators);
    field.text = entry.text.substr(indicators);
    if (translated_ && !IsSameInMarc8(field.text)) Translate(field);
    return true;
  }
  return false;
}

std::string Utf8Fields::InUtf8(std::string_view tag, std::string_view field) {
  Utf8Field whole{.tag = tag, .indicators = field.substr(0, 2), .text = From(field, 2)};
  if (translated_ && !IsSameInMarc8(whole.text)) Translate(whole);
  return std::string(whole.indicators).append(whole.text);
}

void Utf8Fields::Translate(Utf8Field& field) {
  indicators_ = field.indicators;
  text_ = field.text;
  bool changed = false;
  translator_.TranslateMarc2Utf8OneField(format_, field.tag, indicators_, text_, changed,
                                         field.has_tokens);
  field.indicators = indicators_;
  field.text = text_;
}

std::string_view SoundImage(std::string_view octets, std::string& repaired,
                            std::string_view& fault) {
  if (const LeaderLoss loss = FindLeaderLoss(octets); loss.blanks > 0) {
    repaired = octets;
    repaired.insert(loss.position, loss.blanks, ' ');
    octets = repaired;
  }
  fault = MarcFrameFault(octets);
  return fault.empty() ? octets : std::string_view();
}

}  // namespace cantorel::cli

// The translation of a whole record from one character set to another.

#include <algorithm>
#include <string>
#include <string_view>

#include "charset/double_marks.h"
#include "charset/marc8_escape.h"
#include "charset/marc8_reader.h"
#include "charset/marc8_writer.h"
#include "charset/marc_control.h"
#include "charset/octet_variant.h"
#include "charset/utf8.h"
#include "charset/windows_text.h"
#include "record/utf8_marc_record_class.h"

namespace cantorel {

namespace {

constexpr std::size_t kSchemePosition = 9;  // in the leader, from 0

bool IsFixedField(std::string_view tag) {
  return tag >= "005" && tag <= "008";
}

}  // namespace

// From character_set_in_ to character_set_out_, which differ.  Pairs that are
// not told do nothing.
void Utf8MarcRecordClass::TranslateRecord() {
  const std::int16_t field = current_field_;
  const std::int16_t subfield = current_subfield_;
  record_translated_ = false;
  if (character_set_in_ == 'U') {
    TranslateToMarc8();
  } else if (character_set_in_ == 'L') {
    TranslateFromWindows();
  } else if (character_set_out_ == 'U') {
    TranslateToUtf8();
  } else {
    TranslateOctets(OctetPairOf(character_set_in_, character_set_out_));
  }
  FldPointer(field);
  if (HasField() && subfield <= CurrentField().subfield_max) current_subfield_ = subfield;
}

// Gives `translate` indicators and text of every live field but those that
// `skips` names by their record and text, and rebuilds the fields that it
// answers true for.  True if there was one.
template <typename Skips, typename Translate>
bool Utf8MarcRecordClass::TranslateFields(Skips skips, Translate translate) {
  bool any = false;
  const std::int16_t loaded = table_.Count();
  std::string built;
  std::string text;
  std::string indicators;
  for (std::int16_t row = 0; row < loaded; ++row) {
    const FieldRecord& field = table_.Field(row);
    if (field.deleted) continue;
    std::string_view held = field.whole_text;
    if (held.empty()) {
      built.clear();
      AppendText(field, built);
      held = built;
    }
    if (skips(field, held)) continue;
    text = held;
    indicators = field.Indicators();
    if (!translate(field.Tag(), indicators, text)) continue;
    FldPointer(row);
    RebuildField(FldTagView(), indicators, text);
    any = true;
  }
  return any;
}

// --- MARC-8 to UTF-8 ---------------------------------------------------------

void Utf8MarcRecordClass::TranslateToUtf8() {
  const std::string_view format(&format_code_, 1);
  const auto skips = [](const FieldRecord& field, std::string_view text) {
    return IsFixedField(field.Tag()) || IsSameInMarc8(text);
  };
  record_translated_ =
      TranslateFields(skips, [&](std::string_view tag, std::string& indicators, std::string& text) {
        bool changed = false;
        bool error = false;
        TranslateMarc2Utf8OneField(format, tag, indicators, text, changed, error);
        return changed;
      });
  Delete066();
  if (leader_.size() > kSchemePosition) leader_[kSchemePosition] = 'a';
}

void Utf8MarcRecordClass::Delete066() {
  const std::int16_t loaded = table_.Count();
  for (std::int16_t row = 0; row < loaded; ++row) {
    FieldRecord& field = table_.Field(row);
    if (field.Tag() == "066") field.deleted = true;
  }
}

// --- UTF-8 to MARC-8 -----------------------------------------------------------

void Utf8MarcRecordClass::TranslateToMarc8() {
  const std::string_view set_out(&character_set_out_, 1);
  sets_used_.Clear();
  const auto skips = [](const FieldRecord& field, std::string_view text) {
    return field.is_control || IsSameInUtf8(text);
  };
  record_translated_ =
      TranslateFields(skips, [&](std::string_view tag, std::string& indicators, std::string& text) {
        bool changed = false;
        bool error = false;
        TranslateUtf82MarcOneField(tag, indicators, text, changed, error, set_out);
        return changed;
      });
  Delete066();
  if (const std::string sets = sets_used_.FieldText(); !sets.empty()) {
    FldAddGeneric("066", "  ", sets, {});
  }
  if (leader_.size() > kSchemePosition) leader_[kSchemePosition] = ' ';
}

// --- Between 8-bit sets --------------------------------------------------------

void Utf8MarcRecordClass::TranslateOctets(std::int32_t pair) {
  SetUpTranslation(pair);
  const auto skips = [](const FieldRecord& field, std::string_view text) {
    return field.is_control || IsAscii(text);
  };
  record_translated_ =
      TranslateFields(skips, [&](std::string_view tag, std::string&, std::string& text) {
        std::string translated =
            tag == "880" ? Translate880Field(text) : Translate880FieldTranslateThePiece(text);
        const bool changed = translated != text;
        text.swap(translated);
        return changed;
      });
}

// In an 880 only the pieces in Latin have octets of the variant; those of other
// scripts use the same octets for letters.
std::string Utf8MarcRecordClass::Translate880Field(std::string_view text) const {
  std::string translated;
  Marc8Sets sets;
  while (!text.empty()) {
    Marc8Escape escape;
    std::size_t length = 1;
    if (text[0] == kDelimiter) {
      sets.Reset();
    } else if (ReadMarc8Escape(text, escape)) {
      sets.Take(escape);
      length = escape.length;
      translated += text.substr(0, length);
      text.remove_prefix(length);
      continue;
    }
    sets.Settle();
    length = std::min(text.find_first_of("\x1B\x1F", 1), text.size());
    const std::string_view piece = text.substr(0, length);
    translated +=
        sets.BothAreLatin() ? Translate880FieldTranslateThePiece(piece) : std::string(piece);
    text.remove_prefix(length);
  }
  return translated;
}

void Utf8MarcRecordClass::TranslateFromWindows() {
  const auto skips = [](const FieldRecord& field, std::string_view text) {
    return field.is_control || IsAscii(text);
  };
  record_translated_ =
      TranslateFields(skips, [](std::string_view, std::string&, std::string& text) {
        std::string translated;
        AppendMarc8OfWindows(text, translated);
        const bool changed = translated != text;
        text.swap(translated);
        return changed;
      });
  if (character_set_out_ != 'U') return;
  const bool translated = record_translated_;
  character_set_in_ = 'M';
  TranslateToUtf8();
  record_translated_ = record_translated_ || translated;
}

// --- Double marks ----------------------------------------------------------------

void Utf8MarcRecordClass::AdjustDoubleMarks() {
  if (!use_double_width_diacritics_ && !MayHoldMistakenDoubleMarks(data_)) return;
  const auto skips = [](const FieldRecord& field, std::string_view text) {
    return field.is_control || IsAscii(text);
  };
  TranslateFields(skips, [&](std::string_view, std::string&, std::string& text) {
    std::string adjusted = AdjustDoubleHalfDiacritics(text);
    const bool changed = adjusted != text;
    text.swap(adjusted);
    return changed;
  });
}

}  // namespace cantorel

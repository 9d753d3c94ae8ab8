// The texts of a workbook.

#ifndef CANTOREL_PLATFORM_XLSX_STRINGS_H_
#define CANTOREL_PLATFORM_XLSX_STRINGS_H_

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/xml_events.h"

namespace cantorel {

// No cell holds more: 32,767 characters.
inline constexpr std::size_t kLongestCell = 32767 * 4;

// Appends the text that stands for `text` in a workbook, where "_x000D_" is the
// character U+000D, as XML has no other way to write some.
void AppendUnescaped(std::string_view text, std::string& out);

// A text with marked-up runs, as shared strings and inline strings have it:
// what its <t> elements hold, but for those of phonetic runs, <rPh>.
class RichText {
 public:
  void Clear();
  void Start(std::string_view name);
  void End(std::string_view name);
  // False when the text is longer than a cell can be.
  bool Text(std::string_view text);
  const std::string& Raw() const { return text_; }

 private:
  std::string text_;
  bool in_text_ = false;
  bool in_phonetic_run_ = false;
};

// The texts that cells refer to by number, one behind the other in memory.
class SharedStrings : public XmlHandler {
 public:
  void Start(std::string_view name, const XmlAttributes& attributes) override;
  void End(std::string_view name) override;
  void Text(std::string_view text) override;

  // The text of a number (from 0) written in decimal digits; false when there is
  // none.
  bool Find(std::string_view number, std::string_view& text) const;

 private:
  std::string texts_;
  std::vector<std::uint32_t> ends_;
  RichText item_;
};

}  // namespace cantorel

#endif  // CANTOREL_PLATFORM_XLSX_STRINGS_H_

// The grammar of profile files, one line at a time.
//
//   ; a comment
//   [Section]  what follows the bracket is ignored
//   key = value
//   key = "  a value that keeps its blanks  "
//
// Lines end in LF or CR LF.  Blanks are spaces and tabs.

#ifndef CANTOREL_PLATFORM_PROFILE_TEXT_H_
#define CANTOREL_PLATFORM_PROFILE_TEXT_H_

#include <string_view>

namespace cantorel {

// The text without blanks (and carriage returns) at either end.
std::string_view TrimProfileBlanks(std::string_view text);

// A profile text without the UTF-8 signature that editors put in front.
std::string_view SkipUtf8Signature(std::string_view text);

// Takes the next line off `text`, without its LF.
std::string_view TakeProfileLine(std::string_view& text);

struct ProfileLine {
  enum class Kind {
    kNothing,  // empty, or a comment
    kSection,  // `name` is the section
    kSetting,  // `name` and `value`
    kOther,    // text without "="; part of its section, but no key
  };
  Kind kind = Kind::kNothing;
  std::string_view name;
  std::string_view value;    // without surrounding quotation marks
  std::string_view trimmed;  // the line without blanks at either end
};

// Reads one line.  A value ends at a NUL, since the platform call hands out
// texts that end so.  Every octet sequence has an answer.
ProfileLine ReadProfileLine(std::string_view line);

}  // namespace cantorel

#endif  // CANTOREL_PLATFORM_PROFILE_TEXT_H_

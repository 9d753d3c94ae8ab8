// Profile files: text files of [sections] with key=value lines.
//
// Every table of the configuration folder is such a file.  A file is read once
// into an index and looked up without allocation; a changed file is noticed.
// The reader follows the platform call that these files were made for: sections
// and keys match without regard to case (ASCII), the first match wins, blanks
// around key and value are trimmed, one pair of surrounding quotation marks is
// taken off, ';' opens a comment line, LF and CR LF are alike and a UTF-8
// signature at the start is skipped.
//
// File names may use '\' as separator; the file layer turns it into '/' where
// the system wants that.  A missing file has no keys: that is never an error.

#ifndef CANTOREL_PLATFORM_PROFILE_FILE_H_
#define CANTOREL_PLATFORM_PROFILE_FILE_H_

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

namespace cantorel {

// The value of a key, cut to `length` octets; `default_value` when the file,
// the section or the key is missing (cut alike).
std::string GetIniRaw(std::string_view file, std::string_view section, std::string_view key,
                      std::string_view default_value, std::int32_t length);

// The value of a key, cut to `length` octets (raised to 14 when smaller); empty
// when the key is missing.  A key whose value is "NO9!9!9!9NE" reads as missing.
std::string GetIniValue(std::string_view file, std::string_view section, std::string_view key,
                        std::int32_t length);

// GetIniValue into a string that the caller reuses: true when the value is not
// empty.  For look-ups in a loop.
bool FindIniValue(std::string_view file, std::string_view section, std::string_view key,
                  std::int32_t length, std::string& value);

// All "key=value" lines of a section in file order, each ended by a NUL, at
// most `length` octets; empty without the section.
std::string GetIniSection(std::string_view file, std::string_view section, std::int32_t length);

// Writes a key, replacing the first match or adding it (and its section) at the
// end.  With `trace` not null four lines tell what was done.  False when the
// file could not be written.
bool PutIniValue(std::string_view file, std::string_view section, std::string_view key,
                 std::string_view value, std::FILE* trace = nullptr);

// True for a line of an order file that holds no setting: empty, without "=",
// or beginning with a character other than "_", "|", a letter or a digit.
// Otherwise `equals_position` receives the place of the first "=", from 1.
bool IsIniLineSkippable(std::string_view line, std::int32_t& equals_position);

}  // namespace cantorel

#endif  // CANTOREL_PLATFORM_PROFILE_FILE_H_

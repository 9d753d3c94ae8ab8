// How a terminal is told to change colours.

#ifndef CANTOREL_CLI_COLOURS_H_
#define CANTOREL_CLI_COLOURS_H_

#include <string>
#include <string_view>

namespace cantorel::cli {

inline constexpr std::string_view kBold = "\033[1m";
inline constexpr std::string_view kRed = "\033[31m";
inline constexpr std::string_view kGreen = "\033[32m";
inline constexpr std::string_view kCyan = "\033[36m";
inline constexpr std::string_view kPlain = "\033[0m";

// Appends a text, in a colour if colours are wanted.
inline void AppendColoured(bool colours, std::string_view colour, std::string_view text,
                           std::string& out) {
  if (colours) out += colour;
  out += text;
  if (colours) out += kPlain;
}

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_COLOURS_H_

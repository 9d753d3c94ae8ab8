// The manual page and the completions of the shells, as texts.

#ifndef CANTOREL_CLI_PAGES_PAGES_H_
#define CANTOREL_CLI_PAGES_PAGES_H_

#include <string>
#include <string_view>

#include "cli/pages/command_description.h"

namespace cantorel::cli {

// cantorel(1), in the man macros of roff.
std::string ManualPage(const CommandDescription& cantorel, std::string_view version);

// To be sourced by bash; it completes commands, options, their words, and files
// or folders where a call takes them.
std::string BashCompletion(const CommandDescription& cantorel);

// A function file of zsh; beside what bash has, it shows what each is for.
std::string ZshCompletion(const CommandDescription& cantorel);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_PAGES_PAGES_H_

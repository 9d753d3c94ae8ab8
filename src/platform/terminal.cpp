#include "platform/terminal.h"

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace cantorel {
namespace {

#ifdef _WIN32
constexpr char kInput[] = "CONIN$";
constexpr char kOutput[] = "CONOUT$";
#else
constexpr char kInput[] = "/dev/tty";
constexpr char kOutput[] = "/dev/tty";
#endif

}  // namespace

bool IsTerminal(std::FILE* stream) {
#ifdef _WIN32
  return _isatty(_fileno(stream)) != 0;
#else
  return ::isatty(::fileno(stream)) != 0;
#endif
}

Terminal::Terminal() : in_(std::fopen(kInput, "r")), out_(std::fopen(kOutput, "w")) {}

void Terminal::Write(std::string_view text) {
  if (out_ == nullptr) return;
  std::fwrite(text.data(), 1, text.size(), out_.get());
  std::fflush(out_.get());
}

bool Terminal::ReadLine(std::string& line) {
  line.clear();
  if (in_ == nullptr) return false;
  for (int c = std::getc(in_.get()); c != EOF; c = std::getc(in_.get())) {
    if (c == '\n') return true;
    if (c != '\r') line += static_cast<char>(c);
  }
  return !line.empty();
}

}  // namespace cantorel

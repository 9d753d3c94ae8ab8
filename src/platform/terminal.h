// The terminal that a program was started from, whatever its standard input and
// output are joined to.

#ifndef CANTOREL_PLATFORM_TERMINAL_H_
#define CANTOREL_PLATFORM_TERMINAL_H_

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace cantorel {

// Whether what is written to a stream shows in a terminal.
bool IsTerminal(std::FILE* stream);

class Terminal {
 public:
  // Opens the terminal; IsOpen tells whether there is one.
  Terminal();

  bool IsOpen() const { return in_ != nullptr && out_ != nullptr; }
  // Both do nothing without a terminal.
  void Write(std::string_view text);
  // The next line that is typed, without its end; false at the end of input.
  bool ReadLine(std::string& line);

 private:
  struct Close {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  std::unique_ptr<std::FILE, Close> in_;
  std::unique_ptr<std::FILE, Close> out_;
};

}  // namespace cantorel

#endif  // CANTOREL_PLATFORM_TERMINAL_H_

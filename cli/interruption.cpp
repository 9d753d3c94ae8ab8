#include "cli/interruption.h"

#include <csignal>
#include <initializer_list>

namespace cantorel::cli {
namespace {

volatile std::sig_atomic_t interrupted = 0;

void Note(int signal) {
  interrupted = 1;
  std::signal(signal, SIG_DFL);
}

}  // namespace

void NoteInterruptions() {
  for (const int signal : {SIGINT, SIGTERM}) {
    if (std::signal(signal, Note) == SIG_IGN) std::signal(signal, SIG_IGN);
  }
}

bool WasInterrupted() {
  return interrupted != 0;
}

}  // namespace cantorel::cli

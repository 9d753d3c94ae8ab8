// Writes the manual page and the completions to a folder while the command is
// built: cantorel_pages FOLDER.

#include <cstdio>
#include <fstream>
#include <string>

#include "cli/pages/pages.h"

namespace cantorel::cli {
namespace {

bool WritePage(const std::string& name, const std::string& text) {
  std::ofstream file(name, std::ios::binary);
  file << text;
  file.close();
  if (file) return true;
  std::fprintf(stderr, "cantorel_pages: cannot write %s\n", name.c_str());
  return false;
}

bool WritePages(const std::string& folder) {
  const CommandDescription cantorel = DescribeCommandLine();
  return WritePage(folder + "/cantorel.1", ManualPage(cantorel, CANTOREL_VERSION)) &&
         WritePage(folder + "/cantorel.bash", BashCompletion(cantorel)) &&
         WritePage(folder + "/_cantorel", ZshCompletion(cantorel));
}

}  // namespace
}  // namespace cantorel::cli

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: cantorel_pages FOLDER\n");
    return 2;
  }
  return cantorel::cli::WritePages(argv[1]) ? 0 : 3;
}

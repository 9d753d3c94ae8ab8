// Finding and checking the configuration folder.

#ifndef CANTOREL_CLI_CONFIGURATION_H_
#define CANTOREL_CLI_CONFIGURATION_H_

#include <string>

namespace cantorel {
class CantorelClass;
}

namespace cantorel::cli {

// The folder that comes with the program: share/cantorel/config beside bin/ once
// installed, config/ beside the program or above it in a build tree, or where
// the installation put it.  Empty when there is none.
std::string FolderOfProgram();

// The whole path of a folder (the program's own when it is empty) with a
// separator at its end.  False, with a line on standard error, when it is not
// there.
bool FindFolder(std::string& folder);

// Sets the folder (the program's own when `folder` is empty) and sees that the
// component can work with it.  False, with a line on standard error, when not.
bool Configure(CantorelClass& cantorel, std::string folder);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_CONFIGURATION_H_

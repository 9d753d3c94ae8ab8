#!/usr/bin/env bash
# An installed Cantorel: a project of somebody else finds and uses the library,
# and the command finds its configuration.
set -euo pipefail
cmake=$1 build=$2 compiler=$3 generator=$4

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
"$cmake" --install "$build" --prefix "$scratch/prefix" >"$scratch/log"

mkdir "$scratch/project"
cat >"$scratch/project/CMakeLists.txt" <<'TEXT'
cmake_minimum_required(VERSION 3.25)
project(guest LANGUAGES CXX)
find_package(cantorel 0.1 REQUIRED)
add_executable(guest guest.cpp)
target_link_libraries(guest PRIVATE cantorel::cantorel)
target_compile_definitions(guest PRIVATE CONFIG="${cantorel_CONFIGURATION_FOLDER}")
TEXT
cat >"$scratch/project/guest.cpp" <<'TEXT'
#include <service/cantorel_class.h>

int main() {
  cantorel::CantorelClass cantorel;
  cantorel.ConfigurationPath(CONFIG);
  return cantorel.AddFields("cm\n650 0\037aFlute music", 1) == 1 ? 0 : 1;
}
TEXT
flags=$(sed -n 's/^CANTOREL_SANITIZE:BOOL=ON$/-fsanitize=address,undefined/p' "$build/CMakeCache.txt")
"$cmake" -G "$generator" -S "$scratch/project" -B "$scratch/project/build" \
  -DCMAKE_PREFIX_PATH="$scratch/prefix" -DCMAKE_CXX_COMPILER="$compiler" \
  -DCMAKE_CXX_FLAGS="$flags" >"$scratch/log"
"$cmake" --build "$scratch/project/build" >"$scratch/log" || { cat "$scratch/log"; exit 1; }
"$scratch/project/build/guest"

"$scratch/prefix/bin/cantorel" heading --offline 'Flute music' | grep -q 'a flute'

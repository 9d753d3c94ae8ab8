// The shared cache of ensemble answers and the path of the file behind it.

#ifndef CANTOREL_MEDIUM_ENSEMBLE_CACHE_H_
#define CANTOREL_MEDIUM_ENSEMBLE_CACHE_H_

#include <string>

#include "medium/string_map.h"

namespace cantorel {

struct EnsembleCache {
  // Key (comparison form, blanks as "_") to preferred term; an empty term
  // marks a key that is no ensemble.
  StringMap<std::string> terms;
  // The vocabulary file.  It is sought once: a folder set later does not move
  // it, nor does a reset of the conversion class, which is deliberate.
  std::string path;
  bool path_sought = false;
  bool path_found = false;
};

}  // namespace cantorel

#endif  // CANTOREL_MEDIUM_ENSEMBLE_CACHE_H_

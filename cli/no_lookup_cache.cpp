// Stands in for the cache of look-ups where its library is missing.

#include "cli/lookup_cache.h"

namespace cantorel::cli {

std::unique_ptr<LookupCache> OpenLookupCache(const std::string& /*path*/,
                                             std::int64_t /*most_days*/, std::string& fault) {
  fault = "this program was built without SQLite, which keeps look-ups";
  return nullptr;
}

}  // namespace cantorel::cli

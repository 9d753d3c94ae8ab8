// Answers of the linked-data service kept in a file, so that later runs need not
// ask again.

#ifndef CANTOREL_CLI_LOOKUP_CACHE_H_
#define CANTOREL_CLI_LOOKUP_CACHE_H_

#include <cstdint>
#include <memory>
#include <string>

#include "platform/http_get.h"

namespace cantorel::cli {

// Threads may share an object, and runs a file.
class LookupCache {
 public:
  virtual ~LookupCache() = default;

  // The answer kept for a URL, if there is one that is young enough.
  virtual bool Find(const std::string& url, HttpAnswer& answer) = 0;
  // Keeps an answer in place of an older one.
  virtual void Keep(const std::string& url, const HttpAnswer& answer) = 0;
};

// Opens a cache, or makes one where there is no file.  Answers of an
// age of `most_days` do not count any more; with 0 none does.  Null when that cannot be done or the
// file is something else, which is then left as it is; `fault` says why.
//
// A fault that shows later (the disk is full, the file damaged) is said once on
// standard error; from then on nothing is found or kept.
std::unique_ptr<LookupCache> OpenLookupCache(const std::string& path, std::int64_t most_days,
                                             std::string& fault);

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_LOOKUP_CACHE_H_

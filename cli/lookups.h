// How the commands reach the linked-data service: the options, and the clients
// that keep to them.

#ifndef CANTOREL_CLI_LOOKUPS_H_
#define CANTOREL_CLI_LOOKUPS_H_

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>

#include "cli/answer_memory.h"
#include "cli/lookup_cache.h"
#include "cli/rate_limiter.h"
#include "platform/http_get.h"

namespace CLI {
class App;
}

namespace cantorel::cli {

struct LookupOptions {
  bool offline = false;
  std::string linked_data_url;  // empty: as the library was built
  std::string permalink_url;
  std::string cache_file;  // empty: none
  std::int64_t cache_days = 90;
  double requests_per_second = 4;
  double timeout_seconds = 15;
};

// `options` must live until the line is parsed.
void AddLookupOptions(CLI::App& command, LookupOptions& options);

// What all threads of a run share to look up.  `options` must stay.
class Lookups {
 public:
  explicit Lookups(const LookupOptions& options);

  // False, with a line on standard error, when the cache cannot be used.
  bool Prepare();

  // A client of one thread.
  class Client : public HttpGet {
   public:
    // Whether a request got no answer.
    virtual bool HasFailed() const = 0;
  };

  // A client for one thread; null when nothing is to be asked.  It must not
  // outlive this object.
  //
  // An answer is taken from the run's memory or the cache if they have it.  Otherwise the client
  // waits for its turn and asks; what was found or is not there is kept in both, while failures and
  // faults of the service are not.  The first failure is said on standard error.
  std::unique_ptr<Client> MakeClient();

 private:
  class ThreadClient;

  const LookupOptions& options_;
  RateLimiter limiter_;
  AnswerMemory memory_;
  std::unique_ptr<LookupCache> cache_;
  std::atomic<bool> failure_said_ = false;
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_LOOKUPS_H_

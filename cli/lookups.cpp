#include "cli/lookups.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <utility>

namespace cantorel::cli {
namespace {

// Whether an answer is the service's last word: that something is there, or is
// not.  Any other status may be different in a minute.
bool IsLasting(const HttpAnswer& answer) {
  return (answer.status >= 200 && answer.status < 300) || answer.status == 404 ||
         answer.status == 410;
}

HttpLimits LimitsFor(double seconds) {
  HttpLimits limits;
  limits.total_timeout =
      std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::duration<double>(seconds));
  limits.connect_timeout = std::min(limits.connect_timeout, limits.total_timeout);
  return limits;
}

std::string UrlFault(const std::string& url) {
  return url.starts_with("http://") || url.starts_with("https://")
             ? std::string()
             : "must begin with http:// or https://";
}

}  // namespace

void AddLookupOptions(CLI::App& command, LookupOptions& options) {
  constexpr const char* kGroup = "Looking up places and nationalities";
  command.add_flag("--offline", options.offline, "Ask nothing over the network")->group(kGroup);
  command
      .add_option("--linked-data-url", options.linked_data_url,
                  "Address of the service that searches headings")
      ->type_name("URL")
      ->check(UrlFault)
      ->group(kGroup);
  command
      .add_option("--permalink-url", options.permalink_url,
                  "Address of the service that has the records of headings")
      ->type_name("URL")
      ->check(UrlFault)
      ->group(kGroup);
  command
      .add_option("--lookup-cache", options.cache_file,
                  "File that keeps answers for later runs; made if it is not there")
      ->type_name("FILE")
      ->group(kGroup);
  command.add_option("--lookup-cache-days", options.cache_days, "How long a kept answer counts")
      ->type_name("DAYS")
      ->check(CLI::Range(0, 36500))
      ->capture_default_str()
      ->group(kGroup);
  command
      .add_option("--lookup-rate", options.requests_per_second,
                  "How many requests may go out in a second")
      ->type_name("NUMBER")
      ->check(CLI::Range(0.01, 1000.0))
      ->capture_default_str()
      ->group(kGroup);
  command.add_option("--lookup-timeout", options.timeout_seconds, "How long to wait for an answer")
      ->type_name("SECONDS")
      ->check(CLI::Range(0.1, 3600.0))
      ->capture_default_str()
      ->group(kGroup);
}

// --- Clients -------------------------------------------------------------------

class Lookups::ThreadClient : public Client {
 public:
  ThreadClient(Lookups& shared, std::unique_ptr<HttpGet> http)
      : shared_(shared), http_(std::move(http)) {}

  bool Get(const std::string& url, const std::string& user_agent, HttpAnswer& answer) override {
    if (shared_.memory_.Find(url, answer)) return true;
    LookupCache* const cache = shared_.cache_.get();
    if (cache != nullptr && cache->Find(url, answer)) {
      shared_.memory_.Keep(url, answer);
      return true;
    }
    shared_.limiter_.Wait();
    if (!http_->Get(url, user_agent, answer)) {
      has_failed_ = true;
      SayFailure(url, answer.fault);
      return false;
    }
    if (!IsLasting(answer)) return true;
    shared_.memory_.Keep(url, answer);
    if (cache != nullptr) cache->Keep(url, answer);
    return true;
  }

  bool HasFailed() const override { return has_failed_; }

 private:
  void SayFailure(const std::string& url, const std::string& fault) {
    if (shared_.failure_said_.exchange(true)) return;
    std::fprintf(stderr, "cantorel: %s: %s; what cannot be looked up counts as not found\n",
                 url.c_str(), fault.c_str());
  }

  Lookups& shared_;
  const std::unique_ptr<HttpGet> http_;
  bool has_failed_ = false;
};

Lookups::Lookups(const LookupOptions& options)
    : options_(options), limiter_(options.requests_per_second) {}

bool Lookups::Prepare() {
  if (options_.offline || options_.cache_file.empty()) return true;
  std::string fault;
  cache_ = OpenLookupCache(options_.cache_file, options_.cache_days, fault);
  if (cache_ != nullptr) return true;
  std::fprintf(stderr, "cantorel: cannot keep look-ups in %s: %s\n", options_.cache_file.c_str(),
               fault.c_str());
  return false;
}

std::unique_ptr<Lookups::Client> Lookups::MakeClient() {
  if (options_.offline) return nullptr;
  std::unique_ptr<HttpGet> http = MakeHttpGet(LimitsFor(options_.timeout_seconds));
  if (http == nullptr) return nullptr;
  return std::make_unique<ThreadClient>(*this, std::move(http));
}

}  // namespace cantorel::cli

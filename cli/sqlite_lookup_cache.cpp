// The cache of look-ups, on SQLite.

#include <sqlite3.h>

#include <chrono>
#include <cstdio>
#include <mutex>

#include "cli/lookup_cache.h"

namespace cantorel::cli {
namespace {

// In the head of the file, by which it is known for a cache of ours.
constexpr std::int64_t kApplicationId = 0x43414E54;  // "CANT"
constexpr int kPatienceMilliseconds = 10000;         // for another run that is writing
constexpr std::int64_t kSecondsOfADay = 86400;

constexpr const char* kPrepareFile =
    "BEGIN IMMEDIATE;"
    "PRAGMA application_id = 1128353364;"
    "CREATE TABLE IF NOT EXISTS answers("
    " url TEXT PRIMARY KEY, status INTEGER NOT NULL, asked INTEGER NOT NULL, body BLOB NOT NULL);"
    "COMMIT";
static_assert(kApplicationId == 1128353364);
constexpr const char* kFind = "SELECT status, body FROM answers WHERE url = ?1 AND asked > ?2";
constexpr const char* kKeep = "INSERT OR REPLACE INTO answers VALUES (?1, ?2, ?3, ?4)";

struct Close {
  void operator()(sqlite3* database) const { sqlite3_close(database); }
};
struct Finalize {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Database = std::unique_ptr<sqlite3, Close>;
using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

std::int64_t Now() {
  using std::chrono::system_clock;
  return std::chrono::duration_cast<std::chrono::seconds>(system_clock::now().time_since_epoch())
      .count();
}

bool Run(sqlite3* database, const char* statements) {
  return sqlite3_exec(database, statements, nullptr, nullptr, nullptr) == SQLITE_OK;
}

Statement Prepared(sqlite3* database, const char* text) {
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(database, text, -1, &statement, nullptr);
  return Statement(statement);
}

// The number that a query gives; -1 when it fails.
std::int64_t Number(sqlite3* database, const char* query) {
  const Statement statement = Prepared(database, query);
  return statement != nullptr && sqlite3_step(statement.get()) == SQLITE_ROW
             ? sqlite3_column_int64(statement.get(), 0)
             : -1;
}

// A file is ours, or empty as SQLite sees it, or somebody else's.  Both questions
// are put to one state of it: another run may just be making it ours.
bool MayBeUsed(sqlite3* database, std::string& fault) {
  Run(database, "BEGIN");
  const std::int64_t id = Number(database, "PRAGMA application_id");
  const std::int64_t tables = Number(database, "SELECT count(*) FROM sqlite_schema");
  if (id < 0 || tables < 0) {
    fault = sqlite3_errmsg(database);
    return false;
  }
  Run(database, "COMMIT");
  if (id == kApplicationId || (id == 0 && tables == 0)) return true;
  fault = "it is a database of something else";
  return false;
}

class SqliteLookupCache : public LookupCache {
 public:
  SqliteLookupCache(const std::string& path, std::int64_t most_days)
      : path_(path), most_seconds_(most_days * kSecondsOfADay) {}

  bool Open(std::string& fault) {
    sqlite3* database = nullptr;
    const int result = sqlite3_open(path_.c_str(), &database);
    database_.reset(database);
    if (result != SQLITE_OK) {
      fault = database == nullptr ? "out of memory" : sqlite3_errmsg(database);
      return false;
    }
    sqlite3_busy_timeout(database, kPatienceMilliseconds);
    if (!MayBeUsed(database, fault)) return false;
    // A log beside the file lets one run read while another writes; it does no
    // harm when a file system has none or another run is just making it.  Answers
    // that a power cut takes away can be asked for again.
    Run(database, "PRAGMA journal_mode = WAL");
    Run(database, "PRAGMA synchronous = NORMAL");
    const bool prepared = Run(database, kPrepareFile);
    find_ = Prepared(database, kFind);
    keep_ = Prepared(database, kKeep);
    if (prepared && find_ != nullptr && keep_ != nullptr) return true;
    fault = sqlite3_errmsg(database);
    return false;
  }

  bool Find(const std::string& url, HttpAnswer& answer) override {
    const std::lock_guard<std::mutex> lock(mutex_);
    if (failed_) return false;
    sqlite3_stmt* const find = find_.get();
    BindText(find, 1, url);
    sqlite3_bind_int64(find, 2, Now() - most_seconds_);
    const int result = sqlite3_step(find);
    if (result == SQLITE_ROW) {
      answer = {};
      answer.status = sqlite3_column_int(find, 0);
      const void* const body = sqlite3_column_blob(find, 1);
      const int length = sqlite3_column_bytes(find, 1);
      if (length > 0) answer.body.assign(static_cast<const char*>(body), length);
    } else if (result != SQLITE_DONE) {
      GiveUp();
    }
    sqlite3_reset(find);
    return result == SQLITE_ROW;
  }

  void Keep(const std::string& url, const HttpAnswer& answer) override {
    const std::lock_guard<std::mutex> lock(mutex_);
    if (failed_) return;
    sqlite3_stmt* const keep = keep_.get();
    BindText(keep, 1, url);
    sqlite3_bind_int(keep, 2, answer.status);
    sqlite3_bind_int64(keep, 3, Now());
    sqlite3_bind_blob64(keep, 4, answer.body.data(), answer.body.size(), SQLITE_STATIC);
    if (sqlite3_step(keep) != SQLITE_DONE) GiveUp();
    sqlite3_reset(keep);
  }

 private:
  static void BindText(sqlite3_stmt* statement, int place, const std::string& text) {
    sqlite3_bind_text64(statement, place, text.data(), text.size(), SQLITE_STATIC, SQLITE_UTF8);
  }

  void GiveUp() {
    failed_ = true;
    std::fprintf(stderr, "cantorel: %s: %s; the run goes on without this cache\n", path_.c_str(),
                 sqlite3_errmsg(database_.get()));
  }

  const std::string path_;
  const std::int64_t most_seconds_;
  std::mutex mutex_;
  Database database_;
  Statement find_;
  Statement keep_;
  bool failed_ = false;
};

}  // namespace

std::unique_ptr<LookupCache> OpenLookupCache(const std::string& path, std::int64_t most_days,
                                             std::string& fault) {
  auto cache = std::make_unique<SqliteLookupCache>(path, most_days);
  if (!cache->Open(fault)) return nullptr;
  return cache;
}

}  // namespace cantorel::cli

// The clients of the command against a server on this machine, and the file that
// keeps answers.

#include "cli/lookups.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <thread>

#include "platform/loopback_server.h"

namespace cantorel::cli {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class LookupsTest : public ::testing::Test {
 protected:
  LookupsTest()
      : folder_(fs::temp_directory_path() /
                ("cantorel-lookups-" + std::to_string(std::random_device()()))) {
    fs::create_directory(folder_);
    options_.requests_per_second = 1000;
    options_.cache_file = (folder_ / "cache").string();
  }
  ~LookupsTest() override { fs::remove_all(folder_); }

  // What a run that asks for these paths gets: status and body, or "failed".
  std::vector<std::string> Ask(const std::vector<std::string>& paths) {
    Lookups lookups(options_);
    std::vector<std::string> answers;
    if (!lookups.Prepare()) return answers;
    const std::unique_ptr<Lookups::Client> client = lookups.MakeClient();
    for (const std::string& path : paths) {
      HttpAnswer answer;
      const bool answered = client->Get(server_.Url() + path, "agent/1", answer);
      answers.push_back(answered ? std::to_string(answer.status) + ' ' + answer.body : "failed");
    }
    return answers;
  }
  std::string CacheFileText() const {
    std::ostringstream text;
    text << std::ifstream(options_.cache_file, std::ios::binary).rdbuf();
    return text.str();
  }
  void WriteCacheFile(std::string_view text) const {
    std::ofstream(options_.cache_file, std::ios::binary) << text;
  }

  const fs::path folder_;
  LoopbackServer server_;
  LookupOptions options_;
};

TEST_F(LookupsTest, KeepsWhatWillNotChange) {
  const std::string octets("\0\xFF\x1D", 3);
  server_.At("/found", LoopbackServer::Page(octets));
  server_.At("/empty", LoopbackServer::Page(""));
  server_.At("/gone", LoopbackServer::Page("gone", 410));
  server_.At("/fault", LoopbackServer::Page("fault", 500));
  server_.At("/busy", LoopbackServer::Page("busy", 429));
  server_.At("/broken", LoopbackServer::BrokenChunks);
  const std::vector<std::string> paths = {"/found", "/empty", "/gone",   "/nowhere",
                                          "/fault", "/busy",  "/broken", "/found"};
  const std::vector<std::string> answers = Ask(paths);
  EXPECT_THAT(answers,
              ElementsAre("200 " + octets, "200 ", "410 gone", "404 <html>404 Not Found</html>",
                          "500 fault", "429 busy", "failed", "200 " + octets));
  EXPECT_THAT(server_.TakeRequests(),
              ElementsAre("/found", "/empty", "/gone", "/nowhere", "/fault", "/busy", "/broken"));
  // A later run asks for the rest only.
  EXPECT_EQ(Ask(paths), answers);
  EXPECT_THAT(server_.TakeRequests(), ElementsAre("/fault", "/busy", "/broken"));
  options_.cache_days = 0;
  server_.At("/found", LoopbackServer::Page("new"));
  EXPECT_THAT(Ask({"/found"}), ElementsAre("200 new"));
  options_.cache_days = 1;
  server_.Stop();
  EXPECT_THAT(Ask({"/found", "/fault"}), ElementsAre("200 new", "failed"));
}

TEST_F(LookupsTest, LeavesAFileOfAnotherKindAlone) {
  for (const std::string& content : {std::string("Shopping list\n"), std::string(5000, 'x')}) {
    WriteCacheFile(content);
    EXPECT_THAT(Ask({"/a"}), IsEmpty());
    EXPECT_EQ(CacheFileText(), content);
  }
  options_.cache_file = (folder_ / "no folder" / "cache").string();
  EXPECT_THAT(Ask({"/a"}), IsEmpty());
  EXPECT_THAT(server_.TakeRequests(), IsEmpty());
}

TEST_F(LookupsTest, GoesOnWithoutACacheThatBreaks) {
  Ask({"/a"});
  const std::string whole = CacheFileText();
  // Damaged behind the page that says what the file is.
  WriteCacheFile(whole.substr(0, 4096) + std::string(whole.size() - 4096, 'x'));
  EXPECT_THAT(Ask({"/a", "/b"}),
              ElementsAre("404 <html>404 Not Found</html>", "404 <html>404 Not Found</html>"));
}

TEST_F(LookupsTest, SharesAFileWithOtherThreadsAndRuns) {
  constexpr int kAnswers = 50;
  const auto run = [this](int first) {  // as two commands that start at once
    std::string fault;
    const auto cache = OpenLookupCache(options_.cache_file, 1, fault);
    ASSERT_NE(cache, nullptr) << fault;
    const auto keep = [&cache](int from) {
      for (int i = 0; i < kAnswers; ++i) {
        cache->Keep(std::to_string(from + i), {200, std::string(3000, 'x'), ""});
      }
    };
    std::thread other(keep, first + kAnswers);
    keep(first);
    other.join();
  };
  std::thread other(run, 2 * kAnswers);
  run(0);
  other.join();
  std::string fault;
  const auto cache = OpenLookupCache(options_.cache_file, 1, fault);
  HttpAnswer answer;
  for (int i = 0; i < 4 * kAnswers; ++i) EXPECT_TRUE(cache->Find(std::to_string(i), answer)) << i;
}

TEST_F(LookupsTest, AsksNothingOffline) {
  options_.offline = true;
  Lookups lookups(options_);
  EXPECT_TRUE(lookups.Prepare());
  EXPECT_EQ(lookups.MakeClient(), nullptr);
  EXPECT_FALSE(fs::exists(options_.cache_file));
}

}  // namespace
}  // namespace cantorel::cli

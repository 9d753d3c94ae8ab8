// The HTTP client against a server on this machine.

#include "platform/http_get.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/loopback_server.h"

namespace cantorel {
namespace {

class HttpGetTest : public ::testing::Test {
 protected:
  HttpGetTest() {
    HttpLimits limits;
    limits.body_octets = 1000;
    http_ = MakeHttpGet(limits);
  }
  bool Get(const std::string& url) { return http_->Get(url, "agent/1", answer_); }

  LoopbackServer server_;
  std::unique_ptr<HttpGet> http_;
  HttpAnswer answer_;
};

TEST_F(HttpGetTest, TellsAnswersFromFailures) {
  const std::string garbage("\0\xFF<%\r\n\x1D", 7);
  const std::string url = server_.Url();
  server_.At("/page", LoopbackServer::Page("page"));
  server_.At("/empty", LoopbackServer::Page(""));
  server_.At("/garbage", LoopbackServer::Page(garbage));
  server_.At("/fault", LoopbackServer::Page("fault", 500));
  server_.At("/as-long-as-allowed", LoopbackServer::Page(std::string(1000, 'x')));
  server_.At("/too-long", LoopbackServer::Page(std::string(1001, 'x')));
  server_.At("/broken", LoopbackServer::BrokenChunks);
  server_.At("/moved", LoopbackServer::Redirection("/moved-again"));
  server_.At("/moved-again", LoopbackServer::Redirection(url + "/page"));
  server_.At("/circle", LoopbackServer::Redirection("/circle"));
  server_.At("/to-a-file", LoopbackServer::Redirection("file:///etc/hostname"));
  const struct {
    std::string url;
    int status;  // 0: no answer
    std::string body;
  } cases[] = {
      {url + "/page", 200, "page"},
      {url + "/empty", 200, ""},
      {url + "/garbage", 200, garbage},
      {url + "/fault", 500, "fault"},
      {url + "/nothing", 404, "<html>404 Not Found</html>"},
      {url + "/as-long-as-allowed", 200, std::string(1000, 'x')},
      {url + "/too-long", 0, ""},
      {url + "/broken", 0, ""},
      {url + "/moved", 200, "page"},
      {url + "/circle", 0, ""},
      {url + "/to-a-file", 0, ""},
      {"file:///etc/hostname", 0, ""},
      {"no address", 0, ""},
      {"", 0, ""},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(Get(one.url), one.status != 0) << one.url;
    EXPECT_EQ(answer_.fault.empty(), one.status != 0) << one.url;
    if (one.status != 0) {
      EXPECT_EQ(answer_.status, one.status) << one.url;
      EXPECT_EQ(answer_.body, one.body) << one.url;
    }
    // A failure leaves the client fit for the next request.
    EXPECT_TRUE(Get(url + "/page")) << one.url;
    EXPECT_EQ(answer_.body, "page") << one.url;
  }
  server_.Stop();
  EXPECT_FALSE(Get(url + "/page"));
}

TEST_F(HttpGetTest, WaitsNoLongerThanItMay) {
  HttpLimits limits;
  limits.total_timeout = std::chrono::milliseconds(100);
  http_ = MakeHttpGet(limits);
  server_.At("/late", LoopbackServer::Late(limits.total_timeout));
  EXPECT_FALSE(Get(server_.Url() + "/late"));
}

TEST_F(HttpGetTest, SendsWhatAUrlCannotHoldEncodedAndKeepsTheConnection) {
  ASSERT_TRUE(Get(server_.Url() + "/a b?q=%22\"<\xC3\xA9>|"));
  const httplib::Request first = server_.LastRequest();
  EXPECT_EQ(first.target, "/a%20b?q=%22%22%3C%C3%A9%3E%7C");
  EXPECT_EQ(first.get_header_value("User-Agent"), "agent/1");
  EXPECT_EQ(first.body, "");
  ASSERT_TRUE(Get(server_.Url() + "/c"));
  EXPECT_EQ(server_.LastRequest().remote_port, first.remote_port);
}

}  // namespace
}  // namespace cantorel

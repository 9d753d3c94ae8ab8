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

// What else may go wrong is tried with the look-ups (genre/linked_data_test.cpp).
TEST_F(HttpGetTest, TellsAnswersFromFailures) {
  const std::string url = server_.Url();
  const std::string most(1000, 'x');
  server_.At("/as-long-as-allowed", LoopbackServer::Page(most, 500));
  server_.At("/too-long", LoopbackServer::Page(most + 'x'));
  server_.At("/moved", LoopbackServer::Redirection("/moved-again"));
  server_.At("/moved-again", LoopbackServer::Redirection(url + "/as-long-as-allowed"));
  server_.At("/to-a-file", LoopbackServer::Redirection("file:///etc/hostname"));
  for (const char* failing :
       {"/too-long", "/to-a-file", "file:///etc/hostname", "no address", ""}) {
    EXPECT_FALSE(Get(*failing == '/' ? url + failing : failing)) << failing;
    EXPECT_FALSE(answer_.fault.empty()) << failing;
    // A failure leaves the client fit for the next request.
    EXPECT_TRUE(Get(url + "/moved")) << failing;
    EXPECT_EQ(answer_.status, 500);
    EXPECT_EQ(answer_.body, most);
    EXPECT_EQ(answer_.fault, "");
  }
  server_.Stop();
  EXPECT_FALSE(Get(url + "/moved"));
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

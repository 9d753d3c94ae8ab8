// HTTP GET: how the component asks a service on the network.
//
//   const std::unique_ptr<HttpGet> http = MakeHttpGet({});
//   HttpAnswer answer;
//   if (http != nullptr && http->Get("https://example.org/a", "agent/1", answer))
//     Use(answer.status, answer.body);

#ifndef CANTOREL_PLATFORM_HTTP_GET_H_
#define CANTOREL_PLATFORM_HTTP_GET_H_

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>

namespace cantorel {

struct HttpAnswer {
  int status = 0;    // of the last answer, redirections followed: 200, 404, ...
  std::string body;  // octets as they came
  // After a failure: why, in words; empty otherwise.
  std::string fault;
};

class HttpGet {
 public:
  virtual ~HttpGet() = default;

  // Asks for `url` and waits for the whole answer.  Octets that a URL cannot
  // hold, such as blanks, are sent percent-encoded.
  //   user_agent  value of the header of that name
  //   answer      overwritten; after a failure only its `fault` means something
  // True when the service answered, with whatever status: 404 and 500 are answers
  // too.  False when no whole answer came: bad address, no connection, time-out,
  // an answer cut short or too long.
  virtual bool Get(const std::string& url, const std::string& user_agent, HttpAnswer& answer) = 0;
};

struct HttpLimits {
  std::chrono::milliseconds connect_timeout{5000};
  std::chrono::milliseconds total_timeout{15000};
  std::size_t body_octets = std::size_t{8} << 20;
};

// A client for http and https, which follows redirections and keeps connections
// open.  To be used by one thread at a time.  Null when this program was built
// without one.
std::unique_ptr<HttpGet> MakeHttpGet(const HttpLimits& limits);

}  // namespace cantorel

#endif  // CANTOREL_PLATFORM_HTTP_GET_H_

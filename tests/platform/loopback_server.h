// An HTTP server on this machine that answers as it was told and keeps what it
// was asked.

#ifndef CANTOREL_TESTS_PLATFORM_LOOPBACK_SERVER_H_
#define CANTOREL_TESTS_PLATFORM_LOOPBACK_SERVER_H_

#include <httplib.h>

#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace cantorel {

class LoopbackServer {
 public:
  using Answer = std::function<void(httplib::Response&)>;

  // What anything else but the targets named with At is answered.
  static void NotFound(httplib::Response& response) {
    response.status = 404;
    response.set_content("<html>404 Not Found</html>", "text/html");
  }
  static Answer Page(std::string body, int status = 200) {
    return [body = std::move(body), status](httplib::Response& response) {
      response.status = status;
      response.set_content(body, "text/html");
    };
  }
  static Answer Redirection(std::string url) {
    return [url = std::move(url)](httplib::Response& response) { response.set_redirect(url); };
  }
  // Comes too late for a client that waits for `patience`.
  static Answer Late(std::chrono::milliseconds patience) {
    return [patience](httplib::Response& response) {
      std::this_thread::sleep_for(patience * 3);
      response.set_content("late", "text/html");
    };
  }
  // Ends in the middle of its chunks.
  static void BrokenChunks(httplib::Response& response) {
    response.set_chunked_content_provider("text/html", [](std::size_t, httplib::DataSink& sink) {
      sink.write("half a pa", 9);
      return false;
    });
  }

  LoopbackServer() {
    server_.set_keep_alive_timeout(1);
    server_.Get(".*", [this](const httplib::Request& request, httplib::Response& response) {
      AnswerTo(request)(response);
    });
    port_ = server_.bind_to_any_port("127.0.0.1");
    thread_ = std::thread([this] { server_.listen_after_bind(); });
    while (!server_.is_running()) std::this_thread::yield();
  }
  ~LoopbackServer() { Stop(); }
  LoopbackServer(const LoopbackServer&) = delete;
  LoopbackServer& operator=(const LoopbackServer&) = delete;

  // Without a slash at the end.
  std::string Url() const { return "http://127.0.0.1:" + std::to_string(port_); }

  // The answer to a path with its query, as they come over the line.
  void At(const std::string& target, Answer answer) {
    const std::lock_guard<std::mutex> lock(mutex_);
    answers_[target] = std::move(answer);
  }
  // Path and query of what was asked since the last call.
  std::vector<std::string> TakeRequests() {
    const std::lock_guard<std::mutex> lock(mutex_);
    return std::exchange(requests_, {});
  }
  httplib::Request LastRequest() {
    const std::lock_guard<std::mutex> lock(mutex_);
    return last_request_;
  }
  // Refuses connections from now on.
  void Stop() {
    server_.stop();
    if (thread_.joinable()) thread_.join();
  }

 private:
  Answer AnswerTo(const httplib::Request& request) {
    const std::lock_guard<std::mutex> lock(mutex_);
    requests_.push_back(request.target);
    last_request_ = request;
    const auto answer = answers_.find(request.target);
    return answer == answers_.end() ? Answer(NotFound) : answer->second;
  }

  httplib::Server server_;
  std::thread thread_;
  int port_ = 0;
  std::mutex mutex_;
  std::map<std::string, Answer> answers_;
  std::vector<std::string> requests_;
  httplib::Request last_request_;
};

}  // namespace cantorel

#endif  // CANTOREL_TESTS_PLATFORM_LOOPBACK_SERVER_H_

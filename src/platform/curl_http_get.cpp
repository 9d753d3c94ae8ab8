// The HTTP client of the component, on libcurl.

#include <curl/curl.h>

#include <string_view>

#include "platform/http_get.h"

namespace cantorel {
namespace {

constexpr long kMostRedirections = 10;
constexpr const char* kSchemes = "http,https";

// curl's own state of the process, made once and left to its end: another part
// of the host may be using it.
bool CurlIsReady() {
  static const bool ready = curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
  return ready;
}

bool MustBeEncoded(unsigned char c) {
  constexpr std::string_view kNotInUrls = "\"<>\\^`{|}";
  return c <= 0x20 || c >= 0x7F || kNotInUrls.find(static_cast<char>(c)) != std::string_view::npos;
}

std::string EncodedUrl(const std::string& url) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string encoded;
  encoded.reserve(url.size());
  for (const char octet : url) {
    const auto c = static_cast<unsigned char>(octet);
    if (MustBeEncoded(c)) {
      encoded += {'%', kDigits[c >> 4], kDigits[c & 15]};
    } else {
      encoded += octet;
    }
  }
  return encoded;
}

// What the callback needs of one request.
struct BodyWriter {
  std::string& body;
  std::size_t limit;
};

// Takes a piece of the body.  Any answer but its size ends the transfer.
std::size_t TakePiece(char* octets, std::size_t size, std::size_t count, void* writer) noexcept {
  const std::size_t length = size * count;
  BodyWriter& to = *static_cast<BodyWriter*>(writer);
  if (length > to.limit - to.body.size()) return 0;
  try {
    to.body.append(octets, length);
  } catch (...) {
    return 0;  // no memory; nothing may be thrown through curl
  }
  return length;
}

class CurlHttpGet : public HttpGet {
 public:
  explicit CurlHttpGet(const HttpLimits& limits) : limits_(limits) {}
  ~CurlHttpGet() override { curl_easy_cleanup(handle_); }
  CurlHttpGet(const CurlHttpGet&) = delete;
  CurlHttpGet& operator=(const CurlHttpGet&) = delete;

  bool Get(const std::string& url, const std::string& user_agent, HttpAnswer& answer) override {
    answer = {};
    if (handle_ == nullptr && !Open()) {
      answer.fault = "no HTTP client";
      return false;
    }
    BodyWriter writer{answer.body, limits_.body_octets};
    curl_easy_setopt(handle_, CURLOPT_URL, EncodedUrl(url).c_str());  // curl copies both
    curl_easy_setopt(handle_, CURLOPT_USERAGENT, user_agent.c_str());
    curl_easy_setopt(handle_, CURLOPT_WRITEDATA, &writer);
    const CURLcode result = curl_easy_perform(handle_);
    if (result != CURLE_OK) {
      answer.fault = curl_easy_strerror(result);
      return false;
    }
    long status = 0;
    curl_easy_getinfo(handle_, CURLINFO_RESPONSE_CODE, &status);
    answer.status = static_cast<int>(status);
    return true;
  }

 private:
  // Makes the handle with what holds for every request.
  bool Open() {
    if (!CurlIsReady()) return false;
    handle_ = curl_easy_init();
    if (handle_ == nullptr) return false;
    // Time-outs without signals, which belong to the host.
    curl_easy_setopt(handle_, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(handle_, CURLOPT_CONNECTTIMEOUT_MS,
                     static_cast<long>(limits_.connect_timeout.count()));
    curl_easy_setopt(handle_, CURLOPT_TIMEOUT_MS, static_cast<long>(limits_.total_timeout.count()));
    curl_easy_setopt(handle_, CURLOPT_FOLLOWLOCATION, 1L);
    curl_easy_setopt(handle_, CURLOPT_MAXREDIRS, kMostRedirections);
    curl_easy_setopt(handle_, CURLOPT_PROTOCOLS_STR, kSchemes);
    curl_easy_setopt(handle_, CURLOPT_REDIR_PROTOCOLS_STR, kSchemes);
    curl_easy_setopt(handle_, CURLOPT_WRITEFUNCTION, TakePiece);
    return true;
  }

  const HttpLimits limits_;
  CURL* handle_ = nullptr;  // made by the first request
};

}  // namespace

std::unique_ptr<HttpGet> MakeHttpGet(const HttpLimits& limits) {
  return std::make_unique<CurlHttpGet>(limits);
}

}  // namespace cantorel

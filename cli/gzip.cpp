#include "cli/gzip.h"

#include <zlib.h>

#include <limits>
#include <new>

namespace cantorel::cli {
namespace {

constexpr std::string_view kSignature = "\x1F\x8B";
constexpr int kGzipFormat = 16;  // added to the window size: no other format
constexpr int kMemoryLevel = 8;  // zlib's own default
constexpr std::size_t kStep = 64 * 1024;

// zlib takes octets without a sign and counts them in 32 bits.
Bytef* Octets(const char* text) {
  return reinterpret_cast<Bytef*>(const_cast<char*>(text));
}
uInt Count(std::size_t size) {
  constexpr std::size_t kMost = std::numeric_limits<uInt>::max();
  return static_cast<uInt>(size < kMost ? size : kMost);
}

}  // namespace

bool BeginsAsGzip(std::string_view octets) {
  return octets.substr(0, kSignature.size()) == kSignature;
}

// --- Reading -------------------------------------------------------------------

struct GzipSource::Stream {
  z_stream state{};

  Stream() {
    if (inflateInit2(&state, MAX_WBITS + kGzipFormat) != Z_OK) throw std::bad_alloc();
  }
  ~Stream() { inflateEnd(&state); }
};

GzipSource::GzipSource(InputBuffer& compressed)
    : compressed_(compressed), stream_(std::make_unique<Stream>()) {}

GzipSource::~GzipSource() = default;

std::size_t GzipSource::Read(char* to, std::size_t size) {
  z_stream& state = stream_->state;
  while (!at_end_) {
    const std::string_view ready = compressed_.Peek(1);
    if (ready.empty()) return Fail("the compressed file ends too soon");
    state.next_in = Octets(ready.data());
    state.avail_in = Count(ready.size());
    const uInt given = state.avail_in;
    state.next_out = Octets(to);
    state.avail_out = Count(size);
    const int result = inflate(&state, Z_NO_FLUSH);
    compressed_.Skip(given - state.avail_in);
    if (result == Z_STREAM_END) {
      at_end_ = !BeginNextMember();
    } else if (result != Z_OK) {
      return Fail("the compressed file is damaged");
    }
    const std::size_t count = size - state.avail_out;
    if (count > 0) return count;
  }
  return 0;
}

// Whether another compressed file follows.
bool GzipSource::BeginNextMember() {
  std::string_view next = compressed_.Peek(kSignature.size());
  while (!next.empty() && next[0] == '\0') {
    compressed_.Skip(1);
    next = compressed_.Peek(kSignature.size());
  }
  if (BeginsAsGzip(next)) return inflateReset(&stream_->state) == Z_OK;
  if (!next.empty()) error_ = "other octets follow the compressed file";
  return false;
}

std::size_t GzipSource::Fail(const std::string& why) {
  error_ = why;
  at_end_ = true;
  return 0;
}

// --- Writing -------------------------------------------------------------------

struct GzipCompressor::Stream {
  z_stream state{};

  Stream() {
    if (deflateInit2(&state, Z_DEFAULT_COMPRESSION, Z_DEFLATED, MAX_WBITS + kGzipFormat,
                     kMemoryLevel, Z_DEFAULT_STRATEGY) != Z_OK) {
      throw std::bad_alloc();
    }
  }
  ~Stream() { deflateEnd(&state); }
};

GzipCompressor::GzipCompressor() : stream_(std::make_unique<Stream>()) {}
GzipCompressor::~GzipCompressor() = default;

std::string_view GzipCompressor::Compress(std::string_view text) {
  return Run(text, Z_NO_FLUSH);
}

std::string_view GzipCompressor::Finish() {
  return Run({}, Z_FINISH);
}

std::string_view GzipCompressor::Run(std::string_view text, int flush) {
  z_stream& state = stream_->state;
  std::size_t written = 0;
  do {
    state.next_in = Octets(text.data());
    state.avail_in = Count(text.size());
    const uInt given = state.avail_in;
    do {
      if (out_.size() < written + kStep) out_.resize(written + kStep);
      state.next_out = Octets(out_.data() + written);
      state.avail_out = Count(out_.size() - written);
      deflate(&state, flush);
      written = out_.size() - state.avail_out;
    } while (state.avail_out == 0);
    text.remove_prefix(given);
  } while (!text.empty());
  return {out_.data(), written};
}

}  // namespace cantorel::cli

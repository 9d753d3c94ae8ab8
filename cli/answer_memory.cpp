#include "cli/answer_memory.h"

namespace cantorel::cli {
namespace {

constexpr std::size_t kMostOctets = 16 * 1024 * 1024;

}  // namespace

bool AnswerMemory::Find(const std::string& url, HttpAnswer& answer) {
  const std::lock_guard lock(mutex_);
  const auto known = answers_.find(url);
  if (known == answers_.end()) return false;
  answer = known->second;
  return true;
}

void AnswerMemory::Keep(const std::string& url, const HttpAnswer& answer) {
  const std::lock_guard lock(mutex_);
  const std::size_t size = url.size() + answer.body.size();
  if (octets_ + size > kMostOctets) return;
  if (answers_.emplace(url, answer).second) octets_ += size;
}

}  // namespace cantorel::cli

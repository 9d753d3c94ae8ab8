// Answers of the linked-data service that a run has had, for all its threads.

#ifndef CANTOREL_CLI_ANSWER_MEMORY_H_
#define CANTOREL_CLI_ANSWER_MEMORY_H_

#include <cstddef>
#include <mutex>
#include <string>
#include <unordered_map>

#include "platform/http_get.h"

namespace cantorel::cli {

// Takes what comes until it holds some megabytes; later answers are not kept.
class AnswerMemory {
 public:
  bool Find(const std::string& url, HttpAnswer& answer);
  void Keep(const std::string& url, const HttpAnswer& answer);

 private:
  std::mutex mutex_;
  std::unordered_map<std::string, HttpAnswer> answers_;
  std::size_t octets_ = 0;
};

}  // namespace cantorel::cli

#endif  // CANTOREL_CLI_ANSWER_MEMORY_H_

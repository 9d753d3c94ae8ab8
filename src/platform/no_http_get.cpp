// Stands in for the HTTP client where its library is missing.

#include "platform/http_get.h"

namespace cantorel {

std::unique_ptr<HttpGet> MakeHttpGet(const HttpLimits& /*limits*/) {
  return nullptr;
}

}  // namespace cantorel

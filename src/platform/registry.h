// Settings that a host program left with the operating system.

#ifndef CANTOREL_PLATFORM_REGISTRY_H_
#define CANTOREL_PLATFORM_REGISTRY_H_

#include <string>
#include <string_view>

namespace cantorel {

// A text value under a key of the current user.  Empty when it is not there,
// which is always so on a system without a registry.
inline std::string CurrentUserValue(std::string_view /*key*/, std::string_view /*name*/) {
  return {};
}

}  // namespace cantorel

#endif  // CANTOREL_PLATFORM_REGISTRY_H_

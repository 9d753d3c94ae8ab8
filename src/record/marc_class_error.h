// The one error that the record class throws.

#ifndef CANTOREL_RECORD_MARC_CLASS_ERROR_H_
#define CANTOREL_RECORD_MARC_CLASS_ERROR_H_

#include <cstdint>
#include <stdexcept>
#include <string>

namespace cantorel {

// Thrown by the three properties CharacterSetIn, CharacterSetOut and
// NormalizationScheme for a letter that they do not know, and by the two field
// shifts when a neighbour is missing.  Every outer face catches it.
class MarcClassError : public std::runtime_error {
 public:
  MarcClassError(std::int32_t number, const std::string& text)
      : std::runtime_error(text), number_(number) {}

  std::int32_t Number() const { return number_; }
  const char* Source() const { return "MarcClass"; }

 private:
  std::int32_t number_;
};

}  // namespace cantorel

#endif  // CANTOREL_RECORD_MARC_CLASS_ERROR_H_

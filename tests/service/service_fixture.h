// What the tests of the service share: a configuration folder of their own,
// records made from readable fields, and answers made readable.

#ifndef CANTOREL_TESTS_SERVICE_SERVICE_FIXTURE_H_
#define CANTOREL_TESTS_SERVICE_SERVICE_FIXTURE_H_

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "service/cantorel_class.h"

namespace cantorel {

// A field of a sample record; "$" stands for the delimiter.  A control field
// has no indicators.
struct SampleField {
  std::string_view tag;
  std::string_view indicators;
  std::string_view text;
};

// "$" as the delimiter.
std::string Delimited(std::string_view text);

// An ISO 2709 image.  `type` is leader/06.
std::string SampleImage(char type, const std::vector<SampleField>& fields);

// ReturnedFields with blanks between the parts, the text decoded and "$" as
// delimiter: "0 382 01 $aflute$n1".
std::vector<std::string> Readable(std::string_view returned_fields);

// Writes and reads a small file as it is.
void WriteFile(const std::string& path, std::string_view content);
std::string ReadFile(const std::string& path);

// A service with a small vocabulary (flute, piano, violin, orchestra).
class ServiceTest : public ::testing::Test {
 protected:
  ServiceTest();
  ~ServiceTest() override;

  // Adds fields to a record of notated music and gives the readable lines.
  std::vector<std::string> Lines(const std::vector<SampleField>& fields, std::int32_t mode = 1);

  std::string folder_;  // ends in a slash
  CantorelClass cantorel_;
};

}  // namespace cantorel

#endif  // CANTOREL_TESTS_SERVICE_SERVICE_FIXTURE_H_

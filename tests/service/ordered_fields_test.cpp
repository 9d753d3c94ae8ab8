// Where the fields that a conversion adds stand, with the starter configuration.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "service/service_fixture.h"
#include "service/service_objects.h"

namespace cantorel {
namespace {

using ::testing::ElementsAre;

TEST_F(ServiceTest, AddedFieldsStandInTheOrderOfTheTables) {
  cantorel_.ConfigurationPath(CANTOREL_CONFIG);
  const std::string image = SampleImage('c', {{"001", "", "ocm1"},
                                              {"245", "10", "$aSonata"},
                                              {"500", "  ", "$aFor flute and piano."},
                                              {"490", "0 ", "$aSeries"},
                                              {"650", " 7", "$aSonatas$2fast"},
                                              {"650", " 0", "$aSonatas (Flute and piano)"},
                                              {"700", "1 ", "$aBach"}});
  EXPECT_EQ(cantorel_.AddFields(image, 1), 1);
  std::vector<std::string> tags;
  Utf8MarcRecordClass& record = TheMarcRecord();
  for (record.FldMoveTop(); record.FldMoveNext(true);) {
    tags.push_back(record.FldTag() + record.FldInd2());
  }
  EXPECT_THAT(tags, ElementsAre("001", "2450", "3821", "490 ", "500 ", "6500", "6507", "700 "));
}

}  // namespace
}  // namespace cantorel

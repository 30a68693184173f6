#include "jsv/keywords/FormatSchemaValidator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "jsv/report.h"

namespace jsv {
namespace {

using nlohmann::json;
using test::at;
using test::check;
using test::faultOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(FormatSchemaValidator, InformsThatTheValueIsAUriAndDoesNotLookAtIt) {
  for (const auto& value : {json("file://a"), json("no uri"), json(3)}) {
    const auto checked = check<FormatSchemaValidator>(value, "uri");
    EXPECT_THAT(checked.annotations, ElementsAre(at("/value", StringIsURIAnnotation{})));
    EXPECT_THAT(checked.names, IsEmpty());
  }
}

TEST(FormatSchemaValidator, AnyOtherFormatIsAFaultEvenOfAValidValue) {
  for (const auto& parameter : {json("date"), json("URI"), json(""), json(3), json(nullptr)}) {
    EXPECT_EQ(faultOf<FormatSchemaValidator>("2020-02-02", parameter),
              "/keyword: Only the 'uri' format is currently supported.");
  }
}

}  // namespace
}  // namespace jsv

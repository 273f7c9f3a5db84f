#include <gtest/gtest.h>

#include "support/Owned.h"
#include "util/TextUtilities.h"

namespace tavrin {
namespace {

TEST(TextUtilities, NumbersArePaddedToThreeCharactersAndCutToTheLastThree) {
  const struct {
    std::int32_t value;
    const char* padded;
    const char* last;
  } cases[] = {
      {0, "000", "000"},     {7, "007", "007"},
      {12, "012", "012"},    {999, "999", "999"},
      {1000, "1000", "000"}, {1234, "1234", "234"},
      {-5, "0-5", "0-5"},    {-12, "-12", "-12"},
      {-123, "-123", "123"}, {-2147483647 - 1, "-2147483648", "648"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(FormatThreeDigits(c.value), c.padded);
    std::string last = "left from before";
    EXPECT_TRUE(FormatLastThreeDigits(c.value, &last));
    EXPECT_EQ(last, c.last);
  }
}

TEST(TextUtilities, TextsAreHandedOutAsArrays) {
  char* array = nullptr;
  std::int32_t size = -1;
  EXPECT_FALSE(CopyToByteArray("", &array, &size));
  EXPECT_FALSE(CopyToByteArray("a", nullptr, &size));
  EXPECT_EQ(array, nullptr);
  EXPECT_EQ(size, -1);
  ASSERT_TRUE(CopyToByteArray("a", &array, &size));
  const test::Owned<char> owned(array);
  EXPECT_EQ(size, 2);
  EXPECT_STREQ(array, "a");
}

}  // namespace
}  // namespace tavrin

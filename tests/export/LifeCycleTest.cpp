#include "export/ExportTest.h"

namespace tavrin::test {
namespace {

class LifeCycle : public ExportTest {};

TEST_F(LifeCycle, ANullPathKeepsTheLoadedDefinition) {
  ASSERT_TRUE(InitializeDefinition("PrintMargin=1\n"));
  EXPECT_FALSE(TavrinInitialize(nullptr));
  EXPECT_EQ(LastError(), ErrorInvalidArgument);
  std::uint32_t margin = 0;
  EXPECT_TRUE(TavrinGetAreaMarginSize(&margin));
  EXPECT_EQ(margin, 1000u);
}

TEST_F(LifeCycle, AFailedInitialisationLeavesNoDefinition) {
  const std::string bad[] = {
      folder.PathOf("missing.dat"),
      folder.Write("empty.dat", ""),
      folder.Write("plain.dat", Definition("")),
      folder.WriteEnciphered("versionless.dat", "[printer]\nModelName=M\n"),
      folder.PathOf(""),
      "",
  };
  for (const std::string& path : bad) {
    ASSERT_TRUE(InitializeDefinition(""));
    SetLastErrorAside();
    EXPECT_FALSE(TavrinInitialize(path.c_str())) << path;
    EXPECT_EQ(LastError(), ErrorFailed) << path;
    std::uint32_t margin = 77;
    EXPECT_FALSE(TavrinGetAreaMarginSize(&margin)) << path;
    EXPECT_EQ(LastError(), ErrorNotInitialized) << path;
    EXPECT_EQ(margin, 77u) << path;
  }
}

TEST_F(LifeCycle, SuccessKeepsTheLastErrorAndReplacesTheDefinition) {
  SetLastErrorAside();
  ASSERT_TRUE(InitializeDefinition("PrintMargin=1\n"));
  ASSERT_TRUE(InitializeDefinition("PrintMargin=2\n"));
  std::uint32_t margin = 0;
  EXPECT_TRUE(TavrinGetAreaMarginSize(&margin));
  EXPECT_EQ(margin, 2000u);
  EXPECT_TRUE(TavrinFinalize());
  EXPECT_EQ(LastError(), ErrorInvalidArgument);
}

}  // namespace
}  // namespace tavrin::test

#include "export/ExportTest.h"

namespace tavrin::test {
namespace {

class ModelingConditions : public ExportTest {};

std::string EveryByte() {
  std::string bytes;
  for (int i = 0; i < 256; ++i)
    bytes += static_cast<char>(i);
  return bytes;
}

TEST_F(ModelingConditions, WithoutADefinitionNothingIsWritten) {
  const std::string path = folder.PathOf("conditions.dat");
  EXPECT_FALSE(TavrinCreateModelingConditionsFile(path.c_str()));
  EXPECT_EQ(LastError(), ErrorNotInitialized);
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(ModelingConditions, TheFileIsTheDefinitionThatWasLoaded) {
  const std::string contents[] = {
      Definition(""),
      Definition("Unknown=kept\r\n; comment\r\n") + EveryByte(),
      Definition(std::string(100000, 'x') + "\n"),
  };
  // Each goes over the file before, which may be longer.
  const std::string written = folder.Write("conditions.dat", std::string(200000, 'y'));
  for (const std::string& content : contents) {
    ASSERT_TRUE(Initialize(content));
    for (int repetition = 0; repetition < 2; ++repetition) {
      EXPECT_TRUE(TavrinCreateModelingConditionsFile(written.c_str()));
      EXPECT_EQ(ReadWhole(written), ReadWhole(folder.PathOf("printer.dat")));
    }
  }
  // Over the very file that was loaded: the definition is in memory.
  ASSERT_TRUE(TavrinInitialize(written.c_str()));
  EXPECT_TRUE(TavrinCreateModelingConditionsFile(written.c_str()));
  EXPECT_EQ(ReadWhole(written), ReadWhole(folder.PathOf("printer.dat")));
}

TEST_F(ModelingConditions, BadPathsFailAndSuccessKeepsTheCode) {
  ASSERT_TRUE(InitializeDefinition(""));
  EXPECT_FALSE(TavrinCreateModelingConditionsFile(nullptr));
  EXPECT_EQ(LastError(), ErrorNotInitialized);
  for (const std::string& path :
       {std::string(), folder.PathOf("no folder/conditions.dat"), folder.PathOf("")}) {
    SetLastErrorAside();
    EXPECT_FALSE(TavrinCreateModelingConditionsFile(path.c_str())) << path;
    EXPECT_EQ(LastError(), ErrorWriteFailed) << path;
  }
  EXPECT_FALSE(std::filesystem::exists(folder.PathOf("no folder")));
  EXPECT_TRUE(TavrinCreateModelingConditionsFile(folder.PathOf("conditions.dat").c_str()));
  EXPECT_EQ(LastError(), ErrorWriteFailed);
}

}  // namespace
}  // namespace tavrin::test

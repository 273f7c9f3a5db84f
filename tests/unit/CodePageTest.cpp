// Texts and numbers in the encodings of the East and the locales of the West. The environment names
// the code page.
#include <clocale>

#include <gtest/gtest.h>

#include "definition/PrinterConfig.h"
#include "definition/TemporaryPath.h"
#include "definition/TextConversion.h"
#include "support/TestFiles.h"

namespace tavrin {
namespace {

TEST(CodePage932, TextsOfTwoBytesACharacterConvertBothWays) {
  std::string longText;
  for (int i = 0; i < 200; ++i)
    longText += "\x93\xFA";
  const struct {
    std::string narrow;
    std::wstring wide;
  } cases[] = {
      {"\x83\x5C", L"\u30BD"},  // its second byte is a backslash's
      {"a\x93\xFA\xB1", L"a\u65E5\uFF71"},
      {longText, std::wstring(200, L'\u65E5')},
  };
  const test::TestFolder folder;
  for (const auto& c : cases) {
    EXPECT_EQ(WideCopy(c.narrow), c.wide) << c.narrow;
    EXPECT_EQ(NarrowCopy(c.wide), c.narrow);
    PrinterConfig config;
    EXPECT_TRUE(config.Parse(folder.Write("a.ini", test::Definition("ModelName=" + c.narrow))));
    EXPECT_EQ(config.ModelName, c.narrow);
  }
}

TEST(CodePage932, ASecondByteThatLooksLikeASeparatorCutsNoName) {
  EXPECT_EQ(TemporaryName("Z:\\\x83\x5C.exe", "cfg/\x83\x5C\x83\x5C.dat"),
            "\x83\x5C_\x83\x5C\x83\x5C.bin");
  for (const std::string name : {"\xE9", "one", "\x87\x90"})  // no text, or one of two spellings
    EXPECT_EQ(TemporaryName("m", "caf\xE9/" + name + ".dat"), "m_" + name + ".bin");
}

TEST(CodePage1252, NumbersHaveTheDecimalPointThatTheHostChose) {
  ASSERT_TRUE(std::setlocale(LC_NUMERIC, "de_DE.CP1252") || std::setlocale(LC_NUMERIC, "German"));
  const std::string chosen = std::setlocale(LC_NUMERIC, nullptr);
  const test::TestFolder folder;
  PrinterConfig config;
  EXPECT_TRUE(config.Parse(folder.Write(
      "a.ini", test::Definition("ModelName=\xE9\nHeadBandSize=40,5\nSupportExtendAngle=2.5\n"))));
  EXPECT_EQ(config.HeadBandSize, 40.5);
  EXPECT_EQ(config.SupportExtendAngle, 2.0);
  EXPECT_EQ(std::setlocale(LC_NUMERIC, nullptr), chosen);
  std::setlocale(LC_NUMERIC, "C");
}

}  // namespace
}  // namespace tavrin

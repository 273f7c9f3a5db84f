#include <gtest/gtest.h>

#include "definition/IniFile.h"
#include "definition/IniSnapshot.h"
#include "definition/TextConversion.h"
#include "support/TestFiles.h"

namespace tavrin {
namespace {

using test::ReadWhole;
using test::TestFolder;

TEST(IniFile, OpenKeepsThePathOfAMissingFile) {
  const TestFolder folder;
  const std::wstring path = WideCopy(folder.PathOf("printer.ini"));
  IniFile ini;
  EXPECT_FALSE(ini.Open(path));
  EXPECT_EQ(ini.path, path);
  EXPECT_TRUE(ini.Close());
  folder.Write("printer.ini", "");
  EXPECT_TRUE(ini.Exists());
}

TEST(IniFile, TypedReadsLeaveTheirValueOnFailure) {
  const TestFolder folder;
  IniFile ini;
  ASSERT_TRUE(ini.Open(
      WideCopy(folder.Write("a.ini", "[S]\nInt= 42\nDouble=1e3\nText=v\nEmpty=\nWord=abc\n"))));
  std::int32_t number = -1;
  EXPECT_TRUE(ini.ReadInt("s", "INT", &number));
  EXPECT_EQ(number, 42);
  double real = -1.0;
  EXPECT_TRUE(ini.ReadDouble("S", "Double", &real));
  EXPECT_EQ(real, 1000.0);
  std::string text;
  EXPECT_TRUE(ini.ReadString("S", "Text", &text));
  EXPECT_EQ(text, "v");

  for (const char* key : {"Missing", "Empty", "Word"}) {
    EXPECT_FALSE(ini.ReadInt("S", key, &number)) << key;
    EXPECT_FALSE(ini.ReadDouble("S", key, &real)) << key;
  }
  EXPECT_FALSE(ini.ReadString("S", "Empty", &text));
  EXPECT_EQ(number, 42);
  EXPECT_EQ(real, 1000.0);
  EXPECT_EQ(text, "v");

  std::wstring wide = L"before";
  EXPECT_FALSE(ini.ReadString(L"S", L"Missing", &wide));
  EXPECT_EQ(wide, L"") << "the wide read assigns what it found, nothing included";
}

TEST(IniFile, ValuesAreCutAt521Characters) {
  const TestFolder folder;
  IniFile ini;
  const std::string longValue(600, 'x');
  ASSERT_TRUE(ini.Open(WideCopy(folder.Write("a.ini", "[S]\nK=" + longValue + "\n"))));
  std::string text;
  EXPECT_TRUE(ini.ReadString("S", "K", &text));
  EXPECT_EQ(text, longValue.substr(0, 521));
}

TEST(IniFile, EachReadSeesTheFileOfThatMoment) {
  const TestFolder folder;
  IniFile ini;
  ASSERT_TRUE(ini.Open(WideCopy(folder.Write("a.ini", "[S]\r\nK=1\r\n"))));
  std::int32_t number = 0;
  EXPECT_TRUE(ini.ReadInt("S", "K", &number));
  EXPECT_EQ(number, 1);
  EXPECT_TRUE(ini.WriteString("S", "K", "2"));
  EXPECT_TRUE(ini.ReadInt("S", "K", &number));
  EXPECT_EQ(number, 2);
  EXPECT_TRUE(ini.DeleteKey(L"S", L"K"));
  EXPECT_FALSE(ini.ReadInt("S", "K", &number));
  EXPECT_EQ(ReadWhole(folder.PathOf("a.ini")), "[S]\r\n");

  IniFile nowhere;
  nowhere.Open(WideCopy(folder.PathOf("no folder/a.ini")));
  EXPECT_FALSE(nowhere.WriteString("S", "K", "2"));
}

TEST(IniFile, OverridingTheWideReadsChangesTheNarrowOnes) {
  class Answering : public IniFile {
   public:
    using IniFile::ReadString;
    bool ReadString(const wchar_t* section, const wchar_t* key, std::wstring* value) override {
      *value = std::wstring(section) + key;
      return true;
    }
  };
  Answering ini;
  std::string text;
  for (const std::string& key : {std::string("2"), std::string(), std::string(47, 'k'),
                                 std::string(48, 'k'), NarrowCopy(L"B\u00FCro")}) {
    EXPECT_TRUE(ini.ReadString("1", key, &text));
    EXPECT_EQ(text, "1" + key);
  }
  std::int32_t number = 0;
  EXPECT_TRUE(ini.ReadInt("1", "2", &number));
  EXPECT_EQ(number, 12);
}

TEST(IniSnapshot, ReadsWhatIniFileReads) {
  const TestFolder folder;
  IniSnapshot ini(WideCopy(folder.Write("a.ini", "[S]\nK=v\n[S]\nL=w\n")));
  EXPECT_TRUE(ini.Exists());
  std::string text;
  EXPECT_TRUE(ini.ReadString("s", "k", &text));
  EXPECT_EQ(text, "v");
  EXPECT_FALSE(ini.ReadString("S", "L", &text));
}

}  // namespace
}  // namespace tavrin

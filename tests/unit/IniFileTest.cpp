#include <gtest/gtest.h>

#include "definition/IniFile.h"
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
  EXPECT_TRUE(ini.Open(WideCopy(folder.PathOf("")))) << "a directory exists, too";
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

/// Answers with the names that it is asked for.
class Answering : public IniFile {
 public:
  using IniFile::ReadString;
  bool ReadString(const wchar_t* section, const wchar_t* key, std::wstring* value) override {
    *value = std::wstring(section) + key;
    return true;
  }
};

TEST(IniFile, OverridingTheWideReadsChangesTheNarrowOnes) {
  Answering ini;
  std::string text;
  for (const std::string& key :
       {std::string("2"), std::string(), std::string(47, 'k'), std::string(48, 'k'),
        std::string("\x80"), NarrowCopy(L"B\u00FCro")}) {
    EXPECT_TRUE(ini.ReadString("1", key, &text));
    EXPECT_EQ(text, "1" + key);
  }
  std::int32_t number = 0;
  EXPECT_TRUE(ini.ReadInt("1", "2", &number));
  EXPECT_EQ(number, 12);
}

TEST(IniFile, NumbersStandBehindEveryWhiteSpaceOfWindows) {
  Answering ini;
  std::wstring spaces;
  for (wchar_t c = 0x80; c < 0xFFFF; ++c) {
    std::int32_t integer = 0;
    double number = 0;
    const wchar_t text[] = {c, L'4', L'2', L'\0'};
    if (ini.ReadInt(L" ", text, &integer) && ini.ReadDouble(L" ", text, &number)) spaces += c;
  }
  EXPECT_EQ(spaces,
            L"\u0085\u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008\u2009\u200A"
            L"\u2028\u2029\u202F\u205F\u3000");
}

}  // namespace
}  // namespace tavrin

// How this platform's locale decides the narrow encoding.
#include <utility>

#include <gtest/gtest.h>

#include "definition/PrinterConfig.h"
#include "definition/TextConversion.h"
#include "support/Situation.h"
#include "support/TestFiles.h"

namespace tavrin {
namespace {

using test::Definition;
using test::TestFolder;
using test::Variable;

TEST(PortableText, WithoutAUsableLocaleNarrowTextIsUtf8) {
  for (const char* locale : {"C", "POSIX", "xx_YY.NONE", "C.UTF-8"}) {
    const auto choice = Variable("LC_ALL", locale);
    const struct {
      const char* narrow;
      const wchar_t* wide;
    } cases[] = {
        {"plain", L"plain"},
        {"\xC2\x80", L"\u0080"},
        {"\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF", L"\u07FF\u0800\uFFFF"},
        {"\xE2\x82\xAC.", L"\u20AC."},
        {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", L"\U00010000\U0010FFFF"},
        {"", L""},
    };
    for (const auto& c : cases) {
      EXPECT_EQ(WideCopy(c.narrow), c.wide) << locale << ' ' << c.narrow;
      EXPECT_EQ(NarrowCopy(c.wide), c.narrow) << locale << ' ' << c.narrow;
    }
  }
}

TEST(PortableText, BytesThatAreNoUtf8ComeBackUnchanged) {
  const auto choice = Variable("LC_ALL", "C.UTF-8");
  for (const char* path : {"caf\xE9.dat", "\x80\xFF", "\xC0\xAF", "\xE2\x82", "\xED\xA0\x80",
                           "\xED\xBF\xBF", "\xF5\x80\x80\x80", "\xF4\x90\x80\x80", "\xE0\x80\x80",
                           "\xF0\x8F\xBF\xBF", "a\xF0\x9F\x98"}) {
    std::wstring escaped;
    for (const char* byte = path; *byte != '\0'; ++byte)
      escaped +=
          static_cast<wchar_t>(*byte < 0 ? 0xDC00 + static_cast<unsigned char>(*byte) : *byte);
    EXPECT_EQ(WideCopy(path), escaped);
    EXPECT_EQ(NarrowCopy(escaped), path);
  }
}

TEST(PortableText, TextEndsAtItsFirstNulAndNoSurrogateHasANarrowForm) {
  const auto choice = Variable("LC_ALL", "C.UTF-8");
  EXPECT_EQ(WideCopy(std::string("a\0b", 3)), L"a");
  EXPECT_EQ(NarrowCopy(std::wstring(L"a\0b", 3)), "a");
  for (const wchar_t c : {0xD83D, 0xDC7F, 0xDD00, 0x110000}) {
    std::string narrow = "before";
    EXPECT_TRUE(ToNarrow(std::wstring{L'a', c}, &narrow));
    EXPECT_EQ(narrow, "") << "what cannot be encoded empties the text";
  }
  std::wstring wide = L"before";
  EXPECT_TRUE(ToWide("after", &wide));
  EXPECT_EQ(wide, L"after");
}

// The environment names the encoding.
TEST(CodePage932, BytesThatItLacksStayInPathsAndAreReplacedInTexts) {
  for (const auto& [narrow, wide] :
       {std::pair("a\x83", L"a\xDC83"), std::pair("\x81 \x83\x5C\xFF", L"\xDC81 \u30BD\xDCFF")}) {
    EXPECT_EQ(WideCopy(narrow), wide);
    EXPECT_EQ(NarrowCopy(wide), narrow);
  }
  EXPECT_EQ(NarrowCopy(L"\u30BD\u00FC"), "");
  const TestFolder folder;
  PrinterConfig config;
  ASSERT_TRUE(config.Parse(folder.Write(
      "a.ini", Definition(std::string("ModelName=\x83\x5C\x81 \x83\nIPAddress=1\0002\n", 31)))));
  EXPECT_EQ(config.ModelName, "\x83\x5C? ?");
  EXPECT_EQ(config.IPAddress, "1") << "a NUL is one";
}

TEST(PortableText, ADefinitionKeepsWhatTheEncodingCanDecode) {
  const auto choice = Variable("LC_ALL", "C");
  const TestFolder folder;
  PrinterConfig config;
  ASSERT_TRUE(config.Load(
      folder.WriteEnciphered("dr\xC3\xBC"
                             "cker \xE9.dat",
                             Definition("ModelName=caf\xE9\x80 \xC3\xA9\nPrintMargin=1\n"))));
  EXPECT_EQ(config.ModelName, "caf\xEF\xBF\xBD\xEF\xBF\xBD \xC3\xA9");
  EXPECT_EQ(config.PrintMargin, 1000);
}

}  // namespace
}  // namespace tavrin

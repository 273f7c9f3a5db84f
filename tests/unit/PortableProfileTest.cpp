// The profile functions as this library gives them where the platform has none.
#include <cerrno>
#include <ctime>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/Profile.h"
#include "support/Situation.h"
#include "support/TestFiles.h"
#include "unit/TestText.h"

namespace tavrin {
namespace {

using platform::ProfileReader;
using platform::WriteProfileValue;
using test::Escape;
using test::ReadWhole;
using test::TestFolder;

/// Runs each test where narrow text is UTF-8.
class PortableProfile : public testing::Test {
 protected:
  /// Puts content into the file.
  void Put(const std::string& content) { folder_.Write("a.ini", content); }

  std::string Content() const { return ReadWhole(folder_.PathOf("a.ini")); }
  std::wstring Path() const { return PathOf("a.ini"); }

  std::wstring PathOf(const std::string& name) const {
    return test::WideFromUtf8(folder_.PathOf(name));
  }

  std::wstring Read(std::uint32_t size = 100000, const wchar_t* section = L"S",
                    const wchar_t* key = L"K") const {
    std::vector<wchar_t> buffer(size);
    const std::uint32_t length = ProfileReader(Path()).Read(section, key, buffer.data(), size);
    return {buffer.data(), length};
  }

  bool Write(const wchar_t* value, const wchar_t* key = L"K", const wchar_t* section = L"S") const {
    return WriteProfileValue(section, key, value, Path().c_str());
  }

 private:
  const TestFolder folder_;
  const test::Situation locale_ = test::Variable("LC_ALL", "C.UTF-8");
};

std::string Utf16(const std::u16string& text) {
  std::string bytes = "\xFF\xFE";
  for (const char16_t unit : text)
    bytes += {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
  return bytes;
}

TEST_F(PortableProfile, LengthsWrapAt16Bits) {
  const struct {
    std::size_t count;
    const char* character;
    std::size_t expected;
  } cases[] = {{65535, "x", 65535},
               {65536, "x", 0},
               {65537, "x", 1},
               {2 * 65536 + 5, "x", 5},
               {65537, "\xC3\xA9", 1},
               {32767, "\xF0\x9F\x98\x80", 32767},
               {32768, "\xF0\x9F\x98\x80", 0},
               {32770, "\xF0\x9F\x98\x80", 2}};
  for (const auto& c : cases) {
    std::string value;
    for (std::size_t i = 0; i < c.count; ++i)
      value += c.character;
    for (const std::string quote : {"", "\""}) {
      Put("[S]\nK=" + quote + value + quote + "\n");
      EXPECT_EQ(Read().size(), c.expected) << c.count << c.character << quote;
    }
  }
}

TEST_F(PortableProfile, TheCutCountsUtf16UnitsAndSplitsNoCharacter) {
  Put("[S]\nK=a\xF0\x9F\x98\x80\x62\n");
  const wchar_t* const expected[] = {L"", L"a", L"a", L"a\U0001F600", L"a\U0001F600b"};
  for (std::uint32_t size = 1; size <= 5; ++size)
    EXPECT_EQ(Read(size), expected[size - 1]) << size;
}

TEST_F(PortableProfile, UndecodableTextIsReplacedPieceByPiece) {
  const struct {
    std::string content;
    const wchar_t* expected;
  } cases[] = {
      {"\xE9\n[S]\nK=a\xE9\x80 b\xFF\n", L"a\uFFFD\uFFFD b\uFFFD"},
      {"[S]\nK=\xC3\xA9\xC3\n", L"\u00E9\uFFFD"},
      {"[S]\nK=\xE2\x82\r\nL=\xAC", L"\uFFFD\uFFFD"},
      {Utf16(u"[S]\nK=a\xD83D"
             u"b\xDE00\xD83D"),
       L"a\uFFFDb\uFFFD\uFFFD"},
      {Utf16(u"[S]\nK=\xD83D\xDE00"), L"\U0001F600"},
      {Utf16(u"[S]\nK=v") + "w", L"v"},
      {"\xEF\xBB\xBF[S]\nK=v\n", L""},
      {"\xEF\xBB\xBF\n[S]\nK=v\n", L"v"},
  };
  for (const auto& c : cases) {
    Put(c.content);
    EXPECT_EQ(Read(), c.expected) << Escape(c.content);
  }
}

TEST_F(PortableProfile, NamesFoldAsciiOnly) {
  Put("[\xC3\xA9t\xC3\xA9]\nK\xC3\x89=v\n");
  EXPECT_EQ(Read(9, L"\u00E9T\u00E9", L"k\u00C9"), L"v");
  EXPECT_EQ(Read(9, L"\u00C9t\u00C9", L"k\u00C9"), L"");
  EXPECT_EQ(Read(9, L"\u00E9t\u00E9", L"k\u00E9"), L"");
}

TEST_F(PortableProfile, WritesTouchOneLine) {
  const struct {
    std::string content;
    const wchar_t* key;
    const wchar_t* value;
    std::string expected;
  } cases[] = {
      {"[S]\nK = 1\nL=\xE9\n", L"k", L"2", "[S]\nK=2\r\nL=\xE9\n"},
      {"[S]\nL=\xE9\x01\n\n;c\n[T]\n", L"K", L"\u20AC",
       "[S]\nL=\xE9\x01\nK=\xE2\x82\xAC\r\n\n;c\n[T]\n"},
      {"[S]\n\n;c\n\n[T]\n", L"K", L"v", "[S]\n\n;c\nK=v\r\n\n[T]\n"},
      {"[S]\n K\xE9\x01=1\n", L"K\uFFFD\x01", L"2", "[S]\nK\xE9\x01=2\r\n"},
      {"[S]\nK\nK=1\n", L"K", L"", "[S]\nK=\r\nK=1\n"},
      {"[S]\nK\nK=1\n", L"K", nullptr, "[S]\nK=1\n"},
      {"[S]\nword\n;c\n", L"K", L"v", "[S]\nword\nK=v\r\n;c\n"},
      {"[S]\rK=1\rL=2\r", L"K", nullptr, "[S]\rL=2\r"},
      {"[S]\nK=1\n", L"K", L"\xD83D\xFFFFFFF", "[S]\nK=??\r\n"},
      {Utf16(u"[S]\nK=\xD83D\nL=1"), L"L", L"\U0001F600\xFFFFFFF",
       Utf16(u"[S]\nK=\xD83D\nL=\xD83D\xDE00?\r\n")},
      {Utf16(u"[S]\nK=1\n") + "x", L"L", L"\U00010000\U0010FFFF",
       Utf16(u"[S]\nK=1\nL=\xD800\xDC00\xDBFF\xDFFF\r\n") + "x"},
      {"[S]\rK=1\r", L"L", L"2", "[S]\rK=1\r\r\nL=2\r\n"},
  };
  for (const auto& c : cases) {
    Put(c.content);
    EXPECT_TRUE(Write(c.value, c.key)) << Escape(c.content);
    EXPECT_EQ(Escape(Content()), Escape(c.expected)) << Escape(c.content);
  }
  EXPECT_EQ(Escape(platform::EditProfile(Utf16(u"[S]\nK=1\n") + "x", L"S", L"K", L"2")),
            Escape(Utf16(u"[S]\nK=2\n") + "x"));
  EXPECT_EQ(platform::EditProfile("\n[S]", L"S", L"K", L"1"), "\n[S]\nK=1\n");
}

TEST_F(PortableProfile, AWriteThatFailsHalfWayIsTakenBack) {
  {
    const auto full = test::FilesEndAt(4);
    EXPECT_FALSE(Write(L"v"));
  }
  EXPECT_FALSE(std::filesystem::exists(Path()));

  const std::string content = "[S]\nK=1\n[T]\n" + std::string(5000, 'x') + "\n";
  Put(content);
  {
    const auto full = test::FilesEndAt(content.size() + 10);
    EXPECT_FALSE(Write(L"a value that makes the file longer than it may be"));
  }
  EXPECT_EQ(Content(), content);
}

TEST_F(PortableProfile, PipesAndDevicesAreNeitherReadNorWritten) {
  ASSERT_EQ(mkfifo(test::Utf8FromWide(PathOf("pipe")).c_str(), 0600), 0);
  for (const std::wstring& path : {PathOf("pipe"), std::wstring(L"/dev/zero")}) {
    wchar_t buffer[9] = {};
    EXPECT_EQ(ProfileReader(path).Read(L"", L"", buffer, 9), 0u);
    for (const wchar_t* value : {L"v", static_cast<const wchar_t*>(nullptr)}) {
      errno = 0;
      EXPECT_FALSE(WriteProfileValue(L"S", L"K", value, path.c_str()));
    }
  }
}

/// A name of the bits of i, each written as one of two characters.
std::string NameOf(int i, const char* zero, const char* one) {
  std::string name;
  for (int bit = 0; bit < 15; ++bit)
    name += std::string("n") + (i >> bit & 1 ? one : zero);
  return name + "=w\n";
}

TEST_F(PortableProfile, HostileFilesTakeLinearTime) {
  const struct {
    const char* name;
    const char* head;
    std::function<std::string(int)> line;
  } cases[] = {
      {"one key", "[S]\nK=v\n", [](int) { return "K=w\n"; }},
      {"one section", "[S]\nK=v\n", [](int) { return "\n[S]\n"; }},
      {"sections", "[S]\nK=v\n", [](int i) { return "[" + std::to_string(i) + "]\nK=w\n"; }},
      {"keys", "[S]\nK=v\n", [](int i) { return "K" + std::to_string(i) + "=w\n"; }},
      {"blanks", "[S]\nK=v\nL=", [](int) { return "\xC3\xA9 \t"; }},
      {"carriage returns", "[S]\rK=v\r", [](int) { return "\r"; }},
      // Names that a hash may take for equal: they differ in the bit that makes letters small, or
      // in one near the top of each pair of characters, which multiplying carries out of the hash.
      {"digits", "[S]\nK=v\n", [](int i) { return NameOf(i, "0", "\x10"); }},
      {"at signs", "[S]\nK=v\n", [](int i) { return NameOf(i, "@", "`"); }},
      {"brackets", "[S]\nK=v\n", [](int i) { return NameOf(i, "[", "{"); }},
      {"last characters", "[S]\nK=v\n",
       [](int i) { return "xy" + test::Utf8FromWide({wchar_t{0x10000} + i}) + "=w\n"; }},
      {"U+E000 and U+10E000", "[S]\nK=v\n",
       [](int i) { return NameOf(i, "\xEE\x80\x80", "\xF4\x8E\x80\x80"); }},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const auto processorSeconds = [&](int lines) {
      std::string content = c.head;
      for (int i = 0; i < lines; ++i)
        content += c.line(i);
      Put(content);
      const std::clock_t start = std::clock();
      EXPECT_EQ(Read(), L"v");
      EXPECT_TRUE(Write(L"w", L"new"));
      EXPECT_EQ(Read(9, L"S", L"new"), L"w");
      return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    };
    const double once = processorSeconds(1 << 13);
    EXPECT_LT(processorSeconds(1 << 15), 8 * once + 0.05) << "four times the lines";
  }
}

}  // namespace
}  // namespace tavrin

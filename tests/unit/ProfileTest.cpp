// The contract of the profile functions beyond what single small files show, on every platform.
#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/Profile.h"
#include "support/TestFiles.h"

namespace tavrin {
namespace {

using platform::ProfileReader;
using platform::WriteProfileValue;
using test::ReadWhole;
using test::TestFolder;

std::wstring Wide(const std::string& path) {
  return std::filesystem::path(path).wstring();
}

std::wstring Read(const std::wstring& path, const wchar_t* section, const wchar_t* key) {
  std::vector<wchar_t> buffer(1000);
  const std::uint32_t length = ProfileReader(path).Read(section, key, buffer.data(), 1000);
  return {buffer.data(), length};
}

TEST(Profile, ReadsStayWithinTheBuffer) {
  const TestFolder folder;
  const ProfileReader reader(Wide(folder.Write("a.ini", "[S]\r\nK=abcd\r\n")));
  const struct {
    std::uint32_t size;
    const wchar_t* key;
    const wchar_t* expected;
  } cases[] = {
      {1, L"K", L""},     {2, L"K", L"a"},   {4, L"K", L"abc"}, {5, L"K", L"abcd"},
      {6, L"K", L"abcd"}, {1, L"none", L""}, {6, L"none", L""},
  };
  for (const auto& c : cases) {
    std::wstring buffer(c.size + 1, L'#');
    const std::uint32_t length = reader.Read(L"S", c.key, buffer.data(), c.size);
    EXPECT_EQ(buffer.substr(0, length), c.expected) << c.size;
    EXPECT_EQ(buffer[length], L'\0') << c.size;
    EXPECT_EQ(buffer.back(), L'#') << c.size;
  }
}

TEST(Profile, KeysAndSectionsOfOneNameStayApart) {
  const TestFolder folder;
  for (const char* content : {"S=x\n[S]\nK=v\n", "[K]\nS=x\nK=x\n[S]\nK=v\n"})
    EXPECT_EQ(Read(Wide(folder.Write("a.ini", content)), L"S", L"K"), L"v") << content;
}

TEST(Profile, NamesFoldTheLettersAlone) {
  const TestFolder folder;
  const std::string keys = "@azAZ[`{=w\n`AZaz{@[=v\n";
  for (const std::string head : {"", ";\xC3\xA9\n"}) {
    const auto path = Wide(folder.Write("a.ini", head + "[zz@[]\n" + keys + "[ZZ`[]\nK=v\n"));
    EXPECT_EQ(Read(path, L"zz`[", L"k"), L"v");
    EXPECT_EQ(Read(path, L"zz`[", L"\u014B"), L"") << "its low byte is a K";
    EXPECT_EQ(Read(path, L"ZZ@[", L"`azAZ{@["), L"v");
    EXPECT_EQ(Read(path, L"ZZ@[", L"@AZaz[`{"), L"w");
    EXPECT_EQ(Read(path, L"ZZ@[", L"`azAZ[@["), L"");
    EXPECT_EQ(Read(path, L"ZZ@{", L"`azAZ{@["), L"");
  }
}

TEST(Profile, NamesOfAnyLengthAreFound) {
  const TestFolder folder;
  for (std::size_t length = 40; length <= 60; ++length) {
    const std::string name(length, 'k');
    const auto path = Wide(folder.Write("a.ini", "[s]\n" + name + "=v\n"));
    EXPECT_EQ(Read(path, L"s", Wide(name).c_str()), L"v") << length;
    EXPECT_EQ(Read(path, L"s", Wide(name + "k").c_str()), L"") << length;
  }
}

TEST(Profile, KeysAreListedInTheirOrder) {
  const TestFolder folder;
  // A first line without a name hides the list from the call of Windows that gives names alone.
  const ProfileReader reader(Wide(folder.Write("a.ini", "[S]\n= x\nK=v\n;c\nL=\n[T]\nM=v\n")));
  std::wstring names;
  reader.ListKeys(L" s ", [&](std::wstring_view name) { names.append(name).append(L"."); });
  EXPECT_EQ(names, L".K.L.");
}

TEST(Profile, PathsThatAreNoFileReadAsEmptyAndRefuseWrites) {
  const TestFolder folder;
  for (const std::string& path : {folder.PathOf("no folder/a.ini"), folder.PathOf("")}) {
    EXPECT_EQ(Read(Wide(path), L"S", L"K"), L"") << path;
    EXPECT_FALSE(WriteProfileValue(L"S", L"K", L"v", Wide(path).c_str())) << path;
  }
}

TEST(Profile, CallsThatChangeNothingLeaveTheFileAlone) {
  const TestFolder folder;
  const std::string content = "[S]\n K = 1 \n;c\n\nL=2";
  const std::string file = folder.Write("a.ini", content);
  const auto longAgo = std::filesystem::last_write_time(file) - std::chrono::hours(1);
  std::filesystem::last_write_time(file, longAgo);
  EXPECT_TRUE(WriteProfileValue(L"S", L"K", L"1", Wide(file).c_str()));
  EXPECT_TRUE(WriteProfileValue(L"S", L"none", nullptr, Wide(file).c_str()));
  EXPECT_TRUE(WriteProfileValue(L"none", L"K", nullptr, Wide(file).c_str()));
  EXPECT_EQ(ReadWhole(file), content);
  EXPECT_EQ(std::filesystem::last_write_time(file), longAgo);
}

}  // namespace
}  // namespace tavrin

// What the profile functions of Windows make of many small files, from a table of recorded cases.
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/Profile.h"
#include "support/TestFiles.h"
#include "unit/TestText.h"
#include "unit/Wine.h"

namespace tavrin {
namespace {

using test::Escape;
using test::ReadWhole;
using test::Rows;
using test::TestFolder;
using test::Unescape;
using test::WideFromUtf8;

constexpr std::uint32_t kBufferSize = 522;
constexpr char kAbsent[] = "ABSENT";
constexpr char kMissing[] = "MISSING";

/// One row; the cells are escaped.
struct Case {
  std::string id, kind, content, section, key, value, expected;
};

std::vector<std::vector<std::string>> RowsOf(const std::string& file) {
  return Rows(ReadWhole(TAVRIN_TEST_DATA_DIR "/" + file));
}

std::vector<Case> LoadCases() {
  std::vector<Case> cases;
  for (const auto& row : RowsOf("profile-cases.tsv")) {
    EXPECT_EQ(row.size(), 8u) << row[0];
    if (row.size() == 8) cases.push_back({row[0], row[1], row[2], row[3], row[4], row[5], row[6]});
  }
  return cases;
}

/// What Wine gives in the cases that it is known to treat in its own way, by id.
std::map<std::string, std::string> LoadWineDeviations() {
  std::map<std::string, std::string> deviations;
  if (!test::RunsUnderWine()) return deviations;
  for (const auto& row : RowsOf("wine-deviations.tsv"))
    deviations[row.at(0)] = row.at(1);
  EXPECT_FALSE(deviations.empty());
  return deviations;
}

/// Spells a cell as Escape does; the words that stand for nothing spell themselves.
std::string Normalized(const std::string& cell) {
  return Escape(Unescape(cell));
}

std::string Read(const std::wstring& path, const Case& c) {
  std::vector<wchar_t> buffer(kBufferSize);
  const std::uint32_t length = platform::ProfileReader(path).Read(
      WideFromUtf8(Unescape(c.section)).c_str(), WideFromUtf8(Unescape(c.key)).c_str(),
      buffer.data(), kBufferSize);
  return length == 0 ? kAbsent : Escape(test::Utf8FromWide({buffer.data(), length}));
}

std::string Write(const std::wstring& path, const Case& c) {
  const std::wstring value = WideFromUtf8(Unescape(c.value));
  EXPECT_TRUE(platform::WriteProfileValue(
      WideFromUtf8(Unescape(c.section)).c_str(), WideFromUtf8(Unescape(c.key)).c_str(),
      c.kind == "delete" ? nullptr : value.c_str(), path.c_str()));
  const std::filesystem::path file(path);
  return std::filesystem::exists(file) ? Escape(ReadWhole(file.string())) : kMissing;
}

std::string ResultOf(const TestFolder& folder, const Case& c) {
  const std::string name = c.id + ".ini";
  if (c.content != kMissing) folder.Write(name, Unescape(c.content));
  const std::wstring path = std::filesystem::path(folder.PathOf(name)).wstring();
  return c.kind == "read" ? Read(path, c) : Write(path, c);
}

TEST(ProfileTable, ComesOutAsRecorded) {
  const TestFolder folder;
  const Case euro{"euro", "read", "[S]\r\nK=\\x80\r\n", "S", "K", "", ""};
  ASSERT_EQ(ResultOf(folder, euro), Escape("\xE2\x82\xAC"))
      << "the cases hold for code page 1252: on Linux, run them in a locale of that encoding "
         "(LC_ALL=en_US.CP1252, with LOCPATH naming the folder that localedef made it in)";

  const std::vector<Case> cases = LoadCases();
  ASSERT_EQ(cases.size(), 221u);
  std::map<std::string, std::string> deviations = LoadWineDeviations();
  for (const Case& c : cases) {
    SCOPED_TRACE(c.id + ' ' + c.kind + " [" + c.section + "] " + c.key + " of " + c.content);
    const std::string actual = ResultOf(folder, c);
    const auto deviation = deviations.find(c.id);
    if (deviation == deviations.end()) {
      EXPECT_EQ(actual, Normalized(c.expected));
      continue;
    }
    EXPECT_EQ(actual, Normalized(deviation->second)) << "Wine was known to differ otherwise";
    EXPECT_NE(actual, Normalized(c.expected)) << "Wine agrees now: take the case off the list";
    deviations.erase(deviation);
  }
  for (const auto& unknown : deviations)
    ADD_FAILURE() << "the list of deviations names a case that is none: " << unknown.first;
}

/// What an edit in place gives where it keeps more than the profile functions do, by id.
std::map<std::string, std::string> LoadKeptBytes() {
  std::map<std::string, std::string> kept;
  for (const auto& row : RowsOf("profile-edits.tsv"))
    kept[row.at(0)] = row.at(1);
  return kept;
}

// The rules are those of the writes above, on every platform; line ends and blanks stay.
TEST(ProfileTable, EditsInPlaceKeepTheBytesAround) {
  std::map<std::string, std::string> kept = LoadKeptBytes();
  for (const Case& c : LoadCases()) {
    if (c.kind == "read") continue;
    const std::wstring value = WideFromUtf8(Unescape(c.value));
    const std::string before = c.content == kMissing ? "" : Unescape(c.content);
    const std::string after = platform::EditProfile(
        before, WideFromUtf8(Unescape(c.section)).c_str(), WideFromUtf8(Unescape(c.key)).c_str(),
        c.kind == "delete" ? nullptr : value.c_str());
    const auto own = kept.find(c.id);
    const std::string expected = own != kept.end()        ? own->second
                                 : c.expected == kMissing ? ""
                                                          : c.expected;
    EXPECT_EQ(Escape(after), Normalized(expected))
        << c.id << " [" << c.section << "] " << c.key << " of " << c.content;
    if (own != kept.end()) kept.erase(own);
  }
  EXPECT_TRUE(kept.empty()) << "no such case: " << kept.begin()->first;
}

}  // namespace
}  // namespace tavrin

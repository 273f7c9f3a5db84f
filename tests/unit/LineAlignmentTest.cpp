#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "LineAlignment.h"

namespace tavrin::tool {
namespace {

using Lines = std::vector<std::string>;

/// As "old lines for new lines" in either's numbers, such as "2-4/2-3".
std::string Differences(const Lines& before, const Lines& after) {
  const auto range = [](std::size_t begin, std::size_t end) {
    return std::to_string(begin) + '-' + std::to_string(end);
  };
  std::string text;
  for (const LineDifference& difference : AlignLines(before, after)) {
    text += (text.empty() ? "" : " ") + range(difference.oldBegin, difference.oldEnd) + '/' +
            range(difference.newBegin, difference.newEnd);
  }
  return text;
}

/// A line for each letter.
Lines Letters(const std::string& text) {
  Lines lines;
  for (const char c : text)
    lines.emplace_back(1, c);
  return lines;
}

TEST(LineAlignment, FindsWhatTextsHaveInCommon) {
  struct Case {
    const char* before;
    const char* after;
    const char* differences;
  };
  const Case cases[] = {
      {"", "", ""},
      {"abc", "abc", ""},
      {"", "ab", "0-0/0-2"},
      {"ab", "", "0-2/0-0"},
      {"abc", "xyz", "0-3/0-3"},
      {"abcd", "axcd", "1-2/1-2"},
      {"abcd", "bcda", "0-1/0-0 4-4/3-4"},
      {"aab", "ab", "1-2/1-1"},
      {"abxcdxef", "abycdef", "2-3/2-3 5-6/5-5"},
      {"abcabba", "cbabac", "0-2/0-0 3-4/1-1 5-5/2-3 7-7/5-6"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.before) + " to " + c.after);
    EXPECT_EQ(Differences(Letters(c.before), Letters(c.after)), c.differences);
  }
}

TEST(LineAlignment, HoldsOnToTheLinesThatALongTextHasOnce) {
  Lines before;
  for (int i = 0; i < 3000; ++i)
    before.push_back(i % 3 == 0 ? "often" : "line " + std::to_string(i));
  Lines after = before;
  after.front() = "first";
  after.back() = "last";
  after[1000] = "changed";
  after.erase(after.begin() + 2000, after.begin() + 2002);
  after.insert(after.begin() + 500, "often");
  std::swap(after[1501], after[1502]);  // one of the lines that are there often, and another
  EXPECT_EQ(Differences(before, after),
            "0-1/0-1 500-500/500-501 1000-1001/1001-1002 1500-1501/1501-1501 1502-1502/1502-1503 "
            "2000-2002/2001-2001 2999-3000/2998-2999");

  // Lines that are there twice are as good where none is there once.
  before.assign(1, "old");
  for (int i = 0; i < 1200; ++i)
    before.push_back(std::to_string(i % 600));
  before.push_back("old");
  after = before;
  after.front() = after.back() = "new";
  after.insert(after.begin() + 100, "0");
  EXPECT_EQ(Differences(before, after), "0-1/0-1 100-100/100-101 1201-1202/1202-1203");

  // Nothing to hold on to.
  EXPECT_EQ(Differences(Lines(2000, "old"), Lines(1000, "new")), "0-2000/0-1000");
}

}  // namespace
}  // namespace tavrin::tool

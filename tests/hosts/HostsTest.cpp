#include <string>
#include <vector>

#include "export/ExportTest.h"
#include "hosts/Hosts.h"

namespace tavrin::test {
namespace {

class HostsTest : public ExportTest {
 protected:
  void SetUp() override {
    ASSERT_TRUE(
        InitializeDefinition("PrinterInkSlotNum=3\nColorCodeInkSlot1=4\nInkTypeCodeInkSlot1=113\n"
                             "ColorCodeInkSlot2=4\nInkTypeCodeInkSlot2=99\n"
                             "ColorCodeInkSlot3=15\nInkTypeCodeInkSlot3=114\n"));
  }
};

/// An answer in a line. The arrays hold zeros before they are asked for.
std::string Said(const SlotAnswer& answer) {
  return std::string(answer.succeeded ? "" : "failed ") + (answer.valid ? "valid " : "invalid ") +
         std::to_string(answer.color) + ' ' + std::to_string(answer.inkType) + ' ' + answer.id +
         '/' + std::to_string(answer.idSize) + ' ' + answer.name + '/' +
         std::to_string(answer.nameSize);
}

std::string SlotOf(const Host& host, std::uint32_t number) {
  SlotAnswer answer = {};
  host.askSlot(number, &answer);
  return Said(answer);
}

std::vector<std::int32_t> CategoryOf(const Host& host, std::int32_t index) {
  CategoryAnswer answer = {};
  host.askCategory(index, &answer);
  if (!answer.succeeded) return {};
  return {answer.numbers, answer.numbers + answer.count};
}

TEST_F(HostsTest, HearTheSameInksAndCategories) {
  const char* const slots[] = {"valid 4 113 113004/7 KP-300 Black/13", "invalid 0 0 000000/7 /0",
                               "valid 15 114 114015/7 LX-300 White/13"};
  const std::vector<std::int32_t> categories[] = {{1}, {2}, {3}, {1, 2, 3}, {1, 3}, {}};
  for (const Host& host : Hosts()) {
    std::uint32_t number = 0;
    for (const char* slot : slots)
      EXPECT_EQ(SlotOf(host, ++number), slot) << host.name;
    std::int32_t index = 0;
    for (const auto& category : categories)
      EXPECT_EQ(CategoryOf(host, index++), category) << host.name;
  }
}

TEST_F(HostsTest, ReleaseWhatTheyAreHandedOut) {
  for (const Host& host : Hosts()) {
    SlotAnswer slot = {};
    CategoryAnswer category = {};
    const std::size_t before = HeapInUse();
    for (int round = 0; round < 100; ++round) {
      host.askSlot(1, &slot);
      host.askCategory(0, &category);
    }
    EXPECT_TRUE(slot.succeeded && category.succeeded) << host.name;
    EXPECT_EQ(HeapInUse(), before) << host.name;
  }
}

}  // namespace
}  // namespace tavrin::test

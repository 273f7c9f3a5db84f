#include <string>

#include <windows.h>
#include <gtest/gtest.h>

#include "export/ExportTest.h"
#include "hosts/Hosts.h"

namespace tavrin::test {

std::vector<Host> Hosts() {
  return {{"C", AskSlotInC, AskCategoryInC},
          {"C++", AskSlotInCpp, AskCategoryInCpp},
          {"Microsoft's C++", AskSlotInMicrosoftsCpp, AskCategoryInMicrosoftsCpp}};
}

std::size_t HeapInUse() {
  std::size_t blocks = 0;
  PROCESS_HEAP_ENTRY entry = {};
  while (HeapWalk(GetProcessHeap(), &entry) != 0) {
    if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) ++blocks;
  }
  EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NO_MORE_ITEMS));
  EXPECT_GT(blocks, 0u);
  return blocks;
}

namespace {

class MicrosoftHost : public ExportTest {};

TEST_F(MicrosoftHost, DeletesASlotWithoutHarm) {
  ASSERT_TRUE(InitializeDefinition(""));
  SlotAnswer slot = {};
  AskSlotInC(1, &slot);
  const std::string name = slot.name;
  const std::size_t before = HeapInUse();
  DeleteSlotInMicrosoftsCpp(1);
  EXPECT_EQ(HeapInUse(), before);
  AskSlotInC(1, &slot);
  EXPECT_EQ(slot.name, name);
}

TEST_F(MicrosoftHost, FindsArraysInTheHeapOfTheProcess) {
  ASSERT_TRUE(InitializeDefinition(""));
  std::int32_t* numbers = nullptr;
  std::int32_t count = 0;
  ASSERT_TRUE(TavrinGetInkSlotNumConposeInkCategory(0, &numbers, &count));
  EXPECT_EQ(HeapSize(GetProcessHeap(), 0, numbers), 2 * sizeof *numbers);
  EXPECT_TRUE(HeapFree(GetProcessHeap(), 0, numbers));
}

}  // namespace
}  // namespace tavrin::test

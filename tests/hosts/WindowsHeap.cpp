#include <windows.h>
#include <gtest/gtest.h>

#include "export/ExportTest.h"
#include "hosts/Hosts.h"

namespace tavrin::test {

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

class WindowsHeap : public ExportTest {};

TEST_F(WindowsHeap, HasTheArraysThatAreHandedOut) {
  ASSERT_TRUE(InitializeDefinition(""));
  std::int32_t* numbers = nullptr;
  std::int32_t count = 0;
  ASSERT_TRUE(TavrinGetInkSlotNumConposeInkCategory(0, &numbers, &count));
  EXPECT_EQ(HeapSize(GetProcessHeap(), 0, numbers), 2 * sizeof *numbers);
  EXPECT_TRUE(HeapFree(GetProcessHeap(), 0, numbers));
}

}  // namespace
}  // namespace tavrin::test

#include <string>

#include <gtest/gtest.h>

#include "export/ExportTest.h"
#include "hosts/Hosts.h"

namespace tavrin::test {

std::vector<Host> Hosts() {
  return {{"C", AskSlotInC, AskCategoryInC},
          {"C++", AskSlotInCpp, AskCategoryInCpp},
          {"Microsoft's C++", AskSlotInMicrosoftsCpp, AskCategoryInMicrosoftsCpp}};
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

}  // namespace
}  // namespace tavrin::test

#include <memory>

#include "InkSlot.h"
#include "export/ExportTest.h"
#include "support/Owned.h"

namespace tavrin::test {
namespace {

class InkQueries : public ExportTest {};

/// What a text operation of a slot hands out; the array must be as long as it says.
std::string TextOf(const InkSlot& slot, bool (InkSlot::*get)(char**, std::int32_t*) const) {
  char before = '\0';
  char* text = &before;
  std::int32_t size = -1;
  EXPECT_TRUE((slot.*get)(&text, &size));
  if (text == nullptr) return "null of size " + std::to_string(size);
  const Owned<char> owned(text);
  EXPECT_EQ(text[size - 1], '\0');
  return std::string(text, static_cast<std::size_t>(size - 1));
}

TEST_F(InkQueries, ASlotAnswersThroughItsVirtualTable) {
  ASSERT_TRUE(
      InitializeDefinition("PrinterInkSlotNum=2\nColorCodeInkSlot1=4\nInkTypeCodeInkSlot1=113\n"
                           "ColorCodeInkSlot2=4\nInkTypeCodeInkSlot2=99\n"));
  const struct {
    std::uint32_t color, inkType;
    const char* id;
    const char* name;
    bool valid;
  } cases[] = {{4, 113, "113004", "KP-300 Black", true}, {0, 0, "000000", "null of size 0", false}};
  std::uint32_t number = 0;
  for (const auto& c : cases) {
    InkSlot* slot = nullptr;
    ASSERT_TRUE(TavrinGetInkSlot(++number, &slot));
    std::uint32_t code = 77;
    EXPECT_TRUE(slot->GetColorCode(&code));
    EXPECT_EQ(code, c.color);
    EXPECT_TRUE(slot->GetInkTypeCode(&code));
    EXPECT_EQ(code, c.inkType);
    EXPECT_EQ(TextOf(*slot, &InkSlot::GetInkId), c.id);
    EXPECT_EQ(TextOf(*slot, &InkSlot::GetInkName), c.name);
    EXPECT_EQ(slot->IsValid(), c.valid);
    std::int32_t size = 7;
    EXPECT_FALSE(slot->GetInkId(nullptr, &size));
    EXPECT_FALSE(slot->GetInkName(nullptr, &size));
    EXPECT_EQ(size, 7);
  }
}

}  // namespace
}  // namespace tavrin::test

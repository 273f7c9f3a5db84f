#include <new>
#include <string>

#include "InkSlot.h"
#include "fault/SystemFaultTest.h"

namespace tavrin::test {
namespace {

enum class Result { True, False, Threw };

/// Makes call fail at its first allocation, its second and so on until there are no more, and looks
/// at each result with check.
template <typename Call, typename Check>
void ForEveryAllocation(Call call, Check check) {
  for (const auto failing : {Allocations::Failing::Once, Allocations::Failing::FromThereOn}) {
    bool isReached = true;
    for (long n = 1; isReached; ++n) {
      SCOPED_TRACE("request " + std::to_string(n));
      Result result = Result::Threw;
      Allocations::FailAt(n, failing);
      try {
        result = call() ? Result::True : Result::False;
      } catch (const std::bad_alloc&) {
      }
      isReached = Allocations::Disarm() >= n;
      check(result);
      if (testing::Test::HasFailure()) return;
      EXPECT_TRUE(isReached || (n > 1 && result == Result::True));
    }
  }
}

class AllocationFault : public SystemFaultTest {};

TEST_F(AllocationFault, AnInitialisationLoadsAllOrNothing) {
  SetLastErrorAside();
  long before = 0;
  ForEveryAllocation(
      [&] {
        before = Allocations::Live();
        return TavrinInitialize(definition.c_str());
      },
      [&](Result result) {
        if (result == Result::True) {
          EXPECT_EQ(AskEverything(), answers);
          TavrinFinalize();
        } else {
          const auto code = result == Result::Threw ? ErrorInvalidArgument : ErrorFailed;
          EXPECT_EQ(LastError(), static_cast<std::uint32_t>(code));
          ExpectNoDefinition();
        }
        EXPECT_EQ(Allocations::Live(), before);
        ExpectAllInOrder();
        SetLastErrorAside();
      });
}

TEST_F(AllocationFault, AConditionsFileIsWrittenWholeOrNotTouched) {
  const std::string older = folder.Write("older.dat", "older");
  const std::string newer = folder.PathOf("newer.dat");
  for (const std::string& path : {older, newer}) {
    ASSERT_TRUE(TavrinInitialize(definition.c_str()));
    const std::string untouched = path == older ? "older" : "";
    long before = 0;
    ForEveryAllocation(
        [&] {
          SetLastErrorAside();
          before = Allocations::Live();
          return TavrinCreateModelingConditionsFile(path.c_str());
        },
        [&](Result result) {
          EXPECT_EQ(Allocations::Live(), before);
          EXPECT_NE(result, Result::False);
          EXPECT_EQ(LastError(), static_cast<std::uint32_t>(ErrorInvalidArgument));
          const bool written = result == Result::True;
          EXPECT_EQ(ReadWhole(path), written ? ReadWhole(definition) : untouched);
          EXPECT_EQ(std::filesystem::exists(path), written || path == older);
          EXPECT_EQ(AskEverything(), answers);
          if (path == older) folder.Write("older.dat", untouched);
          if (path == newer) std::filesystem::remove(path);
        });
    TavrinFinalize();
    ExpectAllInOrder();
  }
}

/// Looks at what get hands out in every case: an array and its count, or neither.
template <typename Element, typename Get>
void ExpectBothOrNeither(Get get) {
  Element* array = nullptr;
  std::int32_t count = 77;
  ForEveryAllocation([&] { return get(&array, &count); },
                     [&](Result result) {
                       EXPECT_EQ(array != nullptr, result == Result::True);
                       EXPECT_EQ(count != 77, result == Result::True);
                       delete[] array;
                       array = nullptr;
                       count = 77;
                     });
}

TEST_F(AllocationFault, WhatIsNotHandedOutLeavesBothOutputsUntouched) {
  ASSERT_TRUE(TavrinInitialize(definition.c_str()));
  InkSlot* slot = nullptr;
  ASSERT_TRUE(TavrinGetInkSlot(1, &slot));
  ExpectBothOrNeither<char>([=](auto... out) { return slot->GetInkId(out...); });
  ExpectBothOrNeither<char>([=](auto... out) { return slot->GetInkName(out...); });
  ExpectBothOrNeither<std::int32_t>(
      [](auto... out) { return TavrinGetInkSlotNumConposeInkCategory(0, out...); });
}

}  // namespace
}  // namespace tavrin::test

#include <cerrno>
#include <cstdio>
#include <functional>
#include <limits>
#include <new>
#include <string>

#include <dlfcn.h>
#include <locale.h>

#include "InkSlot.h"
#include "TavrinRelease.h"
#include "fault/SystemFaultTest.h"

namespace {

bool localesFail = false;

}  // namespace

// In place of the C library's, for the shared library too.
extern "C" __attribute__((visibility("default"))) locale_t newlocale(int categories,
                                                                     const char* name,
                                                                     locale_t base) noexcept {
  static const auto real = reinterpret_cast<decltype(&newlocale)>(dlsym(RTLD_NEXT, "newlocale"));
  if (!localesFail) return real(categories, name, base);
  errno = ENOMEM;
  return nullptr;
}

namespace tavrin::test {
namespace {

enum class Result { True, False, Threw };

/// Makes call fail at its first allocation, its second and so on until there are no more, and looks
/// at each result with check. Prints how many there are.
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
      if (!isReached) std::printf("%ld requests, each made to fail\n", n - 1);
    }
  }
}

class AllocationFault : public SystemFaultTest {};

TEST_F(AllocationFault, AnInitialisationLoadsAllOrNothingInPlaceOfWhatWasLoaded) {
  for (const char* lines : {kLines, ""}) {  // with all its own, and with all that is built in
    const std::string path = folder.WriteEnciphered("loaded.dat", Definition(lines));
    ASSERT_TRUE(TavrinInitialize(path.c_str()));
    const std::string expected = AskEverything();
    SetLastErrorAside();
    long before = 0;
    ForEveryAllocation(
        [&] {
          before = Allocations::Live();
          return TavrinInitialize(path.c_str());
        },
        [&](Result result) {
          if (result == Result::True) {
            EXPECT_EQ(AskEverything(), expected);
          } else {
            EXPECT_EQ(LastError(), result == Result::Threw ? ErrorInvalidArgument : ErrorFailed);
            ExpectNoDefinition();
          }
          ExpectAllInOrder();
          ASSERT_TRUE(TavrinInitialize(path.c_str()));
          SetLastErrorAside();
          EXPECT_EQ(Allocations::Live(), before);
        });
  }
}

TEST_F(AllocationFault, NoMemoryForALocaleIsNotTakenForNoLocale) {
  SetLastErrorAside();
  localesFail = true;
  EXPECT_THROW(TavrinInitialize(definition.c_str()), std::bad_alloc);
  localesFail = false;
  EXPECT_EQ(LastError(), ErrorInvalidArgument);
  ExpectNoDefinition();
  ExpectAllInOrder();
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
          EXPECT_EQ(LastError(), ErrorInvalidArgument);
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
                       TavrinRelease(array);
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

/// How often call asks for memory.
long RequestsOf(const std::function<bool()>& call) {
  Allocations::FailAt(std::numeric_limits<long>::max(), Allocations::Failing::Once);
  call();
  return Allocations::Disarm();
}

TEST_F(AllocationFault, OnlyWhatHandsOutAnArrayAllocates) {
  std::uint32_t n[3] = {};
  std::int32_t mode[6] = {};
  char info[384] = {};
  bool flag = false;
  double size = 0;
  InkSlot* slot = nullptr;
  const auto ask = [&] {
    return TavrinGetLastError(n) && TavrinGetAreaSize(&n[0], &n[1], &n[2]) &&
           TavrinGetAreaMarginSize(n) && TavrinGetModeCount(n) && TavrinGetModeConfig(0, mode) &&
           TavrinGetTopSupportThickness(n) && TavrinGetSideSupportThickness(10000, n) &&
           TavrinGetDetachLayerHeight(n) && TavrinGetSmoothing(&flag) &&
           TavrinGetFeedBiDirection(&flag) && TavrinGetWrapReduction(&flag) &&
           TavrinGetWarpWarning(0, &flag) && TavrinGetInfo(info) && TavrinGetHeadBandSize(&size) &&
           TavrinGetDefaultPrintMode(n) && TavrinGetChippingAllowance(n) &&
           TavrinGetSupportSize(n) && TavrinGetAutoCleaning(&flag) &&
           TavrinGetCheckNozzleWhilePrinting(&flag) && TavrinGetItemCountOfInkCategory(n) &&
           TavrinGetItemCountOfInkSlot(n) && TavrinGetInkSlot(2, &slot) && !slot->IsValid() &&
           slot->GetColorCode(n) && slot->GetInkTypeCode(n) && TavrinGetInkSlot(1, &slot) &&
           slot->IsValid() && slot->GetColorCode(n) && slot->GetInkTypeCode(n);
  };
  ASSERT_TRUE(InitializeDefinition(
      std::string("PrinterInkSlotNum=2\nColorCodeInkSlot2=77\nInkTypeCodeInkSlot2=9\n") + kLines));
  EXPECT_TRUE(ask());
  EXPECT_EQ(RequestsOf(ask), 0);
  std::int32_t count = 0;
  char* id = nullptr;
  EXPECT_EQ(RequestsOf([&] { return slot->GetInkId(&id, &count); }), 1) << "what an array takes";
  TavrinRelease(id);
}

}  // namespace
}  // namespace tavrin::test

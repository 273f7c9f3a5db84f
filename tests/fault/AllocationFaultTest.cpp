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

}  // namespace
}  // namespace tavrin::test

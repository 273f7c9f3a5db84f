// Other processes that get in the way of a load's plain copy.
#include <chrono>
#include <functional>
#include <stdexcept>
#include <thread>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "fault/SystemFaultTest.h"

namespace tavrin::test {
namespace {

/// A process that does the same thing again and again until it is ended.
class Rival {
 public:
  explicit Rival(const std::function<void()>& act) : id_(fork()) {
    if (id_ < 0) throw std::runtime_error("no process");
    if (id_ == 0) DoForEver(act);
  }
  ~Rival() {
    kill(id_, SIGKILL);
    waitpid(id_, nullptr, 0);
  }
  Rival(const Rival&) = delete;
  Rival& operator=(const Rival&) = delete;

  void Stop() const { kill(id_, SIGSTOP); }

 private:
  /// Ends with the test at the latest; an exception does not get out into the tests.
  [[noreturn]] static void DoForEver(const std::function<void()>& act) noexcept {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    for (;;)
      act();
  }

  pid_t id_;
};

class RivalTest : public SystemFaultTest {
 protected:
  void ExpectLoads(int count) const {
    for (int i = 0; i < count; ++i) {
      ASSERT_TRUE(TavrinInitialize(definition.c_str()));
      char info[384] = {};
      ASSERT_TRUE(TavrinGetInfo(info));
      ASSERT_STREQ(info, kModel);
    }
    TavrinFinalize();
  }

  /// Loads a definition of the same file name and another content.
  void LoadTheOther() const { TavrinInitialize(other.c_str()); }

  /// What a moment in the middle of a load takes some of.
  static void WaitForAMoment(int i) {
    std::this_thread::sleep_for(std::chrono::microseconds(500 + i * 37 % 1000));
  }

  static constexpr char kModel[] = "Mod\xC3\xA8le de table";
  const std::string other = [this] {
    std::filesystem::create_directory(folder.PathOf("other"));
    return folder.WriteEnciphered("other/printer.dat", Definition("ModelName=Other\n"));
  }();
};

TEST_F(RivalTest, OneThatIsKilledInTheMiddleOfALoadLeavesNothingToTheNext) {
  for (int i = 0; i < 200; ++i) {
    {
      const Rival rival([this] { LoadTheOther(); });
      WaitForAMoment(i);
    }
    ExpectLoads(1);
    ASSERT_EQ(EntriesOf(temporary), 0);
  }
}

TEST_F(RivalTest, OneThatIsStoppedInTheMiddleOfALoadHoldsNobodyUp) {
  for (int i = 0; i < 50; ++i) {
    const Rival rival([this] { LoadTheOther(); });
    WaitForAMoment(i);
    rival.Stop();
    ExpectLoads(10);
  }
  ExpectAllInOrder();
}

TEST_F(RivalTest, OneThatPutsItsOwnFileInPlaceAllTheTimeIsNeverBelieved) {
  const std::string planted = folder.Write("planted", Definition("ModelName=Planted\n"));
  const std::string link = folder.PathOf("link");
  {
    const Rival rival([&] {
      std::error_code ignored;
      std::filesystem::create_hard_link(planted, link, ignored);
      std::filesystem::rename(link, plainCopy, ignored);
    });
    while (ReadWhole(plainCopy) != ReadWhole(planted))
      std::this_thread::yield();
    ExpectLoads(2000);
  }
  std::filesystem::remove(plainCopy);
  ExpectAllInOrder();
}

}  // namespace
}  // namespace tavrin::test

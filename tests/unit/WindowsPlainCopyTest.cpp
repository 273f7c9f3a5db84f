// What other processes of the session do to a load; threads stand for them, as a mutex knows only
// threads.
#include <chrono>
#include <fstream>
#include <thread>

#include <gtest/gtest.h>

#include "definition/PrinterConfig.h"
#include "definition/TemporaryPath.h"
#include "platform/PlainCopy.h"
#include "support/TestFiles.h"

namespace tavrin {
namespace {

using test::Definition;
using test::TestFolder;

TEST(WindowsPlainCopy, ALoadWaitsTenSecondsForAnotherProcessThenTouchesNothing) {
  const TestFolder folder;
  const std::string path = folder.WriteEnciphered("printer.dat", Definition(""));
  std::string inUpperCase = MakeTemporaryPath(path);
  for (char& c : inUpperCase)
    c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  const platform::PlainCopy held(inUpperCase);
  std::ofstream(inUpperCase) << "the other's";

  bool loaded = true;
  std::chrono::duration<double> waited{};
  std::thread([&] {
    const auto start = std::chrono::steady_clock::now();
    loaded = PrinterConfig().Load(path);
    waited = std::chrono::steady_clock::now() - start;
  }).join();
  EXPECT_FALSE(loaded);
  EXPECT_NEAR(waited.count(), 10.0, 1.0);
  EXPECT_EQ(test::ReadWhole(inUpperCase), "the other's");
}

TEST(WindowsPlainCopy, AProcessThatEndedInTheMiddleOfALoadHoldsNobodyUp) {
  const TestFolder folder;
  const std::string path = folder.WriteEnciphered("printer.dat", Definition(""));
  // Never destroyed by the thread that made it.
  platform::PlainCopy* abandoned = nullptr;
  std::thread([&] { abandoned = new platform::PlainCopy(MakeTemporaryPath(path)); }).join();
  EXPECT_TRUE(PrinterConfig().Load(path));
  delete abandoned;
}

}  // namespace
}  // namespace tavrin

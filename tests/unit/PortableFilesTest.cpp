// What the file system of this platform can put in a library's way: links, pipes, directories.
#include <atomic>
#include <chrono>
#include <csignal>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "definition/FileLoader.h"
#include "definition/PrinterConfig.h"
#include "platform/HostPaths.h"
#include "platform/PlainCopy.h"
#include "support/Situation.h"
#include "support/TestFiles.h"

namespace tavrin {
namespace {

using test::Definition;
using test::ReadWhole;
using test::TestFolder;

constexpr unsigned char kBlock[] = {'p', 'l', 'a', 'i', 'n'};

mode_t ModeOf(const std::string& path) {
  struct stat status {};
  EXPECT_EQ(lstat(path.c_str(), &status), 0) << path;
  return status.st_mode;
}

TEST(PortableFiles, ThePlainCopyIsTheOwnersAlone) {
  const TestFolder folder;
  const mode_t previous = umask(0);
  // A file of wider permissions that lay there before does not lend them to the copy.
  const std::string path = folder.Write("copy", "older");
  EXPECT_EQ(ModeOf(path) & 0777, 0666u);
  platform::PlainCopy copy(path);
  EXPECT_TRUE(copy.Write(kBlock, sizeof kBlock));
  umask(previous);
  EXPECT_EQ(ModeOf(path) & 0777, 0600u);
  EXPECT_EQ(ReadWhole(path), "plain");
}

TEST(PortableFiles, OnlyRegularFilesLoad) {
  const TestFolder folder;
  const std::string pipe = folder.PathOf("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  const std::string loop = folder.PathOf("loop");
  std::filesystem::create_symlink(loop, loop);
  for (const std::string& path : {pipe, loop, folder.PathOf(""), std::string("/dev/zero"),
                                  std::string("/dev/full"), std::string(5000, 'x')}) {
    EXPECT_FALSE(FileLoader().LoadFromFile(path)) << path;
    EXPECT_FALSE(PrinterConfig().Load(path)) << path;
  }
  const std::string link = folder.PathOf("link.dat");
  std::filesystem::create_symlink(folder.WriteEnciphered("printer.dat", Definition("")), link);
  EXPECT_TRUE(PrinterConfig().Load(link)) << "a link to a regular file is one";
}

TEST(PortableFiles, AFileOnWhichALeaseIsHeldLoads) {
  const TestFolder folder;
  const std::string path = folder.WriteEnciphered("printer.dat", Definition(""));
  const int leased = open(path.c_str(), O_RDWR | O_CLOEXEC);
  // Who holds a lease is told by this signal that somebody wants the file, and takes some time.
  static std::atomic<bool> isWanted{false};
  std::signal(SIGIO, [](int) { isWanted = true; });
  ASSERT_EQ(fcntl(leased, F_SETLEASE, F_WRLCK), 0);
  std::thread holder([leased] {
    while (!isWanted)
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    fcntl(leased, F_SETLEASE, F_UNLCK);
  });
  EXPECT_TRUE(PrinterConfig().Load(path));
  EXPECT_EQ(fcntl(leased, F_GETLEASE), F_UNLCK) << "it was broken";
  isWanted = true;
  holder.join();
  std::signal(SIGIO, SIG_DFL);
  close(leased);
}

TEST(PortableFiles, TmpdirNamesTheTemporaryDirectory) {
  const struct {
    const char* value;
    const char* directory;
  } cases[] = {
      {"/var/tmp", "/var/tmp/"}, {"/var/tmp/", "/var/tmp/"}, {"", "/tmp/"}, {nullptr, "/tmp/"}};
  for (const auto& c : cases) {
    const auto chosen = test::Variable("TMPDIR", c.value);
    EXPECT_EQ(platform::GetTempDirectory(), c.directory);
  }
}

}  // namespace
}  // namespace tavrin

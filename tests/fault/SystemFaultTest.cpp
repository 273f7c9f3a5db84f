#include "fault/SystemFaultTest.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <functional>

#include <dlfcn.h>
#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include "definition/TextConversion.h"
#include "platform/Profile.h"

namespace {

bool transfersAreSlow = false;
/// Whether a process that another thread starts meanwhile would have had a file of them open.
bool filesAreInherited = false;

/// Of openings and transfers every other one.
bool Interrupts() {
  static bool interrupts = false;
  interrupts = transfersAreSlow && !interrupts;
  if (interrupts) errno = EINTR;
  return interrupts;
}

/// Cuts the transfers that it lets pass to seven bytes.
bool Interrupts(int file, std::size_t* n) {
  if (transfersAreSlow && (fcntl(file, F_GETFD) & FD_CLOEXEC) == 0) filesAreInherited = true;
  if (transfersAreSlow) *n = std::min<std::size_t>(*n, 7);
  return Interrupts();
}

}  // namespace

// In place of the C library's, for the shared library too.
extern "C" __attribute__((visibility("default"))) int open(const char* path, int flags, ...) {
  static const auto real = reinterpret_cast<decltype(&open)>(dlsym(RTLD_NEXT, "open"));
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) == 0 ? 0 : va_arg(arguments, mode_t);
  va_end(arguments);
  return Interrupts() ? -1 : real(path, flags, mode);
}

extern "C" __attribute__((visibility("default"))) ssize_t read(int file, void* block, size_t n) {
  static const auto real = reinterpret_cast<decltype(&read)>(dlsym(RTLD_NEXT, "read"));
  return Interrupts(file, &n) ? -1 : real(file, block, n);
}

extern "C" __attribute__((visibility("default"))) ssize_t pwrite(int file, const void* block,
                                                                 size_t n, off_t offset) {
  static const auto real = reinterpret_cast<decltype(&pwrite)>(dlsym(RTLD_NEXT, "pwrite"));
  return Interrupts(file, &n) ? -1 : real(file, block, n, offset);
}

namespace tavrin::test {
namespace {

Situation StandardInputClosed() {
  const int input = dup(STDIN_FILENO);
  close(STDIN_FILENO);
  return Until([=] {
    dup2(input, STDIN_FILENO);
    close(input);
  });
}

Situation NoDescriptorsLeft() {
  const int lowestFree = dup(STDIN_FILENO);
  close(lowestFree);
  return Limit(RLIMIT_NOFILE, static_cast<rlim_t>(lowestFree));
}

/// Takes the rights to path down to mode. Permission bits stop everyone but root, who acts as
/// somebody else meanwhile.
Situation Rights(const std::string& path, mode_t mode) {
  constexpr uid_t kNobody = 65534;
  struct stat previous {};
  EXPECT_EQ(stat(path.c_str(), &previous), 0);
  EXPECT_EQ(chmod(path.c_str(), mode), 0);
  const bool isRoot = geteuid() == 0;
  EXPECT_EQ(isRoot ? seteuid(kNobody) : 0, 0);
  return Until([=] {
    EXPECT_EQ(isRoot ? seteuid(0) : 0, 0);
    chmod(path.c_str(), previous.st_mode & 07777);
  });
}

Situation TemporaryDirectory(const std::string& path) {
  return Variable("TMPDIR", path.c_str());
}

/// path, made length characters long by way of "the same directory".
std::string Lengthened(const std::string& path, std::size_t length) {
  const std::size_t slash = path.rfind('/') + 1;
  std::string filler;
  while (path.size() + filler.size() + 2 <= length)
    filler += "./";
  if (path.size() + filler.size() < length) filler.insert(0, "/");
  return path.substr(0, slash) + filler + path.substr(slash);
}

constexpr char kFullDevice[] = "/dev/full";

class SystemFault : public SystemFaultTest {
 protected:
  /// Takes the place of the plain copy by way of place, and leaves it free again.
  Situation AtThePlainCopy(const std::function<void(const std::string&)>& place) const {
    place(plainCopy);
    return Until([this] { std::filesystem::remove_all(plainCopy); });
  }

  /// Writes the plain definition of another printer to path.
  std::string Plant(const std::string& path) const {
    return folder.Write(path, Definition("ModelName=Planted\n"));
  }

  /// Another printer's definition lies in the plain copy's place, another user's where the tests
  /// run as root, in a directory of these rights.
  Situation PlantedPlainCopy(mode_t rights) const {
    Situation copy = AtThePlainCopy([&](auto path) { Plant(path); });
    return Until([copy, rights = Rights(temporary, rights)]() mutable { rights.reset(); });
  }

  const std::string precious = folder.Write("precious", "precious");
};

TEST_F(SystemFault, AnInitialisationSucceedsOrLoadsNothing) {
  using std::filesystem::create_directories;
  using std::filesystem::create_hard_link;
  using std::filesystem::create_symlink;
  const std::string longName = std::string(240, 'n') + ".dat";
  const bool isRoot = geteuid() == 0;
  const struct {
    const char* name;
    std::function<Situation()> begin;
    bool loads;
    std::string path = {};   // instead of the definition
    bool keepsCopy = false;  // what lies in the place of the plain copy stays there
  } situations[] = {
      {"missing temporary directory", [&] { return TemporaryDirectory(temporary + "/none"); },
       false},
      {"a file as temporary directory", [&] { return TemporaryDirectory(precious); }, false},
      {"temporary directory that cannot be written to", [&] { return Rights(temporary, 0555); },
       false},
      {"full file system", [] { return FilesEndAt(0); }, false},
      {"no descriptors left", [] { return NoDescriptorsLeft(); }, false},
      {"standard input closed", [] { return StandardInputClosed(); }, true},
      {"unreadable definition", [&] { return Rights(definition, 0); }, false},
      {"unsearchable directory", [&] { return Rights(folder.PathOf(""), 0); }, false},
      {"a file as directory", [] { return nullptr; }, false, precious + "/printer.dat"},
      {"the longest path", [] { return nullptr; }, true, Lengthened(definition, 4095)},
      {"a path that is too long", [] { return nullptr; }, false, Lengthened(definition, 4096)},
      {"a name that leaves no room for the plain copy's", [] { return nullptr; }, false,
       folder.Write(longName, ReadWhole(definition))},
      {"directory at the plain copy",
       [&] { return AtThePlainCopy([](auto path) { create_directories(path + "/full"); }); }, false,
       definition, true},
      {"empty directory at the plain copy",
       [&] { return AtThePlainCopy([](auto path) { create_directories(path); }); }, false},
      {"file at the plain copy that nobody can replace", [&] { return PlantedPlainCopy(0555); },
       false, definition, true},
      {"file at the plain copy that only its owner can replace",
       [&] { return PlantedPlainCopy(01777); }, !isRoot, definition, isRoot},
      {"file at the plain copy that everyone can replace", [&] { return PlantedPlainCopy(0777); },
       true},
      {"read-only file at the plain copy",
       [&] { return AtThePlainCopy([&](auto path) { chmod(Plant(path).c_str(), 0400); }); }, true},
      {"pipe at the plain copy",
       [&] { return AtThePlainCopy([](auto path) { mkfifo(path.c_str(), 0600); }); }, true},
      {"another name of a file at the plain copy",
       [&] { return AtThePlainCopy([&](auto path) { create_hard_link(precious, path); }); }, true},
      {"link at the plain copy",
       [&] { return AtThePlainCopy([&](auto path) { create_symlink(precious, path); }); }, true},
      {"link to nowhere at the plain copy",
       [&] { return AtThePlainCopy([&](auto path) { create_symlink("nowhere", path); }); }, true},
      {"link to itself at the plain copy",
       [&] { return AtThePlainCopy([&](auto path) { create_symlink(path, path); }); }, true},
  };
  for (const auto& situation : situations) {
    SCOPED_TRACE(situation.name);
    const std::string& path = situation.path.empty() ? definition : situation.path;
    ASSERT_TRUE(TavrinInitialize(definition.c_str()));
    SetLastErrorAside();
    Situation failing = situation.begin();
    const bool loaded = TavrinInitialize(path.c_str());
    std::error_code error;
    const auto copy = std::filesystem::symlink_status(plainCopy, error);
    failing.reset();
    EXPECT_EQ(loaded, situation.loads);
    EXPECT_EQ(std::filesystem::exists(copy), situation.keepsCopy);
    EXPECT_EQ(LastError(), loaded ? ErrorInvalidArgument : ErrorFailed);
    if (loaded) {
      EXPECT_EQ(AskEverything(), answers);
      TavrinFinalize();
    } else {
      ExpectNoDefinition();
    }
    EXPECT_EQ(ReadWhole(precious), "precious");
    ExpectAllInOrder();
  }
}

TEST_F(SystemFault, AConditionsFileSucceedsOnceItIsOpen) {
  const std::string fresh = folder.PathOf("conditions.dat");
  const std::string content = ReadWhole(definition);
  const struct {
    const char* name;
    std::function<Situation()> begin;
    std::string path;
    bool opens;
    std::string written = {};  // what the file holds afterwards, if there is one
  } situations[] = {
      {"full device", [] { return nullptr; }, kFullDevice, true},
      {"full file system", [] { return FilesEndAt(0); }, fresh, true},
      {"file system with room for a part", [] { return FilesEndAt(100); }, fresh, true,
       content.substr(0, 100)},
      {"no descriptors left", [] { return NoDescriptorsLeft(); }, fresh, false},
      {"directory that cannot be written to", [&] { return Rights(folder.PathOf(""), 0555); },
       fresh, false},
      {"file that cannot be written to", [&] { return Rights(precious, 0444); }, precious, false,
       "precious"},
      {"a file as directory", [] { return nullptr; }, precious + "/conditions.dat", false},
      {"directory", [] { return nullptr; }, temporary, false},
      {"the longest path", [] { return nullptr; }, Lengthened(fresh, 4095), true, content},
      {"a path that is too long", [] { return nullptr; }, Lengthened(fresh, 4096), false},
  };
  for (const auto& situation : situations) {
    SCOPED_TRACE(situation.name);
    ASSERT_TRUE(TavrinInitialize(definition.c_str()));
    SetLastErrorAside();
    Situation failing = situation.begin();
    const bool opened = TavrinCreateModelingConditionsFile(situation.path.c_str());
    failing.reset();
    EXPECT_EQ(opened, situation.opens);
    const auto code = opened ? ErrorInvalidArgument : ErrorWriteFailed;
    EXPECT_EQ(LastError(), code);
    EXPECT_EQ(situation.path == kFullDevice ? "" : ReadWhole(situation.path), situation.written);
    EXPECT_EQ(AskEverything(), answers) << "the definition stays loaded";
    EXPECT_EQ(std::filesystem::remove(fresh), opened && situation.path != kFullDevice);
    ExpectAllInOrder();
  }
}

TEST_F(SystemFault, InterruptedTransfersOfAFewBytesAreGoneOnWith) {
  // The first file that is opened gets the lowest number, which is no failure.
  Situation closed = StandardInputClosed();
  transfersAreSlow = true;
  EXPECT_TRUE(TavrinInitialize(definition.c_str()));
  const std::wstring profile = WideCopy(folder.Write("a.ini", "[S]\r\nKey=1\r\n"));
  EXPECT_TRUE(platform::WriteProfileValue(L"S", L"A key", L"a value", profile.c_str()));
  transfersAreSlow = false;
  EXPECT_EQ(fcntl(STDIN_FILENO, F_GETFD), -1) << "it was closed again";
  closed.reset();
  EXPECT_FALSE(filesAreInherited);
  EXPECT_EQ(AskEverything(), answers);
  EXPECT_EQ(ReadWhole(folder.PathOf("a.ini")), "[S]\r\nKey=1\r\nA key=a value\r\n");
  ExpectAllInOrder();
}

TEST_F(SystemFault, AFullFileSystemHoldsNoPlainCopyAfterwards) {
  // A mount of the process's own, which goes with it whatever happens.
  if (unshare(CLONE_NEWNS) != 0 || mount("none", "/", "", MS_REC | MS_PRIVATE, nullptr) != 0 ||
      mount("tmpfs", temporary.c_str(), "tmpfs", 0, "size=4096") != 0) {
    GTEST_SKIP() << "no file system can be mounted here";
  }
  const Situation mounted = Until([&] { EXPECT_EQ(umount(temporary.c_str()), 0); });
  const std::string filler = folder.Write("temporary/filler", std::string(4096, 'x'));
  EXPECT_FALSE(TavrinInitialize(definition.c_str()));
  EXPECT_EQ(LastError(), ErrorFailed);
  ExpectNoDefinition();
  EXPECT_EQ(EntriesOf(temporary), 1);

  ASSERT_TRUE(std::filesystem::remove(filler));
  ASSERT_TRUE(TavrinInitialize(definition.c_str()));
  folder.Write("temporary/filler", std::string(4096, 'x'));
  const std::string conditions = temporary + "/conditions.dat";
  EXPECT_TRUE(TavrinCreateModelingConditionsFile(conditions.c_str()));
  EXPECT_EQ(ReadWhole(conditions), "");
  EXPECT_EQ(AskEverything(), answers);
}

TEST_F(SystemFault, ATruncatedPlainCopyIsReadAsFarAsItGoes) {
  SetLastErrorAside();
  // Whole lines: "[printer]", the version and the model name.
  Situation failing = FilesEndAt(Definition("ModelName=Mod\xC3\xA8le de table\n").size());
  ASSERT_TRUE(TavrinInitialize(definition.c_str()));
  failing.reset();
  char info[384] = {};
  EXPECT_TRUE(TavrinGetInfo(info));
  EXPECT_STREQ(info, "Mod\xC3\xA8le de table");
  std::uint32_t margin = 0;
  EXPECT_TRUE(TavrinGetAreaMarginSize(&margin));
  EXPECT_EQ(margin, 5u) << "a key behind the cut is a missing one";
  TavrinFinalize();
  ExpectAllInOrder();
}

}  // namespace
}  // namespace tavrin::test

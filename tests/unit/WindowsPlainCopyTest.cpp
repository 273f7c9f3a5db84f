// What other processes of the session do to a load; threads stand for them, as a mutex knows only
// threads.
#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
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

TEST(WindowsPlainCopy, WhatLiesInItsPlaceIsNeitherReadNorWritten) {
  namespace fs = std::filesystem;
  const TestFolder folder;
  const std::string path = folder.WriteEnciphered("printer.dat", Definition("ModelName=Own\n"));
  const std::string foreign = Definition("ModelName=Planted\n");
  const fs::path planted = folder.Write("planted", foreign);
  const fs::path copy = MakeTemporaryPath(path);
  // Never destroyed by the thread that made it.
  std::unique_ptr<platform::PlainCopy> abandoned;
  const struct {
    const char* name;
    std::function<void()> place;
  } situations[] = {
      {"file", [&] { fs::copy_file(planted, copy); }},
      {"read-only file",
       [&] {
         fs::copy_file(planted, copy);
         fs::permissions(copy, fs::perms::owner_read);
       }},
      {"another name of a file", [&] { fs::create_hard_link(planted, copy); }},
      {"file of a process that ended in the middle of its load",
       [&] {
         std::thread([&] {
           abandoned = std::make_unique<platform::PlainCopy>(copy.string());
           fs::copy_file(planted, copy);
         }).join();
       }},
  };
  for (const auto& situation : situations) {
    SCOPED_TRACE(situation.name);
    situation.place();
    PrinterConfig config;
    EXPECT_TRUE(config.Load(path));
    EXPECT_EQ(config.ModelName, "Own");
    EXPECT_FALSE(fs::exists(copy));
    EXPECT_EQ(test::ReadWhole(planted.string()), foreign);
  }
}

}  // namespace
}  // namespace tavrin

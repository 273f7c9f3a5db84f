#include <cstdlib>
#include <iterator>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "support/TestFiles.h"

namespace tavrin::test {

namespace {

/// Gives the process a temporary directory of its own: plain copies are named after the program and
/// the definition, so two runs of the same tests would share them.
class OwnTemporaryDirectory : public testing::Environment {
 public:
  void SetUp() override {
    folder_ = std::make_unique<TestFolder>();
    for (std::size_t i = 0; i < std::size(kVariables); ++i) {
      settings_[i] = kVariables[i] + folder_->PathOf("");
      putenv(settings_[i].data());
    }
  }
  // The variables go on pointing into settings_, which lives as long as the process.
  void TearDown() override { folder_.reset(); }

 private:
  static constexpr const char* kVariables[] = {"TMPDIR=", "TMP=", "TEMP="};

  std::unique_ptr<TestFolder> folder_;
  std::string settings_[std::size(kVariables)];
};

const testing::Environment* const kEnvironment =
    testing::AddGlobalTestEnvironment(new OwnTemporaryDirectory);

}  // namespace

}  // namespace tavrin::test

#include <filesystem>
#include <memory>
#include <utility>

#include <gtest/gtest.h>

#include "TavrinLib.h"
#include "api/LibraryInstance.h"
#include "check/Reading.h"
#include "keys/KeyFacts.h"
#include "support/Answers.h"
#include "support/TestFiles.h"

namespace tavrin::tool {
namespace {

/// The configuration that the exports answer from, in place of one that was loaded.
void Install(std::unique_ptr<PrinterConfig> config) {
  delete libraryInstance;
  libraryInstance = config.release();
}

TEST(WatchedReading, AnswersAsTheLoadedDefinitionDoes) {
  const test::TestFolder folder;
  int definitions = 0;
  for (const auto& entry : std::filesystem::directory_iterator(TAVRIN_TEST_DATA_DIR "/check")) {
    if (entry.path().extension() != ".ini") continue;
    SCOPED_TRACE(entry.path());
    const std::string content = test::ReadWhole(entry.path().string());
    Reading reading(Bytes(content.begin(), content.end()));
    ++definitions;
    const std::string definition = folder.WriteEnciphered("a.dat", content);
    ASSERT_EQ(TavrinInitialize(definition.c_str()), reading.loads);
    if (!reading.loads) continue;
    const std::string answers = test::AskEverything();
    Install(std::move(reading.config));
    EXPECT_EQ(test::AskEverything(), answers);
  }
  TavrinFinalize();
  EXPECT_GT(definitions, 30);
}

TEST(Modes, AnEntryWithoutAModeAnswersNothing) {
  auto config = std::make_unique<PrinterConfig>();
  config->Modes.emplace_back();
  Install(std::move(config));
  std::int32_t mode[6] = {};
  bool limited = false;
  lastErrorCode = ErrorInvalidArgument;
  EXPECT_FALSE(TavrinGetModeConfig(0, mode));
  EXPECT_FALSE(TavrinGetWarpWarning(0, &limited));
  EXPECT_EQ(lastErrorCode, ErrorInvalidArgument) << "the older code stays";
  TavrinFinalize();
}

TEST(KnownKeys, AreMatchedByTheirNumbersAndHaveFacts) {
  const std::vector<KnownKey> keys = ListKnownKeys();
  EXPECT_EQ(keys.size(), 34u);
  for (const KnownKey& key : keys) {
    EXPECT_NO_THROW(FactsOf(key.Shape()));
    for (const KnownKey& other : keys) {
      std::int32_t number = -1;
      EXPECT_EQ(other.Matches(key.WithNumber(12), &number), &other == &key) << key.Shape();
    }
  }
}

}  // namespace
}  // namespace tavrin::tool

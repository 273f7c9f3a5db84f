#include <filesystem>
#include <memory>
#include <utility>

#include <gtest/gtest.h>

#include "TavrinSession.h"
#include "api/LibraryInstance.h"
#include "check/Reading.h"
#include "facts/FactsJson.h"
#include "facts/PrinterFacts.h"
#include "keys/KeyFacts.h"
#include "support/TestFiles.h"

namespace tavrin::tool {
namespace {

/// The configuration that the exports answer from, in place of the one that was loaded.
void Install(std::unique_ptr<PrinterConfig> config) {
  delete libraryInstance;
  libraryInstance = config.release();
}

TEST(WatchedReading, ShowsAsTheLoadedDefinitionDoes) {
  const test::TestFolder folder;
  int definitions = 0;
  for (const auto& entry : std::filesystem::directory_iterator(TAVRIN_TEST_DATA_DIR "/check")) {
    if (entry.path().extension() != ".ini") continue;
    SCOPED_TRACE(entry.path());
    const std::string content = test::ReadWhole(entry.path().string());
    Reading reading(Bytes(content.begin(), content.end()));
    ++definitions;
    const std::string definition = folder.WriteEnciphered("a.dat", content);
    if (!reading.loads) {
      EXPECT_FALSE(TavrinInitialize(definition.c_str()));
      continue;
    }
    const tavrinlib::Session session(definition);
    const std::string loaded = FactsAsJson(AskPrinterFacts(session));
    Install(std::move(reading.config));
    EXPECT_EQ(FactsAsJson(AskPrinterFacts(session)), loaded);
  }
  EXPECT_GT(definitions, 30);
}

TEST(Modes, AnEntryWithoutAModeAnswersNothing) {
  auto config = std::make_unique<PrinterConfig>();
  config->Modes.emplace_back();
  Install(std::move(config));
  std::int32_t mode[6] = {};
  bool limited = false;
  EXPECT_FALSE(TavrinGetModeConfig(0, mode));
  EXPECT_FALSE(TavrinGetWarpWarning(0, &limited));
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

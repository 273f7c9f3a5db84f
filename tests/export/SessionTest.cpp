#include <clocale>
#include <string>

#include <gmock/gmock.h>

#include "TavrinSession.h"
#include "export/ExportTest.h"

namespace tavrin::test {
namespace {

using tavrinlib::Category;
using tavrinlib::Error;
using tavrinlib::Millimetres;
using tavrinlib::PrintMode;
using tavrinlib::Session;
using tavrinlib::Slot;
using testing::ElementsAre;
using testing::IsEmpty;

class SessionTest : public ExportTest {
 protected:
  Session Load(const std::string& lines) const {
    return Session(folder.WriteEnciphered("printer.dat", Definition(lines)));
  }
};

/// What an attempt throws: the message and the code.
template <typename Attempt>
std::string Thrown(Attempt attempt) {
  try {
    attempt();
  } catch (const Error& error) {
    EXPECT_EQ(error.what(), error.Call() + " failed: " + error.CodeName());
    return error.Call() + " " + std::to_string(error.Code()) + " " + error.CodeName();
  }
  return "nothing";
}

TEST_F(SessionTest, AnswersWhatTheDefinitionSays) {
  const Session session =
      Load("ModelName=" + std::string(128, 'm') +
           "\nIPAddress=10.0.0.1\nPrinterSize=500,480,-1\nPrintMargin=-0.005\n"
           "HeadBandSize=53.5\nDefaultMode=-3\nSupportThickness=0.15\nSupportExtend=2\n"
           "SupportExtendAngle=45\nDetachLayerSize=3.5\nSupportSizeSetting=-2\n"
           "CuttingMarginSetting=4\n");
  EXPECT_EQ(session.Identity().modelName, std::string(128, 'm'));
  EXPECT_EQ(session.Identity().version, "1.0");
  EXPECT_EQ(session.Identity().networkAddress, "10.0.0.1");
  const tavrinlib::Volume volume = session.BuildVolume();
  EXPECT_THAT((std::vector{volume.width.count, volume.depth.count, volume.height.count}),
              ElementsAre(500000, 480000, -1000));
  EXPECT_EQ(session.PrintMargin().count, -5);
  EXPECT_EQ(session.HeadBandSize().count, 53.5);
  EXPECT_EQ(session.DefaultMode(), -3);
  EXPECT_EQ(Millimetres(session.TopSupportThickness()).count, 0.15);
  EXPECT_EQ(session.DetachLayerHeight().count, 3500);
  EXPECT_EQ(session.SideSupportThickness({0}).count, 0);
  EXPECT_NEAR(session.SideSupportThickness({10000}).count, 2000 + 3500 + 150 + 10000, 1);
  EXPECT_EQ(session.SupportSize(), -2);
  EXPECT_EQ(session.ChippingAllowance(), 4);
}

TEST_F(SessionTest, EachSwitchAsksItsOwnExport) {
  const struct {
    const char* key;
    bool (Session::*ask)() const;
  } cases[] = {{"AntiAliasing", &Session::Smoothing},
               {"Reverse", &Session::FeedBiDirection},
               {"White_White", &Session::WrapReduction},
               {"AutoCleaningEnabled", &Session::AutoCleaning},
               {"NCUEnabled", &Session::CheckNozzleWhilePrinting}};
  for (const auto& on : cases) {
    std::string lines;
    for (const auto& c : cases)
      lines += c.key + std::string(&c == &on ? "=1\n" : c.key[0] == 'W' ? "=100\n" : "=0\n");
    const Session session = Load(lines);
    for (const auto& c : cases)
      EXPECT_EQ((session.*c.ask)(), &c == &on) << c.key << " of " << lines;
  }
}

TEST_F(SessionTest, ListsModesSlotsAndCategories) {
  const Session session = Load(
      "PrinterSize=1,1,1\nMode=3,2\nLimitationMode=2\n"
      "Mode3=600,4\nMode3SliceSize=0.025\nMode3ColorThickness=1\n"
      "Mode2=900,8\nMode2SliceSize=0\nMode2ColorThickness=1\nMode2LimitedContinuous=7\n"
      "NumOfColor=1\nColor001Code=1\nColor001Name=Cyan\n");
  const std::vector<PrintMode> modes = session.Modes();
  ASSERT_EQ(modes.size(), 2u);
  EXPECT_EQ(modes[0].number, 3);
  EXPECT_EQ(modes[0].sliceHeight.count, 25);
  EXPECT_EQ(modes[0].firstValue, 600);
  EXPECT_EQ(modes[0].secondValue, 4);
  EXPECT_EQ(modes[0].sliceCount, 40);
  EXPECT_EQ(modes[0].limitedContinuous, std::nullopt);
  EXPECT_FALSE(modes[0].limited);
  EXPECT_EQ(modes[1].sliceCount, std::nullopt);
  EXPECT_EQ(modes[1].limitedContinuous, 7);
  EXPECT_TRUE(modes[1].limited);

  std::vector<std::string> slots;
  for (const Slot& slot : session.Slots()) {
    slots.push_back(std::to_string(slot.number) + " " + std::to_string(slot.colorCode) + " " +
                    std::to_string(slot.inkTypeCode) + " " + slot.inkId + " " +
                    (slot.valid ? slot.inkName : "?"));
  }
  ASSERT_EQ(slots.size(), 8u);
  EXPECT_EQ(slots[0], "1 0 0 000000 ?");
  EXPECT_THAT(slots, testing::Contains("5 1 113 113001 KP-300 Cyan"));

  const std::vector<Category> categories = session.Categories();
  std::uint32_t count = 0;
  ASSERT_TRUE(TavrinGetItemCountOfInkCategory(&count));
  ASSERT_EQ(categories.size(), count);
  EXPECT_THAT(categories[2], IsEmpty());
  EXPECT_THAT(categories.back(), testing::Not(IsEmpty()));
}

TEST_F(SessionTest, AFailureThrowsWithItsCallAndCode) {
  EXPECT_EQ(Thrown([&] { Session(folder.PathOf("missing.dat")); }),
            "TavrinInitialize 1 ErrorFailed");
  const Session session = Load("ModelName=" + std::string(129, 'm') + "\n");
  EXPECT_EQ(Thrown([&] { session.Identity(); }), "TavrinGetInfo 1 ErrorFailed");
  EXPECT_EQ(Thrown([&] { session.WriteModelingConditions(folder.PathOf("no/such/file")); }),
            "TavrinCreateModelingConditionsFile 3 ErrorWriteFailed");
  EXPECT_EQ(Thrown([&] { session.PrintMargin(); }), "nothing");
  TavrinFinalize();
  EXPECT_EQ(Thrown([&] { session.Slots(); }), "TavrinGetItemCountOfInkSlot 2 ErrorNotInitialized");
}

TEST_F(SessionTest, TheNewestSessionHasTheDefinition) {
  const auto margin = [](const Session& session) { return session.PrintMargin().count; };
  const std::string ended = "TavrinGetAreaMarginSize 2 ErrorNotInitialized";
  Session first = Load("PrintMargin=1\n");
  {
    Session second = Load("PrintMargin=2\n");
    EXPECT_EQ(Thrown([&] { margin(first); }), ended);
    first = std::move(second);
    EXPECT_FALSE(second.IsOpen());
  }
  EXPECT_EQ(margin(first), 2000);
  first = Load("PrintMargin=3\n");
  EXPECT_EQ(margin(first), 3000);
  { const Session taken = std::move(first); }
  std::uint32_t raw = 0;
  EXPECT_FALSE(TavrinGetAreaMarginSize(&raw));

  const Session last = Load("");
  EXPECT_THROW(Session(folder.PathOf("missing.dat")), Error);
  EXPECT_EQ(Thrown([&] { margin(last); }), ended);
}

using DecimalCommaSessionTest = SessionTest;

TEST_F(DecimalCommaSessionTest, ReadsPointsAndLeavesTheHostItsComma) {
  if (!std::setlocale(LC_NUMERIC, "de_DE.CP1252") && !std::setlocale(LC_NUMERIC, "German"))
    GTEST_SKIP() << "no such locale";
  const std::string chosen = std::setlocale(LC_NUMERIC, nullptr);
  EXPECT_EQ(Load("HeadBandSize=53.5\n").HeadBandSize().count, 53.5);
  EXPECT_THROW(Session("missing"), Error);
  EXPECT_EQ(std::setlocale(LC_NUMERIC, nullptr), chosen);
  EXPECT_STREQ(std::localeconv()->decimal_point, ",");
  std::setlocale(LC_NUMERIC, "C");
}

}  // namespace
}  // namespace tavrin::test

#pragma once

#include "export/ExportTest.h"
#include "fault/Allocations.h"
#include "support/Answers.h"
#include "support/Situation.h"

namespace tavrin::test {

/// Tests of the shared library in a system that fails, with a temporary directory of their own that
/// must be empty whenever no call runs.
class SystemFaultTest : public ExportTest {
 protected:
  void SetUp() override {
    ExportTest::SetUp();
    std::filesystem::create_directory(temporary);
    std::filesystem::permissions(temporary, std::filesystem::perms::all);
    definition = folder.WriteEnciphered("printer.dat", Definition(kLines));
    // Once before anything is counted: the C and C++ libraries keep what they make first.
    ASSERT_TRUE(TavrinInitialize(definition.c_str()));
    answers = AskEverything();
    TavrinFinalize();
    descriptors = EntriesOf("/proc/self/fd");
  }

  /// Nothing lies about, and what went before does not show in the next use of the library.
  void ExpectAllInOrder() const {
    EXPECT_EQ(EntriesOf(temporary), 0);
    EXPECT_EQ(EntriesOf("/proc/self/fd"), descriptors);
    ASSERT_TRUE(TavrinInitialize(definition.c_str()));
    EXPECT_EQ(AskEverything(), answers);
    TavrinFinalize();
  }

  /// A query says that no definition is loaded.
  static void ExpectNoDefinition() {
    std::uint32_t margin = 77;
    EXPECT_FALSE(TavrinGetAreaMarginSize(&margin));
    EXPECT_EQ(margin, 77u);
    EXPECT_EQ(LastError(), ErrorNotInitialized);
  }

  // Every kind of key, none with its default, and a name that ASCII lacks.
  static constexpr char kLines[] =
      "ModelName=Mod\xC3\xA8le de "
      "table\nIPAddress=192.0.2.50\nPrinterSize=1000.5,2000.5,3000.5\nPrintMargin=4\n"
      "SupportThickness=0.3\nSupportExtend=2\nSupportExtendAngle=2\nDetachLayerSize=4\n"
      "AntiAliasing=0\nReverse=1\nWhite_White=1\nAutoCleaningEnabled=0\nNCUEnabled=1\n"
      "HeadBandSize=50.25\nDefaultMode=1007\nCuttingMarginSetting=2\nCuttingMarginThickness2=0.4\n"
      "Mode=1007\nMode1007=600,2\nMode1007SliceSize=0.04\nMode1007ColorThickness=0.5\n"
      "Mode1007LimitedContinuous=3\nLimitationMode=1007\n"
      "NumOfColor=1000\nColor001Code=1\nColor001Name=Cyan of the sea\n"
      "NumOfInkType=1\nInkType001Code=9\nInkType001Name=A long ink type\n"
      "PrinterInkSlotNum=1\nColorCodeInkSlot1=1\nInkTypeCodeInkSlot1=9\n";

  const std::string temporary = folder.PathOf("temporary");
  const Situation temporaryDirectory = Variable("TMPDIR", temporary.c_str());
  /// Where the plain copy of the definition goes.
  const std::string plainCopy = temporary + "/" +
                                std::filesystem::read_symlink("/proc/self/exe").stem().string() +
                                "_printer.bin";
  std::string definition;
  std::string answers;
  long descriptors = 0;
};

}  // namespace tavrin::test

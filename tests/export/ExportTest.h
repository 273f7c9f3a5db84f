#pragma once

#include <gtest/gtest.h>

#include "TavrinLib.h"
#include "support/TestFiles.h"

namespace tavrin::test {

inline TavrinErrorCode LastError() {
  std::uint32_t code = 7;  // within the enumeration, but no code
  EXPECT_TRUE(TavrinGetLastError(&code));
  return static_cast<TavrinErrorCode>(code);
}

/// Leaves the last-error code at a value that only TavrinInitialize stores.
inline void SetLastErrorAside() {
  EXPECT_FALSE(TavrinInitialize(nullptr));
  EXPECT_EQ(LastError(), ErrorInvalidArgument);
}

/// Tests of the shared library with a folder of their own; each starts and ends without a loaded
/// definition.
class ExportTest : public testing::Test {
 protected:
  void SetUp() override { TavrinFinalize(); }
  void TearDown() override { TavrinFinalize(); }

  bool Initialize(const std::string& content) const {
    return TavrinInitialize(folder.WriteEnciphered("printer.dat", content).c_str());
  }
  bool InitializeDefinition(const std::string& lines) const {
    return Initialize(Definition(lines));
  }

  const TestFolder folder;
};

}  // namespace tavrin::test

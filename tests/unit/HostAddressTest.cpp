#include <gtest/gtest.h>

#include "check/HostAddress.h"

namespace tavrin::tool {
namespace {

TEST(HostAddress, IsDoubtedWhenItIsNone) {
  struct Case {
    const char* text;
    bool isDoubted;
    const char* meant;
    Certainty certainty;
  };
  const Case cases[] = {
      {"", false, "", Certainty::None},
      {"192.0.2.50", false, "", Certainty::None},
      {"0.0.0.0", false, "", Certainty::None},
      {"255.255.255.255", false, "", Certainty::None},
      {"printer-2.lab.example", false, "", Certainty::None},
      {"10.lab.example", false, "", Certainty::None},
      {"fe80::1", false, "", Certainty::None},
      {"2001:db8::192.0.2.50", false, "", Certainty::None},
      {"printer:lab", false, "", Certainty::None},
      {"192.0.2.256", true, "", Certainty::None},
      {"192.0.2", true, "", Certainty::None},
      {"192.0.2.5.0", true, "", Certainty::None},
      {"192.0.2.1000", true, "", Certainty::None},
      {"3221226034", true, "", Certainty::None},
      {"192,0,2,50", true, "192.0.2.50", Certainty::Certain},
      {"192.0,2.50", true, "192.0.2.50", Certainty::Certain},
      {"192.0. 2.50", true, "192.0.2.50", Certainty::Certain},
      {"192 0 2 50", true, "192.0.2.50", Certainty::Certain},
      {"192.0.2.50.", true, "192.0.2.50", Certainty::Certain},
      {"192..0.2.50", true, "192.0.2.50", Certainty::Certain},
      {"192.O.2.5O", true, "192.0.2.50", Certainty::Certain},
      {"l92.0.2.5", true, "192.0.2.5", Certainty::Certain},
      {"192.000.002.050", true, "192.0.2.50", Certainty::Likely},
      {"192.0.2.50:9100", true, "192.0.2.50", Certainty::Likely},
      {"192.0.2.50/24", true, "192.0.2.50", Certainty::Likely},
      {"192.0.2.50 (lab)", true, "192.0.2.50", Certainty::Likely},
      {"192.0.2.50, 192.0.2.51", true, "192.0.2.50", Certainty::Likely},
      {"printer.example:9100", true, "printer.example", Certainty::Likely},
      {"printer.example/status", true, "printer.example", Certainty::Likely},
      {"http://192.0.2.50", true, "192.0.2.50", Certainty::Certain},
      {"https://printer.example/", true, "printer.example", Certainty::Certain},
      {"http://192.0.2.50:8080/status", true, "192.0.2.50", Certainty::Likely},
      {"ftp://me@192.0.2.50", true, "", Certainty::None},
      {"http://", true, "", Certainty::None},
      {"http://[fe80::1]/", true, "", Certainty::None},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    const AddressDoubt doubt = DoubtAbout(c.text);
    EXPECT_EQ(!doubt.what.empty(), c.isDoubted);
    EXPECT_EQ(doubt.meant, c.meant);
    EXPECT_EQ(doubt.certainty, c.certainty);
  }
}

}  // namespace
}  // namespace tavrin::tool

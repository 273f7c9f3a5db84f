#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "TavrinSession.h"

namespace tavrin::tool {

struct SideSupportFacts {
  tavrinlib::Micrometres modelHeight;
  tavrinlib::Micrometres thickness;
};

/// All that the exports answer about the loaded printer definition. Texts are in the process's code
/// page.
struct PrinterFacts {
  /// Why a text of the identity may be missing.
  static constexpr char kNoIdentity[] = "a text of its identity is longer than 128 bytes";

  /// A text longer than its field is not handed out, nor are those after it.
  std::optional<std::string> modelName;
  std::optional<std::string> version;
  std::optional<std::string> networkAddress;
  // The one length that is handed out without a sign.
  std::uint32_t widthUm = 0;
  std::uint32_t depthUm = 0;
  std::uint32_t heightUm = 0;
  tavrinlib::Micrometres printMargin;
  std::vector<tavrinlib::PrintMode> modes;
  std::int32_t defaultModeNumber = 0;
  tavrinlib::Micrometres topSupport;
  std::vector<SideSupportFacts> sideSupport;  ///< for models of a few heights
  /// For models of 51 heights, evenly from the least, 1 um, to the build height.
  std::vector<SideSupportFacts> sideSupportCurve;
  tavrinlib::Micrometres detachLayer;
  std::int32_t supportSizeCode = 0;
  bool smoothing = false;
  bool feedBiDirection = false;
  bool wrapReduction = false;
  bool autoCleaning = false;
  bool nozzleCheck = false;
  tavrinlib::Millimetres headBand;
  std::int32_t chippingAllowanceSetting = 0;
  std::vector<tavrinlib::Slot> slots;
  std::vector<tavrinlib::Category> categories;

  /// Whether the library handed out the three texts of the identity.
  bool HasIdentity() const { return networkAddress.has_value(); }
};

/// Asks every export about the session's definition, as a host would.
PrinterFacts AskPrinterFacts(const tavrinlib::Session& session);

}  // namespace tavrin::tool

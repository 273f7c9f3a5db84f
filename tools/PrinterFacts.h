#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tavrin::tool {

/// One print mode, at its index.
struct ModeFacts {
  std::int32_t number = 0;
  std::int32_t sliceUm = 0;
  std::int32_t firstValue = 0;
  std::int32_t secondValue = 0;
  std::optional<std::int32_t> layers;           ///< none where the slice has no height
  std::optional<std::int32_t> continuousLimit;  ///< none where the mode has no limit
  bool limited = false;
};

struct SideSupportFacts {
  std::int32_t modelHeightUm = 0;
  std::int32_t thicknessUm = 0;
};

/// One ink slot, at its number - 1.
struct SlotFacts {
  std::uint32_t number = 0;
  std::int32_t colorCode = 0;
  std::int32_t inkTypeCode = 0;
  std::string id;
  std::string name;  ///< empty for a slot that is not valid
  bool valid = false;
};

/// All that the exports answer about the loaded printer definition. Texts are in the process's code
/// page; lengths have the sign back that the library holds them with.
struct PrinterFacts {
  /// Why a text of the identity may be missing.
  static constexpr char kNoIdentity[] = "a text of its identity is longer than 128 bytes";

  /// A text longer than its field is not handed out, nor are those after it.
  std::optional<std::string> modelName;
  std::optional<std::string> version;
  std::optional<std::string> networkAddress;
  std::uint32_t widthUm = 0;
  std::uint32_t depthUm = 0;
  std::uint32_t heightUm = 0;
  std::int32_t printMarginUm = 0;
  std::vector<ModeFacts> modes;
  std::int32_t defaultModeNumber = 0;
  std::int32_t topSupportUm = 0;
  std::vector<SideSupportFacts> sideSupport;  ///< for models of a few heights
  std::int32_t detachLayerUm = 0;
  std::int32_t supportSizeCode = 0;
  bool smoothing = false;
  bool feedBiDirection = false;
  bool wrapReduction = false;
  bool autoCleaning = false;
  bool nozzleCheck = false;
  double headBandMm = 0.0;
  std::int32_t chippingAllowanceSetting = 0;
  std::vector<SlotFacts> slots;
  std::vector<std::vector<std::int32_t>> categories;  ///< the numbers of each one's slots

  /// Whether the library handed out the three texts of the identity.
  bool HasIdentity() const { return networkAddress.has_value(); }
};

/// Asks every export about the loaded printer definition, as a host would.
PrinterFacts AskPrinterFacts();

}  // namespace tavrin::tool

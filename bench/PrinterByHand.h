#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tavrin::bench {

/// The keys of a definition's section, however they are kept.
class KeysByHand {
 public:
  virtual ~KeysByHand() = default;

  /// @return the value of key; null when there is none.
  virtual const char* Find(const std::string& key) const = 0;
};

/// What a host that reads definitions by itself would keep of one: all that the library does.
struct PrinterByHand {
  struct Mode {
    std::int32_t number, sliceSize, colorThickness, first, second, limitedContinuous;
    bool isLimited;
  };
  struct Ink {
    std::int32_t code;
    std::string name;
  };
  struct Slot {
    std::int32_t colorCode, inkTypeCode;
    std::string name;
  };
  struct Category {
    std::string name;
    std::vector<std::int32_t> slots;
  };

  std::string modelName = "5RTV-207", version, address;
  double size[3] = {508.0, 508.0, 508.0};
  double headBandSize = 53.7, supportAngle = 1.5;
  std::int32_t margin = 5, defaultMode = 2, detachLayer = 3000;
  std::int32_t supportThickness = 100, supportExtend = 1500, supportSize = 0;
  std::int32_t cuttingMarginSetting = 0, cuttingMargin = 0;
  bool antiAliasing = true, reverse = false, whiteWhite = false;
  bool autoCleaning = true, nozzleCheck = false;
  std::vector<Mode> modes;
  std::vector<Ink> colors, inkTypes;
  std::vector<Slot> slots;
  std::vector<Category> categories;
};

/// Takes the values out of keys, the built-in ones where there are none.
PrinterByHand ReadByHand(const KeysByHand& keys);

}  // namespace tavrin::bench

#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "definition/FileLoader.h"
#include "definition/IniFile.h"
#include "definition/M3DVector.h"
#include "definition/ModeConfig.h"
#include "ink/InkModel.h"

namespace tavrin {

/// What the printer can do and how it is set up, its inks included. Made with the defaults below,
/// filled from one definition file, and only read afterwards.
///
/// A printer has inks and is none; the base class is there so that the tables and slots, which
/// `ink/` fills and derives categories from, are fields of the configuration like all others.
class PrinterConfig : public InkModel {
 public:
  /// Reads, deciphers and parses the enciphered definition file at path. While it is parsed, a
  /// plain copy lies in the temporary directory, for the profile functions read files alone; it is
  /// removed whatever the outcome.
  ///
  /// @return false when the file is missing, empty or unreadable, or has no "Version", when there
  ///         is no plain copy to parse, and when on Windows another process had it for ten seconds.
  virtual bool Load(const std::string& path);

  /// Reads the plain definition file at path.
  ///
  /// @return false when it does not exist or has no "Version"; everything else that is missing or
  ///         does not convert keeps the value that it had.
  bool Parse(const std::string& path);

  /// Parse on the plain copy of a definition.
  bool Parse(const platform::PlainCopy& copy);

  /// Parse on an opened file.
  bool ParseOpened(IniFile& ini);

  /// The slices of mode in the build height; INT32_MIN where they have no height.
  std::int32_t LayerCount(const ModeConfig& mode) const;

  /// The thickness in µm of the support beside a model of the given height in µm: 0 for a height
  /// below 1, the bare extent where the angle is not above 0.
  std::int32_t SideSupportThickness(std::int32_t modelHeight) const;

  std::string ModelName = "5RTV-207";
  std::string Version;
  M3DVector PrinterSize = {508.0, 508.0, 508.0};  ///< build volume in mm
  std::int32_t PrintMargin = 5;  ///< µm; 5 µm, not 5 mm, is the machine's default
  std::vector<std::unique_ptr<ModeConfig>> Modes;  ///< in the order of key "Mode"
  std::int32_t CuttingMarginThickness = 0;         ///< µm
  std::int32_t SupportThickness = 100;             ///< µm
  std::int32_t SupportExtend = 1500;               ///< µm
  double SupportExtendAngle = 1.5;                 ///< degrees
  std::int32_t DetachLayerSize = 3000;             ///< µm
  bool AntiAliasing = true;
  bool Reverse = false;
  bool WhiteWhite = false;
  std::string IPAddress;
  double HeadBandSize = 53.7;             ///< mm
  std::int32_t DefaultMode = 2;           ///< a mode's number; not checked against Modes
  std::int32_t CuttingMarginSetting = 0;  ///< setting number; 0: no cutting margin
  std::int32_t SupportSize = 0;           ///< size code, -2 to 6; not checked
  bool AutoCleaningEnabled = true;
  bool NCUEnabled = false;
  std::unique_ptr<FileLoader> Definition;  ///< the deciphered bytes of the file that Load read
};

}  // namespace tavrin

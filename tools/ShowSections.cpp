#include "ShowSections.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <limits>

#include "Query.h"
#include "TavrinLib.h"

namespace tavrin::tool {

namespace {

constexpr std::size_t kFieldSize = 128;
constexpr std::int32_t kNoLimit = -1;
constexpr std::int32_t kNoLayers = std::numeric_limits<std::int32_t>::min();

using ModeValues = std::array<std::int32_t, 6>;

std::string Millimetres(std::int64_t micrometres) {
  char text[32];
  std::snprintf(text, sizeof text, "%.3f mm", static_cast<double>(micrometres) / 1000.0);
  return text;
}

/// A length that the library holds with its sign and hands out modulo 2^32.
std::string SignedMillimetres(std::uint32_t micrometres) {
  return Millimetres(static_cast<std::int32_t>(micrometres));
}

std::string OnOff(bool enabled) {
  return enabled ? "on" : "off";
}

/// Every length that one export without further arguments hands out.
void ShowLength(Report* report, const char* label, const char* name,
                bool (*query)(std::uint32_t*)) {
  std::uint32_t length = 0;
  Ask(*report, name, query(&length));
  report->Value(label, SignedMillimetres(length));
}

void ShowSwitch(Report* report, const char* label, const char* name, bool (*query)(bool*)) {
  bool enabled = false;
  Ask(*report, name, query(&enabled));
  report->Value(label, OnOff(enabled));
}

ModeValues ModeAt(const Report& report, std::int32_t index) {
  ModeValues mode{};
  Ask(report, "TavrinGetModeConfig", TavrinGetModeConfig(index, mode.data()));
  return mode;
}

Report::Row ModeRow(const Report& report, std::int32_t index, const ModeValues& mode) {
  bool limited = false;
  Ask(report, "TavrinGetWarpWarning", TavrinGetWarpWarning(index, &limited));
  return {std::to_string(index),   std::to_string(mode[0]),
          std::to_string(mode[1]), std::to_string(mode[3]),
          std::to_string(mode[2]), mode[4] == kNoLayers ? "none" : std::to_string(mode[4]),
          limited ? "yes" : "no",  mode[5] == kNoLimit ? "none" : std::to_string(mode[5])};
}

void ShowDefaultMode(Report* report, const std::vector<ModeValues>& modes) {
  std::uint32_t number = 0;
  Ask(*report, "TavrinGetDefaultPrintMode", TavrinGetDefaultPrintMode(&number));
  const auto signedNumber = static_cast<std::int32_t>(number);
  const auto mode = std::find_if(modes.begin(), modes.end(), [signedNumber](const ModeValues& m) {
    return m[0] == signedNumber;
  });
  report->Value(
      "Default mode number",
      std::to_string(signedNumber) +
          (mode == modes.end() ? " (no mode has it)"
                               : " (index " + std::to_string(mode - modes.begin()) + ")"));
}

}  // namespace

void ShowIdentity(Report* report) {
  report->Section("Identity");
  std::array<char, 3 * kFieldSize> info{};
  const bool complete = TavrinGetInfo(info.data());
  if (!complete) report->SetGap("a text of its identity is longer than 128 bytes");
  const char* const labels[] = {"Model name", "Version", "Network address"};
  const char* field = info.data();
  for (const char* label : labels) {
    const std::string text(field, std::find(field, field + kFieldSize, '\0'));
    report->Value(label, text.empty() && !complete ? "not handed out" : text);
    field += kFieldSize;
  }
  if (!complete) report->Value("Note", report->Gap());
}

void ShowBuildVolume(Report* report) {
  report->Section("Build volume");
  std::uint32_t x = 0;
  std::uint32_t y = 0;
  std::uint32_t z = 0;
  Ask(*report, "TavrinGetAreaSize", TavrinGetAreaSize(&x, &y, &z));
  report->Value("Width", Millimetres(x));
  report->Value("Depth", Millimetres(y));
  report->Value("Height", Millimetres(z));
  ShowLength(report, "Print margin", "TavrinGetAreaMarginSize", TavrinGetAreaMarginSize);
}

void ShowModes(Report* report) {
  report->Section("Print modes");
  std::uint32_t count = 0;
  Ask(*report, "TavrinGetModeCount", TavrinGetModeCount(&count));
  std::vector<ModeValues> modes;
  std::vector<Report::Row> rows;
  for (std::int32_t i = 0; i < static_cast<std::int32_t>(count); ++i) {
    modes.push_back(ModeAt(*report, i));
    rows.push_back(ModeRow(*report, i, modes.back()));
  }
  if (!rows.empty()) {
    report->Table({"Index", "Number", "Slice (um)", "First value", "Second value", "Layers",
                   "Limited", "Continuous limit"},
                  rows);
  }
  report->Value("Number of modes", std::to_string(count));
  ShowDefaultMode(report, modes);
}

void ShowSupport(Report* report) {
  report->Section("Support");
  ShowLength(report, "Top thickness", "TavrinGetTopSupportThickness", TavrinGetTopSupportThickness);
  for (const std::int32_t height : {10000, 50000, 100000}) {
    std::uint32_t thickness = 0;
    Ask(*report, "TavrinGetSideSupportThickness",
        TavrinGetSideSupportThickness(height, &thickness));
    report->Value("Side thickness at " + std::to_string(height / 1000) + " mm",
                  SignedMillimetres(thickness));
  }
  ShowLength(report, "Detach layer", "TavrinGetDetachLayerHeight", TavrinGetDetachLayerHeight);
  std::uint32_t size = 0;
  Ask(*report, "TavrinGetSupportSize", TavrinGetSupportSize(&size));
  report->Value("Size code (-2 to 6)", std::to_string(static_cast<std::int32_t>(size)));
}

void ShowMachine(Report* report) {
  report->Section("Machine");
  ShowSwitch(report, "Smoothing", "TavrinGetSmoothing", TavrinGetSmoothing);
  ShowSwitch(report, "Bidirectional feed", "TavrinGetFeedBiDirection", TavrinGetFeedBiDirection);
  ShowSwitch(report, "Wrap reduction", "TavrinGetWrapReduction", TavrinGetWrapReduction);
  ShowSwitch(report, "Automatic cleaning", "TavrinGetAutoCleaning", TavrinGetAutoCleaning);
  ShowSwitch(report, "Nozzle check while printing", "TavrinGetCheckNozzleWhilePrinting",
             TavrinGetCheckNozzleWhilePrinting);
  double band = 0.0;
  Ask(*report, "TavrinGetHeadBandSize", TavrinGetHeadBandSize(&band));
  char text[64];
  std::snprintf(text, sizeof text, "%g mm", band);
  report->Value("Head band", text);
  std::uint32_t setting = 0;
  Ask(*report, "TavrinGetChippingAllowance", TavrinGetChippingAllowance(&setting));
  report->Value(
      "Chipping allowance",
      setting == 0 ? "none" : "setting " + std::to_string(static_cast<std::int32_t>(setting)));
}

}  // namespace tavrin::tool

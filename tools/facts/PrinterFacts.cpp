#include "facts/PrinterFacts.h"

#include <algorithm>
#include <array>
#include <limits>

namespace tavrin::tool {

namespace {

constexpr std::size_t kInfoFieldBytes = 128;
/// No value of an INI file has one, so it marks an identity field that was not written.
constexpr char kUnwritten = '\n';

std::optional<std::string> InfoField(const char* field) {
  if (*field == kUnwritten) return std::nullopt;
  return std::string(field, std::find(field, field + kInfoFieldBytes, '\0'));
}

/// The session gives all of the identity or none, the export what comes before a text too long.
void AskIdentity(PrinterFacts* facts) {
  std::array<char, 3 * kInfoFieldBytes> info;
  info.fill(kUnwritten);
  TavrinGetInfo(info.data());
  facts->modelName = InfoField(info.data());
  facts->version = InfoField(info.data() + kInfoFieldBytes);
  facts->networkAddress = InfoField(info.data() + 2 * kInfoFieldBytes);
}

std::vector<SideSupportFacts> AskCurve(const tavrinlib::Session& session, std::uint32_t heightUm) {
  constexpr std::int64_t kSteps = 50;
  constexpr std::int64_t kHighest = std::numeric_limits<std::int32_t>::max();
  const std::int64_t top = std::clamp<std::int64_t>(heightUm, 1, kHighest);
  std::vector<SideSupportFacts> curve;
  for (std::int64_t step = 0; step <= kSteps; ++step) {
    const tavrinlib::Micrometres height{static_cast<std::int32_t>(1 + (top - 1) * step / kSteps)};
    curve.push_back({height, session.SideSupportThickness(height)});
  }
  return curve;
}

}  // namespace

PrinterFacts AskPrinterFacts(const tavrinlib::Session& session) {
  PrinterFacts facts;
  AskIdentity(&facts);
  const tavrinlib::Volume volume = session.BuildVolume();
  facts.widthUm = static_cast<std::uint32_t>(volume.width.count);
  facts.depthUm = static_cast<std::uint32_t>(volume.depth.count);
  facts.heightUm = static_cast<std::uint32_t>(volume.height.count);
  facts.printMargin = session.PrintMargin();
  facts.modes = session.Modes();
  facts.defaultModeNumber = session.DefaultMode();
  facts.topSupport = session.TopSupportThickness();
  for (const std::int32_t millimetres : {10, 50, 100}) {
    const tavrinlib::Micrometres height{millimetres * 1000};
    facts.sideSupport.push_back({height, session.SideSupportThickness(height)});
  }
  facts.sideSupportCurve = AskCurve(session, facts.heightUm);
  facts.detachLayer = session.DetachLayerHeight();
  facts.supportSizeCode = session.SupportSize();
  facts.smoothing = session.Smoothing();
  facts.feedBiDirection = session.FeedBiDirection();
  facts.wrapReduction = session.WrapReduction();
  facts.autoCleaning = session.AutoCleaning();
  facts.nozzleCheck = session.CheckNozzleWhilePrinting();
  facts.headBand = session.HeadBandSize();
  facts.chippingAllowanceSetting = session.ChippingAllowance();
  facts.slots = session.Slots();
  facts.categories = session.Categories();
  return facts;
}

}  // namespace tavrin::tool

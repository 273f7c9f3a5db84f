#include "PrinterFacts.h"

#include <algorithm>
#include <array>
#include <limits>
#include <memory>

#include "Failure.h"
#include "InkSlot.h"
#include "TavrinLib.h"
#include "TavrinRelease.h"

namespace tavrin::tool {

namespace {

constexpr std::size_t kInfoFieldBytes = 128;
/// No value of an INI file has one, so it marks an identity field that was not written.
constexpr char kUnwritten = '\n';

/// A query that fails on a loaded definition leaves the facts without a footing.
void Require(const char* query, bool answered) {
  if (!answered) throw Failure("TavrinLib", std::string(query) + " failed", "report this");
}

template <typename Value>
Value Ask(const char* name, bool (*query)(Value*)) {
  Value value{};
  Require(name, query(&value));
  return value;
}

/// A number that the library holds with its sign and hands out modulo 2^32.
std::int32_t AskSigned(const char* name, bool (*query)(std::uint32_t*)) {
  return static_cast<std::int32_t>(Ask(name, query));
}

std::optional<std::int32_t> Unless(std::int32_t none, std::int32_t value) {
  return value == none ? std::nullopt : std::optional(value);
}

std::optional<std::string> InfoField(const char* field) {
  if (*field == kUnwritten) return std::nullopt;
  return std::string(field, std::find(field, field + kInfoFieldBytes, '\0'));
}

/// The one query that may fail on a loaded definition.
void AskIdentity(PrinterFacts* facts) {
  std::array<char, 3 * kInfoFieldBytes> info;
  info.fill(kUnwritten);
  TavrinGetInfo(info.data());
  facts->modelName = InfoField(info.data());
  facts->version = InfoField(info.data() + kInfoFieldBytes);
  facts->networkAddress = InfoField(info.data() + 2 * kInfoFieldBytes);
}

void AskBuildVolume(PrinterFacts* facts) {
  Require("TavrinGetAreaSize",
          TavrinGetAreaSize(&facts->widthUm, &facts->depthUm, &facts->heightUm));
  facts->printMarginUm = AskSigned("TavrinGetAreaMarginSize", TavrinGetAreaMarginSize);
}

ModeFacts ModeAt(std::int32_t index) {
  std::int32_t config[6] = {};
  Require("TavrinGetModeConfig", TavrinGetModeConfig(index, config));
  ModeFacts mode;
  Require("TavrinGetWarpWarning", TavrinGetWarpWarning(index, &mode.limited));
  mode.number = config[0];
  mode.sliceUm = config[1];
  mode.secondValue = config[2];
  mode.firstValue = config[3];
  mode.layers = Unless(std::numeric_limits<std::int32_t>::min(), config[4]);
  mode.continuousLimit = Unless(-1, config[5]);
  return mode;
}

void AskModes(PrinterFacts* facts) {
  const std::int32_t count = AskSigned("TavrinGetModeCount", TavrinGetModeCount);
  for (std::int32_t i = 0; i < count; ++i)
    facts->modes.push_back(ModeAt(i));
  facts->defaultModeNumber = AskSigned("TavrinGetDefaultPrintMode", TavrinGetDefaultPrintMode);
}

void AskSupport(PrinterFacts* facts) {
  facts->topSupportUm = AskSigned("TavrinGetTopSupportThickness", TavrinGetTopSupportThickness);
  for (const std::int32_t height : {10000, 50000, 100000}) {
    std::uint32_t thickness = 0;
    Require("TavrinGetSideSupportThickness", TavrinGetSideSupportThickness(height, &thickness));
    facts->sideSupport.push_back({height, static_cast<std::int32_t>(thickness)});
  }
  facts->detachLayerUm = AskSigned("TavrinGetDetachLayerHeight", TavrinGetDetachLayerHeight);
  facts->supportSizeCode = AskSigned("TavrinGetSupportSize", TavrinGetSupportSize);
}

void AskMachine(PrinterFacts* facts) {
  facts->smoothing = Ask("TavrinGetSmoothing", TavrinGetSmoothing);
  facts->feedBiDirection = Ask("TavrinGetFeedBiDirection", TavrinGetFeedBiDirection);
  facts->wrapReduction = Ask("TavrinGetWrapReduction", TavrinGetWrapReduction);
  facts->autoCleaning = Ask("TavrinGetAutoCleaning", TavrinGetAutoCleaning);
  facts->nozzleCheck = Ask("TavrinGetCheckNozzleWhilePrinting", TavrinGetCheckNozzleWhilePrinting);
  facts->headBandMm = Ask("TavrinGetHeadBandSize", TavrinGetHeadBandSize);
  facts->chippingAllowanceSetting =
      AskSigned("TavrinGetChippingAllowance", TavrinGetChippingAllowance);
}

struct Release {
  void operator()(void* array) const { TavrinRelease(array); }
};

template <typename Element>
using Owned = std::unique_ptr<Element[], Release>;

/// Takes over the array that a slot hands out.
std::string TextOf(const InkSlot& slot, bool (InkSlot::*get)(char**, std::int32_t*) const) {
  char* text = nullptr;
  std::int32_t size = 0;
  if (!(slot.*get)(&text, &size) || text == nullptr) return {};
  const Owned<char> owned(text);
  return text;
}

SlotFacts SlotAt(std::uint32_t number) {
  InkSlot* slot = nullptr;
  Require("TavrinGetInkSlot", TavrinGetInkSlot(number, &slot));
  std::uint32_t colorCode = 0;
  std::uint32_t inkTypeCode = 0;
  slot->GetColorCode(&colorCode);
  slot->GetInkTypeCode(&inkTypeCode);
  SlotFacts facts;
  facts.number = number;
  facts.colorCode = static_cast<std::int32_t>(colorCode);
  facts.inkTypeCode = static_cast<std::int32_t>(inkTypeCode);
  facts.id = TextOf(*slot, &InkSlot::GetInkId);
  facts.name = TextOf(*slot, &InkSlot::GetInkName);
  facts.valid = slot->IsValid();
  return facts;
}

/// A category that has no slots cannot list them.
std::vector<std::int32_t> SlotsOfCategory(std::int32_t index) {
  std::int32_t* numbers = nullptr;
  std::int32_t count = 0;
  if (!TavrinGetInkSlotNumConposeInkCategory(index, &numbers, &count)) return {};
  const Owned<std::int32_t> owned(numbers);
  return {numbers, numbers + count};
}

void AskInks(PrinterFacts* facts) {
  const auto slots = Ask("TavrinGetItemCountOfInkSlot", TavrinGetItemCountOfInkSlot);
  for (std::uint32_t number = 1; number <= slots; ++number)
    facts->slots.push_back(SlotAt(number));
  const auto categories =
      AskSigned("TavrinGetItemCountOfInkCategory", TavrinGetItemCountOfInkCategory);
  for (std::int32_t i = 0; i < categories; ++i)
    facts->categories.push_back(SlotsOfCategory(i));
}

}  // namespace

PrinterFacts AskPrinterFacts() {
  PrinterFacts facts;
  AskIdentity(&facts);
  AskBuildVolume(&facts);
  AskModes(&facts);
  AskSupport(&facts);
  AskMachine(&facts);
  AskInks(&facts);
  return facts;
}

}  // namespace tavrin::tool

/// @file
/// A C++17 layer over the exports of TavrinLib: a session that loads and releases, values that are
/// returned, lengths in units of their own, failures that are thrown. Header-only; it uses the
/// exports, class InkSlot and TavrinRelease() alone, and what TavrinLib.h says of them holds here
/// too.
#ifndef TAVRIN_SESSION_H
#define TAVRIN_SESSION_H

/* Microsoft's compiler tells the language in a macro of its own. */
#if __cplusplus < 201703L && (!defined(_MSVC_LANG) || _MSVC_LANG < 201703L)
#error "TavrinSession.h needs C++17 (-std=c++17, /std:c++17)"
#else

#include <algorithm>
#include <cstdint>
#include <memory>
#include <new>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <locale.h>

#include "InkSlot.h"
#include "TavrinLib.h"
#include "TavrinRelease.h"

/// The C++17 layer over the exports.
namespace tavrinlib {

/// @defgroup session C++17 layer
/// The same as values, with units, exceptions and a session that releases by itself.
/// @{

/// A length in mm.
struct Millimetres {
  double count = 0.0;  ///< how many
};

/// A length in whole µm. One that the definition gives as negative is negative here, although the
/// exports hand it out modulo 2^32; lengths from 2^31 µm (more than 2 km) on wrap instead.
struct Micrometres {
  std::int32_t count = 0;  ///< how many

  /// The same length in mm.
  constexpr operator Millimetres() const { return {count / 1000.0}; }
};

/// The name of a last-error code, such as "ErrorFailed"; "unknown error" for any other number.
inline const char* ErrorName(std::uint32_t code) {
  switch (code) {
    case ErrorNone:
      return "ErrorNone";
    case ErrorFailed:
      return "ErrorFailed";
    case ErrorNotInitialized:
      return "ErrorNotInitialized";
    case ErrorWriteFailed:
      return "ErrorWriteFailed";
    case ErrorInvalidArgument:
      return "ErrorInvalidArgument";
    default:
      return "unknown error";
  }
}

/// A call that failed, and why. what() reads like "TavrinInitialize failed: ErrorFailed".
class Error : public std::runtime_error {
 public:
  /// @param call the name of the export.
  /// @param code the last-error code that it left.
  Error(const std::string& call, std::uint32_t code)
      : std::runtime_error(call + " failed: " + ErrorName(code)), call_(call), code_(code) {}

  /// The name of the export that failed.
  const std::string& Call() const { return call_; }
  /// The last-error code, one of #TavrinErrorCode.
  std::uint32_t Code() const { return code_; }
  /// The name of the last-error code.
  const char* CodeName() const { return ErrorName(code_); }

 private:
  std::string call_;
  std::uint32_t code_;
};

/// Who the printer is, as TavrinGetInfo() answers.
struct PrinterIdentity {
  std::string modelName;       ///< the model's name
  std::string version;         ///< the definition's version
  std::string networkAddress;  ///< the network address; empty where the definition gives none
};

/// The build volume.
struct Volume {
  Micrometres width;   ///< x
  Micrometres depth;   ///< y
  Micrometres height;  ///< z
};

/// A print mode, as TavrinGetModeConfig() and TavrinGetWarpWarning() answer.
struct PrintMode {
  std::int32_t number = 0;       ///< the number that names the mode; not its position
  Micrometres sliceHeight;       ///< the height of one slice
  std::int32_t firstValue = 0;   ///< first value of the mode's pair
  std::int32_t secondValue = 0;  ///< second value of the mode's pair
  bool limited = false;          ///< whether the host warns of warping before the mode runs
  /// How many slices fit the build volume; none where the definition gives no number to divide by,
  /// and from 2 km of slices of 1 µm on.
  std::optional<std::int32_t> sliceCount;
  /// How long the mode may run on as a limited one; none where the definition gives no limit.
  std::optional<std::int32_t> limitedContinuous;
};

/// An ink slot, copied out of the InkSlot that the library owns.
struct Slot {
  std::uint32_t number = 0;      ///< from 1
  std::int32_t colorCode = 0;    ///< 0 for a slot that is not valid
  std::int32_t inkTypeCode = 0;  ///< 0 for a slot that is not valid
  std::string inkId;             ///< six digits or signs; "000000" for a slot that is not valid
  std::string inkName;           ///< empty for a slot that is not valid
  bool valid = false;            ///< whether the definition describes colour and ink type
};

/// The numbers of the slots that make up an ink category.
using Category = std::vector<std::uint32_t>;

/// A loaded printer definition. Every question throws Error where its export fails.
///
/// The library holds one definition for the process, so there is one open session. Making another
/// ends the one before, also where the new definition then fails to load: the ended session
/// answers every question with ErrorNotInitialized and leaves the definition alone when it goes.
/// `session = Session(path)` thus changes the definition. Like the exports it is for one thread
/// at a time.
///
/// Which session is the open one stands in an inline variable. Sessions of different modules of a
/// process (the program, its DLLs or shared libraries) know of each other only where the modules
/// share it, which those on Windows and those of hidden visibility do not: there a session answers
/// from the definition that the other module has loaded, and releases that one when it goes.
class Session {
 public:
  /// Loads the enciphered printer definition file at path, which is in the encoding that
  /// TavrinLib.h names. Meanwhile numbers are those of the "C" locale on the calling thread, so
  /// that a decimal comma of the host's does no harm.
  explicit Session(const std::string& path) : number_(++Newest()) {
    const CNumericLocale scope;
    Ask("TavrinInitialize", TavrinInitialize, path.c_str());
  }
  /// Releases the definition, if the session is still the open one.
  ~Session() { Close(); }
  /// Takes the definition over; other is ended.
  Session(Session&& other) noexcept : number_(std::exchange(other.number_, kEnded)) {}
  /// Releases the own definition and takes the other's over; other is ended.
  Session& operator=(Session&& other) noexcept {
    const std::uint64_t number = std::exchange(other.number_, kEnded);
    Close();
    number_ = number;
    return *this;
  }

  /// Whether no other session has taken the definition's place and none was moved from this one.
  bool IsOpen() const { return number_ == Newest(); }

  /// TavrinGetInfo(): the printer's identity.
  PrinterIdentity Identity() const {
    char info[384];
    Ask("TavrinGetInfo", TavrinGetInfo, info);
    return {Field(info), Field(info + 128), Field(info + 256)};
  }
  /// TavrinGetAreaSize(): the build volume.
  Volume BuildVolume() const {
    std::uint32_t x = 0;
    std::uint32_t y = 0;
    std::uint32_t z = 0;
    Ask("TavrinGetAreaSize", TavrinGetAreaSize, &x, &y, &z);
    return {Length(x), Length(y), Length(z)};
  }
  /// TavrinGetAreaMarginSize(): the margin that stays free at the edge of the build volume.
  Micrometres PrintMargin() const {
    return Length(Answer("TavrinGetAreaMarginSize", TavrinGetAreaMarginSize));
  }
  /// TavrinGetHeadBandSize(): the width that the print head covers in one pass.
  Millimetres HeadBandSize() const {
    return {Answer("TavrinGetHeadBandSize", TavrinGetHeadBandSize)};
  }

  /// The print modes, in the order of the definition.
  std::vector<PrintMode> Modes() const {
    std::vector<PrintMode> modes(Answer("TavrinGetModeCount", TavrinGetModeCount));
    std::int32_t index = 0;
    for (PrintMode& mode : modes)
      mode = ModeAt(index++);
    return modes;
  }
  /// TavrinGetDefaultPrintMode(): the number of the mode to offer first, which none need have.
  std::int32_t DefaultMode() const {
    return Signed(Answer("TavrinGetDefaultPrintMode", TavrinGetDefaultPrintMode));
  }

  /// TavrinGetTopSupportThickness(): the thickness of the support under top surfaces.
  Micrometres TopSupportThickness() const {
    return Length(Answer("TavrinGetTopSupportThickness", TavrinGetTopSupportThickness));
  }
  /// TavrinGetSideSupportThickness(): the thickness of the support beside a model of that height.
  Micrometres SideSupportThickness(Micrometres modelHeight) const {
    std::uint32_t thickness = 0;
    Ask("TavrinGetSideSupportThickness", TavrinGetSideSupportThickness, modelHeight.count,
        &thickness);
    return Length(thickness);
  }
  /// TavrinGetDetachLayerHeight(): the height of the layer between a model and the build plate.
  Micrometres DetachLayerHeight() const {
    return Length(Answer("TavrinGetDetachLayerHeight", TavrinGetDetachLayerHeight));
  }
  /// TavrinGetSupportSize(): the support size code, from -2 to 6.
  std::int32_t SupportSize() const {
    return Signed(Answer("TavrinGetSupportSize", TavrinGetSupportSize));
  }
  /// TavrinGetChippingAllowance(): the number of the cutting margin setting; 0 for none.
  std::int32_t ChippingAllowance() const {
    return Signed(Answer("TavrinGetChippingAllowance", TavrinGetChippingAllowance));
  }

  /// TavrinGetSmoothing(): whether edges are smoothed.
  bool Smoothing() const { return Answer("TavrinGetSmoothing", TavrinGetSmoothing); }
  /// TavrinGetFeedBiDirection(): whether the printer prints in both directions of the feed.
  bool FeedBiDirection() const {
    return Answer("TavrinGetFeedBiDirection", TavrinGetFeedBiDirection);
  }
  /// TavrinGetWrapReduction(): whether wrap reduction is on.
  bool WrapReduction() const { return Answer("TavrinGetWrapReduction", TavrinGetWrapReduction); }
  /// TavrinGetAutoCleaning(): whether the printer cleans its heads by itself.
  bool AutoCleaning() const { return Answer("TavrinGetAutoCleaning", TavrinGetAutoCleaning); }
  /// TavrinGetCheckNozzleWhilePrinting(): whether the nozzles are checked while printing.
  bool CheckNozzleWhilePrinting() const {
    return Answer("TavrinGetCheckNozzleWhilePrinting", TavrinGetCheckNozzleWhilePrinting);
  }

  /// The ink slots in the order of their numbers.
  std::vector<Slot> Slots() const {
    std::vector<Slot> slots(Answer("TavrinGetItemCountOfInkSlot", TavrinGetItemCountOfInkSlot));
    std::uint32_t number = 0;
    for (Slot& slot : slots)
      slot = SlotAt(++number);
    return slots;
  }
  /// The ink categories in the library's order, the two totals last. One without slots is empty
  /// here; the export's failure shows in the last-error code alone.
  std::vector<Category> Categories() const {
    std::vector<Category> categories(
        Answer("TavrinGetItemCountOfInkCategory", TavrinGetItemCountOfInkCategory));
    std::int32_t index = 0;
    for (Category& category : categories)
      category = CategoryAt(index++);
    return categories;
  }

  /// TavrinCreateModelingConditionsFile(): writes the definition, enciphered, to the file at path.
  void WriteModelingConditions(const std::string& path) const {
    Ask("TavrinCreateModelingConditionsFile", TavrinCreateModelingConditionsFile, path.c_str());
  }

 private:
  static constexpr std::uint64_t kEnded = 0;

  /// The numbers of the "C" locale, for a scope and the calling thread. On Windows it is the
  /// runtime of the host whose locale this is about, and the process's locale where threads have
  /// none.
  class CNumericLocale {
   public:
#if defined(_WIN32)
    CNumericLocale()
        : threads_(_configthreadlocale(_ENABLE_PER_THREAD_LOCALE)),
          previous_(setlocale(LC_NUMERIC, nullptr)) {
      setlocale(LC_NUMERIC, "C");
    }
    ~CNumericLocale() {
      setlocale(LC_NUMERIC, previous_.c_str());
      if (threads_ != -1) _configthreadlocale(threads_);
    }
#else
    CNumericLocale() {
      const locale_t copy = duplocale(uselocale(nullptr));
      own_ = copy == nullptr ? nullptr : newlocale(LC_NUMERIC_MASK, "C", copy);
      if (own_ == nullptr) {
        if (copy != nullptr) freelocale(copy);
        throw std::bad_alloc();
      }
      previous_ = uselocale(own_);
    }
    ~CNumericLocale() {
      uselocale(previous_);
      freelocale(own_);
    }
#endif
    CNumericLocale(const CNumericLocale&) = delete;
    CNumericLocale& operator=(const CNumericLocale&) = delete;

   private:
#if defined(_WIN32)
    int threads_;
    std::string previous_;
#else
    locale_t own_;
    locale_t previous_;
#endif
  };

  /// The number of the session made last: the one that the loaded definition belongs to.
  static std::uint64_t& Newest() {
    static std::uint64_t newest = kEnded;
    return newest;
  }

  void Close() {
    if (IsOpen()) TavrinFinalize();
    number_ = kEnded;
  }

  static std::uint32_t LastError() {
    std::uint32_t code = ErrorNone;
    TavrinGetLastError(&code);
    return code;
  }

  template <typename... Parameters, typename... Arguments>
  void Ask(const char* call, bool (*ask)(Parameters...), Arguments... arguments) const {
    if (!IsOpen()) throw Error(call, ErrorNotInitialized);
    if (!ask(arguments...)) throw Error(call, LastError());
  }

  /// The value that an export with a single output fills in.
  template <typename Value>
  Value Answer(const char* call, bool (*ask)(Value*)) const {
    Value value{};
    Ask(call, ask, &value);
    return value;
  }

  static std::int32_t Signed(std::uint32_t value) {
    return static_cast<std::int32_t>(value);
  }
  static Micrometres Length(std::uint32_t value) {
    return {Signed(value)};
  }

  /// A text of 128 bytes has no NUL behind it.
  static std::string Field(const char* field) {
    return std::string(field, std::find(field, field + 128, '\0'));
  }

  PrintMode ModeAt(std::int32_t index) const {
    std::int32_t config[6];
    Ask("TavrinGetModeConfig", TavrinGetModeConfig, index, config);
    PrintMode mode;
    mode.number = config[0];
    mode.sliceHeight = {config[1]};
    mode.secondValue = config[2];
    mode.firstValue = config[3];
    if (config[4] != INT32_MIN) mode.sliceCount = config[4];
    if (config[5] != -1) mode.limitedContinuous = config[5];
    Ask("TavrinGetWarpWarning", TavrinGetWarpWarning, index, &mode.limited);
    return mode;
  }

  struct Release {
    void operator()(void* array) const { TavrinRelease(array); }
  };
  template <typename Element>
  using Owned = std::unique_ptr<Element[], Release>;

  static std::string TextOf(const InkSlot& slot,
                            bool (InkSlot::*get)(char**, std::int32_t*) const) {
    char* text = nullptr;
    std::int32_t size = 0;
    (slot.*get)(&text, &size);
    const Owned<char> owned(text);
    return text == nullptr ? std::string() : std::string(text);
  }

  Slot SlotAt(std::uint32_t number) const {
    InkSlot* source = nullptr;
    Ask("TavrinGetInkSlot", TavrinGetInkSlot, number, &source);
    std::uint32_t colorCode = 0;
    std::uint32_t inkTypeCode = 0;
    source->GetColorCode(&colorCode);
    source->GetInkTypeCode(&inkTypeCode);
    return {number,
            Signed(colorCode),
            Signed(inkTypeCode),
            TextOf(*source, &InkSlot::GetInkId),
            TextOf(*source, &InkSlot::GetInkName),
            source->IsValid()};
  }

  static Category CategoryAt(std::int32_t index) {
    std::int32_t* numbers = nullptr;
    std::int32_t count = 0;
    if (!TavrinGetInkSlotNumConposeInkCategory(index, &numbers, &count)) return {};
    const Owned<std::int32_t> owned(numbers);
    return Category(numbers, numbers + count);
  }

  std::uint64_t number_;
};

/// @}

}  // namespace tavrinlib

#endif

#endif

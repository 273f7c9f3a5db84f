/// @file
/// The exports of TavrinLib: what a host program asks of a full-colour 3D inkjet printer.
///
/// Conventions that hold for every function below:
///
/// 1. Result. Every function returns true for success and false for failure, as one byte.
/// 2. Last-error code. A failure leaves its reason in one process-wide code (#TavrinErrorCode),
///    which TavrinGetLastError() reads. A success never clears it: the code names the last failure,
///    not the outcome of the last call, and is 0 until something has failed. A failure that is
///    documented as recording nothing leaves the code as it was.
/// 3. Order. TavrinInitialize() first, then any queries, then TavrinFinalize(). A query without a
///    loaded printer definition fails with #ErrorNotInitialized and writes no output, except
///    where its text says otherwise.
/// 4. Units. Lengths are whole micrometres (µm), truncated toward zero from the millimetres of the
///    definition file; only TavrinGetHeadBandSize() answers in millimetres. No range is imposed on
///    what the file says: a negative length comes out of a uint32_t modulo 2^32, and one beyond
///    32 bits as 0x80000000; only the sides of TavrinGetAreaSize() are modulo 2^32 throughout.
/// 5. Strings. Paths and texts are NUL-terminated narrow strings in the process's code page: the
///    ANSI code page on Windows, the locale's encoding elsewhere (UTF-8 where the environment names
///    no usable locale). On Windows, converting texts while a definition loads sets the process's
///    locale category LC_CTYPE to the user's.
/// 6. Null. Output pointers must not be null, except where a function documents its answer.
/// 7. Threads. None is kept from another. Call from one thread at a time, and never initialise or
///    finalise while another call runs.
/// 8. Life. Answers are copied out and stay the caller's. The one exception is the #InkSlot of
///    TavrinGetInkSlot(), which the library owns: it is gone after TavrinFinalize() or the next
///    TavrinInitialize().
/// 9. Memory. Arrays that the library hands out belong to the caller, who gives them back with
///    TavrinRelease() of TavrinRelease.h. Only an exhausted allocation can leave a function as a
///    C++ exception. It then has recorded and handed out nothing and left no file; after
///    TavrinInitialize() no definition is loaded. On Windows the process may end instead where not
///    even the exception finds memory.
#ifndef TAVRIN_LIB_H
#define TAVRIN_LIB_H

#ifndef __cplusplus
#include <stdbool.h>
#endif
#include <stdint.h>

#include "TavrinVersion.h"

/* Windows marks what a library exports and what its users import; elsewhere visibility does. */
#if defined(_WIN32)
#if defined(TAVRIN_BUILDING_LIBRARY)
#define TAVRIN_API __declspec(dllexport)
#else
#define TAVRIN_API __declspec(dllimport)
#endif
#else
#define TAVRIN_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
class InkSlot;
extern "C" {
#else
typedef struct InkSlot InkSlot;
#endif

/// @defgroup life_cycle Life cycle
/// Loading a printer definition, releasing it, and why a call has failed.
/// @{

/// The last-error codes. No other value is ever stored.
enum TavrinErrorCode {
  /// Nothing has failed since the library was loaded. Only an initial value, never stored.
  ErrorNone = 0,
  /// The printer definition could not be loaded, or it could not answer the request.
  ErrorFailed = 1,
  /// No printer definition is loaded.
  ErrorNotInitialized = 2,
  /// The modeling conditions file could not be written.
  ErrorWriteFailed = 3,
  /// TavrinInitialize() was given a null path.
  ErrorInvalidArgument = 4
};

/// Loads the enciphered printer definition file at path and makes it the one that every query
/// answers from. A definition loaded earlier is released first, also when the new one then fails to
/// load. While it loads, a plain copy of the definition lies in the temporary directory; it is
/// removed before the call returns.
///
/// Other processes may load definitions of the same file name at the same time: what is loaded is
/// the definition at path. On Windows, where this holds within one session and unless the copy's
/// place is taken by what cannot be removed, the call waits for them, for ten seconds at the most.
///
/// On Linux the call waits for a process that holds a lease on the definition file, as file servers
/// do, to give it up.
///
/// Keys that are missing or cannot be read take their defaults silently; only "Version" must be
/// there.
///
/// @param path the definition file; null is answered as below.
/// @return false with #ErrorInvalidArgument when path is null (the loaded definition stays);
///         false with #ErrorFailed when the file is missing, empty, unreadable or holds no
///         "Version", when the plain copy cannot be created, or when the wait was in vain (no
///         definition is loaded afterwards).
TAVRIN_API bool TavrinInitialize(const char* path);

/// Releases the loaded printer definition. Harmless when there is none. A host that ends without
/// this call leaves the definition to the process's end.
///
/// Everything that is borrowed from the library ends with this call.
///
/// @return always true; the last-error code is left alone.
TAVRIN_API bool TavrinFinalize(void);

/// Reads the last-error code: the reason of the most recent failure that recorded one.
///
/// Later successes leave it in place, so ask right after a call that returned false.
///
/// @param code receives one of #TavrinErrorCode.
/// @return always true, with or without a loaded definition.
TAVRIN_API bool TavrinGetLastError(uint32_t* code);

/// @}

/// @defgroup printer Printer
/// What the printer can do and how it is set up: lengths, print modes, support, switches, identity.
/// @{

/// Asks for the build volume.
///
/// Each side is the definition's millimetres × 1000 truncated to a whole number and handed out
/// modulo 2^32; one beyond 64 bits, or no number, gives 0.
///
/// @param x receives the width in µm.
/// @param y receives the depth in µm.
/// @param z receives the height in µm.
/// @return false with #ErrorNotInitialized when no definition is loaded.
TAVRIN_API bool TavrinGetAreaSize(uint32_t* x, uint32_t* y, uint32_t* z);

/// Asks for the margin between the edge of the build volume and what is printed.
///
/// A definition that names none has 5 µm.
///
/// @param margin receives the print margin in µm.
/// @return false with #ErrorNotInitialized when no definition is loaded.
TAVRIN_API bool TavrinGetAreaMarginSize(uint32_t* margin);

/// Asks how many print modes there are. Their indices for TavrinGetModeConfig() and
/// TavrinGetWarpWarning() run from 0 to count - 1, in the order of the definition file.
///
/// Modes that the file lists but does not describe in full are not among them.
///
/// @param count receives the number of print modes; it is set to 0 also when the call fails.
/// @return false with #ErrorNotInitialized when no definition is loaded.
TAVRIN_API bool TavrinGetModeCount(uint32_t* count);

/// Asks for the settings of one print mode:
/// - config[0]: the mode's number
/// - config[1]: slice height in µm
/// - config[2]: second value of the mode's pair
/// - config[3]: first value of the mode's pair
/// - config[4]: number of slices in the height of the build volume: the height in µm, INT32_MIN
///   where it is beyond 32 bits, divided by the slice height; INT32_MIN where that is 0
/// - config[5]: how long the mode may run on as a limited one, or -1 where the file gives no limit
/// @param index position of the mode, from 0.
/// @param config receives the six values.
/// @return false with #ErrorNotInitialized when no definition is loaded; false, recording
///         nothing, when there is no mode at index.
TAVRIN_API bool TavrinGetModeConfig(int32_t index, int32_t config[6]);

/// Asks for the thickness of the support under a model's top surfaces.
///
/// A definition that names none has 100 µm.
///
/// @param thickness receives the support thickness in µm.
/// @return false with #ErrorNotInitialized when no definition is loaded.
TAVRIN_API bool TavrinGetTopSupportThickness(uint32_t* thickness);

/// Asks for the thickness of the support beside a model, which grows with the model's height: the
/// support's extent, plus tan(extend angle) × (detach layer + support thickness + height).
///
/// @param modelHeight height of the model in µm.
/// @param thickness receives the thickness in µm: 0 for a height below 1, the bare extent where the
///        extend angle is not above 0.
/// @return false with #ErrorNotInitialized when no definition is loaded.
TAVRIN_API bool TavrinGetSideSupportThickness(int32_t modelHeight, uint32_t* thickness);

/// Asks for the height of the layer that detaches a model from the build plate.
///
/// A definition that names none has 3000 µm.
///
/// @param height receives the height of the detach layer in µm.
/// @return false with #ErrorNotInitialized when no definition is loaded.
TAVRIN_API bool TavrinGetDetachLayerHeight(uint32_t* height);

/// Asks whether edges are smoothed: the key "AntiAliasing".
///
/// On unless the definition turns it off.
///
/// @param enabled receives the switch.
/// @return false with #ErrorNotInitialized when no definition is loaded.
TAVRIN_API bool TavrinGetSmoothing(bool* enabled);

/// Asks whether the printer prints in both directions of the feed: the key "Reverse".
///
/// Off unless the definition turns it on.
///
/// @param enabled receives the switch.
/// @return false with #ErrorNotInitialized when no definition is loaded.
TAVRIN_API bool TavrinGetFeedBiDirection(bool* enabled);

/// Asks whether wrap reduction is on: the key "White_White".
///
/// Any number but 100 turns it on, 0 included; without the key it is off.
///
/// @param enabled receives the switch.
/// @return false with #ErrorNotInitialized when no definition is loaded.
TAVRIN_API bool TavrinGetWrapReduction(bool* enabled);

/// Asks whether a print mode is a limited one, before which the host warns of warping: the key
/// "LimitationMode" names it.
///
/// @param index position of the mode, from 0.
/// @param limited receives whether the mode is limited.
/// @return false with #ErrorNotInitialized when no definition is loaded; false, recording
///         nothing, when there is no mode at index.
TAVRIN_API bool TavrinGetWarpWarning(int32_t index, bool* limited);

/// Asks for the printer's identity: three fields of 128 bytes each, holding the model name (at byte
/// 0), the version (128) and the network address (256), filled up with zeros. A text of exactly 128
/// bytes fills its field without a terminating NUL.
///
/// @param info receives 384 bytes; null is answered as below.
/// @return false with #ErrorNotInitialized when no definition is loaded; false with
///         #ErrorFailed when info is null or a text is longer than 128 bytes (the fields
///         before it are then written).
TAVRIN_API bool TavrinGetInfo(char info[384]);

/// Asks for the width of the band that the print head covers in one pass.
///
/// The one length that is handed out in millimetres, just as the definition gives it; 53.7 mm where
/// it gives none.
///
/// @param size receives the head band size in mm.
/// @return false with #ErrorNotInitialized when no definition is loaded.
TAVRIN_API bool TavrinGetHeadBandSize(double* size);

/// Asks for the number of the print mode to offer first. It is a mode's number (config[0] of
/// TavrinGetModeConfig()), not an index, and no mode need have it.
///
/// A definition that names none has 2.
///
/// @param number receives the mode number.
/// @return false with #ErrorNotInitialized when no definition is loaded.
TAVRIN_API bool TavrinGetDefaultPrintMode(uint32_t* number);

/// Asks for the chipping allowance: the number of the cutting margin setting, not a thickness.
///
/// 0 stands for no cutting margin, which is also the default.
///
/// @param setting receives the setting number.
/// @return false with #ErrorNotInitialized when no definition is loaded.
TAVRIN_API bool TavrinGetChippingAllowance(uint32_t* setting);

/// Asks for the support size code: from -2 (smallest) to 6 (largest), 0 being the default. Where
/// the definition gives none it follows from the support's extent and angle; one that it gives is
/// not checked.
///
/// @param size receives the code; convert it to int32_t to get the sign back.
/// @return false with #ErrorNotInitialized when no definition is loaded.
TAVRIN_API bool TavrinGetSupportSize(uint32_t* size);

/// Asks whether the printer cleans its heads by itself: the key "AutoCleaningEnabled".
///
/// On unless the definition turns it off.
///
/// @param enabled receives the switch.
/// @return false with #ErrorNotInitialized when no definition is loaded.
TAVRIN_API bool TavrinGetAutoCleaning(bool* enabled);

/// Asks whether the nozzles are checked while printing: the key "NCUEnabled".
///
/// Off unless the definition turns it on.
///
/// @param enabled receives the switch.
/// @return false with #ErrorNotInitialized when no definition is loaded.
TAVRIN_API bool TavrinGetCheckNozzleWhilePrinting(bool* enabled);

/// @}

/// @defgroup inks Inks
/// The ink slots, the categories that they make up, and how their arrays are given back.
/// @{

/// Asks how many ink categories there are. Their indices for
/// TavrinGetInkSlotNumConposeInkCategory() run from 0 to count - 1.
///
/// A category is a list of ink slots that the host treats as one ink, or a total over several inks.
/// The last two are the totals: the ink that models are made of, and all ink.
///
/// @param count receives the number of ink categories.
/// @return false with #ErrorNotInitialized when no definition is loaded.
TAVRIN_API bool TavrinGetItemCountOfInkCategory(uint32_t* count);

/// Asks for the numbers of the ink slots that make up one ink category.
///
/// @param index position of the category, from 0.
/// @param numbers receives a new array of slot numbers, for TavrinRelease().
/// @param count receives the number of elements of the array.
/// @return false with #ErrorNotInitialized when no definition is loaded; false with #ErrorFailed
///         when there is no category at index or it has no slots. Both outputs are then untouched.
TAVRIN_API bool TavrinGetInkSlotNumConposeInkCategory(int32_t index, int32_t** numbers,
                                                      int32_t* count);

/// Asks how many ink slots the printer has. They are numbered from 1 to count.
///
/// A definition that does not describe its slots in full has the eight built-in ones.
///
/// @param count receives the number of ink slots.
/// @return false with #ErrorNotInitialized when no definition is loaded.
TAVRIN_API bool TavrinGetItemCountOfInkSlot(uint32_t* count);

/// Asks for an ink slot, which InkSlot.h declares: a class in C++, a table of functions in C. One
/// that names a colour or an ink type that the definition does not describe is there all the same;
/// its IsValid() says so.
///
/// @param slotNumber the slot's number, from 1.
/// @param slot receives the slot, which stays the library's; null when there is none of that
///        number. A null slot is answered as below.
/// @return false with #ErrorNotInitialized when no definition is loaded or slot is null; false,
///         recording nothing, when there is no slot of that number.
TAVRIN_API bool TavrinGetInkSlot(uint32_t slotNumber, InkSlot** slot);

/// @}

/// @defgroup output Output
/// The modeling conditions file, which tells the printer what a job was made for.
/// @{

/// Writes the loaded printer definition, enciphered as it was, to a modeling conditions file. The
/// file is identical to the definition file that was loaded, byte for byte, and can be loaded as
/// one. A file that is there is replaced.
///
/// Success is judged by whether the file could be opened: an error while writing to it, such as a
/// full disk, is not reported.
///
/// @param path the file to write; null is answered as below.
/// @return false with #ErrorNotInitialized when no definition is loaded or path is null; false with
///         #ErrorWriteFailed when the file cannot be opened for writing.
TAVRIN_API bool TavrinCreateModelingConditionsFile(const char* path);

/// @}

#ifdef __cplusplus
}
#endif

#endif

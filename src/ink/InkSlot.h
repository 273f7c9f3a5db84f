/// @file
/// The ink slots of the printer, as TavrinGetInkSlot() hands them out.
#ifndef TAVRIN_INK_SLOT_H
#define TAVRIN_INK_SLOT_H

#include <stdint.h>

#ifdef __cplusplus

/* A host calls a slot through its virtual table alone, so there is nothing for it to import. */
#if !defined(_WIN32)
#define TAVRIN_CLASS __attribute__((visibility("default")))
#elif defined(TAVRIN_BUILDING_LIBRARY)
#define TAVRIN_CLASS __declspec(dllexport)
#else
#define TAVRIN_CLASS
#endif

/// @ingroup inks
/// One ink position of the printer: which colour of which ink type it holds.
///
/// The library owns every slot. A pointer from TavrinGetInkSlot() stays valid until
/// TavrinFinalize() or the next TavrinInitialize(); a host neither creates nor deletes slots.
///
/// The table of the operations is a binary contract: on Windows it is the same whichever compiler
/// built the library and the host, and in C a slot is a pointer to it, so that
/// `slot->operations->IsValid(slot)` asks. The table is all that compilers agree on: no RTTI
/// (`dynamic_cast`, `typeid`) on slots.
class TAVRIN_CLASS InkSlot {
 public:
  InkSlot() = default;
  /// Only the library makes and copies slots.
  InkSlot(const InkSlot&) = default;
  /// Only the library makes and copies slots.
  InkSlot& operator=(const InkSlot&) = default;
#if defined(__MINGW32__)
  /* Microsoft's compiler has one entry for the destructor, GCC two, which thus come last. What a
     Microsoft host calls that deletes a slot, although it is not its own, is this, with the slot
     and a number; it does no harm. */
  virtual void* StandInForDestructor(unsigned /*how*/) {
    return this;
  }
#else
  virtual ~InkSlot() = default;
#endif

  /// Asks for the code of the colour; 0 for a slot that is not valid.
  ///
  /// @param code receives the code, a negative one modulo 2^32; must not be null.
  /// @return always true.
  virtual bool GetColorCode(uint32_t* code) const = 0;

  /// Asks for the code of the ink type; 0 for a slot that is not valid.
  ///
  /// @param code receives the code, a negative one modulo 2^32; must not be null.
  /// @return always true.
  virtual bool GetInkTypeCode(uint32_t* code) const = 0;

  /// Asks for the ink's id: the last three digits of the ink type's code and of the colour's, such
  /// as "113004"; "000000" for a slot that is not valid.
  ///
  /// @param id receives a new array, NUL-terminated, for TavrinRelease(); null is answered as
  ///        below.
  /// @param size receives the array's size in bytes, the NUL included; must not be null.
  /// @return false, both outputs untouched, when id is null.
  virtual bool GetInkId(char** id, int32_t* size) const = 0;

  /// Asks for the ink's name: the names of ink type and colour with a space between. A slot that is
  /// not valid has none: name receives null and size 0, and the call succeeds.
  ///
  /// @param name receives a new array, NUL-terminated, for TavrinRelease(); null is answered as
  ///        below.
  /// @param size receives the array's size in bytes, the NUL included; must not be null.
  /// @return false, both outputs untouched, when name is null.
  virtual bool GetInkName(char** name, int32_t* size) const = 0;

  /// Tells whether the definition file describes the colour and the ink type that the slot names.
  virtual bool IsValid() const = 0;

#if defined(__MINGW32__)
  virtual ~InkSlot() = default;
#endif
};

#else

#include <stdbool.h>

struct InkSlot;

/// The table of a slot's operations, in C; what each does is said at the class.
struct InkSlotOperations {
#if defined(_WIN32)
  void (*destructor)(void); /* the library's own */
#else
  void (*destructors[2])(void); /* the library's own */
#endif
  bool (*GetColorCode)(const struct InkSlot* slot, uint32_t* code);
  bool (*GetInkTypeCode)(const struct InkSlot* slot, uint32_t* code);
  bool (*GetInkId)(const struct InkSlot* slot, char** id, int32_t* size);
  bool (*GetInkName)(const struct InkSlot* slot, char** name, int32_t* size);
  bool (*IsValid)(const struct InkSlot* slot);
};

/// What the C++ class is in C.
struct InkSlot {
  const struct InkSlotOperations* operations;
};

#endif

#endif

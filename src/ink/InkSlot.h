/// @file
/// The ink slots of the printer, as TavrinGetInkSlot() hands them out.
#ifndef TAVRIN_INK_SLOT_H
#define TAVRIN_INK_SLOT_H

#include <cstdint>

/* A host calls a slot through its virtual table alone, so there is nothing for it to import. */
#if !defined(_WIN32)
#define TAVRIN_CLASS __attribute__((visibility("default")))
#elif defined(TAVRIN_BUILDING_LIBRARY)
#define TAVRIN_CLASS __declspec(dllexport)
#else
#define TAVRIN_CLASS
#endif

/// One ink position of the printer: which colour of which ink type it holds.
///
/// The library owns every slot. A pointer from TavrinGetInkSlot() stays valid until
/// TavrinFinalize() or the next TavrinInitialize(); a host neither creates nor deletes slots.
///
/// A C++ class is bound to its compiler's binary interface: the host must be built with the
/// compiler family that built the library. The order of the operations is part of it.
class TAVRIN_CLASS InkSlot {
 public:
  InkSlot() = default;
  /// Only the library makes and copies slots.
  InkSlot(const InkSlot&) = default;
  /// Only the library makes and copies slots.
  InkSlot& operator=(const InkSlot&) = default;
  virtual ~InkSlot() = default;

  /// Asks for the code of the colour; 0 for a slot that is not valid.
  ///
  /// @param code receives the code, a negative one modulo 2^32; must not be null.
  /// @return always true.
  virtual bool GetColorCode(std::uint32_t* code) const = 0;

  /// Asks for the code of the ink type; 0 for a slot that is not valid.
  ///
  /// @param code receives the code, a negative one modulo 2^32; must not be null.
  /// @return always true.
  virtual bool GetInkTypeCode(std::uint32_t* code) const = 0;

  /// Asks for the ink's id: the last three digits of the ink type's code and of the colour's, such
  /// as "113004"; "000000" for a slot that is not valid.
  ///
  /// @param id receives a new array, NUL-terminated, that the host frees with `delete[]`; null is
  ///        answered as below.
  /// @param size receives the array's size in bytes, the NUL included; must not be null.
  /// @return false, both outputs untouched, when id is null.
  virtual bool GetInkId(char** id, std::int32_t* size) const = 0;

  /// Asks for the ink's name: the names of ink type and colour with a space between. A slot that is
  /// not valid has none: name receives null and size 0, and the call succeeds.
  ///
  /// @param name receives a new array, NUL-terminated, that the host frees with `delete[]`; null is
  ///        answered as below.
  /// @param size receives the array's size in bytes, the NUL included; must not be null.
  /// @return false, both outputs untouched, when name is null.
  virtual bool GetInkName(char** name, std::int32_t* size) const = 0;

  /// Tells whether the definition file describes the colour and the ink type that the slot names.
  virtual bool IsValid() const = 0;
};

#endif

/// @file
/// How a host, in C or C++, gives back the arrays that TavrinLib hands out.
#ifndef TAVRIN_RELEASE_H
#define TAVRIN_RELEASE_H

#ifdef __cplusplus
#define TAVRIN_INLINE inline
#else
#define TAVRIN_INLINE static inline
#endif

#if defined(_WIN32)
/* As the system's own header declares them, which would bring thousands of names along. */
#ifdef __cplusplus
extern "C" {
#endif
__declspec(dllimport) void* __stdcall GetProcessHeap(void);
__declspec(dllimport) int __stdcall HeapFree(void* heap, unsigned long flags, void* block);
#ifdef __cplusplus
}
#endif
#elif defined(__cplusplus)
#include <new>
#else
#include <stdlib.h>
#endif

/// @ingroup inks
/// Releases an array that the library has handed out: the slot numbers of
/// TavrinGetInkSlotNumConposeInkCategory(), the texts of InkSlot::GetInkId() and
/// InkSlot::GetInkName(). On Windows they come from the heap of the process, elsewhere from its
/// `operator new[]`, which in C is taken to be the C library's `malloc`: a process that replaces it
/// releases from C++.
///
/// @param array the array; null is harmless.
TAVRIN_INLINE void TavrinRelease(void* array) {
#if defined(_WIN32)
  if (array) HeapFree(GetProcessHeap(), 0, array);
#elif defined(__cplusplus)
  ::operator delete[](array);
#else
  free(array);
#endif
}

#endif

// The library's memory comes from the heap of the process, whatever the C runtime beneath has: a
// host that knows nothing of that runtime can release what it is handed out. Of the allocation
// functions these are all that C++ lets a program replace, but for those of over-aligned types,
// none of which is handed out.
#include <new>

#include <windows.h>

namespace {

/// Null where there is no memory and no handler to make some, as the standard has it.
void* Take(std::size_t size) {
  for (;;) {
    if (void* block = HeapAlloc(GetProcessHeap(), 0, size)) return block;
    const std::new_handler handler = std::get_new_handler();
    if (handler == nullptr) return nullptr;
    handler();
  }
}

void* TakeOrThrow(std::size_t size) {
  if (void* block = Take(size)) return block;
  throw std::bad_alloc();
}

void* TakeOrNull(std::size_t size) noexcept {
  try {
    return Take(size);
  } catch (const std::bad_alloc&) {  // what a handler may throw
    return nullptr;
  }
}

void Give(void* block) noexcept {
  if (block != nullptr) HeapFree(GetProcessHeap(), 0, block);
}

}  // namespace

// clang-format off
void* operator new(std::size_t size) { return TakeOrThrow(size); }
void* operator new[](std::size_t size) { return TakeOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return TakeOrNull(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return TakeOrNull(size); }
void operator delete(void* block) noexcept { Give(block); }
void operator delete[](void* block) noexcept { Give(block); }
void operator delete(void* block, std::size_t) noexcept { Give(block); }
void operator delete[](void* block, std::size_t) noexcept { Give(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { Give(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { Give(block); }
// clang-format on

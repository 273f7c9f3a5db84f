#include "fault/Allocations.h"

#include <cstdlib>
#include <new>

namespace tavrin::test {

namespace {

// Plain data, as requests come before and after the lifetime of every object.
long live = 0;
long requests = 0;
long failAt = 0;  // 0: never
bool failsOn = false;

void* Take(std::size_t size) noexcept {
  ++requests;
  if (failAt != 0 && (requests == failAt || (failsOn && requests > failAt))) return nullptr;
  void* block = std::malloc(size == 0 ? 1 : size);
  if (block != nullptr) ++live;
  return block;
}

void* TakeOrThrow(std::size_t size) {
  void* block = Take(size);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}

void Give(void* block) noexcept {
  if (block != nullptr) --live;
  std::free(block);
}

}  // namespace

void Allocations::FailAt(long n, Failing failing) {
  requests = 0;
  failAt = n;
  failsOn = failing == Failing::FromThereOn;
}

long Allocations::Disarm() {
  failAt = 0;
  return requests;
}

long Allocations::Live() {
  return live;
}

}  // namespace tavrin::test

using tavrin::test::Give;
using tavrin::test::Take;
using tavrin::test::TakeOrThrow;

// clang-format off
void* operator new(std::size_t size) { return TakeOrThrow(size); }
void* operator new[](std::size_t size) { return TakeOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return Take(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return Take(size); }
void operator delete(void* block) noexcept { Give(block); }
void operator delete[](void* block) noexcept { Give(block); }
void operator delete(void* block, std::size_t) noexcept { Give(block); }
void operator delete[](void* block, std::size_t) noexcept { Give(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { Give(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { Give(block); }
// clang-format on

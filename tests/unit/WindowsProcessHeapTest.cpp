#include <cstdint>
#include <functional>
#include <new>

#include <windows.h>
#include <gtest/gtest.h>

namespace tavrin {
namespace {

long handled = 0;

/// As a host's may: it finds some memory to give up, twice, and then knows no more.
void GiveUpTwice() {
  if (++handled > 2) throw std::bad_alloc();
}

TEST(WindowsProcessHeap, WhatNewHandsOutLiesInIt) {
  const HANDLE heap = GetProcessHeap();
  for (const std::size_t size : {0u, 1u, 24u, 1000000u}) {
    void* const blocks[] = {::operator new(size), ::operator new[](size),
                            ::operator new(size, std::nothrow),
                            ::operator new[](size, std::nothrow)};
    for (void* block : blocks) {
      EXPECT_EQ(HeapSize(heap, 0, block), size);
      EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % __STDCPP_DEFAULT_NEW_ALIGNMENT__, 0u);
      ::operator delete(block);
    }
  }
}

TEST(WindowsProcessHeap, AnImpossibleRequestIsRefusedAsTheLanguageHasIt) {
  volatile std::size_t size = SIZE_MAX / 2;
  const std::function<void*()> throwing[] = {[&] { return ::operator new(size); },
                                             [&] { return ::operator new[](size); }};
  const std::function<void*()> quiet[] = {[&] { return ::operator new(size, std::nothrow); },
                                          [&] { return ::operator new[](size, std::nothrow); }};
  for (const std::new_handler handler : {std::new_handler(), std::new_handler(GiveUpTwice)}) {
    std::set_new_handler(handler);
    const long calls = handler == nullptr ? 0 : 3;
    for (const auto& request : throwing) {
      handled = 0;
      EXPECT_THROW(request(), std::bad_alloc);
      EXPECT_EQ(handled, calls);
    }
    for (const auto& request : quiet) {
      handled = 0;
      EXPECT_EQ(request(), nullptr);
      EXPECT_EQ(handled, calls);
    }
  }
  std::set_new_handler(nullptr);
}

}  // namespace
}  // namespace tavrin

#pragma once

#include <memory>

#include "TavrinRelease.h"

namespace tavrin::test {

struct Release {
  void operator()(void* array) const { TavrinRelease(array); }
};

/// An array that the library handed out, released as a host does it.
template <typename Element>
using Owned = std::unique_ptr<Element[], Release>;

}  // namespace tavrin::test

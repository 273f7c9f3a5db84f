#pragma once

#include <cstdint>
#include <vector>

#include "hosts/HostPart.h"

namespace tavrin::test {

/// One of the ways in which a host asks.
struct Host {
  const char* name;
  void (*askSlot)(std::uint32_t number, SlotAnswer* answer);
  void (*askCategory)(std::int32_t index, CategoryAnswer* answer);
};

/// Those that there are on this system.
std::vector<Host> Hosts();

/// How much of the heap that arrays come from is handed out, in what the system counts.
std::size_t HeapInUse();

}  // namespace tavrin::test

#pragma once

#include <cstdint>

/// An exported function that does nothing.
extern "C" bool EmptyExport(std::uint32_t* value);

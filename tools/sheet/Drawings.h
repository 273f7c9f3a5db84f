#pragma once

#include <cstdint>

#include "facts/PrinterFacts.h"
#include "sheet/Html.h"

namespace tavrin::tool {

/// The build volume seen from above a corner, its three directions on one scale, with what the
/// margin leaves of its floor and a bar of a round length.
Html VolumeDrawing(const PrinterFacts& facts);

/// The thickness of the side support over the height of the model, with that of the top support and
/// the height of the detach layer.
Html SupportCurve(const PrinterFacts& facts);

/// A bar as long as the value is of the greatest one.
Html Bar(std::int64_t value, std::int64_t greatest, const Html& title);

}  // namespace tavrin::tool

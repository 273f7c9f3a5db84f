#pragma once

namespace tavrin::tool {

/// How a data sheet looks: on bright and dark screens from 375 pixels on, and printed on A4.
extern const char kSheetStyle[];

}  // namespace tavrin::tool

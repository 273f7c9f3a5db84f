#pragma once

namespace tavrin {

/// A point or extent in space.
struct M3DVector {
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
};

}  // namespace tavrin

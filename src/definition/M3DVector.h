#pragma once

namespace tavrin {

/// A point or extent in space.
struct M3DVector {
  M3DVector() = default;
  M3DVector(double newX, double newY, double newZ) : x(newX), y(newY), z(newZ) {}
  M3DVector(const M3DVector&) = default;
  M3DVector& operator=(const M3DVector&) = default;
  virtual ~M3DVector() = default;

  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
};

}  // namespace tavrin

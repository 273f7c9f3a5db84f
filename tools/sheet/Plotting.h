#pragma once

#include <vector>

#include "sheet/Html.h"

namespace tavrin::tool {

/// A place in a drawing, y growing downwards.
struct Point {
  double x = 0.0;
  double y = 0.0;
};

/// The points one after the other, as attributes have them.
Html PointList(const std::vector<Point>& points);

Html Line(const Html& style, Point from, Point to);
Html Polygon(const Html& style, const std::vector<Point>& corners);
/// anchor is start, middle or end.
Html Label(Point at, const Html& anchor, const Html& text);

/// The greatest of 1, 2 and 5 times a power of ten that is no greater than number, which is above
/// 0.
double RoundedDown(double number);

}  // namespace tavrin::tool

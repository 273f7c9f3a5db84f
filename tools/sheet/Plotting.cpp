#include "sheet/Plotting.h"

#include <cmath>

namespace tavrin::tool {

namespace {

Html Attribute(const Html& name, double value) {
  return Html(" ") + name + "=\"" + Decimal(value) + "\"";
}

}  // namespace

Html PointList(const std::vector<Point>& points) {
  Html list;
  for (const Point& point : points)
    list += (list.IsEmpty() ? Html() : Html(" ")) + Decimal(point.x) + "," + Decimal(point.y);
  return list;
}

Html Line(const Html& style, Point from, Point to) {
  return Html().In(Html("line class=\"") + style + "\"" + Attribute("x1", from.x) +
                   Attribute("y1", from.y) + Attribute("x2", to.x) + Attribute("y2", to.y));
}

Html Polygon(const Html& style, const std::vector<Point>& corners) {
  return Html().In(Html("polygon class=\"") + style + "\" points=\"" + PointList(corners) + "\"");
}

Html Label(Point at, const Html& anchor, const Html& text) {
  return text.In(Html("text") + Attribute("x", at.x) + Attribute("y", at.y) + " text-anchor=\"" +
                 anchor + "\"");
}

double RoundedDown(double number) {
  const double power = std::pow(10.0, std::floor(std::log10(number)));
  for (const double factor : {5.0, 2.0}) {
    if (factor * power <= number) return factor * power;
  }
  return power;
}

}  // namespace tavrin::tool

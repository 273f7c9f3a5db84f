#include <algorithm>
#include <cmath>

#include "sheet/Drawings.h"
#include "sheet/Plotting.h"

namespace tavrin::tool {

namespace {

constexpr double kWidth = 440.0;
constexpr double kHeight = 330.0;
constexpr double kSide = 84.0;   ///< for what is written beside the volume
constexpr double kBelow = 46.0;  ///< and under it

/// A direction on the page, of a length of 1.
struct Direction {
  double across;
  double down;
};

// Not symmetrical, or a cube's front corner would hide the one at its back.
constexpr Direction kAlongWidth = {0.9272, 0.3746};   // 22 degrees to the right
constexpr Direction kAlongDepth = {-0.7880, 0.6157};  // 38 degrees to the left

/// Places of the volume, in mm from the corner at the back, on the page.
class Projection {
 public:
  Projection(double width, double depth, double height) {
    const double before = depth * -kAlongDepth.across;
    const double across = before + width * kAlongWidth.across;
    const double down = width * kAlongWidth.down + depth * kAlongDepth.down + height;
    if (across > 0.0 && down > 0.0)
      scale_ = std::min((kWidth - 2.0 * kSide) / across, (kHeight - kBelow) / down);
    left_ = (kWidth - across * scale_) / 2.0 + before * scale_;
    top_ = 6.0 + (kHeight - kBelow - down * scale_) / 2.0 + height * scale_;
  }

  Point At(double x, double y, double z) const {
    return {left_ + (x * kAlongWidth.across + y * kAlongDepth.across) * scale_,
            top_ + (x * kAlongWidth.down + y * kAlongDepth.down - z) * scale_};
  }
  /// Of a length along one of the three directions.
  double OnPage(double length) const { return length * scale_; }
  double InMm(double onPage) const { return onPage / scale_; }
  bool IsEmpty() const { return scale_ == 0.0; }

 private:
  double scale_ = 0.0;
  double left_ = 0.0;
  double top_ = 0.0;
};

double InMm(std::uint32_t micrometres) {
  return micrometres / 1000.0;
}

/// A rectangle that is set in from all edges of the floor.
std::vector<Point> Floor(const Projection& place, double w, double d, double in, double z) {
  return {place.At(in, in, z), place.At(w - in, in, z), place.At(w - in, d - in, z),
          place.At(in, d - in, z)};
}

/// The edges that meet in a corner, to the three corners next to it.
Html Edges(const Html& style, const Projection& place, const double (&corner)[3],
           const double (&opposite)[3]) {
  const Point at = place.At(corner[0], corner[1], corner[2]);
  return Line(style, at, place.At(opposite[0], corner[1], corner[2])) +
         Line(style, at, place.At(corner[0], opposite[1], corner[2])) +
         Line(style, at, place.At(corner[0], corner[1], opposite[2]));
}

Html ScaleBar(const Projection& place) {
  const double length = RoundedDown(place.InMm(110.0));
  const double begin = 8.0;
  const double y = kHeight - 8.0;
  const double end = begin + place.OnPage(length);
  return Line("ruler", {begin, y}, {end, y}) + Line("ruler", {begin, y - 4.0}, {begin, y + 4.0}) +
         Line("ruler", {end, y - 4.0}, {end, y + 4.0}) +
         Label({begin, y - 8.0}, "start", Decimal(length) + "\u00A0mm");
}

struct Extent {
  double w;
  double d;
  double h;
};

/// The floor and the walls behind it.
Html Inside(const Projection& place, const Extent& box, double margin) {
  const auto [w, d, h] = box;
  const bool leavesArea = margin >= 0.0 && 2.0 * margin < std::min(w, d);
  const Point corner = place.At(0, 0, 0);
  const Point above = place.At(0, 0, h);
  Html inside = Polygon("wall", {corner, place.At(w, 0, 0), place.At(w, 0, h), above}) +
                Polygon("wall", {corner, place.At(0, d, 0), place.At(0, d, h), above}) +
                Polygon("margin", Floor(place, w, d, 0.0, 0.0));
  if (leavesArea) inside += Polygon("area", Floor(place, w, d, margin, 0.0));
  return inside;
}

Html Outline(const Projection& place, const Extent& box) {
  const auto [w, d, h] = box;
  Html outline =
      Edges("hidden", place, {0, 0, 0}, {w, d, h}) + Polygon("edge", Floor(place, w, d, 0.0, h));
  for (const Point foot : {Point{w, 0.0}, Point{w, d}, Point{0.0, d}})
    outline += Line("edge", place.At(foot.x, foot.y, 0), place.At(foot.x, foot.y, h));
  return outline;
}

/// A length with its name to the right of a place, or to its left; moved so far that it is on the
/// page.
Html LengthLabel(Point at, bool isToTheRight, const std::string& name, std::int64_t micrometres) {
  constexpr double kCharacter = 10.2;
  const std::size_t places = micrometres % 1000 == 0 ? 0 : 4;
  const auto characters = name.size() + std::to_string(micrometres / 1000).size() + places + 3;
  const double length = kCharacter * static_cast<double>(characters);
  const Html text = Html::Text(name) + Millimetres(micrometres);
  return isToTheRight ? Label({std::min(at.x, kWidth - length), at.y}, "start", text)
                      : Label({std::max(at.x, length), at.y}, "end", text);
}

Html Lengths(const Projection& place, const Extent& box, const PrinterFacts& facts) {
  const auto [w, d, h] = box;
  const Point left = place.At(w / 2.0, d, 0);
  const Point right = place.At(w, d / 2.0, 0);
  const Point upright = place.At(w, 0, h / 2.0);
  const Point corner = place.At(w, d, 0);
  const Point under = {corner.x, corner.y + 24.0};
  return LengthLabel({left.x - 10.0, left.y + 17.0}, false, "width ", facts.widthUm) +
         LengthLabel({right.x + 10.0, right.y + 17.0}, true, "depth ", facts.depthUm) +
         LengthLabel({upright.x + 8.0, upright.y}, true, "", facts.heightUm) +
         Line("leader", corner, under) +
         Label({under.x, under.y + 14.0}, "middle",
               Html("margin ") + Millimetres(facts.printMargin.count));
}

}  // namespace

Html VolumeDrawing(const PrinterFacts& facts) {
  const Extent box = {InMm(facts.widthUm), InMm(facts.depthUm), InMm(facts.heightUm)};
  const Projection place(box.w, box.d, box.h);
  Html drawing = (Html("Build volume to scale: ") + Millimetres(facts.widthUm) + " wide, " +
                  Millimetres(facts.depthUm) + " deep, " + Millimetres(facts.heightUm) +
                  " high; margin " + Millimetres(facts.printMargin.count))
                     .In("title");
  if (place.IsEmpty()) {
    drawing += Label({kWidth / 2.0, kHeight / 2.0}, "middle", "The build volume has no extent.");
  } else {
    drawing += Inside(place, box, facts.printMargin.count / 1000.0) + Outline(place, box) +
               Lengths(place, box, facts) + ScaleBar(place);
  }
  return drawing.In("svg class=\"drawing\" viewBox=\"0 0 440 330\" role=\"img\"");
}

}  // namespace tavrin::tool

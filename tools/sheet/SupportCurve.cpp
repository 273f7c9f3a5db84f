#include <algorithm>
#include <cmath>

#include "sheet/Drawings.h"
#include "sheet/Plotting.h"

namespace tavrin::tool {

namespace {

constexpr double kRight = 412.0;
constexpr double kTop = 30.0;
constexpr double kBottom = 282.0;

Html TickText(double tick) {
  return Decimal(tick, 4);
}

/// Lengths in mm on the page: heights of the model to the right, thicknesses upwards.
class Axes {
 public:
  Axes(double height, double least, double most)
      : height_(height), least_(least), most_(most), step_(RoundedDown((most - least) / 3.0)) {
    constexpr double kCharacter = 10.2;
    const double lastTick = std::floor(most / step_) * step_;
    const std::size_t characters = std::max(
        {TickText(lastTick).Ascii().size(), TickText(step_).Ascii().size(), std::size_t{3}});
    left_ = 16.0 + kCharacter * static_cast<double>(characters);
  }

  Point At(double height, double thickness) const {
    return {left_ + (kRight - left_) * height / height_,
            kBottom - (kBottom - kTop) * (thickness - least_) / (most_ - least_)};
  }
  Html Grid() const;
  Html Level(const Html& style, double thickness) const {
    return Line(style, At(0.0, thickness), At(height_, thickness));
  }

 private:
  double height_;
  double least_;
  double most_;
  double step_;  ///< between two lines of the grid
  double left_;
};

Html Axes::Grid() const {
  Html grid;
  for (double tick = std::ceil(least_ / step_); tick * step_ <= most_; ++tick) {
    grid += Level("grid", tick * step_) +
            Label({left_ - 7.0, At(0.0, tick * step_).y + 4.0}, "end", TickText(tick * step_));
  }
  // Fewer where their numbers are long.
  const double along = RoundedDown(height_ / (height_ < 10000.0 ? 3.0 : 2.0));
  for (double tick = 0.0; tick * along <= height_; ++tick) {
    const Point foot = At(tick * along, least_);
    grid += Line("grid", foot, {foot.x, kTop}) +
            Label({foot.x, kBottom + 18.0}, "middle", TickText(tick * along));
  }
  return grid + Line("axis", {left_, kBottom}, {kRight, kBottom}) +
         Line("axis", {left_, kTop}, {left_, kBottom}) +
         Label({kRight, kBottom + 38.0}, "end", "height of the model in mm") +
         Label({6.0, 16.0}, "start", "thickness in mm");
}

double InMm(tavrinlib::Micrometres length) {
  return length.count / 1000.0;
}

}  // namespace

Html SupportCurve(const PrinterFacts& facts) {
  const auto& curve = facts.sideSupportCurve;
  const SideSupportFacts& last = curve.back();
  Html drawing = (Html("Side support ") + Millimetres(curve.front().thickness.count) +
                  " beside the lowest model, " + Millimetres(last.thickness.count) +
                  " beside one of " + Millimetres(last.modelHeight.count))
                     .In("title");
  double least = 0.0;
  double most = std::max({InMm(facts.topSupport), InMm(facts.detachLayer), 0.001});
  for (const SideSupportFacts& side : curve) {
    least = std::min(least, InMm(side.thickness));
    most = std::max(most, InMm(side.thickness));
  }
  const Axes axes(InMm(last.modelHeight), least, most + (most - least) * 0.06);
  std::vector<Point> points;
  for (const SideSupportFacts& side : curve)
    points.push_back(axes.At(InMm(side.modelHeight), InMm(side.thickness)));
  std::vector<Point> area = points;
  area.insert(area.begin(), axes.At(InMm(curve.front().modelHeight), 0.0));
  area.push_back(axes.At(InMm(last.modelHeight), 0.0));
  drawing += Polygon("under", area) + axes.Grid() + axes.Level("detach", InMm(facts.detachLayer)) +
             axes.Level("top", InMm(facts.topSupport)) +
             Html().In(Html("polyline class=\"curve\" points=\"") + PointList(points) + "\"");
  return drawing.In("svg class=\"drawing\" viewBox=\"0 0 440 330\" role=\"img\"");
}

Html Bar(std::int64_t value, std::int64_t greatest, const Html& title) {
  const double length =
      greatest <= 0 ? 0.0 : 100.0 * static_cast<double>(value) / static_cast<double>(greatest);
  return (title.In("title") + "<rect class=\"track\" width=\"100\" height=\"6\"></rect>" +
          Html().In(Html("rect class=\"fill\" height=\"6\" width=\"") +
                    Decimal(std::max(length, 0.0)) + "\""))
      .In("svg class=\"bar\" viewBox=\"0 0 100 6\" preserveAspectRatio=\"none\" role=\"img\"");
}

}  // namespace tavrin::tool

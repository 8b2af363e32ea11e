#include "hosts/console/Snapshot.h"

#include "zilvo/platform/painting/SvgPainter.h"

#include <algorithm>

namespace zilvo::console {

using namespace platform;

namespace {

/// Draws nothing, but finds out how far the drawing reaches to the right and down. What lies in an entered
/// area is clipped to it, so only the outermost areas count.
class ExtentPainter final : public Painter {
public:
    Single right = 0;
    Single bottom = 0;

    void rectangle(const Rectangle& area, const ShapeStyle&, Single) override { reach(area); }
    void ellipse(const Rectangle& area, const ShapeStyle&) override { reach(area); }
    void polygon(std::span<const Point> corners, const ShapeStyle&) override {
        for (const Point& corner : corners)
            reach({corner.x, corner.y, 0, 0});
    }
    void line(Point from, Point to, Colour, Single width) override {
        reach({from.x, from.y, width, width});
        reach({to.x, to.y, 0, 0});
    }
    void text(const TextRun& run) override { reach({run.origin.x, run.origin.y, run.width, 0}); }
    void bitmap(const Bitmap&, const Rectangle& area) override { reach(area); }
    void enter(const Rectangle& area) override {
        reach(area);
        ++depth_;
    }
    void leave() override { --depth_; }

private:
    void reach(const Rectangle& area) {
        if (depth_ > 0) return;
        right = std::max(right, area.right());
        bottom = std::max(bottom, area.bottom());
    }

    unsigned depth_ = 0;
};

} // namespace

std::string svgOf(ControlHost& host) {
    ExtentPainter extent;
    host.paint(extent);
    SvgPainter painter(extent.right, extent.bottom);
    host.paint(painter);
    return painter.document();
}

} // namespace zilvo::console

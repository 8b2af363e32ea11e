#include "hosts/console/Gallery.h"

#include "zilvo/platform/component/ControlHost.h"
#include "zilvo/platform/painting/SvgPainter.h"

#include <algorithm>
#include <memory>

namespace zilvo::console {

using namespace platform;

namespace {

// Twips.
constexpr Single PictureWidth = 12300;
constexpr Single Margin = 240;
constexpr Single NameHeight = 300;
constexpr FontLook NameFont{u"Arial", 9, 400, false, false, false};

struct Exhibit {
    std::unique_ptr<ControlHost> host;
    String name;
    Rectangle area; ///< of the control, below its name
};

/// From left to right in rows as wide as the picture.
Single arrange(std::vector<Exhibit>& exhibits) {
    Point corner{Margin, Margin};
    Single rowHeight = 0;
    for (Exhibit& exhibit : exhibits) {
        const Single width = std::max(exhibit.area.width, textWidth(exhibit.name, NameFont));
        if (corner.x > Margin && corner.x + width > PictureWidth - Margin) {
            corner = {Margin, corner.y + rowHeight + Margin};
            rowHeight = 0;
        }
        exhibit.area.left = corner.x;
        exhibit.area.top = corner.y + NameHeight;
        corner.x += width + Margin;
        rowHeight = std::max(rowHeight, NameHeight + exhibit.area.height);
    }
    return corner.y + rowHeight + Margin;
}

} // namespace

std::string galleryOf(const LoadedComponent& component) {
    std::vector<Exhibit> exhibits;
    for (const ClassEntry& entry : component.description().classes) {
        if (!entry.identity.isControl()) continue;
        auto host = std::make_unique<ControlHost>(component.create(entry.identity.name));
        host->open();
        const Rectangle area = host->control().surface().area();
        exhibits.push_back({std::move(host), String(entry.identity.name), area});
    }
    // Low ones together, so that the rows come out even.
    std::stable_sort(exhibits.begin(), exhibits.end(),
                     [](const Exhibit& one, const Exhibit& other) { return one.area.height < other.area.height; });
    const Single height = arrange(exhibits);

    SvgPainter painter(PictureWidth, height);
    painter.rectangle({0, 0, PictureWidth, height}, {.fill = colours::White, .stroke = std::nullopt}, 0);
    for (const Exhibit& exhibit : exhibits) {
        const Single baseline = exhibit.area.top - NameHeight + lineMetrics(NameFont).ascent;
        painter.text({.text = exhibit.name,
                      .origin = {exhibit.area.left, baseline},
                      .width = textWidth(exhibit.name, NameFont),
                      .font = NameFont,
                      .colour = colours::Black});
        const PaintedArea area(painter, exhibit.area);
        exhibit.host->paint(painter);
    }
    return painter.document();
}

} // namespace zilvo::console

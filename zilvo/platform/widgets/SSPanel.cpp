#include "zilvo/platform/widgets/SSPanel.h"

#include "zilvo/platform/widgets/Look.h"
#include "zilvo/platform/widgets/Surface.h"

namespace zilvo::platform {

SSPanel::SSPanel(Container& container, const Design& design, MouseDownHandler mouseDown)
    : CaptionedWidget(container, placementOf(design), appearanceOf(design)),
      captionDown_(design.CaptionDown),
      mouseDown_(mouseDown) {}

void SSPanel::pointerDown(Integer button, Integer shift, Point at) {
    mouseDown_(button, shift, at.x, at.y);
}

StringView SSPanel::shownText() const noexcept {
    const Point middle{bounds().width / 2, bounds().height / 2};
    if (captionDown_ == Alignment::Centre)
        for (const Widget& child : Widget::surface())
            if (child.parent() == this && child.get_Visible() && child.bounds().contains(middle)) return {};
    return caption();
}

const ClassDescription& SSPanel::description() const noexcept {
    static constexpr ClassDescription description{.name = u"Threed.SSPanel", .members = {}, .base = &captionedMembers};
    return description;
}

void SSPanel::paint(Painter& painter) const {
    const Rectangle area = drawnArea();
    painter.rectangle(area, {.fill = get_BackColor(), .stroke = std::nullopt});
    paintCaption(
        painter, area.inset(2 * TwipsPerPixel),
        {.designed = caption(), .font = font(), .colour = get_ForeColor(), .down = captionDown_, .greyed = isGreyed()});
}

void SSPanel::paintEdge(Painter& painter) const {
    look::raised(painter, drawnArea());
}

} // namespace zilvo::platform

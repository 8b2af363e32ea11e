#include "zilvo/platform/widgets/SSFrame.h"

#include "zilvo/platform/widgets/Look.h"

namespace zilvo::platform {

SSFrame::SSFrame(Container& container, const Design& design)
    : CaptionedWidget(container, placementOf(design), appearanceOf(design)) {}

const ClassDescription& SSFrame::description() const noexcept {
    static constexpr ClassDescription description{.name = u"Threed.SSFrame", .members = {}, .base = &captionedMembers};
    return description;
}

void SSFrame::paint(Painter& painter) const {
    const Rectangle area = drawnArea();
    painter.rectangle(area, {.fill = get_BackColor(), .stroke = std::nullopt});

    // The border runs through the middle of the caption and leaves two pixels on either side of it.
    const Single indent = 9 * TwipsPerPixel;
    const Single margin = 2 * TwipsPerPixel;
    const CaptionLook look{.designed = caption(),
                           .font = font(),
                           .colour = get_ForeColor(),
                           .across = Alignment::Near,
                           .down = Alignment::Near,
                           .greyed = isGreyed(),
                           .wraps = false};
    const Single lineHeight = painter.lineMetrics(look.font).height;
    const Rectangle line{indent, 0, area.width - indent, lineHeight};
    const Rectangle text = paintCaption(painter, line, look);
    const Single top = caption().empty() ? 0 : wholePixels(lineHeight / 2);
    const Single gapTo = caption().empty() ? indent - margin : wholePixels(text.right()) + margin;
    painter.groove({0, top, area.width, area.height - top}, indent - margin, gapTo);
}

} // namespace zilvo::platform

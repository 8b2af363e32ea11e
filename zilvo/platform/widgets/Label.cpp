#include "zilvo/platform/widgets/Label.h"

#include "zilvo/platform/widgets/Look.h"

namespace zilvo::platform {

Label::Label(Container& container, const Design& design)
    : CaptionedWidget(container, placementOf(design), appearanceOf(design)),
      align_(design.Align),
      transparent_(design.Transparent),
      sunken_(design.Sunken),
      reach_(design.Reach) {}

const ClassDescription& Label::description() const noexcept {
    static constexpr ClassDescription description{.name = u"Label", .members = {}, .base = &captionedMembers};
    return description;
}

void Label::paint(Painter& painter) const {
    const Rectangle drawn = drawnArea();
    const Rectangle area{reach_, reach_, drawn.width, drawn.height};
    if (!transparent_) painter.rectangle(area, {.fill = get_BackColor(), .stroke = std::nullopt});
    if (sunken_) look::sunken(painter, area);
    paintCaption(painter, sunken_ ? area.inset(TwipsPerPixel) : area,
                 {.designed = caption(),
                  .font = font(),
                  .colour = get_ForeColor(),
                  .across = align_,
                  .down = Alignment::Near,
                  .greyed = isGreyed()});
}

} // namespace zilvo::platform

#include "zilvo/platform/widgets/MarkedWidget.h"

namespace zilvo::platform {

void MarkedWidget::paintGround(Painter& painter) const {
    if (!transparent_) painter.rectangle(drawnArea(), {.fill = get_BackColor(), .stroke = std::nullopt});
}

look::MarkedLook MarkedWidget::look() const {
    return {.caption = caption(),
            .font = font(),
            .foreColor = get_ForeColor(),
            .side = mark_,
            .enabled = !isGreyed(),
            .focused = isFocused(),
            .pressed = isPressed()};
}

} // namespace zilvo::platform

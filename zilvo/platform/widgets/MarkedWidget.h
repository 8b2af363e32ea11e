#pragma once

#include "zilvo/platform/widgets/CaptionedWidget.h"
#include "zilvo/platform/widgets/Look.h"

namespace zilvo::platform {

/// A widget that is a mark, square or round, beside a caption, and that the user sets by a click.
class MarkedWidget : public CaptionedWidget {
public:
    bool takesFocus() const noexcept final { return true; }
    char16_t accessKey() const noexcept final { return accessKeyOf(caption()); }
    bool isClickable() const noexcept final { return true; }

protected:
    template <class Design>
    MarkedWidget(Container& container, const Design& design)
        : CaptionedWidget(container, placementOf(design), appearanceOf(design)), mark_(design.Mark) {
        if constexpr (requires { design.Transparent; }) transparent_ = design.Transparent;
    }

    void paintGround(Painter& painter) const;
    look::MarkedLook look() const;

private:
    look::MarkSide mark_;
    bool transparent_ = false;
};

} // namespace zilvo::platform

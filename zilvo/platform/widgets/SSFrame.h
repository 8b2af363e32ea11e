#pragma once

#include "zilvo/platform/widgets/CaptionedWidget.h"

namespace zilvo::platform {

/// A 3-D frame: an etched border with a caption in its upper edge, around other widgets, which are placed in twips.
class SSFrame final : public CaptionedWidget, public Container {
public:
    struct Design {
        platform::Name Name;
        Integer Index = NoIndex;
        Twips Left, Top, Width, Height;
        const char16_t* Caption = u"";
        Colour BackColor = colours::ButtonFace;
        Colour ForeColor = colours::ButtonText;
        FontDesign Font = {};
        bool Enabled = true;
        bool Visible = true;
        Integer TabIndex = 0;
        const char16_t* ToolTipText = u"";
        Integer ZOrder = 0;
    };

    SSFrame(Container& container, const Design& design);

    Surface& surface() noexcept override { return Widget::surface(); }
    Widget* asWidget() noexcept override { return this; }
    ScaleMode childScale() const noexcept override { return ScaleMode::Twips; }

    const ClassDescription& description() const noexcept override;
    Role role() const noexcept override { return Role::Group; }
    void paint(Painter& painter) const override;

private:
};

} // namespace zilvo::platform

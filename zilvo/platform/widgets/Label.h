#pragma once

#include "zilvo/platform/painting/TextLayout.h"
#include "zilvo/platform/widgets/CaptionedWidget.h"

namespace zilvo::platform {

/// A line or block of text. Takes pointer presses away from what lies behind it and notifies nobody.
class Label final : public CaptionedWidget {
public:
    struct Design {
        platform::Name Name;
        Integer Index = NoIndex;
        Twips Left, Top, Width, Height;
        const char16_t* Caption = u"";
        Alignment Align = Alignment::Near;
        bool Transparent = false; ///< no ground of its own: what lies behind shows
        bool Sunken = false;      ///< a sunken border of one pixel
        Single Reach = 0;         ///< how far its text may be seen beyond its edges, twips
        Colour BackColor = colours::ButtonFace;
        Colour ForeColor = colours::ButtonText;
        FontDesign Font = {};
        bool Enabled = true;
        bool Visible = true;
        Integer TabIndex = 0;
        const char16_t* ToolTipText = u"";
        Integer ZOrder = 0;
    };

    Label(Container& container, const Design& design);

    /// Sunken like a field of a form, it shows a value.
    bool isField() const noexcept { return sunken_; }

    const ClassDescription& description() const noexcept override;
    Role role() const noexcept override { return Role::Label; }
    void paint(Painter& painter) const override;
    Rectangle paintedBounds() const noexcept override { return Widget::paintedBounds().inset(-reach_); }

private:
    Alignment align_;
    bool transparent_;
    bool sunken_;
    Single reach_;
};

} // namespace zilvo::platform

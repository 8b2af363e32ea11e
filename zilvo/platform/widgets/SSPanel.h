#pragma once

#include "zilvo/platform/painting/TextLayout.h"
#include "zilvo/platform/widgets/CaptionedWidget.h"

namespace zilvo::platform {

/// A raised 3-D panel that other widgets lie on; its children are placed in twips. Reports pointer presses where
/// none of them is.
class SSPanel final : public CaptionedWidget, public Container {
public:
    struct Design {
        platform::Name Name;
        Integer Index = NoIndex;
        Twips Left, Top, Width, Height;
        const char16_t* Caption = u"";
        Alignment CaptionDown = Alignment::Centre;
        Colour BackColor = colours::ButtonFace;
        Colour ForeColor = colours::ButtonText;
        FontDesign Font = {};
        bool Enabled = true;
        bool Visible = true;
        Integer TabIndex = 0;
        const char16_t* ToolTipText = u"";
        Integer ZOrder = 0;
    };
    /// Button, Shift, X, Y; the position in twips from the panel's corner.
    using MouseDownHandler = Delegate<Integer&, Integer&, Single&, Single&>;

    SSPanel(Container& container, const Design& design, MouseDownHandler mouseDown = {});

    Surface& surface() noexcept override { return Widget::surface(); }
    Widget* asWidget() noexcept override { return this; }
    ScaleMode childScale() const noexcept override { return ScaleMode::Twips; }

    const ClassDescription& description() const noexcept override;
    Role role() const noexcept override { return Role::Group; }
    /// A caption in the middle is not seen where a child lies over it.
    StringView shownText() const noexcept override;
    bool isClickable() const noexcept override { return static_cast<bool>(mouseDown_); }
    void pointerDown(Integer button, Integer shift, Point at) override;
    void paint(Painter& painter) const override;
    void paintEdge(Painter& painter) const override;

private:
    Alignment captionDown_;
    MouseDownHandler mouseDown_;
};

} // namespace zilvo::platform

#pragma once

#include "zilvo/platform/widgets/CaptionedWidget.h"

namespace zilvo::platform {

/// A push button. The user's click, Space, its access key, Enter while it is default or focused and Escape while it
/// is cancel button send Click; nothing done in code does.
class CommandButton final : public CaptionedWidget {
public:
    struct Design {
        platform::Name Name;
        Integer Index = NoIndex;
        Twips Left, Top, Width, Height;
        const char16_t* Caption = u"";
        Colour BackColor = colours::ButtonFace;
        FontDesign Font = {};
        bool Enabled = true;
        bool Visible = true;
        bool Default = false;
        bool Cancel = false;
        Integer TabIndex = 0;
        const char16_t* ToolTipText = u"";
        Integer ZOrder = 0;
    };
    using ClickHandler = Delegate<Integer&>;

    CommandButton(Container& container, const Design& design, ClickHandler click);

    /// Setting Default takes it from the other push buttons of the same control; likewise Cancel.
    bool get_Default() const noexcept;
    void put_Default(bool newDefault);
    bool get_Cancel() const noexcept;
    void put_Cancel(bool newCancel);

    const ClassDescription& description() const noexcept override;
    Role role() const noexcept override { return Role::PushButton; }
    bool takesFocus() const noexcept override { return true; }
    char16_t accessKey() const noexcept override { return accessKeyOf(caption()); }
    bool isClickable() const noexcept override { return true; }
    void userClick() override;
    void paint(Painter& painter) const override;

private:
    ClickHandler click_;
};

} // namespace zilvo::platform

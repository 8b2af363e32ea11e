#pragma once

#include "zilvo/platform/widgets/Widget.h"

namespace zilvo::platform {

/// A picture. The user's click on it sends Click; it never takes the keyboard.
class Image final : public Widget {
public:
    struct Design {
        platform::Name Name;
        Integer Index = NoIndex;
        Twips Left, Top, Width, Height;
        /// Shared by all instances; must outlive them. Null for none.
        const Bitmap* Picture = nullptr;
        bool Enabled = true;
        bool Visible = true;
        const char16_t* ToolTipText = u"";
        const char16_t* Spoken = u"";
        Integer ZOrder = 0;
    };
    using ClickHandler = Delegate<Integer&>;

    Image(Container& container, const Design& design, ClickHandler click = {});

    const ClassDescription& description() const noexcept override;
    Role role() const noexcept override { return click_ ? Role::PictureButton : Role::Picture; }
    bool isClickable() const noexcept override { return true; }
    void userClick() override;
    void paint(Painter& painter) const override;

private:
    const Bitmap* picture_;
    ClickHandler click_;
};

} // namespace zilvo::platform

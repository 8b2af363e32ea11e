#pragma once

#include "zilvo/platform/widgets/Widget.h"

namespace zilvo::platform {

/// A drawn outline in one of six forms. Lets pointer presses through.
class Shape final : public Widget {
public:
    enum Form : Integer { IsRectangle, IsSquare, IsOval, IsCircle, IsRoundedRectangle, IsRoundedSquare };

    struct Design {
        platform::Name Name;
        Integer Index = NoIndex;
        Twips Left, Top, Width, Height;
        Form Shape = IsRectangle;
        Integer BorderWidth = 1; ///< pixels
        Colour BorderColor = colours::WindowText;
        bool Filled = false;
        Colour FillColor = colours::Black;
        Colour BackColor = colours::WindowBackground;
        bool Visible = true;
        Integer ZOrder = 0;
    };

    Shape(Container& container, const Design& design);

    /// 0 to 5; anything else fails with InvalidPropertyValue and leaves the form as it was.
    Integer get_Shape() const noexcept { return form_; }
    void put_Shape(Integer newShape);
    Integer get_BorderWidth() const noexcept { return borderWidth_; }
    Colour get_BorderColor() const noexcept { return borderColor_; }
    Colour get_FillColor() const noexcept { return fillColor_; }
    Colour get_BackColor() const noexcept { return backColor_; }

    const ClassDescription& description() const noexcept override;
    Role role() const noexcept override { return Role::None; }
    bool isHit() const noexcept override { return false; }
    void paint(Painter& painter) const override;

private:
    Integer form_;
    Integer borderWidth_;
    Colour borderColor_;
    Colour fillColor_;
    Colour backColor_;
    bool filled_;
};

} // namespace zilvo::platform

#pragma once

#include "zilvo/framework/Control.h"
#include "zilvo/framework/Enumerations.h"
#include "zilvo/platform/widgets/Label.h"
#include "zilvo/platform/widgets/Shape.h"

namespace zilvo {

/// The player sees "GO" written over a green shape.
/// The host chooses among six forms. WasClicked is published but never raised.
/// Nothing is saved.
class GOButton final : public Control {
public:
    static const ObjectDescription Description;
    explicit GOButton(ComponentModule& module);

    GOButtonShapePossibilities get_GOButtonShape();
    /// What is none of the six forms fails with InvalidPropertyValue, what is no Integer with Overflow; the form stays.
    void put_GOButtonShape(GOButtonShapePossibilities newButtonShape);

    /// Never raised.
    Event<> WasClicked{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    // clang-format off
    Label labelGO{userControl, {
        .Name = u"labelGO", .Left = 240, .Top = 80, .Width = 1095, .Height = 495, .Caption = u"&GO", .Transparent = true,
        .Font = {.Name = u"Comic Sans MS", .Size = 18, .Weight = 700}, .ZOrder = 1}};

    Shape theGOButton{userControl, {
        .Name = u"theGOButton", .Left = 0, .Top = 120, .Width = 960, .Height = 495, .Shape = Shape::IsOval,
        .BorderWidth = 3, .Filled = true, .FillColor = {0x00008000}, .BackColor = {0x00008000}}};
    // clang-format on
};

} // namespace zilvo

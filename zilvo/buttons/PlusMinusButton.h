#pragma once

#include "zilvo/buttons/Pictures.h"
#include "zilvo/framework/Control.h"
#include "zilvo/framework/Enumerations.h"
#include "zilvo/platform/widgets/ControlArray.h"
#include "zilvo/platform/widgets/Image.h"

namespace zilvo {

/// The player sees a round plus or minus picture; a click changes from adding to subtracting and back.
/// The host gets WasClicked with the new mode, reads it, and sets the control back to adding.
/// Nothing is saved.
class PlusMinusButton final : public Control {
public:
    static const ObjectDescription Description;
    explicit PlusMinusButton(ComponentModule& module);

    /// The mode; 0 until the first click or restart.
    PlusMinusPossibilities get_PlusMinusButtonIs();
    /// Sets the control to adding and raises WasClicked, whatever the mode was.
    void RestartYourself();

    /// Carries the new mode. RestartYourself raises it, too.
    Event<Long> WasClicked{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    void ImagePlusMinus_Click(Integer& Index);

    Long storedPlusMinusState = 0;

    // clang-format off
    /// The indexes are the modes; the pictures lie one over the other.
    ControlArray<Image, 2> ImagePlusMinus{userControl, {
        {.Name = u"ImagePlusMinus", .Index = 2, .Left = 0, .Top = 0, .Width = 450, .Height = 450,
         .Picture = &plusPicture(), .ToolTipText = u"Click here for SUBTRACT-mode",
         .Spoken = u"Plus"},
        {.Name = u"ImagePlusMinus", .Index = 3, .Left = 0, .Top = 0, .Width = 450, .Height = 450,
         .Picture = &minusPicture(), .Visible = false, .ToolTipText = u"Click here for ADD-mode",
         .Spoken = u"Minus"}},
        calls<&PlusMinusButton::ImagePlusMinus_Click>(this)};
    // clang-format on
};

} // namespace zilvo

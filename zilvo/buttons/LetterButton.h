#pragma once

#include "zilvo/framework/Control.h"
#include "zilvo/platform/widgets/Label.h"
#include "zilvo/platform/widgets/Shape.h"

namespace zilvo {

/// The player sees a red letter in a ring.
/// The host chooses the letter and where it stands in the ring.
/// There are no events, and nothing is saved.
class LetterButton final : public Control {
public:
    static const ObjectDescription Description;
    explicit LetterButton(ComponentModule& module);

    String get_Letter();
    /// Only the first character of the text is taken.
    void put_Letter(const String& LetterNewValue);
    /// Pixels from the control's left edge to the letter's place, 14 pixels wide with the letter in its middle;
    /// rounded. A position that is no Integer fails with Overflow.
    Integer get_LetterLeft();
    void put_LetterLeft(Integer LetterLeftNewValue);
    /// Pixels from the control's upper edge; as LetterLeft.
    Integer get_LetterTop();
    void put_LetterTop(Integer LetterTopNewValue);

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    // clang-format off
    Label labelLetter{userControl, {
        .Name = u"labelLetter", .Left = 90, .Top = 0, .Width = 210, .Height = 345, .Caption = u"A",
        .Align = Alignment::Centre, .Transparent = true, .Reach = 75, .ForeColor = {0x000000FF},
        .Font = {.Name = u"Comic Sans MS", .Size = 14.25F, .Weight = 700}, .ZOrder = 1}};

    Shape circleLetter{userControl, {
        .Name = u"circleLetter", .Left = 30, .Top = 30, .Width = 360, .Height = 345, .Shape = Shape::IsCircle,
        .BorderWidth = 5}};
    // clang-format on
};

} // namespace zilvo

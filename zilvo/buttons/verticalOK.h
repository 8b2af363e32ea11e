#pragma once

#include "zilvo/framework/Control.h"
#include "zilvo/platform/widgets/CommandButton.h"

namespace zilvo {

/// The player sees one small OK button, taller than it is wide.
/// The host gets OKWasClicked, and chooses the caption and the font.
/// Nothing is saved.
class verticalOK final : public Control {
public:
    static const ObjectDescription Description;
    explicit verticalOK(ComponentModule& module);

    /// "&" marks the letter that is the access key.
    String get_Caption();
    void put_Caption(const String& newCaption);
    /// The button's own font object, shared: a change of a member shows on the button.
    FontRef get_Font();
    /// The button shares that object from now on. To set none fails with InvalidPropertyValue.
    void put_Font(const FontRef& newFont);

    Event<> OKWasClicked{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    void commandVerticalOK_Click();

    // clang-format off
    CommandButton commandVerticalOK{userControl, {
        .Name = u"commandVerticalOK", .Left = 0, .Top = 0, .Width = 300, .Height = 420, .Caption = u"OK",
        .Font = {.Name = u"Arial Black", .Weight = 900}, .TabIndex = 0},
        calls<&verticalOK::commandVerticalOK_Click>(this)};
    // clang-format on
};

} // namespace zilvo

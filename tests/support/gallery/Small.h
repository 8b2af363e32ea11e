#pragma once

#include "zilvo/framework/Control.h"
#include "zilvo/platform/widgets/ControlArray.h"
#include "zilvo/platform/widgets/Menu.h"
#include "zilvo/platform/widgets/SSOption.h"

namespace zilvo {

/// The player sees three picks, of which the first so many are allowed; the right button opens a menu of two; 0 or
/// Escape picks none. The host gets Picked, by reference, and chooses how many are allowed; the control has the host's
/// colours. It gives itself its width while it is loaded. Nothing is saved.
class Small final : public Control {
public:
    static constexpr MemberId AllowedId = 0x68030000;
    static constexpr MemberId FlagsId = 0x60030000;
    static constexpr MemberId RefuseId = 0x60030001;
    static constexpr Long MostPicks = 3;

    static const ObjectDescription Description;
    explicit Small(ComponentModule& module);

    Long get_Allowed() { return storedAllowed; }
    /// Above MostPicks the call fails after the first MostPicks were allowed.
    void put_Allowed(Long newAllowed);
    String get_Note();
    void put_Note(const String& newNote);
    bool get_RunsInUserMode();
    /// Sets the flag of each allowed pick.
    void FlagsOfAllowed(BooleanArray& Flags);
    void Refuse(Long Number);

    Event<Long> Picked{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    void ReadProperties(const PropertyBag& PropBag) override;
    void AmbientChanged(StringView PropertyName) override;
    bool KeyPress(Integer& KeyAscii) override;
    void MouseDown(Integer Button, Integer Shift, Single X, Single Y) override;

    void UseAmbientColors();
    void ssoPick_Click(Integer& Index, Integer& Value);
    void mnuPick_Click(Integer& Index);

    Long storedAllowed = MostPicks;

    // clang-format off
    ControlArray<SSOption, MostPicks> ssoPick{userControl, {
        {.Name = u"ssoPick", .Index = 1, .Left = 60, .Top = 60, .Width = 900, .Height = 270, .Caption = u"Pick &1", .TabIndex = 0},
        {.Name = u"ssoPick", .Index = 2, .Left = 60, .Top = 360, .Width = 900, .Height = 270, .Caption = u"Pick &2", .TabIndex = 1},
        {.Name = u"ssoPick", .Index = 3, .Left = 60, .Top = 660, .Width = 900, .Height = 270, .Caption = u"Pick &3", .TabIndex = 2}},
        calls<&Small::ssoPick_Click>(this)};

    Menu mnuRoot{userControl, {.Name = u"mnuRoot", .Visible = false}};

    ControlArray<Menu, 2> mnuPick{mnuRoot, {
        {.Name = u"mnuPick", .Index = 11, .Caption = u"&Eleven"},
        {.Name = u"mnuPick", .Index = 12, .Caption = u"&Twelve"}},
        calls<&Small::mnuPick_Click>(this)};
    // clang-format on
};

} // namespace zilvo

#pragma once

#include "tests/support/gallery/Small.h"
#include "zilvo/framework/EmbeddedControl.h"
#include "zilvo/platform/widgets/CommandButton.h"

namespace zilvo {

/// The player sees a Small control between two push buttons.
/// The host gets Picked with the reference that Small gave; Allowed and the methods go on to Small by member id, Note
/// by name. The embedded control has the outer one's colours, which are the host's.
class Outer final : public Control {
public:
    static const ObjectDescription Description;
    explicit Outer(ComponentModule& module);

    Long get_Allowed();
    void put_Allowed(Long newAllowed);
    String get_Note();
    void put_Note(const String& newNote);
    bool get_InnerIsVisible();
    void put_InnerIsVisible(bool newInnerIsVisible);
    bool get_InnerRunsInUserMode();
    void FlagsOfAllowed(BooleanArray& Flags);
    void Refuse(Long Number);

    Event<Long> Picked{*this};
    Event<Integer> PushClicked{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    void AmbientChanged(StringView PropertyName) override;

    void smallOne_Picked(Long& Which);
    void cmdPush_Click(Integer& Index);

    // clang-format off
    ControlArray<CommandButton, 2> cmdPush{userControl, {
        {.Name = u"cmdPush", .Index = 0, .Left = 60, .Top = 60, .Width = 1500, .Height = 360, .Caption = u"&Before", .Cancel = true, .TabIndex = 0},
        {.Name = u"cmdPush", .Index = 1, .Left = 60, .Top = 1860, .Width = 1500, .Height = 360, .Caption = u"&After", .Default = true, .TabIndex = 2}},
        calls<&Outer::cmdPush_Click>(this)};

    EmbeddedControl smallOne{*this, userControl, {
        .Name = u"smallOne", .Class = u"Small", .Left = 60, .Top = 480, .Width = 1800, .Height = 1320, .TabIndex = 1},
        {handles<1, &Outer::smallOne_Picked>(this)}};
    // clang-format on
};

} // namespace zilvo

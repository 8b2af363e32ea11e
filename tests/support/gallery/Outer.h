#pragma once

#include "tests/support/gallery/Small.h"
#include "zilvo/framework/EmbeddedControl.h"
#include "zilvo/platform/widgets/CommandButton.h"

namespace zilvo {

/// The player sees a Small control between two push buttons.
/// The host gets Picked with the reference that Small gave; Allowed and the methods go on to Small by member id, the
/// rest by name. It makes a 9 that is typed a 0. The embedded control has the outer one's colours, which are the
/// host's.
class Outer final : public Control {
public:
    static const ObjectDescription Description;
    explicit Outer(ComponentModule& module)
        : Control(module,
                  {.Width = 2400, .Height = 2400, .ScaleMode = ScaleMode::Twips, .BackColor = Colour{0x00A8B090}}) {}

    Long get_Allowed() { return toLong(smallOne.Get(Small::AllowedId)); }
    void put_Allowed(Long newAllowed) { smallOne.Put(Small::AllowedId, newAllowed); }
    String get_Title() { return toString(smallOne.Get(u"Title")); }
    void put_Title(const String& newTitle) { smallOne.Put(u"Title", newTitle); }
    void Step(Integer& Number) { smallOne.Call(Small::StepId, Variant::to(Number)); }
    Integer Flip(BooleanArray& Flags) { return toInteger(smallOne.Call(Small::FlipId, Variant::to(Flags))); }

    Event<Long> Picked{*this};
    Event<Integer> PushClicked{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    void AmbientChanged(StringView /*PropertyName*/) override {
        userControl.put_BackColor(userControl.get_Ambient().get_BackColor());
        userControl.put_ForeColor(userControl.get_Ambient().get_ForeColor());
    }
    bool KeyPress(Integer& KeyAscii) override {
        if (KeyAscii == u'9') KeyAscii = u'0';
        return false;
    }
    void smallOne_Picked(Long& Which) { Picked.raise(Which); }

    // clang-format off
    ControlArray<CommandButton, 2> cmdPush{userControl, {
        {.Name = u"cmdPush", .Index = 0, .Left = 60, .Top = 60, .Width = 1500, .Height = 360, .Caption = u"&Before", .Cancel = true, .TabIndex = 0},
        {.Name = u"cmdPush", .Index = 1, .Left = 60, .Top = 1860, .Width = 1500, .Height = 360, .Caption = u"&After", .Default = true, .TabIndex = 2}},
        calls<&Event<Integer>::raise>(&PushClicked)};
    EmbeddedControl smallOne{*this, userControl, {
        .Name = u"smallOne", .Class = u"Small", .Left = 60, .Top = 480, .Width = 1800, .Height = 1320, .TabIndex = 1},
        {handles<1, &Outer::smallOne_Picked>(this)}};
    // clang-format on
};

inline constexpr std::array outerMembers = {
    property<&Outer::get_Allowed, &Outer::put_Allowed>(0x68030000, u"Allowed", u"newAllowed"),
    property<&Outer::get_Title, &Outer::put_Title>(0x68030001, u"Title", u"newTitle"),
    method<&Outer::Step>(0x60030000, u"Step", u"Number"),
    method<&Outer::Flip>(0x60030001, u"Flip", u"Flags"),
};
static_assert(idsAndNamesAreUnique(outerMembers));
inline constexpr std::array outerEvents = {
    event<1, &Outer::Picked>(u"Picked", u"Which"),
    event<2, &Outer::PushClicked>(u"PushClicked", u"Index"),
};
inline constinit const ObjectDescription Outer::Description{u"Outer", outerMembers, outerEvents};

} // namespace zilvo

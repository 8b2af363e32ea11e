#include "tests/support/gallery/Small.h"

namespace zilvo {

namespace {

constexpr std::array members = {
    property<&Small::get_Allowed, &Small::put_Allowed>(Small::AllowedId, u"Allowed", u"newAllowed"),
    property<&Small::get_Note, &Small::put_Note>(0x68030001, u"Note", u"newNote"),
    property<&Small::get_RunsInUserMode>(0x68030002, u"RunsInUserMode"),
    method<&Small::FlagsOfAllowed>(Small::FlagsId, u"FlagsOfAllowed", u"Flags"),
    method<&Small::Refuse>(Small::RefuseId, u"Refuse", u"Number"),
};
static_assert(idsAndNamesAreUnique(members));

constexpr std::array events = {
    event<1, &Small::Picked>(u"Picked", u"Which"),
};

constexpr Integer Escape = 27;

} // namespace

constinit const ObjectDescription Small::Description{u"Small", members, events};

Small::Small(ComponentModule& module)
    : Control(module, {.Width = 1200, .Height = 1200, .ScaleMode = ScaleMode::Twips}) {}

void Small::ReadProperties(const PropertyBag& /*PropBag*/) {
    userControl.put_Width(1500);
    UseAmbientColors();
}

void Small::AmbientChanged(StringView /*PropertyName*/) {
    UseAmbientColors();
}

bool Small::KeyPress(Integer& KeyAscii) {
    if (KeyAscii != u'0' && KeyAscii != Escape) return false;
    Long Which = 0;
    Picked.raise(Which);
    return true;
}

void Small::MouseDown(Integer Button, Integer /*Shift*/, Single /*X*/, Single /*Y*/) {
    if (Button == input::RightButton) userControl.PopupMenu(mnuRoot);
}

void Small::put_Allowed(Long newAllowed) {
    storedAllowed = newAllowed;
    for (Integer i = 1; i <= MostPicks; ++i)
        ssoPick.Item(i).put_Enabled(i <= newAllowed);
    if (newAllowed > MostPicks) ssoPick.Item(narrow(newAllowed)).put_Enabled(true);
}

String Small::get_Note() {
    return ssoPick.Item(1).get_ToolTipText();
}

void Small::put_Note(const String& newNote) {
    ssoPick.Item(1).put_ToolTipText(newNote);
}

bool Small::get_RunsInUserMode() {
    return userControl.get_Ambient().get_UserMode();
}

void Small::FlagsOfAllowed(BooleanArray& Flags) {
    for (std::int64_t i = Flags.LowerBound(); i <= Flags.UpperBound(); ++i)
        Flags.At(static_cast<Long>(i)) = asBoolean(i <= storedAllowed);
}

void Small::Refuse(Long Number) {
    throw Failure(Status::InvalidPropertyValue, std::to_string(Number) + " does not fit");
}

void Small::UseAmbientColors() {
    userControl.put_BackColor(userControl.get_Ambient().get_BackColor());
    userControl.put_ForeColor(userControl.get_Ambient().get_ForeColor());
}

void Small::ssoPick_Click(Integer& Index, Integer& /*Value*/) {
    Long Which = Index;
    Picked.raise(Which);
    if (Which != Index) ssoPick.Item(narrow(Which)).put_Value(true); // the host chose another
}

void Small::mnuPick_Click(Integer& Index) {
    Long Which = Index;
    Picked.raise(Which);
}

} // namespace zilvo

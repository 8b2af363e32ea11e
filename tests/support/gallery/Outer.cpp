#include "tests/support/gallery/Outer.h"

namespace zilvo {

namespace {

constexpr std::array members = {
    property<&Outer::get_Allowed, &Outer::put_Allowed>(0x68030000, u"Allowed", u"newAllowed"),
    property<&Outer::get_Note, &Outer::put_Note>(0x68030001, u"Note", u"newNote"),
    property<&Outer::get_InnerIsVisible, &Outer::put_InnerIsVisible>(0x68030002, u"InnerIsVisible",
                                                                     u"newInnerIsVisible"),
    property<&Outer::get_InnerRunsInUserMode>(0x68030003, u"InnerRunsInUserMode"),
    method<&Outer::FlagsOfAllowed>(0x60030000, u"FlagsOfAllowed", u"Flags"),
    method<&Outer::Refuse>(0x60030001, u"Refuse", u"Number"),
};
static_assert(idsAndNamesAreUnique(members));

constexpr std::array events = {
    event<1, &Outer::Picked>(u"Picked", u"Which"),
    event<2, &Outer::PushClicked>(u"PushClicked", u"Index"),
};

} // namespace

constinit const ObjectDescription Outer::Description{u"Outer", members, events};

Outer::Outer(ComponentModule& module)
    : Control(module, {.Width = 2400, .Height = 2400, .ScaleMode = ScaleMode::Twips, .BackColor = Colour{0x00A8B090}}) {
}

void Outer::AmbientChanged(StringView /*PropertyName*/) {
    userControl.put_BackColor(userControl.get_Ambient().get_BackColor());
    userControl.put_ForeColor(userControl.get_Ambient().get_ForeColor());
}

Long Outer::get_Allowed() {
    return toLong(smallOne.Get(Small::AllowedId));
}

void Outer::put_Allowed(Long newAllowed) {
    smallOne.Put(Small::AllowedId, newAllowed);
}

String Outer::get_Note() {
    return toString(smallOne.Get(u"Note"));
}

void Outer::put_Note(const String& newNote) {
    smallOne.Put(u"Note", newNote);
}

bool Outer::get_InnerIsVisible() {
    return smallOne.get_Visible();
}

void Outer::put_InnerIsVisible(bool newInnerIsVisible) {
    smallOne.put_Visible(newInnerIsVisible);
}

bool Outer::get_InnerRunsInUserMode() {
    return toBoolean(smallOne.Get(u"RunsInUserMode"));
}

void Outer::FlagsOfAllowed(BooleanArray& Flags) {
    smallOne.Call(Small::FlagsId, Variant::to(Flags));
}

void Outer::Refuse(Long Number) {
    smallOne.Call(Small::RefuseId, Number);
}

void Outer::smallOne_Picked(Long& Which) {
    Picked.raise(Which);
}

void Outer::cmdPush_Click(Integer& Index) {
    PushClicked.raise(Index);
}

} // namespace zilvo

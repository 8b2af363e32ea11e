#include "zilvo/buttons/verticalOK.h"

namespace zilvo {

namespace {

constexpr std::array members = {
    property<&verticalOK::get_Caption, &verticalOK::put_Caption>(0x68030001, u"Caption", u"newCaption"),
    property<&verticalOK::get_Font, &verticalOK::put_Font>(0x68030000, u"Font", u"newFont"),
};
static_assert(idsAndNamesAreUnique(members));

constexpr std::array events = {event<1, &verticalOK::OKWasClicked>(u"OKWasClicked")};

} // namespace

constinit const ObjectDescription verticalOK::Description{u"verticalOK", members, events};

verticalOK::verticalOK(ComponentModule& module)
    : Control(module, {.Width = 300, .Height = 420, .ScaleMode = ScaleMode::Twips}) {}

String verticalOK::get_Caption() {
    return commandVerticalOK.get_Caption();
}

void verticalOK::put_Caption(const String& newCaption) {
    commandVerticalOK.put_Caption(newCaption);
}

FontRef verticalOK::get_Font() {
    return commandVerticalOK.get_Font();
}

void verticalOK::put_Font(const FontRef& newFont) {
    commandVerticalOK.put_Font(newFont);
}

void verticalOK::commandVerticalOK_Click() {
    OKWasClicked.raise();
}

} // namespace zilvo

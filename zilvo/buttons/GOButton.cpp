#include "zilvo/buttons/GOButton.h"

namespace zilvo {

namespace {

constexpr std::array members = {
    property<&GOButton::get_GOButtonShape, &GOButton::put_GOButtonShape>(0x68030000, u"GOButtonShape",
                                                                         u"newButtonShape"),
};
static_assert(idsAndNamesAreUnique(members));

constexpr std::array events = {event<1, &GOButton::WasClicked>(u"WasClicked")};

} // namespace

constinit const ObjectDescription GOButton::Description{u"GOButton", members, events};

GOButton::GOButton(ComponentModule& module)
    : Control(module, {.Width = 990, .Height = 705, .ScaleMode = ScaleMode::Twips, .BackColor = colours::White}) {}

GOButtonShapePossibilities GOButton::get_GOButtonShape() {
    return static_cast<GOButtonShapePossibilities>(theGOButton.get_Shape());
}

void GOButton::put_GOButtonShape(GOButtonShapePossibilities newButtonShape) {
    theGOButton.put_Shape(narrow(static_cast<Long>(newButtonShape)));
}

} // namespace zilvo

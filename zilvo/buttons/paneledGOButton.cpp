#include "zilvo/buttons/paneledGOButton.h"

namespace zilvo {

namespace {

constexpr std::array members = {
    property<&paneledGOButton::get_GOButtonShape, &paneledGOButton::put_GOButtonShape>(0x68030000, u"GOButtonShape",
                                                                                       u"newButtonShape"),
};
static_assert(idsAndNamesAreUnique(members));

constexpr std::array events = {event<1, &paneledGOButton::WasClicked>(u"WasClicked")};

} // namespace

constinit const ObjectDescription paneledGOButton::Description{u"paneledGOButton", members, events};

paneledGOButton::paneledGOButton(ComponentModule& module)
    : Control(module, {.Width = 1500, .Height = 1005, .ScaleMode = ScaleMode::Twips}) {}

GOButtonShapePossibilities paneledGOButton::get_GOButtonShape() {
    return convert<GOButtonShapePossibilities>(GOButton.Get(u"GOButtonShape"));
}

void paneledGOButton::put_GOButtonShape(GOButtonShapePossibilities newButtonShape) {
    Long shape = static_cast<Long>(newButtonShape);
    GOButton.Put(u"GOButtonShape", Variant::to(shape));
}

} // namespace zilvo

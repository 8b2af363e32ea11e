#include "zilvo/buttons/PlusMinusButton.h"

namespace zilvo {

namespace {

constexpr std::array members = {
    property<&PlusMinusButton::get_PlusMinusButtonIs>(0x68030000, u"PlusMinusButtonIs"),
    method<&PlusMinusButton::RestartYourself>(0x60030002, u"RestartYourself"),
};
static_assert(idsAndNamesAreUnique(members));

constexpr std::array events = {
    event<1, &PlusMinusButton::WasClicked>(u"WasClicked",
                                           EventArgument(u"WhichButton", &descriptionOf(PlusMinusPossibilities{}))),
};

constexpr Integer Plus = 2;
constexpr Integer Minus = 3;

} // namespace

constinit const ObjectDescription PlusMinusButton::Description{u"PlusMinusButton", members, events};

PlusMinusButton::PlusMinusButton(ComponentModule& module)
    : Control(module, {.Width = 450, .Height = 450, .ScaleMode = ScaleMode::Pixels}) {}

PlusMinusPossibilities PlusMinusButton::get_PlusMinusButtonIs() {
    return static_cast<PlusMinusPossibilities>(storedPlusMinusState);
}

void PlusMinusButton::RestartYourself() {
    Integer Index = Minus;
    ImagePlusMinus_Click(Index);
}

void PlusMinusButton::ImagePlusMinus_Click(Integer& Index) {
    storedPlusMinusState = Index == Plus ? Minus : Plus;
    ImagePlusMinus.Item(Plus).put_Visible(storedPlusMinusState == Plus);
    ImagePlusMinus.Item(Minus).put_Visible(storedPlusMinusState == Minus);
    Long WhichButton = storedPlusMinusState; // what the host writes into it is not taken
    WasClicked.raise(WhichButton);
}

} // namespace zilvo

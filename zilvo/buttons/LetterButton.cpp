#include "zilvo/buttons/LetterButton.h"

namespace zilvo {

namespace {

constexpr std::array members = {
    property<&LetterButton::get_Letter, &LetterButton::put_Letter>(0x68030002, u"Letter", u"LetterNewValue"),
    property<&LetterButton::get_LetterLeft, &LetterButton::put_LetterLeft>(0x68030001, u"LetterLeft",
                                                                           u"LetterLeftNewValue"),
    property<&LetterButton::get_LetterTop, &LetterButton::put_LetterTop>(0x68030000, u"LetterTop",
                                                                         u"LetterTopNewValue"),
};
static_assert(idsAndNamesAreUnique(members));

} // namespace

constinit const ObjectDescription LetterButton::Description{u"LetterButton", members, {}};

LetterButton::LetterButton(ComponentModule& module)
    : Control(module, {.Width = 495, .Height = 495, .ScaleMode = ScaleMode::Pixels}) {}

String LetterButton::get_Letter() {
    return labelLetter.get_Caption();
}

void LetterButton::put_Letter(const String& LetterNewValue) {
    labelLetter.put_Caption(firstCharacter(LetterNewValue));
}

Integer LetterButton::get_LetterLeft() {
    return roundToInteger(labelLetter.get_Left());
}

void LetterButton::put_LetterLeft(Integer LetterLeftNewValue) {
    labelLetter.put_Left(LetterLeftNewValue);
}

Integer LetterButton::get_LetterTop() {
    return roundToInteger(labelLetter.get_Top());
}

void LetterButton::put_LetterTop(Integer LetterTopNewValue) {
    labelLetter.put_Top(LetterTopNewValue);
}

} // namespace zilvo

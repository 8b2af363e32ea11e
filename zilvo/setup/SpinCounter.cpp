#include "zilvo/setup/SpinCounter.h"

namespace zilvo {

namespace {

constexpr std::array members = {
    property<&SpinCounter::get_AllowNegNumbers, &SpinCounter::put_AllowNegNumbers>(0x68030007, u"AllowNegNumbers",
                                                                                   u"AllowNegNumbersNewValue"),
    property<&SpinCounter::get_ControlHandedness, &SpinCounter::put_ControlHandedness>(0x68030006, u"ControlHandedness",
                                                                                       u"ControlHandednessNewValue"),
    property<&SpinCounter::get_CounterValue, &SpinCounter::put_CounterValue>(0x68030005, u"CounterValue",
                                                                             u"NewCounterValue"),
    propertyByReference<&SpinCounter::get_Font, &SpinCounter::putref_Font>(0x68030004, u"Font", u"New_Font"),
    property<&SpinCounter::get_MaximumLimit, &SpinCounter::put_MaximumLimit>(0x68030003, u"MaximumLimit",
                                                                             u"NewMaximumLimit"),
    property<&SpinCounter::get_NumberWrap, &SpinCounter::put_NumberWrap>(0x68030001, u"NumberWrap",
                                                                         u"NumberWrapNewValue"),
    method<&SpinCounter::ResetSizeToDefault>(0x6003000c, u"ResetSizeToDefault"),
    property<&SpinCounter::get_UseDefaultSize, &SpinCounter::put_UseDefaultSize>(0x68030000, u"UseDefaultSize",
                                                                                 u"DefaultSizeIndicated"),
};
static_assert(idsAndNamesAreUnique(members));

constexpr std::array events = {
    event<1, &SpinCounter::CounterValueHasChanged>(u"CounterValueHasChanged", u"NewCounterValue"),
};

// Twips.
constexpr Single FixedWidth = 1500;
constexpr Integer DefaultHeight = 360;
// Pixels; label and spin button end at the fixed width's right edge, two pixels apart.
constexpr Single SpinWidth = 33;
constexpr Single LabelBesideSpin = 35;
constexpr Single SpinBesideLabel = 67;

constexpr Integer LargestLimit = 999;

/// At least three digits, a minus sign in front of them: "(007)", "(-007)", "(1234)".
String inParentheses(Integer count) {
    String digits = toString(Variant(count < 0 ? -Long{count} : Long{count}));
    if (digits.size() < 3) digits.insert(0, 3 - digits.size(), u'0');
    return (count < 0 ? u"(-" : u"(") + digits + u")";
}

} // namespace

constinit const ObjectDescription SpinCounter::Description{u"SpinCounter", members, events};

SpinCounter::SpinCounter(ComponentModule& module)
    : Control(module, {.Width = FixedWidth, .Height = 720, .ScaleMode = ScaleMode::Pixels, .OwnWidth = true}) {}

void SpinCounter::InitProperties() {
    put_MaximumLimit(LargestLimit);
    storedControlHandedness = static_cast<Long>(SpinCounterPossibilities::RighHandSpinCounter);
    UseTheAmbientColors();
}

void SpinCounter::ReadProperties(const PropertyBag& PropBag) {
    counter().put_CurrentCount(PropBag.ReadProperty<Integer>(u"CounterValue", Integer{0}));
    put_AllowNegNumbers(PropBag.ReadProperty<bool>(u"AllowNegNumbers", false));
    storedMaximumLimit = PropBag.ReadProperty<Integer>(u"MaximumLimit", LargestLimit);
    userControl.put_Height(PropBag.ReadProperty<Single>(u"Height", DefaultHeight));
    storedControlHandedness = PropBag.ReadProperty<Long>(u"ControlHandedness", Integer{2});
    labelCardsInStack.put_Font(PropBag.ReadProperty<FontRef>(u"Font", userControl.get_Ambient().get_Font()));
    UseTheAmbientColors();
    ShowTheCounterValue();
}

void SpinCounter::WriteProperties(PropertyBag& PropBag) {
    PropBag.WriteProperty(u"Height", userControl.get_Height(), DefaultHeight);
    PropBag.WriteProperty(u"CounterValue", get_CounterValue(), Integer{0});
    PropBag.WriteProperty(u"AllowNegNumbers", get_AllowNegNumbers(), false);
    PropBag.WriteProperty(u"MaximumLimit", get_MaximumLimit(), LargestLimit);
    PropBag.WriteProperty(u"ControlHandedness", toVariant(get_ControlHandedness()), Integer{2});
    PropBag.WriteProperty(u"Font", labelCardsInStack.get_Font(), userControl.get_Ambient().get_Font());
}

void SpinCounter::Resize() {
    userControl.put_Width(FixedWidth);
    labelCardsInStack.put_Height(userControl.get_ScaleHeight());
    SpinButton.put_Height(userControl.get_ScaleHeight());
    PlaceTheLowerChild();
}

void SpinCounter::AmbientChanged(StringView /*PropertyName*/) {
    UseTheAmbientColors();
}

bool SpinCounter::get_AllowNegNumbers() {
    return storedAllowNegNumbers;
}

void SpinCounter::put_AllowNegNumbers(bool AllowNegNumbersNewValue) {
    storedAllowNegNumbers = AllowNegNumbersNewValue;
    userControl.PropertyChanged(u"AllowNegNumbers");
}

SpinCounterPossibilities SpinCounter::get_ControlHandedness() {
    return static_cast<SpinCounterPossibilities>(storedControlHandedness);
}

void SpinCounter::put_ControlHandedness(SpinCounterPossibilities ControlHandednessNewValue) {
    if (ControlHandednessNewValue < SpinCounterPossibilities::LeftHandSpinCounter ||
        ControlHandednessNewValue > SpinCounterPossibilities::BottomMountSpinCounter) {
        userControl.Beep();
        return;
    }
    storedControlHandedness = static_cast<Long>(ControlHandednessNewValue);
    userControl.PropertyChanged(u"ControlHandedness");
    ArrangeTheSpinCounter();
}

Integer SpinCounter::get_CounterValue() {
    return counter().get_CurrentCount();
}

void SpinCounter::put_CounterValue(Integer NewCounterValue) {
    const bool accepted = NewCounterValue < 0 ? storedAllowNegNumbers : NewCounterValue <= storedMaximumLimit;
    if (!accepted) return;
    counter().put_CurrentCount(NewCounterValue);
    ReportTheNewCounterValue();
}

FontRef SpinCounter::get_Font() {
    return labelCardsInStack.get_Font();
}

void SpinCounter::putref_Font(FontRef New_Font) {
    labelCardsInStack.put_Font(std::move(New_Font));
    userControl.PropertyChanged(u"Font");
}

Integer SpinCounter::get_MaximumLimit() {
    return storedMaximumLimit;
}

void SpinCounter::put_MaximumLimit(Integer NewMaximumLimit) {
    if (NewMaximumLimit < 1 || NewMaximumLimit > LargestLimit) return;
    storedMaximumLimit = NewMaximumLimit;
    userControl.PropertyChanged(u"MaximumLimit");
}

bool SpinCounter::get_NumberWrap() {
    return storedNumberWrap;
}

void SpinCounter::put_NumberWrap(bool NumberWrapNewValue) {
    storedNumberWrap = NumberWrapNewValue;
}

void SpinCounter::ResetSizeToDefault() {
    userControl.put_Height(DefaultHeight);
    userControl.resize();
}

bool SpinCounter::get_UseDefaultSize() {
    return false;
}

void SpinCounter::put_UseDefaultSize(bool DefaultSizeIndicated) {
    if (DefaultSizeIndicated) ResetSizeToDefault();
}

void SpinCounter::SpinButton_SpinUp() {
    counter().IncrementToLimit(storedMaximumLimit);
    ReportTheNewCounterValue();
}

void SpinCounter::SpinButton_SpinDown() {
    if (storedNumberWrap)
        counter().DecrementWrapping(storedMaximumLimit);
    else if (storedAllowNegNumbers)
        counter().DecrementUnbounded();
    else
        counter().DecrementNotBelowZero();
    ReportTheNewCounterValue();
}

CounterKeeper& SpinCounter::counter() {
    if (!theCounter) theCounter.emplace();
    return *theCounter;
}

void SpinCounter::ReportTheNewCounterValue() {
    ShowTheCounterValue();
    userControl.PropertyChanged(u"CounterValue");
    Integer NewCounterValue = counter().get_CurrentCount();
    CounterValueHasChanged.raise(NewCounterValue);
}

void SpinCounter::ShowTheCounterValue() {
    labelCardsInStack.put_Caption(inParentheses(counter().get_CurrentCount()));
}

void SpinCounter::ArrangeTheSpinCounter() {
    lowerChild = nullptr;
    switch (get_ControlHandedness()) {
    case SpinCounterPossibilities::LeftHandSpinCounter:
        labelCardsInStack.put_Left(LabelBesideSpin);
        labelCardsInStack.put_Top(0);
        SpinButton.put_Left(0);
        SpinButton.put_Top(0);
        SpinButton.put_Width(SpinWidth);
        break;
    case SpinCounterPossibilities::RighHandSpinCounter:
        labelCardsInStack.put_Left(0);
        labelCardsInStack.put_Top(0);
        SpinButton.put_Left(SpinBesideLabel);
        SpinButton.put_Top(0);
        SpinButton.put_Width(SpinWidth);
        break;
    case SpinCounterPossibilities::TopMountSpinCounter:
        labelCardsInStack.put_Left(0);
        labelCardsInStack.put_Top(0);
        labelCardsInStack.put_Height(halfTheInnerHeight());
        SpinButton.put_Left(0);
        lowerChild = &SpinButton;
        PlaceTheLowerChild();
        SpinButton.put_Width(labelCardsInStack.get_Width());
        break;
    case SpinCounterPossibilities::BottomMountSpinCounter:
        SpinButton.put_Left(0);
        SpinButton.put_Top(0);
        SpinButton.put_Width(labelCardsInStack.get_Width());
        labelCardsInStack.put_Left(0);
        lowerChild = &labelCardsInStack;
        PlaceTheLowerChild();
        break;
    }
}

/// Both children take the full inner height at every resize; the lower one covers the other's lower half.
void SpinCounter::PlaceTheLowerChild() {
    if (!lowerChild) return;
    lowerChild->put_Top(halfTheInnerHeight());
    lowerChild->bringToFront();
}

Single SpinCounter::halfTheInnerHeight() const {
    const Long wholePixels = toLong(userControl.get_ScaleHeight()) / 2;
    return static_cast<Single>(wholePixels);
}

void SpinCounter::UseTheAmbientColors() {
    userControl.put_ForeColor(userControl.get_Ambient().get_ForeColor());
    userControl.put_BackColor(userControl.get_Ambient().get_BackColor());
}

} // namespace zilvo

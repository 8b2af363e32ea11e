#include "zilvo/buttons/ssOKCancel.h"

namespace zilvo {

namespace {

constexpr std::array members = {
    property<&ssOKCancel::get_CancelToolTipText, &ssOKCancel::put_CancelToolTipText>(0x68030006, u"CancelToolTipText",
                                                                                     u"CancelToolTipTextNewValue"),
    property<&ssOKCancel::get_Cancel, &ssOKCancel::put_Cancel>(0x68030005, u"Cancel", u"CancelNewValue"),
    property<&ssOKCancel::get_Default, &ssOKCancel::put_Default>(0x68030004, u"Default", u"DefaultNewValue"),
    property<&ssOKCancel::get_ItalicCancel, &ssOKCancel::put_ItalicCancel>(0x68030003, u"ItalicCancel",
                                                                           u"ItalicCancelNewValue"),
    property<&ssOKCancel::get_ItalicOK, &ssOKCancel::put_ItalicOK>(0x68030002, u"ItalicOK", u"ItalicOKNewValue"),
    property<&ssOKCancel::get_OKEnabled, &ssOKCancel::put_OKEnabled>(0x68030001, u"OKEnabled", u"newEnabledValue"),
    property<&ssOKCancel::get_OKToolTipText, &ssOKCancel::put_OKToolTipText>(0x68030000, u"OKToolTipText",
                                                                             u"OKToolTipTextNewValue"),
    method<&ssOKCancel::SetDefaultDefaults>(0x60030009, u"SetDefaultDefaults"),
};
static_assert(idsAndNamesAreUnique(members));

constexpr std::array events = {
    event<1, &ssOKCancel::CancelWasClicked>(u"CancelWasClicked"),
    event<2, &ssOKCancel::OKWasClicked>(u"OKWasClicked"),
};

constexpr Integer Enter = 13;
constexpr Integer Escape = 27;

} // namespace

constinit const ObjectDescription ssOKCancel::Description{u"ssOKCancel", members, events};

ssOKCancel::ssOKCancel(ComponentModule& module)
    : Control(module, {.Width = 1455, .Height = 1695, .ScaleMode = ScaleMode::Pixels}) {}

void ssOKCancel::Initialize() {
    cmdCancel.get_Font()->put_Italic(true);
}

void ssOKCancel::ReadProperties(const PropertyBag& PropBag) {
    cmdOK.put_Default(PropBag.ReadProperty<bool>(u"Default", true));
    cmdCancel.put_Cancel(PropBag.ReadProperty<bool>(u"Cancel", true));
    cmdOK.get_Font()->put_Italic(PropBag.ReadProperty<bool>(u"ItalicOK", true));
    cmdCancel.get_Font()->put_Italic(PropBag.ReadProperty<bool>(u"ItalicCancel", true));
    cmdOK.put_ToolTipText(PropBag.ReadProperty<String>(u"OKToolTipText", u""));
    cmdCancel.put_ToolTipText(PropBag.ReadProperty<String>(u"CancelToolTipText", u""));
}

void ssOKCancel::WriteProperties(PropertyBag& PropBag) {
    PropBag.WriteProperty(u"Default", cmdOK.get_Default(), true);
    PropBag.WriteProperty(u"Cancel", cmdCancel.get_Cancel(), true);
    // A Boolean never equals text: the italics are always stored, whatever they are.
    PropBag.WriteProperty(u"ItalicOK", cmdOK.get_Font()->get_Italic(), u"");
    PropBag.WriteProperty(u"ItalicCancel", cmdCancel.get_Font()->get_Italic(), u"");
    PropBag.WriteProperty(u"OKToolTipText", cmdOK.get_ToolTipText(), u"");
    PropBag.WriteProperty(u"CancelToolTipText", cmdCancel.get_ToolTipText(), u"");
}

bool ssOKCancel::KeyPress(Integer& KeyAscii) {
    switch (KeyAscii) {
    case Enter:
        cmdOK_Click();
        return true; // also while OK is disabled
    case Escape:
        cmdCancel_Click();
        return true;
    default:
        return false;
    }
}

String ssOKCancel::get_CancelToolTipText() {
    return cmdCancel.get_ToolTipText();
}

void ssOKCancel::put_CancelToolTipText(const String& CancelToolTipTextNewValue) {
    cmdCancel.put_ToolTipText(CancelToolTipTextNewValue);
    userControl.PropertyChanged(u"CancelToolTipText");
}

bool ssOKCancel::get_Cancel() {
    return cmdCancel.get_Cancel();
}

void ssOKCancel::put_Cancel(bool CancelNewValue) {
    cmdCancel.put_Cancel(CancelNewValue);
    userControl.PropertyChanged(u"Cancel");
}

bool ssOKCancel::get_Default() {
    return cmdOK.get_Default();
}

void ssOKCancel::put_Default(bool DefaultNewValue) {
    cmdOK.put_Default(DefaultNewValue);
    userControl.PropertyChanged(u"Default");
}

bool ssOKCancel::get_ItalicCancel() {
    return cmdCancel.get_Font()->get_Italic();
}

void ssOKCancel::put_ItalicCancel(bool ItalicCancelNewValue) {
    cmdCancel.get_Font()->put_Italic(ItalicCancelNewValue);
    userControl.PropertyChanged(u"ItalicCancel");
}

bool ssOKCancel::get_ItalicOK() {
    return cmdOK.get_Font()->get_Italic();
}

void ssOKCancel::put_ItalicOK(bool ItalicOKNewValue) {
    cmdOK.get_Font()->put_Italic(ItalicOKNewValue);
    userControl.PropertyChanged(u"ItalicOK");
}

bool ssOKCancel::get_OKEnabled() {
    return cmdOK.get_Enabled();
}

void ssOKCancel::put_OKEnabled(bool newEnabledValue) {
    cmdOK.put_Enabled(newEnabledValue);
}

String ssOKCancel::get_OKToolTipText() {
    return cmdOK.get_ToolTipText();
}

void ssOKCancel::put_OKToolTipText(const String& OKToolTipTextNewValue) {
    cmdOK.put_ToolTipText(OKToolTipTextNewValue);
    userControl.PropertyChanged(u"OKToolTipText");
}

void ssOKCancel::SetDefaultDefaults() {
    cmdOK.put_Default(true);
    cmdCancel.put_Cancel(true);
}

void ssOKCancel::cmdOK_Click() {
    OKWasClicked.raise();
}

void ssOKCancel::cmdCancel_Click() {
    CancelWasClicked.raise();
}

} // namespace zilvo

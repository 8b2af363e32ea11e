#pragma once

#include "zilvo/framework/Control.h"
#include "zilvo/platform/widgets/CommandButton.h"
#include "zilvo/platform/widgets/SSPanel.h"

namespace zilvo {

/// The player sees an OK button above a Cancel button on a raised panel.
/// The host gets OKWasClicked or CancelWasClicked for a click, for Enter and for Escape; it enables OK, chooses tool
/// tips, italics and which button is default and cancel. All but OKEnabled is saved.
class ssOKCancel final : public Control {
public:
    static const ObjectDescription Description;
    explicit ssOKCancel(ComponentModule& module);

    String get_CancelToolTipText();
    void put_CancelToolTipText(const String& CancelToolTipTextNewValue);
    /// Whether Cancel is the cancel button. Escape raises CancelWasClicked all the same.
    bool get_Cancel();
    void put_Cancel(bool CancelNewValue);
    /// Whether OK is the default button, which has a heavy frame. Enter raises OKWasClicked all the same.
    bool get_Default();
    void put_Default(bool DefaultNewValue);
    bool get_ItalicCancel();
    void put_ItalicCancel(bool ItalicCancelNewValue);
    bool get_ItalicOK();
    void put_ItalicOK(bool ItalicOKNewValue);
    /// False at first. Not saved.
    bool get_OKEnabled();
    void put_OKEnabled(bool newEnabledValue);
    String get_OKToolTipText();
    void put_OKToolTipText(const String& OKToolTipTextNewValue);
    /// Sets Default and Cancel to True without reporting a change.
    void SetDefaultDefaults();

    /// A click on Cancel, Enter while Cancel has the keyboard, or Escape.
    Event<> CancelWasClicked{*this};
    /// A click on OK, or Enter unless Cancel has the keyboard: that also while OK is disabled.
    Event<> OKWasClicked{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    void Initialize() override;
    void ReadProperties(const PropertyBag& PropBag) override;
    void WriteProperties(PropertyBag& PropBag) override;
    bool KeyPress(Integer& KeyAscii) override;

    void cmdOK_Click();
    void cmdCancel_Click();

    // clang-format off
    SSPanel panelCmdOK{userControl, {
        .Name = u"panelCmdOK", .Left = 0, .Top = 0, .Width = 1455, .Height = 1695,
        .BackColor = colours::LightGrey, .ForeColor = colours::WindowText,
        .Font = {.Name = u"MS Sans Serif", .Size = 8.25F, .Weight = 700}, .TabIndex = 2}};

    CommandButton cmdOK{panelCmdOK, {
        .Name = u"cmdOK", .Left = 240, .Top = 240, .Width = 975, .Height = 615, .Caption = u"&OK",
        .BackColor = colours::LightGrey, .Font = {.Name = u"Comic Sans MS", .Size = 12},
        .Enabled = false, .Default = true, .TabIndex = 0},
        calls<&ssOKCancel::cmdOK_Click>(this)};

    CommandButton cmdCancel{panelCmdOK, {
        .Name = u"cmdCancel", .Left = 240, .Top = 840, .Width = 975, .Height = 615, .Caption = u"&Cancel",
        .BackColor = colours::LightGrey, .Font = {.Name = u"Comic Sans MS", .Size = 12, .Italic = true},
        .Cancel = true, .TabIndex = 1},
        calls<&ssOKCancel::cmdCancel_Click>(this)};
    // clang-format on
};

} // namespace zilvo

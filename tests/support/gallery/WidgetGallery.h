#pragma once

#include "zilvo/framework/Control.h"
#include "zilvo/platform/widgets/CheckBox.h"
#include "zilvo/platform/widgets/CommandButton.h"
#include "zilvo/platform/widgets/ControlArray.h"
#include "zilvo/platform/widgets/Image.h"
#include "zilvo/platform/widgets/Label.h"
#include "zilvo/platform/widgets/Menu.h"
#include "zilvo/platform/widgets/OptionButton.h"
#include "zilvo/platform/widgets/SSCheck.h"
#include "zilvo/platform/widgets/SSFrame.h"
#include "zilvo/platform/widgets/SSOption.h"
#include "zilvo/platform/widgets/SSPanel.h"
#include "zilvo/platform/widgets/SSRibbon.h"
#include "zilvo/platform/widgets/Shape.h"
#include "zilvo/platform/widgets/SpinButton.h"

namespace zilvo {

/// The player sees every kind of widget once or in an array; the right button on the options opens a menu.
/// The host gets an event for whatever a widget or the surface reports.
class WidgetGallery final : public Control {
public:
    static const ObjectDescription Description;
    explicit WidgetGallery(ComponentModule& module)
        : Control(module, {.Width = 7080, .Height = 3660, .ScaleMode = ScaleMode::Pixels}) {}

    Event<Integer> CommandClicked{*this};
    Event<Integer> OptionClicked{*this};
    Event<Integer> CheckClicked{*this};
    Event<Integer, Integer> SSCheckClicked{*this};
    Event<Integer, Integer> SSOptionClicked{*this};
    Event<Integer, Integer> RibbonClicked{*this};
    Event<Integer> ImageClicked{*this};
    Event<Integer> MenuClicked{*this};
    Event<> SpunUp{*this};
    Event<> SpunDown{*this};
    Event<Integer, Integer> PanelPressed{*this};
    Event<Integer, Integer> SurfacePressed{*this};
    /// Where it was pressed: twips on the panel, pixels on the surface.
    Event<Single, Single> PressedAt{*this};
    /// A key goes no further when the host makes it 0.
    Event<Integer> KeyTyped{*this};

private:
    const ObjectDescription& description() const noexcept override { return Description; }

    bool KeyPress(Integer& KeyAscii) override {
        KeyTyped.raise(KeyAscii);
        return KeyAscii == 0;
    }
    void MouseDown(Integer Button, Integer Shift, Single X, Single Y) override {
        SurfacePressed.raise(Button, Shift);
        PressedAt.raise(X, Y);
    }
    void panelOptions_MouseDown(Integer& Button, Integer& Shift, Single& X, Single& Y) {
        if (Button == input::RightButton) return userControl.PopupMenu(mnuRoot);
        PanelPressed.raise(Button, Shift);
        PressedAt.raise(X, Y);
    }
    /// Shared by all instances.
    static const Bitmap* card(bool turnedUp) {
        static const Bitmap back(18, 24, {0, 0, 160});
        static const Bitmap face(18, 24, {255, 255, 255});
        return turnedUp ? &face : &back;
    }

    // clang-format off
    SSPanel panelOptions{userControl, {
        .Name = u"panelOptions", .Left = 120, .Top = 120, .Width = 2400, .Height = 1650, .Caption = u"Options",
        .CaptionDown = Alignment::Near, .TabIndex = 0, .ToolTipText = u"Right button for the menu"},
        calls<&WidgetGallery::panelOptions_MouseDown>(this)};

    ControlArray<OptionButton, 3> optChoice{panelOptions, {
        {.Name = u"optChoice", .Index = 1, .Left = 150, .Top = 300, .Width = 900, .Height = 270, .Caption = u"&One", .Value = true, .TabIndex = 1},
        {.Name = u"optChoice", .Index = 2, .Left = 150, .Top = 600, .Width = 900, .Height = 270, .Caption = u"&Two", .TabIndex = 2},
        {.Name = u"optChoice", .Index = 3, .Left = 150, .Top = 900, .Width = 900, .Height = 270, .Caption = u"T&hree", .TabIndex = 3}},
        calls<&Event<Integer>::raise>(&OptionClicked)};

    SSFrame frameChecks{userControl, {
        .Name = u"frameChecks", .Left = 2640, .Top = 120, .Width = 2400, .Height = 1650, .Caption = u"Checks", .TabIndex = 5}};

    ControlArray<CheckBox, 2> chkPick{frameChecks, {
        {.Name = u"chkPick", .Index = 0, .Left = 150, .Top = 300, .Width = 1650, .Height = 300, .Caption = u"&Left mark", .TabIndex = 6},
        {.Name = u"chkPick", .Index = 1, .Left = 150, .Top = 690, .Width = 1650, .Height = 300, .Caption = u"&Right mark", .Value = CheckBox::Greyed, .Mark = look::MarkSide::Right, .TabIndex = 7}},
        calls<&Event<Integer>::raise>(&CheckClicked)};

    OptionButton optOther{frameChecks, {
        .Name = u"optOther", .Left = 150, .Top = 1080, .Width = 1650, .Height = 300, .Caption = u"&Other", .TabIndex = 8},
        calls<&Event<Integer>::raise>(&OptionClicked)};

    SSPanel panelThreeD{userControl, {
        .Name = u"panelThreeD", .Left = 120, .Top = 1890, .Width = 4920, .Height = 1650, .TabIndex = 9}};

    SSCheck sscToggle{panelThreeD, {
        .Name = u"sscToggle", .Left = 150, .Top = 120, .Width = 1200, .Height = 300, .Caption = u"&Toggle", .TabIndex = 10},
        calls<&Event<Integer, Integer>::raise>(&SSCheckClicked)};

    ControlArray<SSOption, 3> ssoSeat{panelThreeD, {
        {.Name = u"ssoSeat", .Index = 1, .Left = 150, .Top = 510, .Width = 1200, .Height = 300, .Caption = u"Seat &1", .TabIndex = 11},
        {.Name = u"ssoSeat", .Index = 2, .Left = 150, .Top = 870, .Width = 1200, .Height = 300, .Caption = u"Seat &2", .Value = true, .TabIndex = 12},
        {.Name = u"ssoSeat", .Index = 3, .Left = 150, .Top = 1230, .Width = 1200, .Height = 300, .Caption = u"Seat &3", .Mark = look::MarkSide::Right, .TabIndex = 13}},
        calls<&Event<Integer, Integer>::raise>(&SSOptionClicked)};

    SSPanel panelRibbons{panelThreeD, {
        .Name = u"panelRibbons", .Left = 2400, .Top = 150, .Width = 2400, .Height = 750, .TabIndex = 14}};

    ControlArray<SSRibbon, 2> ribCard{panelRibbons, {
        {.Name = u"ribCard", .Index = 0, .Left = 120, .Top = 120, .Width = 510, .Height = 510, .PictureUp = card(false), .PictureDown = card(true), .TabIndex = 15},
        {.Name = u"ribCard", .Index = 1, .Left = 720, .Top = 120, .Width = 510, .Height = 510, .PictureUp = card(false), .PictureDown = card(true), .Value = true, .Outline = true, .TabIndex = 16}},
        calls<&Event<Integer, Integer>::raise>(&RibbonClicked)};

    ControlArray<Image, 2> imgChip{userControl, {
        {.Name = u"imgChip", .Index = 0, .Left = 5160, .Top = 120, .Width = 720, .Height = 720, .Picture = card(true), .ToolTipText = u"The chip behind"},
        {.Name = u"imgChip", .Index = 1, .Left = 5460, .Top = 300, .Width = 720, .Height = 720, .Picture = card(true), .ToolTipText = u"The chip in front"}},
        calls<&Event<Integer>::raise>(&ImageClicked)};

    Label lblTable{userControl, {
        .Name = u"lblTable", .Left = 5460, .Top = 1500, .Width = 1200, .Height = 240, .Caption = u"Table", .Align = Alignment::Centre, .Transparent = true,
        .ForeColor = colours::White, .Font = {.Name = u"Arial", .Size = 9.75F, .Weight = 700}, .TabIndex = 18, .ZOrder = 1}};

    Shape shpTable{userControl, {
        .Name = u"shpTable", .Left = 5160, .Top = 1170, .Width = 1800, .Height = 900, .Shape = Shape::IsOval, .BorderWidth = 2, .Filled = true,
        .FillColor = Colour{0x00006000}}};

    SpinButton spnCount{userControl, {
        .Name = u"spnCount", .Left = 5160, .Top = 2250, .Width = 300, .Height = 600, .TabIndex = 20},
        calls<&Event<>::raise>(&SpunUp), calls<&Event<>::raise>(&SpunDown)};

    ControlArray<CommandButton, 3> cmdPush{userControl, {
        {.Name = u"cmdPush", .Index = 0, .Left = 5610, .Top = 2250, .Width = 1350, .Height = 375, .Caption = u"&Go", .Default = true, .TabIndex = 21},
        {.Name = u"cmdPush", .Index = 1, .Left = 5610, .Top = 2700, .Width = 1350, .Height = 375, .Caption = u"&Quit", .Cancel = true, .TabIndex = 22},
        {.Name = u"cmdPush", .Index = 2, .Left = 5610, .Top = 3150, .Width = 1350, .Height = 375, .Caption = u"&Plain", .TabIndex = 23}},
        calls<&Event<Integer>::raise>(&CommandClicked)};

    Menu mnuRoot{userControl, {.Name = u"mnuRoot", .Visible = false}};
    ControlArray<Menu, 3> mnuPick{mnuRoot, {
        {.Name = u"mnuPick", .Index = 0, .Caption = u"&Open"},
        {.Name = u"mnuPick", .Index = 1, .Caption = u"&Locked", .Enabled = false},
        {.Name = u"mnuPick", .Index = 2, .Caption = u"&Ticked", .Checked = true}},
        calls<&Event<Integer>::raise>(&MenuClicked)};
    Menu mnuBar{mnuRoot, {.Name = u"mnuBar", .Caption = u"-"}};
    Menu mnuMore{mnuRoot, {.Name = u"mnuMore", .Caption = u"&More"}};
    ControlArray<Menu, 2> mnuMorePick{mnuMore, {
        {.Name = u"mnuMorePick", .Index = 10, .Caption = u"&First"},
        {.Name = u"mnuMorePick", .Index = 11, .Caption = u"&Second"}},
        calls<&Event<Integer>::raise>(&MenuClicked)};
    // clang-format on
};

inline constexpr std::array widgetGalleryEvents = {
    event<1, &WidgetGallery::CommandClicked>(u"CommandClicked", u"Index"),
    event<2, &WidgetGallery::OptionClicked>(u"OptionClicked", u"Index"),
    event<3, &WidgetGallery::CheckClicked>(u"CheckClicked", u"Index"),
    event<4, &WidgetGallery::SSCheckClicked>(u"SSCheckClicked", u"Index", u"Value"),
    event<5, &WidgetGallery::SSOptionClicked>(u"SSOptionClicked", u"Index", u"Value"),
    event<6, &WidgetGallery::RibbonClicked>(u"RibbonClicked", u"Index", u"Value"),
    event<7, &WidgetGallery::ImageClicked>(u"ImageClicked", u"Index"),
    event<8, &WidgetGallery::MenuClicked>(u"MenuClicked", u"Index"),
    event<9, &WidgetGallery::SpunUp>(u"SpunUp"),
    event<10, &WidgetGallery::SpunDown>(u"SpunDown"),
    event<11, &WidgetGallery::PanelPressed>(u"PanelPressed", u"Button", u"Shift"),
    event<12, &WidgetGallery::SurfacePressed>(u"SurfacePressed", u"Button", u"Shift"),
    event<13, &WidgetGallery::PressedAt>(u"PressedAt", u"X", u"Y"),
    event<14, &WidgetGallery::KeyTyped>(u"KeyTyped", u"KeyAscii"),
};
inline constinit const ObjectDescription WidgetGallery::Description{u"WidgetGallery", {}, widgetGalleryEvents};

} // namespace zilvo

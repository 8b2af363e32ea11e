#pragma once

#include "zilvo/platform/values/StdFont.h"
#include "zilvo/platform/widgets/Widget.h"

namespace zilvo::platform {

/// What a host gives a control. A host reports that one of these calls fails by throwing a Failure; it travels
/// through the control to the call that the host made.

class Menu;

/// The ambient properties: the colours, font and mode of the window that the control lies on.
class Ambient {
public:
    virtual ~Ambient() = default;
    virtual bool get_UserMode() = 0; ///< True while the application runs, False in a designer
    /// Whether the control's default button is the window's now, and so has the heavy frame.
    virtual bool get_DisplayAsDefault() { return true; }
    virtual Colour get_BackColor() = 0;
    virtual Colour get_ForeColor() = 0;
    virtual FontRef get_Font() = 0;
};

/// The ambient properties of the classic scheme, until the host sets others.
class StandardAmbient final : public Ambient, public Described {
public:
    bool get_UserMode() override { return userMode_; }
    void put_UserMode(bool newUserMode) { userMode_ = newUserMode; }
    bool get_DisplayAsDefault() override { return displayAsDefault_; }
    void put_DisplayAsDefault(bool newDisplayAsDefault) { displayAsDefault_ = newDisplayAsDefault; }
    Colour get_BackColor() override { return backColor_; }
    void put_BackColor(Colour newBackColor) { backColor_ = newBackColor; }
    Colour get_ForeColor() override { return foreColor_; }
    void put_ForeColor(Colour newForeColor) { foreColor_ = newForeColor; }
    /// A copy each time, so that no control changes another's.
    FontRef get_Font() override;
    void put_Font(FontRef newFont) { font_ = std::move(newFont); }

    const ClassDescription& description() const noexcept override;

private:
    bool userMode_ = true;
    bool displayAsDefault_ = true;
    Colour backColor_ = colours::ButtonFace;
    Colour foreColor_ = colours::WindowText;
    FontRef font_; ///< null for MS Sans Serif 8.25
};

/// The object with which the host wraps the control: its place on the window, whether it is shown and takes input.
/// Twips.
class Extender : public Described {
public:
    virtual Single get_Left() const noexcept { return place_.left; }
    virtual void put_Left(Single newLeft) { change(place_.left, newLeft, Aspect::Place); }
    virtual Single get_Top() const noexcept { return place_.top; }
    virtual void put_Top(Single newTop) { change(place_.top, newTop, Aspect::Place); }
    virtual Single get_Width() const noexcept { return place_.width; }
    virtual void put_Width(Single newWidth) { change(place_.width, newWidth, Aspect::Place); }
    virtual Single get_Height() const noexcept { return place_.height; }
    virtual void put_Height(Single newHeight) { change(place_.height, newHeight, Aspect::Place); }
    virtual bool get_Visible() const noexcept { return visible_; }
    virtual void put_Visible(bool newVisible) { change(visible_, newVisible, Aspect::Visible); }
    /// False greys the whole control and keeps the user out.
    virtual bool get_Enabled() const noexcept { return enabled_; }
    virtual void put_Enabled(bool newEnabled) { change(enabled_, newEnabled, Aspect::Enabled); }

    const ClassDescription& description() const noexcept override;

protected:
    Extender() = default;
    ~Extender() = default;

    /// The control or its host has changed what the host is to follow.
    virtual void changed(Aspect /*aspect*/) {}

    Rectangle place_;
    bool visible_ = true;
    bool enabled_ = true;

private:
    template <class T>
    void change(T& member, T value, Aspect aspect) {
        if (std::exchange(member, value) != value) changed(aspect);
    }
};

/// The place that a host gives a control on one of its windows. It outlives the control or closes it first.
class ControlSite {
public:
    virtual Ambient& ambient() = 0;
    virtual Extender& extender() = 0;
    /// The saved settings are out of date because of that property.
    virtual void PropertyChanged(StringView name) = 0;
    /// The control has another size, in twips, whether it or the host gave it; its Resize handler runs afterwards.
    virtual void SizeChanged(Single width, Single height) = 0;
    /// Something is to be painted again.
    virtual void ViewChanged() noexcept {}
    /// A widget of the control, or of one embedded in it, has changed in that respect, and is to be painted again.
    virtual void WidgetChanged(const Widget& /*widget*/, Aspect /*aspect*/) noexcept { ViewChanged(); }
    virtual void Beep() = 0;

    /// A menu is to pop up with its corner at that point of the control, in twips. A host that shows it in a way of its
    /// own gives true and hands the user's choice in as input; else the control draws it and takes the choice itself.
    virtual bool ShowPopup(Menu& /*root*/, Point /*at*/) { return false; }

    /// Tab goes past the control's last widget, or back past its first. A host with more than this control takes the
    /// keyboard on and gives true; else it goes round.
    virtual bool LeaveFocus(bool /*forward*/) { return false; }

    /// For a control that another control embeds: the child widget that it is there. A host's own controls have none.
    virtual Widget* embeddingWidget() noexcept { return nullptr; }

protected:
    ~ControlSite() = default;
};

} // namespace zilvo::platform

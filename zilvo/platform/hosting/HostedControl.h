#pragma once

#include "zilvo/platform/hosting/ControlSite.h"
#include "zilvo/platform/hosting/Input.h"
#include "zilvo/platform/hosting/PropertyBag.h"
#include "zilvo/platform/widgets/Menu.h"
#include "zilvo/platform/widgets/Surface.h"

namespace zilvo::platform {

/// What a host drives. Nothing throws: each call gives a status and, in `error` (which may be null), the message of
/// a failure. The order is:
///
///   created -> SetSite -> InitNew or Load, exactly one, once -> SetSize -> live -> Close
///
/// A call that is not legal in the state gives UnexpectedCall and changes nothing; so does a SetSize with what is no
/// size, which gives InvalidPropertyValue. While one of these calls runs, none of the others is legal. A failing
/// InitNew, Load or first SetSize has still taken place: what its handler did before the failing step stays, and the
/// next call of the order is legal. Properties, methods and events (Object) can be used in every state; before SetSite
/// and after Close a null site answers: default ambient properties, no notification goes anywhere.
///
/// Every call holds the control alive until it returns, so that a handler may release the last reference.
class HostedControl {
public:
    HostedControl(const HostedControl&) = delete;
    HostedControl& operator=(const HostedControl&) = delete;

    /// The site must stay until Close. One that is refused, or fails while the control gets to know it, is not kept.
    virtual Status SetSite(ControlSite& site, ErrorInfo* error = nullptr) noexcept = 0;
    /// A new instance, without saved settings.
    virtual Status InitNew(ErrorInfo* error = nullptr) noexcept = 0;
    /// An instance with saved settings.
    virtual Status Load(const PropertyBag& settings, ErrorInfo* error = nullptr) noexcept = 0;
    /// Twips; first right after InitNew or Load, then whenever the host changes the size.
    virtual Status SetSize(Single width, Single height, ErrorInfo* error = nullptr) noexcept = 0;
    /// Legal after InitNew or Load, any number of times.
    virtual Status Save(PropertyBag& settings, ErrorInfo* error = nullptr) noexcept = 0;
    /// Live only. An ambient property of that name has changed.
    virtual Status AmbientPropertyChanged(StringView name, ErrorInfo* error = nullptr) noexcept = 0;
    /// Live only. `acted` (may be null) tells whether the input did something; for Act, whether the user could do it.
    virtual Status Input(const InputEvent& event, bool* acted, ErrorInfo* error = nullptr) noexcept = 0;
    /// Draws the control, twips from its upper left corner, and over it the pop-up that is open.
    virtual Status Paint(Painter& painter, ErrorInfo* error = nullptr) noexcept = 0;
    /// Leaves the site for good; legal in every state. The host calls it before the site goes away.
    virtual void Close() noexcept = 0;

    /// The control's own surface with its widgets, as long as the control lives.
    virtual Surface& surface() noexcept = 0;
    /// The widget that has the keyboard; null for none, or when the host fails to tell whether the control is shown.
    virtual Widget* focus() noexcept = 0;
    /// How long until the host's clock matters, by TimePassed: a timer of the host runs that long, and none while there
    /// is nothing to wait for.
    virtual std::optional<std::chrono::milliseconds> clockWanted() noexcept = 0;
    /// The letters that, typed with Alt, do something now, in Tab order; none when the host fails to tell whether the
    /// control is shown.
    virtual String accessKeys() noexcept = 0;
    /// The push buttons that the window's Enter and Escape press while no other widget has a use for them, by Invoke;
    /// null for none that the user could press. The control's own come before those of one embedded in it.
    virtual Widget* defaultButton() noexcept = 0;
    virtual Widget* cancelButton() noexcept = 0;
    /// Whether the control gives itself its width, whatever its host would have.
    virtual bool ownsWidth() const noexcept = 0;
    /// The root of the menu that was last popped up; null for none.
    virtual Menu* lastPopup() noexcept = 0;

protected:
    HostedControl() = default;
    ~HostedControl() = default;
};

/// The tool tip for a point of the control, in twips; empty for none.
String toolTipAt(HostedControl& control, Point at);

} // namespace zilvo::platform

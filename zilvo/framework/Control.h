#pragma once

#include "zilvo/framework/Event.h"
#include "zilvo/framework/UserControl.h"
#include "zilvo/platform/hosting/InputRouter.h"

namespace zilvo {

/// The base of every control: an object that a host drives, with a surface of its own. A control declares its children
/// as members and fills in the handlers that it needs.
class Control : public Object, public HostedControl {
public:
    HostedControl* hostedControl() noexcept final { return this; }

    Status SetSite(ControlSite& site, ErrorInfo* error) noexcept final;
    Status InitNew(ErrorInfo* error) noexcept final;
    Status Load(const PropertyBag& settings, ErrorInfo* error) noexcept final;
    Status SetSize(Single width, Single height, ErrorInfo* error) noexcept final;
    Status Save(PropertyBag& settings, ErrorInfo* error) noexcept final;
    Status AmbientPropertyChanged(StringView name, ErrorInfo* error) noexcept final;
    Status Input(const InputEvent& event, bool* acted, ErrorInfo* error) noexcept final;
    Status Paint(Painter& painter, ErrorInfo* error) noexcept final;
    void Close() noexcept final;
    Surface& surface() noexcept final { return userControl; }
    Widget* focus() noexcept final;
    std::optional<std::chrono::milliseconds> clockWanted() noexcept final { return router_.clockWanted(); }
    String accessKeys() noexcept final;
    Widget* defaultButton() noexcept final { return windowButton(&Surface::defaultButton); }
    Widget* cancelButton() noexcept final { return windowButton(&Surface::cancelButton); }
    bool ownsWidth() const noexcept final { return userControl.ownsWidth(); }
    Menu* lastPopup() noexcept final { return router_.popup().lastRoot(); }

protected:
    Control(ComponentModule& module, const UserControl::Design& design) noexcept;
    ~Control() override = default;

    // Lifecycle handlers; a control overrides those that it handles.
    virtual void Initialize() {}
    virtual void InitProperties() {}
    virtual void ReadProperties(const PropertyBag& /*PropBag*/) {}
    virtual void WriteProperties(PropertyBag& /*PropBag*/) {}
    virtual void Resize() {}
    virtual void AmbientChanged(StringView /*PropertyName*/) {}
    /// A character typed while the control has the keyboard, before its widgets see it. True when the control acted
    /// on it: it goes no further.
    virtual bool KeyPress(Integer& /*KeyAscii*/) { return false; }
    /// A pointer press on the control's own surface; X and Y in the inner unit.
    virtual void MouseDown(Integer /*Button*/, Integer /*Shift*/, Single /*X*/, Single /*Y*/) {}

    UserControl userControl;

private:
    friend class EmbeddedControl;
    friend class UserControl;
    template <class T>
    friend Ref<T> createObject(ComponentModule& module);

    enum class Stage : std::uint8_t { Created, Sited, Loading, Placed, Sizing, Live, Closed };

    template <class Body>
    Status edge(const char* call, ErrorInfo* error, const Body& body) noexcept;
    void require(bool legal) const;
    Widget* windowButton(CommandButton* Surface::*button) noexcept;
    template <class Body>
    void during(Stage on, Stage after, const Body& body);

    InputRouter router_{userControl};
    Stage stage_ = Stage::Created;
};

/// A fresh instance of a class; of a control its children exist, then Initialize runs. Fails as Initialize does,
/// leaving nothing behind.
template <class T>
Ref<T> createObject(ComponentModule& module) {
    Ref<T> object(*std::make_unique<T>(module).release());
    if constexpr (std::is_base_of_v<Control, T>) static_cast<Control&>(*object).Initialize();
    return object;
}

} // namespace zilvo

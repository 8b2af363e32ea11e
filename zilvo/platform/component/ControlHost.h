#pragma once

#include "zilvo/platform/component/Object.h"
#include "zilvo/platform/hosting/HostedControl.h"

#include <functional>

namespace zilvo::platform {

/// A control with a site of its own: runs it through its lifecycle, keeps what it reports, and turns statuses into
/// Failures. What a simple host needs; a host with windows derives from it or writes its own ControlSite.
class ControlHost : private ControlSite {
public:
    using Handler = std::function<void(std::span<Variant> arguments)>;

    /// Gives the control its site. Fails with NoInterface for an object that is no control.
    explicit ControlHost(Ref<Object> object);
    ControlHost(const ControlHost&) = delete;
    ControlHost& operator=(const ControlHost&) = delete;
    /// Closes the control and lets go of it.
    virtual ~ControlHost();

    /// Takes the control live: loaded with the settings, or new without; then sized, in twips, each side as the
    /// control has it unless given. Ambient properties and event handlers are set before.
    void open(const PropertyBag* settings = nullptr, std::optional<Single> width = {},
              std::optional<Single> height = {});

    Object& object() const noexcept { return *object_; }
    HostedControl& control() const noexcept { return control_; }

    Variant get(StringView name) const { return platform::get(*object_, name); }
    void put(StringView name, const Variant& value) const { platform::put(*object_, name, value); }
    Variant call(StringView name, std::span<Variant> arguments = {}) const {
        return platform::call(*object_, name, arguments);
    }
    /// Attaches a handler for the host's life. Fails with UnknownMember.
    void on(StringView eventName, Handler handler);

    void save(PropertyBag& settings);
    void resize(Single width, Single height);
    /// True when the input did something; for Act, when the user could do it.
    bool input(const InputEvent& event);
    /// The user's click on a widget; false when there is no such widget or the user cannot.
    bool click(StringView widgetName, Integer index = NoIndex);
    void paint(Painter& painter);

    StandardAmbient& ambientProperties() noexcept { return ambient_; }
    /// Sets an ambient property by name and, when the control is live, tells it.
    void setAmbient(StringView name, const Variant& value);
    Extender& extenderObject() noexcept { return extender_; }

    /// The names given to PropertyChanged, in order; of many the newest, some 500 to 1,000.
    const std::vector<String>& changes() const noexcept { return changes_; }
    std::size_t beeps() const noexcept { return beeps_; }
    /// How often something was to be painted again.
    std::size_t repaints() const noexcept { return repaints_; }

protected:
    void PropertyChanged(StringView name) override;
    void SizeChanged(Single width, Single height) override { extender_.record(width, height); }
    void Beep() override { ++beeps_; }
    bool ShowPopup(Menu& /*root*/, Point /*at*/) override { return false; }
    /// The control, or its host's code, has moved, shown, hidden, enabled or disabled it through its extender; a size
    /// comes by SizeChanged.
    virtual void ExtenderChanged(Aspect /*aspect*/) { ViewChanged(); }
    void ViewChanged() noexcept override { ++repaints_; }

private:
    /// A host's extender: a size set on it resizes the control.
    class HostExtender final : public Extender {
    public:
        explicit HostExtender(ControlHost& host) noexcept : host_(host) {}
        void put_Width(Single newWidth) override;
        void put_Height(Single newHeight) override;
        void record(Single width, Single height) noexcept {
            place_.width = width;
            place_.height = height;
        }

    private:
        void changed(Aspect aspect) override { host_.ExtenderChanged(aspect); }

        ControlHost& host_;
    };
    class FunctionSink;

    Ambient& ambient() override { return ambient_; }
    Extender& extender() override { return extender_; }

    Ref<Object> object_;
    HostedControl& control_;
    StandardAmbient ambient_;
    HostExtender extender_{*this};
    bool* gone_ = nullptr; ///< told when the host goes away inside open()
    std::vector<String> changes_;
    std::size_t beeps_ = 0;
    std::size_t repaints_ = 0;
    std::vector<std::unique_ptr<FunctionSink>> sinks_;
};

/// Attaches a sink to the event of that name; fails with UnknownMember.
Connection connect(Object& object, StringView eventName, EventSink& sink);

} // namespace zilvo::platform

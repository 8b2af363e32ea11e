#pragma once

#include "zilvo/framework/Control.h"

namespace zilvo {

/// The events of an embedded control that the outer one handles.
struct EmbeddedEvent {
    Long number = 0;
    Delegate<std::span<Variant>> handler;
};

/// Binds a handler of the outer control to an event of the inner one, by its number. The handler gets references to
/// the inner control's own variables: `handles<1, &paneledSeatBoxes::SpreadSeatBoxes_SeatSpreadToWas>(this)`.
template <Long Number, auto Handler, class Target>
EmbeddedEvent handles(Target* target) {
    return {Number, {target, [](void* object, std::span<Variant> arguments) {
                         platform::detail::Call<Handler>::run(*static_cast<Target*>(object), arguments, nullptr);
                     }}};
}

/// Another control of the component as a child widget. Plays host to it: the inner control is created from its class,
/// loaded without settings and sized while the outer one's children are created; its ambient colours and font are the
/// outer control's own, UserMode is handed through. It is reached only through its published interface; failures of
/// the inner control come through unchanged.
class EmbeddedControl final : public Widget, private ControlSite, private EventSink {
public:
    struct Design {
        platform::Name Name;
        Stated<const char16_t*> Class; ///< the class name
        Twips Left, Top, Width, Height;
        bool Visible = true;
        Integer TabIndex = 0;
        Integer ZOrder = 0;
    };

    /// Lies in `container`, on the surface of `outer`.
    EmbeddedControl(Control& outer, Container& container, const Design& design,
                    std::initializer_list<EmbeddedEvent> events = {});
    ~EmbeddedControl() override;

    /// Calls by member id, and late-bound by name. Arguments that are references are passed on as they are.
    Variant Get(MemberId id);
    void Put(MemberId id, const Variant& value);
    Variant Call(MemberId id, Variant argument);
    Variant Get(StringView memberName) { return platform::get(*inner_, memberName); }
    void Put(StringView memberName, const Variant& value) { platform::put(*inner_, memberName, value); }

    const ClassDescription& description() const noexcept override { return description_; }
    Role role() const noexcept override { return Role::None; }
    Surface* embeddedSurface() noexcept override { return &control().surface(); }
    Described* embeddedMembers() noexcept override { return inner_.get(); }
    void ambientChanged(StringView name) override;
    void paint(Painter& /*painter*/) const override {} // the inner surface draws itself

private:
    class OuterAmbient;
    class WidgetExtender;

    HostedControl& control() noexcept { return *inner_->hostedControl(); }
    void sizeChanged() override;

    // ControlSite
    Ambient& ambient() override;
    Extender& extender() override;
    void PropertyChanged(StringView /*name*/) override {}
    void SizeChanged(Single width, Single height) override;
    void ViewChanged() noexcept override { changed(Aspect::Look); }
    void WidgetChanged(const Widget& widget, Aspect aspect) noexcept override {
        surface().widgetChanged(widget, aspect);
    }
    void Beep() override;
    bool ShowPopup(Menu& root, Point at) override;
    Widget* embeddingWidget() noexcept override { return this; }

    // EventSink
    void Event(Long number, std::span<Variant> arguments) override;

    UserControl& outerSurface_;
    std::vector<EmbeddedEvent> events_;
    std::unique_ptr<OuterAmbient> ambient_;
    std::unique_ptr<WidgetExtender> extender_;
    Ref<Object> inner_;
    /// The inner class's name, with a widget's members: what it is as a child.
    ClassDescription description_;
    std::vector<Connection> connections_;
    bool live_ = false;
};

} // namespace zilvo

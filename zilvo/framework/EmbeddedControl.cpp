#include "zilvo/framework/EmbeddedControl.h"

namespace zilvo {

class EmbeddedControl::OuterAmbient final : public Ambient {
public:
    explicit OuterAmbient(UserControl& outer) noexcept : outer_(outer) {}
    bool get_UserMode() override { return outer_.get_Ambient().get_UserMode(); }
    bool get_DisplayAsDefault() override { return outer_.get_Ambient().get_DisplayAsDefault(); }
    Colour get_BackColor() override { return outer_.get_BackColor(); }
    Colour get_ForeColor() override { return outer_.get_ForeColor(); }
    FontRef get_Font() override { return outer_.get_Font(); }

private:
    UserControl& outer_;
};

/// The inner control's place is the widget's own.
class EmbeddedControl::WidgetExtender final : public Extender {
public:
    explicit WidgetExtender(Widget& widget) noexcept : widget_(widget) {}
    Single get_Left() const noexcept override { return widget_.get_Left(); }
    void put_Left(Single newLeft) override { widget_.put_Left(newLeft); }
    Single get_Top() const noexcept override { return widget_.get_Top(); }
    void put_Top(Single newTop) override { widget_.put_Top(newTop); }
    Single get_Width() const noexcept override { return widget_.get_Width(); }
    void put_Width(Single newWidth) override { widget_.put_Width(newWidth); }
    Single get_Height() const noexcept override { return widget_.get_Height(); }
    void put_Height(Single newHeight) override { widget_.put_Height(newHeight); }
    bool get_Visible() const noexcept override { return widget_.get_Visible(); }
    void put_Visible(bool newVisible) override { widget_.put_Visible(newVisible); }
    bool get_Enabled() const noexcept override { return widget_.get_Enabled(); }
    void put_Enabled(bool newEnabled) override { widget_.put_Enabled(newEnabled); }

private:
    Widget& widget_;
};

namespace {

const ClassEntry& entryOf(const Control& outer, StringView className) {
    if (const ClassEntry* entry = outer.module().description().find(className)) return *entry;
    throw Failure(Status::ClassNotAvailable, "the component has no class " + toUtf8(className));
}

} // namespace

EmbeddedControl::EmbeddedControl(Control& outer, Container& container, const Design& design,
                                 std::initializer_list<EmbeddedEvent> events)
    : Widget(container, placementOf(design)),
      outerSurface_(outer.userControl),
      events_(events),
      ambient_(std::make_unique<OuterAmbient>(outerSurface_)),
      extender_(std::make_unique<WidgetExtender>(*this)),
      inner_(entryOf(outer, design.Class.value).create(outer.module())),
      description_{inner_->description().name, {}, &commonMembers} {
    ErrorInfo error;
    for (const EmbeddedEvent& event : events_)
        throwUnlessOk(inner_->Connect(event.number, *this, connections_.emplace_back(), &error), error);
    throwUnlessOk(control().SetSite(*this, &error), error);
    // A size that the inner control gives itself while loading stays; the others are as designed.
    const Rectangle before = control().surface().area();
    throwUnlessOk(control().Load(MemoryPropertyBag(), &error), error);
    const Rectangle after = control().surface().area();
    const Single width = after.width != before.width ? after.width : Single{design.Width};
    const Single height = after.height != before.height ? after.height : Single{design.Height};
    live_ = true;
    throwUnlessOk(control().SetSize(width, height, &error), error);
}

EmbeddedControl::~EmbeddedControl() {
    control().Close();
}

Variant EmbeddedControl::Get(MemberId id) {
    Variant result;
    ErrorInfo error;
    throwUnlessOk(inner_->Invoke(id, Access::Get, {}, &result, &error), error);
    return result;
}

void EmbeddedControl::Put(MemberId id, const Variant& value) {
    Variant argument = value;
    ErrorInfo error;
    throwUnlessOk(inner_->Invoke(id, Access::Put, {&argument, 1}, nullptr, &error), error);
}

Variant EmbeddedControl::Call(MemberId id, Variant argument) {
    Variant result;
    ErrorInfo error;
    throwUnlessOk(inner_->Invoke(id, Access::Method, {&argument, 1}, &result, &error), error);
    return result;
}

void EmbeddedControl::ambientChanged(StringView name) {
    if (!live_) return;
    ErrorInfo error;
    throwUnlessOk(control().AmbientPropertyChanged(name, &error), error);
}

void EmbeddedControl::sizeChanged() {
    if (!live_) return;
    ErrorInfo error;
    throwUnlessOk(control().SetSize(bounds().width, bounds().height, &error), error);
}

Ambient& EmbeddedControl::ambient() {
    return *ambient_;
}

Extender& EmbeddedControl::extender() {
    return *extender_;
}

void EmbeddedControl::SizeChanged(Single width, Single height) {
    followSize(width, height);
}

void EmbeddedControl::Beep() {
    outerSurface_.Beep();
}

bool EmbeddedControl::ShowPopup(Menu& root, Point /*at*/) {
    outerSurface_.PopupMenu(root); // whose router knows the point on its own surface
    return true;
}

void EmbeddedControl::Event(Long number, std::span<Variant> arguments) {
    for (const EmbeddedEvent& event : events_)
        if (event.number == number) return event.handler(arguments); // which may destroy the outer control
}

} // namespace zilvo

// Whatever a host, a user and hostile event handlers do to a control, in whatever order: calls succeed or fail, and
// nothing is left behind.
#include "tests/fuzz/Saved.h"
#include "zilvo/platform/painting/SvgPainter.h"

using namespace zilvo;
using platform::Access;
using platform::Described;
using platform::Widget;
namespace input = platform::input;

namespace {

/// A host that misbehaves when the control reports something.
class Host final : public platform::ControlHost {
public:
    Host(Ref<Object> object, const std::function<void()>& misbehave)
        : ControlHost(std::move(object)), misbehave_(misbehave) {}

private:
    void PropertyChanged(StringView /*name*/) override { misbehave_(); }
    void SizeChanged(Single width, Single height) override {
        ControlHost::SizeChanged(width, height);
        misbehave_();
    }
    void Beep() override { misbehave_(); }
    bool ShowPopup(platform::Menu& /*root*/, platform::Point /*at*/) override {
        misbehave_();
        return false;
    }

    const std::function<void()>& misbehave_;
};

/// A store of settings that misbehaves, and gives any values.
class Store final : public platform::PropertyBag {
public:
    Store(fuzz::Input& in, const std::function<void()>& misbehave) : in_(in), misbehave_(misbehave) {}

private:
    std::optional<Variant> read(StringView /*name*/) const override {
        misbehave_();
        return in_.ConsumeBool() ? std::optional(in_.value()) : std::nullopt;
    }
    void write(StringView /*name*/, const Variant& /*value*/, bool /*equalsDefault*/) override { misbehave_(); }

    fuzz::Input& in_;
    const std::function<void()>& misbehave_;
};

class Scene final : private platform::EventSink {
public:
    explicit Scene(fuzz::Input& in) : in_(in), object_(in.object()) {
        for (const auto& event : object_->description().events)
            connections_.push_back(connect(*object_, event.name, *this));
        if (!object_->hostedControl()) return;
        host_ = std::make_unique<Host>(object_, misbehave_);
        if (in_.ConsumeBool()) fuzz::attempt([&] { host_->open(); });
    }

    void play() {
        for (int left = 200; left > 0 && in_.remaining_bytes() > 0; --left)
            fuzz::attempt([&] { step(); });
        if (!host_) return;
        platform::SvgPainter painter(3000, 3000);
        host_->paint(painter);
        fuzz::requireSavedWhole(*host_);
    }

private:
    /// Calls back, throws, or takes away what it is called from.
    void misbehave() {
        static constexpr void (*deeds[])(Scene&) = {
            [](Scene&) {},
            [](Scene& on) { on.step(); },
            [](Scene& on) { on.object_ = nullptr; },
            [](Scene& on) { on.host_ = nullptr; },
            [](Scene& on) { on.connections_.clear(); },
            [](Scene& on) {
                if (on.host_) on.host_->control().Close();
            },
            [](Scene&) { throw Failure(Status::InvalidPropertyValue, "a handler fails"); },
        };
        while (in_.ConsumeBool())
            in_.oneOf(deeds)(*this);
    }

    /// One of the calls that anybody may make at any time.
    void step() {
        static constexpr void (*steps[])(Scene&) = {
            [](Scene& on) { on.use(*on.object_, on.object_.get()); },
            [](Scene& on) { on.useFont(); },
            [](Scene& on) { on.host_->open(on.in_.ConsumeBool() ? &on.store_ : nullptr); },
            [](Scene& on) { on.useWidget(); },
            [](Scene& on) { on.use(on.host_->extenderObject()); },
            [](Scene& on) { on.use(on.host_->control().surface().members()); },
            [](Scene& on) { on.host_->resize(on.in_.single(), on.in_.single()); },
            [](Scene& on) { on.host_->save(on.store_); },
            [](Scene& on) { on.setAmbient(); },
            [](Scene& on) { on.click(); },
            [](Scene& on) {
                on.send(input::PointerDown{on.place(), on.button(), on.in_.whole<Integer>()});
            },
            [](Scene& on) { on.send(input::PointerMove{on.place()}); },
            [](Scene& on) {
                on.send(input::PointerUp{on.place(), on.button()});
            },
            [](Scene& on) { on.send(input::KeyTyped{on.in_.whole<Integer>()}); },
            [](Scene& on) { on.send(on.key()); },
            [](Scene& on) {
                on.send(input::TimePassed{std::chrono::milliseconds(on.in_.ConsumeIntegralInRange(-1, 60000))});
            },
        };
        constexpr std::size_t withoutHost = 2;
        if (object_) in_.oneOf(std::span(steps).first(host_ ? std::size(steps) : withoutHost))(*this);
    }

    // What the user does

    void send(const platform::InputEvent& event) { host_->input(event); }
    void click() {
        if (Widget* widget = anyWidget())
            send(input::Act{*widget, static_cast<input::Action>(in_.ConsumeIntegralInRange(0, 2))});
    }
    Integer button() { return in_.ConsumeBool() ? in_.whole<Integer>() : input::LeftButton; }
    input::KeyDown key() {
        return {static_cast<input::Key>(in_.ConsumeIntegralInRange(0, 8)),
                in_.ConsumeIntegralInRange<char16_t>(u' ', u'z'), in_.ConsumeIntegralInRange<Integer>(0, 7)};
    }
    Widget* anyWidget() {
        std::vector<Widget*> widgets;
        fuzz::collect(host_->control().surface(), widgets);
        return widgets.empty() ? nullptr : in_.oneOf(widgets);
    }
    /// Anywhere, or on a widget.
    Point place() {
        const Widget* at = in_.ConsumeBool() ? anyWidget() : nullptr;
        if (!at) return in_.point();
        Point point{at->bounds().width / 2, at->bounds().height / 2};
        for (; at; at = at->outer())
            point = {point.x + at->bounds().left, point.y + at->bounds().top};
        return point;
    }

    // What the host does

    void setAmbient() {
        static constexpr std::array<StringView, 4> names = {u"UserMode", u"BackColor", u"ForeColor", u"Font"};
        const auto name = in_.oneOf(names);
        host_->setAmbient(name, in_.value());
    }
    /// Uses any member with any arguments, mostly as many as it has. An object is called by the member's id.
    void use(Described& target, Object* object = nullptr) {
        const Ref<Object> held = object ? Ref<Object>() : object_; // a widget's member does not hold its control
        const auto* description = &target.description();
        while (description->base && in_.ConsumeBool())
            description = description->base;
        if (description->members.empty()) return;
        const auto& member = in_.oneOf(description->members);
        const auto how = static_cast<Access>(in_.ConsumeIntegralInRange(0, 3));
        const std::size_t fitting = how == Access::Get ? 0 : member.argumentCount;
        std::vector<Variant> arguments(in_.ConsumeIntegralInRange(0, 9) == 9 ? 3 : fitting);
        for (Variant& argument : arguments)
            argument = in_.value();
        ErrorInfo error;
        const Status status = object ? object->Invoke(member.id, how, arguments, &result_, &error)
                                     : platform::invoke(target, member.name, how, arguments, &result_, &error);
        fuzz::require(platform::succeeded(status) ||
                          error.message.find(platform::toUtf8(member.name)) != error.message.npos,
                      "a message names the member: " + error.message);
        platform::throwUnlessOk(status, error);
    }
    void useWidget() {
        Widget* widget = anyWidget();
        if (!widget) return;
        Described* members = widget->embeddedMembers();
        use(members && in_.ConsumeBool() ? *members : *widget);
    }
    /// The font that a member gave last.
    void useFont() {
        const FontRef* font = result_.find<FontRef>();
        if (font && *font) use(*FontRef(*font));
    }

    /// A handler that changes what it is given, and misbehaves.
    void Event(Long /*number*/, std::span<Variant> arguments) override {
        for (Variant& argument : arguments)
            if (in_.ConsumeBool()) argument.assign(in_.value());
        misbehave();
    }

    fuzz::Input& in_;
    const std::function<void()> misbehave_ = [this] { misbehave(); };
    Ref<Object> object_;
    std::vector<platform::Connection> connections_;
    std::unique_ptr<Host> host_;
    Variant result_;
    Store store_{in_, misbehave_};
};

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    {
        fuzz::Input in(data, size);
        Scene(in).play();
    }
    fuzz::requireNothingAlive();
    return 0;
}

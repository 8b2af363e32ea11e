// Whatever a host, a user and hostile event handlers do to a control, in whatever order: calls succeed or fail, and
// nothing is left behind.
#include "tests/fuzz/Fuzz.h"
#include "zilvo/platform/component/ControlHost.h"
#include "zilvo/platform/painting/SvgPainter.h"

using namespace zilvo;
using platform::Access;
using platform::ControlHost;
using platform::Described;
using platform::Widget;
namespace input = platform::input;

namespace {

class Scene final : private platform::EventSink {
public:
    explicit Scene(fuzz::Input& in) : in_(in), object_(in.object()) {
        for (const auto& event : object_->description().events)
            connections_.push_back(connect(*object_, event.name, *this));
        if (!object_->hostedControl()) return;
        host_ = std::make_unique<ControlHost>(object_);
        if (in_.ConsumeBool()) fuzz::attempt([&] { host_->open(); });
    }

    void play() {
        for (int left = 200; left > 0 && in_.remaining_bytes() > 0; --left)
            fuzz::attempt([&] { step(); });
        if (!host_) return;
        platform::SvgPainter painter(3000, 3000);
        host_->paint(painter);
    }

private:
    /// One of the calls that anybody may make at any time.
    void step() {
        if (!object_) return;
        switch (in_.below(host_ ? 17 : 2)) {
        case 0:
            return callMember();
        case 1:
            return putFont();
        case 2:
            return host_->open();
        case 3:
            return resize();
        case 4:
            return save();
        case 5:
            return paint();
        case 6:
            return accessAny(host_->extenderObject());
        case 7:
            return accessAny(host_->control().surfaceMembers());
        case 8:
            return setAmbient();
        case 9:
            return accessWidget();
        case 10:
            return send(input::PointerDown{place(), in_.whole<Integer>(), in_.whole<Integer>()});
        case 11:
            return send(input::PointerMove{place()});
        case 12:
            return send(input::PointerUp{place(), in_.whole<Integer>()});
        case 13:
            return send(input::KeyTyped{in_.whole<Integer>()});
        case 14:
            return send(input::KeyDown{static_cast<input::Key>(in_.below(9)),
                                       in_.ConsumeIntegralInRange<char16_t>(u' ', u'z'),
                                       in_.ConsumeIntegralInRange<Integer>(0, 7)});
        case 15:
            return send(input::TimePassed{std::chrono::milliseconds(in_.ConsumeIntegralInRange(-1, 60000))});
        default:
            return act();
        }
    }

    void send(const platform::InputEvent& event) { host_->input(event); }
    void act() {
        if (Widget* widget = anyWidget()) send(input::Act{*widget, static_cast<input::Action>(in_.below(3))});
    }
    void resize() {
        const auto [width, height] = in_.point();
        host_->resize(width, height);
    }
    void save() {
        platform::MemoryPropertyBag bag;
        host_->save(bag);
    }
    void paint() {
        platform::SvgPainter painter(in_.single(), in_.single());
        host_->paint(painter);
    }
    void setAmbient() {
        static constexpr std::array<StringView, 4> names = {u"UserMode", u"BackColor", u"ForeColor", u"Font"};
        host_->setAmbient(in_.oneOf(names), in_.value());
    }

    /// As late-bound hosts do, with any arguments.
    template <class Call>
    void with(const platform::MemberDescription& member, const Call& call) {
        std::vector<Variant> arguments(member.argumentCount);
        for (Variant& argument : arguments)
            argument = in_.value();
        if (in_.below(10) == 9) arguments.resize(in_.below(4));
        ErrorInfo error;
        platform::throwUnlessOk(call(static_cast<Access>(in_.below(4)), arguments, error), error);
    }
    void callMember() {
        if (object_->description().members.empty()) return;
        const auto& member = in_.oneOf(object_->description().members);
        with(member, [&](Access how, std::span<Variant> arguments, ErrorInfo& error) {
            return object_->Invoke(member.id, how, arguments, &result_, &error);
        });
    }
    void accessAny(Described& target) {
        const Ref<Object> held = object_;
        const auto* description = &target.description();
        while (description->base && in_.ConsumeBool())
            description = description->base;
        if (description->members.empty()) return;
        const auto& member = in_.oneOf(description->members);
        with(member, [&](Access how, std::span<Variant> arguments, ErrorInfo& error) {
            return platform::invoke(target, member.name, how, arguments, &result_, &error);
        });
    }
    /// The font that a member gave last.
    void putFont() {
        const FontRef* font = result_.find<FontRef>();
        if (!font || !*font) return;
        const FontRef held = *font;
        accessAny(*held);
    }
    void accessWidget() {
        Widget* widget = anyWidget();
        if (!widget) return;
        Described* members = widget->embeddedMembers();
        accessAny(members && in_.ConsumeBool() ? *members : *widget);
    }

    Widget* anyWidget() {
        std::vector<Widget*> widgets;
        fuzz::collect(host_->control().surface(), widgets);
        return widgets.empty() ? nullptr : in_.oneOf(widgets);
    }
    /// Anywhere, or on a widget.
    Point place() {
        Widget* widget = in_.ConsumeBool() ? anyWidget() : nullptr;
        if (!widget) return in_.point();
        Point point{widget->bounds().width / 2, widget->bounds().height / 2};
        for (const Widget* outer = widget; outer;
             outer = outer->parent() ? outer->parent() : outer->surface().embeddingWidget())
            point = {point.x + outer->bounds().left, point.y + outer->bounds().top};
        return point;
    }

    /// A handler that changes what it is given, calls back, throws, or takes away what it is called from.
    void Event(Long /*number*/, std::span<Variant> arguments) override {
        if (depth_ == 3) return;
        class Depth {
        public:
            explicit Depth(int& depth) noexcept : depth_(depth) { ++depth_; }
            Depth(const Depth&) = delete;
            Depth& operator=(const Depth&) = delete;
            ~Depth() { --depth_; }

        private:
            int& depth_;
        };
        const Depth depth(depth_);
        switch (in_.below(10)) {
        case 5:
            object_ = nullptr;
            [[fallthrough]];
        case 6:
            host_ = nullptr;
            break;
        case 7:
            if (host_) host_->control().Close();
            break;
        case 8:
            connections_.clear();
            break;
        case 9:
            throw Failure(Status::InvalidPropertyValue, "a handler fails");
        default:
            break;
        }
        for (Variant& argument : arguments)
            if (in_.ConsumeBool()) argument.assign(in_.value());
        while (in_.ConsumeBool())
            step();
    }

    fuzz::Input& in_;
    Ref<Object> object_;
    std::vector<platform::Connection> connections_;
    std::unique_ptr<ControlHost> host_;
    Variant result_;
    int depth_ = 0;
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

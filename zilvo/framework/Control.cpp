#include "zilvo/framework/Control.h"

namespace zilvo {

Control::Control(ComponentModule& module, const UserControl::Design& design) noexcept
    : Object(module), userControl(*this, design) {}

template <class Body>
Status Control::edge(const char* call, ErrorInfo* error, const Body& body) noexcept {
    const Ref<Object> alive(*this);
    return atTheEdge(
        error, [&] { return toUtf8(description().name) + "." + call; }, body);
}

void Control::require(bool legal) const {
    if (legal) return;
    constexpr std::array stages = {"has no site",     "is not yet new or loaded", "is being loaded",
                                   "has no size yet", "gets its first size",      "is live",
                                   "is closed"};
    throw Failure(Status::UnexpectedCall,
                  std::string("the call is not legal: the control ") + stages[static_cast<std::size_t>(stage_)]);
}

/// A step of the order, which has taken place even when its handler fails; a handler may close the control.
template <class Body>
void Control::during(Stage on, Stage after, const Body& body) {
    class Step {
    public:
        Step(Stage& stage, Stage on, Stage after) noexcept : stage_(stage), on_(on), after_(after) { stage_ = on; }
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;
        ~Step() {
            if (stage_ == on_) stage_ = after_;
        }

    private:
        Stage& stage_;
        Stage on_;
        Stage after_;
    };
    const Step step(stage_, on, after);
    body();
}

Status Control::SetSite(ControlSite& site, ErrorInfo* error) noexcept {
    return edge("SetSite", error, [&] {
        require(stage_ == Stage::Created);
        stage_ = Stage::Sited;
        userControl.setSite(&site);
        ErrorInfo failure;
        const Status told = atTheEdge(
            &failure, [] { return std::string(); }, [&] { userControl.tellEmbedded(u"UserMode"); });
        if (!succeeded(told) && stage_ == Stage::Sited) { // the host goes on without the control
            stage_ = Stage::Created;
            userControl.setSite(nullptr);
        }
        throwUnlessOk(told, failure);
    });
}

Status Control::InitNew(ErrorInfo* error) noexcept {
    return edge("InitProperties", error, [&] {
        require(stage_ == Stage::Sited);
        during(Stage::Loading, Stage::Placed, [&] { InitProperties(); });
    });
}

Status Control::Load(const PropertyBag& settings, ErrorInfo* error) noexcept {
    return edge("ReadProperties", error, [&] {
        require(stage_ == Stage::Sited);
        during(Stage::Loading, Stage::Placed, [&] { ReadProperties(settings); });
    });
}

Status Control::SetSize(Single width, Single height, ErrorInfo* error) noexcept {
    return edge("Resize", error, [&] {
        require(stage_ == Stage::Placed || stage_ == Stage::Live);
        UserControl::checkSize(width, height);
        if (stage_ == Stage::Live)
            userControl.setSize(width, height);
        else
            during(Stage::Sizing, Stage::Live, [&] { userControl.setSize(width, height); });
    });
}

Status Control::Save(PropertyBag& settings, ErrorInfo* error) noexcept {
    return edge("WriteProperties", error, [&] {
        require(stage_ == Stage::Placed || stage_ == Stage::Sizing || stage_ == Stage::Live);
        WriteProperties(settings);
    });
}

Status Control::AmbientPropertyChanged(StringView name, ErrorInfo* error) noexcept {
    return edge("AmbientChanged", error, [&] {
        require(stage_ == Stage::Live);
        AmbientChanged(name);
        if (sameName(name, u"UserMode")) userControl.tellEmbedded(name);
    });
}

Status Control::Input(const InputEvent& event, bool* acted, ErrorInfo* error) noexcept {
    return edge("Input", error, [&] {
        require(stage_ == Stage::Live);
        const bool did = router_.route(event);
        if (acted) *acted = did;
    });
}

Status Control::Paint(Painter& painter, ErrorInfo* error) noexcept {
    return edge("Paint", error, [&] {
        {
            const PaintedArea area(painter, userControl.area());
            userControl.paint(painter);
        }
        router_.popup().paint(painter);
    });
}

Widget* Control::focus() noexcept {
    Widget* focused = nullptr;
    edge("focus", nullptr, [&] { focused = router_.focus(); });
    return focused;
}

String Control::accessKeys() noexcept {
    String letters;
    edge("accessKeys", nullptr, [&] { letters = router_.accessKeys(); });
    return letters;
}

Widget* Control::windowButton(CommandButton* Surface::*button) noexcept {
    Widget* found = nullptr;
    edge("windowButton", nullptr, [&] { found = router_.windowButton(button); });
    return found;
}

void Control::Close() noexcept {
    stage_ = Stage::Closed;
    userControl.setSite(nullptr);
}

} // namespace zilvo

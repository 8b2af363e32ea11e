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
    constexpr std::array stages = {"has no site", "is not yet new or loaded", "has no size yet", "is live",
                                   "is closed"};
    throw Failure(Status::UnexpectedCall,
                  std::string("the call is not legal: the control ") + stages[static_cast<std::size_t>(stage_)]);
}

Status Control::SetSite(ControlSite& site, ErrorInfo* error) noexcept {
    return edge("SetSite", error, [&] {
        require(stage_ == Stage::Created);
        stage_ = Stage::Sited;
        userControl.setSite(&site);
        userControl.tellEmbedded(u"UserMode");
    });
}

Status Control::InitNew(ErrorInfo* error) noexcept {
    return edge("InitProperties", error, [&] {
        require(stage_ == Stage::Sited);
        stage_ = Stage::Placed;
        InitProperties();
    });
}

Status Control::Load(const PropertyBag& settings, ErrorInfo* error) noexcept {
    return edge("ReadProperties", error, [&] {
        require(stage_ == Stage::Sited);
        stage_ = Stage::Placed;
        ReadProperties(settings);
    });
}

Status Control::SetSize(Single width, Single height, ErrorInfo* error) noexcept {
    return edge("Resize", error, [&] {
        require(stage_ == Stage::Placed || stage_ == Stage::Live);
        stage_ = Stage::Live;
        userControl.setSize(width, height);
    });
}

Status Control::Save(PropertyBag& settings, ErrorInfo* error) noexcept {
    return edge("WriteProperties", error, [&] {
        require(stage_ == Stage::Placed || stage_ == Stage::Live);
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

void Control::Close() noexcept {
    stage_ = Stage::Closed;
    userControl.setSite(nullptr);
}

} // namespace zilvo

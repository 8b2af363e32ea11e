#pragma once

#include "zilvo/platform/component/Object.h"
#include "zilvo/platform/hosting/HostedControl.h"
#include "zilvo/platform/painting/SvgPainter.h"

#include <functional>

namespace zilvo {

/// One call that a host, its user or its code makes of an object, across the module's edge.
struct Deed {
    std::function<platform::Status(platform::Object&)> run;
    std::vector<platform::InputEvent> before{}; ///< what the user has done to come there

    void prepare(platform::Object& object) const {
        for (const platform::InputEvent& event : before)
            object.hostedControl()->Input(event, nullptr);
    }
};

/// Everything that can be done to an object of a class, of which `described` is one. A control must be live.
inline std::vector<Deed> deedsOf(platform::Object& described) {
    using namespace platform;
    std::vector<Deed> deeds;
    for (const MemberDescription& member : described.description().members)
        for (const Access how : {Access::Get, Access::Put, Access::PutReference, Access::Method})
            if (member.accessor(how))
                deeds.push_back({[&member, how](Object& object) {
                    std::vector<Variant> arguments;
                    for (const ArgumentDescription& argument : member.arguments())
                        arguments.push_back(argument.type.kind == Kind::BooleanArray ? BooleanArray(1, {true, true})
                                            : argument.type.kind == Kind::Font       ? Variant(StdFont::make({}))
                                                                                     : Variant(Integer{1}));
                    if (how == Access::Get) arguments.clear();
                    Variant result;
                    return object.Invoke(member.id, how, arguments, &result);
                }});
    if (!described.hostedControl()) return deeds;

    const auto add = [&](auto call, std::vector<InputEvent> before = {}) {
        deeds.push_back({[call](Object& object) { return call(*object.hostedControl()); }, std::move(before)});
    };
    const auto addInput = [&](const InputEvent& event, std::vector<InputEvent> before = {}) {
        add([event](HostedControl& control) { return control.Input(event, nullptr); }, std::move(before));
    };
    for (const StringView key : {u"Space", u"Enter", u"Escape", u"Down", u"9", u"1", u"Alt+P", u"Alt+1"})
        for (std::size_t tabs = 0; tabs < 6; ++tabs)
            addInput(*parseKey(key), std::vector<InputEvent>(tabs, *parseKey(u"Tab")));
    const input::PointerDown menu{{1400, 700}, input::RightButton};
    addInput(menu);
    addInput(*parseKey(u"Enter"), {menu, *parseKey(u"Down")});
    addInput(*parseKey(u"s"), {menu, *parseKey(u"m")});
    const auto addPut = [&](auto target, StringView member, Integer value) {
        add([=](HostedControl& control) {
            Variant argument(value);
            return invoke(target(control), member, Access::Put, {&argument, 1}, nullptr);
        });
    };
    for (const StringView member : {u"BackColor", u"ForeColor", u"Width", u"Height"})
        addPut([](HostedControl& control) -> Described& { return control.surface().members(); }, member, 1234);
    for (Widget& widget : described.hostedControl()->surface()) {
        const auto find = [name = String(widget.name()), index = widget.index()](HostedControl& control) -> Widget& {
            return *control.surface().find(name, index);
        };
        for (const auto action : {input::Action::Click, input::Action::SpinDown})
            add([=](HostedControl& control) { return control.Input(input::Act{find(control), action}, nullptr); });
        const Rectangle& area = widget.bounds();
        const Point at{area.left + area.width / 2, area.top + area.height / 5};
        addInput(input::PointerUp{at}, {input::PointerDown{at}});
        addInput(input::TimePassed{std::chrono::seconds(1)}, {input::PointerDown{at}});
        addPut(find, u"Width", 1500);
        if (widget.description().find(u"Value")) addPut(find, u"Value", 1);
    }
    add([](HostedControl& control) { return control.SetSize(2000, 1000); });
    add([](HostedControl& control) { return control.AmbientPropertyChanged(u"UserMode"); });
    add([](HostedControl& control) {
        SvgPainter painter(2000, 2000);
        return control.Paint(painter);
    });
    add([](HostedControl& control) { return control.focus(), Status::Ok; });
    add([](HostedControl& control) {
        MemoryPropertyBag bag;
        return control.Save(bag);
    });
    return deeds;
}

} // namespace zilvo

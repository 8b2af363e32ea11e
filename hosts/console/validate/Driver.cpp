#include "hosts/console/validate/Driver.h"

#include "hosts/console/Describe.h"
#include "zilvo/platform/painting/SvgPainter.h"
#include "zilvo/platform/widgets/SpinButton.h"

#include <limits>

namespace zilvo::console {

using namespace platform;

// Calls

std::string shown(Status status) {
    return hexadecimal(static_cast<std::uint32_t>(status)) + " (" + nameOf(status) + ")";
}

std::string shown(const Answer& answer) {
    return shown(answer.status) + (answer.error.message.empty() ? "" : " \"" + answer.error.message + "\"");
}

std::string shown(Single number) {
    return toUtf8(toString(Variant(number)));
}

Answer attempt(const std::function<void()>& call) {
    Answer answer;
    try {
        call();
    } catch (const Failure& failure) {
        answer.status = failure.status();
        answer.error.message = failure.what();
    }
    return answer;
}

bool expectMessage(Check& check, const Answer& answer) {
    return check.expect(!answer.error.message.empty(), "failed without a message: " + shown(answer));
}

bool expectStatus(Check& check, const Answer& answer, Status expected) {
    if (answer.status != expected)
        return check.expect(false, "expected " + shown(expected) + ", came " + shown(answer));
    return succeeded(expected) || expectMessage(check, answer);
}

bool expectClean(Check& check, const Answer& answer) {
    if (answer.status == Status::Ok) return true;
    return check.expect(!succeeded(answer.status), "expected ok or a failure, came " + shown(answer)) &&
           expectMessage(check, answer);
}

// Instances

std::string nameOf(const ClassEntry& entry) {
    return toUtf8(entry.identity.name);
}

std::string nameOf(const Object& object, const MemberDescription& member) {
    return toUtf8(object.description().name) + "." + toUtf8(member.name);
}

String lowerCase(StringView name) {
    String text(name);
    for (char16_t& letter : text)
        if (letter >= u'A' && letter <= u'Z') letter = static_cast<char16_t>(letter - u'A' + u'a');
    return text;
}

Ref<Object> createInstance(const LoadedComponent& component, const ClassEntry& entry) {
    Ref<Object> instance;
    ErrorInfo error;
    throwUnlessOk(component.classFactory(entry.identity.classId)->CreateInstance(instance, &error), error);
    if (!instance) throw Failure(Status::Failed, "the class factory gives success and no instance");
    return instance;
}

void forEachClass(Check& check, const LoadedComponent& component, const std::function<void(const ClassEntry&)>& body) {
    for (const ClassEntry& entry : component.description().classes) {
        check.step(nameOf(entry));
        try {
            body(entry);
        } catch (const Failure& failure) {
            check.fail(failure.what());
        }
    }
}

void forEachControl(Check& check, const LoadedComponent& component,
                    const std::function<void(const ClassEntry&)>& body) {
    bool any = false;
    forEachClass(check, component, [&](const ClassEntry& entry) {
        if (!entry.identity.isControl()) return;
        any = true;
        body(entry);
    });
    if (!any) check.skip("the component has no control");
}

void forEachLiveObject(Check& check, const LoadedComponent& component, const std::function<void(Object&)>& body) {
    forEachClass(check, component, [&](const ClassEntry& entry) {
        const Ref<Object> object = createInstance(component, entry);
        std::optional<ControlHost> host;
        if (entry.identity.isControl()) host.emplace(object).open();
        body(*object);
    });
}

// Values

Values usualValues(const Type& type) {
    if (type.enumeration && !type.enumeration->members.empty()) {
        Values values;
        for (const EnumerationMember& member : type.enumeration->members)
            values.emplace_back(member.value);
        return values;
    }
    switch (type.kind) {
    case Kind::Boolean:
        return {false, true};
    case Kind::Integer:
        return {Integer{0}, Integer{7}, Integer{1}};
    case Kind::Long:
        return {Long{0}, Long{7}, Long{1}};
    case Kind::Single:
        return {Single{0}, Single{720.5}};
    case Kind::String:
        return {u"", u"Text & more"};
    case Kind::Colour:
        return {colours::ButtonFace, Colour{0x00205080}};
    case Kind::Font:
        return {StdFont::make({}), StdFont::make({.Name = u"Arial", .Size = 12, .Weight = 700})};
    case Kind::BooleanArray:
        return {BooleanArray(), BooleanArray(1, std::vector<Boolean>(12, Boolean::True))};
    case Kind::Empty:
    case Kind::Missing:
        break;
    }
    return {Variant()};
}

Values extremeValues(const Type& type) {
    using Integers = std::numeric_limits<Integer>;
    using Longs = std::numeric_limits<Long>;
    using Singles = std::numeric_limits<Single>;
    Values values = {
        Variant(),
        Missing(),
        Boolean{1}, // neither True nor False
        Integers::min(),
        Integers::max(),
        Longs::min(),
        Longs::max(),
        Singles::lowest(),
        Singles::max(),
        Singles::infinity(),
        Singles::quiet_NaN(),
        u"no number",
        u"1e999",
        String(1, 0xD800), // half a character
        String(100000, u'W'),
        Colour{0xFFFFFFFF},
        FontRef(),
        StdFont::make({.Name = u"", .Size = 2160}),
        BooleanArray(Longs::max(), {true}),
        BooleanArray(Longs::min(), std::vector<Boolean>(100000, Boolean{1})),
    };
    if (type.enumeration)
        for (const EnumerationMember& member : type.enumeration->members)
            for (const int by : {-1, 0, 1})
                values.emplace_back(static_cast<Long>(std::int64_t{member.value} + by));
    return values;
}

Variant unconvertible(Kind kind) {
    if (kind == Kind::Font || kind == Kind::BooleanArray) return u"no such thing";
    return BooleanArray(1, {true});
}

Values plainArguments(const MemberDescription& member) {
    Values arguments;
    for (const ArgumentDescription& argument : member.arguments())
        arguments.push_back(usualValues(argument.type).front());
    return arguments;
}

std::optional<Access> accessToSet(const MemberDescription& member) {
    for (const Access how : {Access::Put, Access::PutReference})
        if (member.accessor(how)) return how;
    return std::nullopt;
}

// Deeds

namespace {

/// A user's doings with one control, each of which can be described in a few words.
class UserDeeds {
public:
    explicit UserDeeds(Object& object) : control_(*object.hostedControl()), name_(toUtf8(object.description().name)) {}

    void add(const std::string& what, const InputEvent& event) {
        deeds_.push_back({name_ + ", " + what, [&control = control_, event] {
                              return answerOf([&](ErrorInfo* error) { return control.Input(event, nullptr, error); });
                          }});
    }
    Surface& surface() const { return control_.surface(); }
    Deeds take() { return std::move(deeds_); }

private:
    HostedControl& control_;
    std::string name_;
    Deeds deeds_;
};

void actOnWidgets(UserDeeds& deeds, const Surface& surface) {
    for (Widget& widget : surface) {
        if (widget.isClickable()) deeds.add("click " + shownName(widget), input::Act{widget});
        if (dynamic_cast<SpinButton*>(&widget)) {
            deeds.add("spin " + shownName(widget) + " up", input::Act{widget, input::Action::SpinUp});
            deeds.add("spin " + shownName(widget) + " down", input::Act{widget, input::Action::SpinDown});
        }
        if (const Surface* inner = widget.embeddedSurface()) actOnWidgets(deeds, *inner);
    }
}

void press(UserDeeds& deeds, Point at, Integer button, Integer shift) {
    const auto where = " at " + shown(at.x) + ", " + shown(at.y);
    const auto which = "button " + std::to_string(button);
    deeds.add("press " + which + where, input::PointerDown{at, button, shift});
    deeds.add("hold " + which + where, input::TimePassed{SpinButton::RepeatDelay + SpinButton::RepeatEvery});
    deeds.add("leave with " + which + " from" + where, input::PointerMove{{-1, -1}});
    deeds.add("come back to" + where, input::PointerMove{at});
    deeds.add("release " + which + where, input::PointerUp{at, button});
}

void usePointer(UserDeeds& deeds) {
    const Rectangle area = deeds.surface().area();
    const auto inGrid = [&](int points, const std::function<void(Point)>& visit) {
        for (int row = 0; row < points; ++row)
            for (int column = 0; column < points; ++column)
                visit({area.width * (static_cast<Single>(column) + 0.5F) / static_cast<Single>(points),
                       area.height * (static_cast<Single>(row) + 0.5F) / static_cast<Single>(points)});
    };
    inGrid(6, [&](Point at) { press(deeds, at, input::LeftButton, 0); });
    inGrid(3, [&](Point at) { press(deeds, at, input::MiddleButton, input::ShiftMask); });
    inGrid(3, [&](Point at) {
        press(deeds, at, input::RightButton, 0); // what pops up is used by the keyboard, then by the pointer
        for (const StringView key : {u"Down", u"Right", u"Up", u"Enter"})
            deeds.add("press " + toUtf8(key), *parseKey(key));
        press(deeds, at, input::RightButton, 0);
        press(deeds, {at.x + 150, at.y + 150}, input::LeftButton, 0);
    });
    constexpr Single far = std::numeric_limits<Single>::max();
    const Single nowhere = std::numeric_limits<Single>::quiet_NaN();
    for (const Point at : {Point{-1, -1}, Point{far, far}, Point{nowhere, nowhere}})
        press(deeds, at, input::LeftButton, 0);
    press(deeds, {0, 0}, std::numeric_limits<Integer>::max(), std::numeric_limits<Integer>::min());
}

void useKeys(UserDeeds& deeds) {
    const auto press = [&](const String& name) { deeds.add("press " + toUtf8(name), *parseKey(name)); };
    for (Integer code = -1; code < 128; ++code)
        deeds.add("type the character " + std::to_string(code), input::KeyTyped{code});
    for (const Integer code : {std::numeric_limits<Integer>::min(), std::numeric_limits<Integer>::max()})
        deeds.add("type the character " + std::to_string(code), input::KeyTyped{code});
    for (char16_t letter = u'!'; letter < 0x7F; ++letter)
        press(u"Alt+" + String(1, letter));
    constexpr std::array<StringView, 8> keys = {u"Space", u"Up",    u"Down",   u"Left",
                                                u"Right", u"Enter", u"Escape", u"Tab"};
    for (const StringView modifier : {u"Shift+", u"Ctrl+", u"Alt+"})
        for (const StringView key : keys)
            press(String(modifier) + String(key));
    // Every stop of the keyboard gets every key.
    const auto widgets = std::distance(deeds.surface().begin(), deeds.surface().end());
    for (std::ptrdiff_t stop = 0; stop <= widgets; ++stop)
        for (const StringView key : keys)
            press(String(key));
}

void append(Deeds& deeds, Deeds more) {
    std::move(more.begin(), more.end(), std::back_inserter(deeds));
}

/// A call that owns its arguments.
Deed memberDeed(Object& object, const MemberDescription& member, Access how, const Values& arguments) {
    auto what = nameOf(object, member) + ", " + nameOf(how);
    for (const Variant& argument : arguments)
        what += " " + describe(argument);
    return {what, [&object, id = member.id, how, arguments] {
                Values given = arguments;
                return invoke(object, id, how, given);
            }};
}

} // namespace

Deeds widgetDeeds(Object& control) {
    UserDeeds deeds(control);
    actOnWidgets(deeds, deeds.surface());
    return deeds.take();
}

Deeds userDeeds(Object& control) {
    UserDeeds deeds(control);
    actOnWidgets(deeds, deeds.surface());
    useKeys(deeds);
    usePointer(deeds);
    return deeds.take();
}

Deeds memberDeeds(Object& object) {
    Deeds deeds;
    for (const MemberDescription& member : object.description().members) {
        if (const auto setting = accessToSet(member)) {
            for (const Variant& value : usualValues(member.type))
                deeds.push_back(memberDeed(object, member, *setting, {value}));
        } else if (member.kind == MemberKind::Method) {
            deeds.push_back(memberDeed(object, member, Access::Method, plainArguments(member)));
            Values arguments;
            for (const ArgumentDescription& argument : member.arguments())
                arguments.push_back(usualValues(argument.type).back());
            if (!arguments.empty()) deeds.push_back(memberDeed(object, member, Access::Method, arguments));
        }
    }
    return deeds;
}

Deeds hostDeeds(Object& object) {
    HostedControl& control = *object.hostedControl();
    const auto name = toUtf8(object.description().name);
    const Rectangle area = control.surface().area();
    Deeds deeds;
    for (const Single factor : {0.0F, 0.5F, 2.0F, 1.0F})
        deeds.push_back({name + ", size times " + shown(factor), [&control, area, factor] {
                             return answerOf([&](ErrorInfo* error) {
                                 return control.SetSize(area.width * factor, area.height * factor, error);
                             });
                         }});
    const StandardAmbient ambient;
    for (const MemberDescription& property : ambient.description().members)
        deeds.push_back({name + ", ambient " + toUtf8(property.name), [&control, changed = property.name] {
                             return answerOf(
                                 [&](ErrorInfo* error) { return control.AmbientPropertyChanged(changed, error); });
                         }});
    return deeds;
}

Deeds allDeeds(Object& control) {
    Deeds deeds = userDeeds(control);
    append(deeds, memberDeeds(control));
    append(deeds, hostDeeds(control));
    return deeds;
}

void carryOut(Check& check, const Deeds& deeds, const std::string& before) {
    for (const Deed& deed : deeds) {
        check.step(before.empty() ? deed.what : before + ", then " + deed.what);
        expectClean(check, deed.run());
    }
}

void expectToLive(Check& check, Object& object, const std::string& before) {
    for (const MemberDescription& member : object.description().members) {
        if (!member.accessor(Access::Get)) continue;
        check.step(before + ", then " + nameOf(object, member) + ", get");
        expectClean(check, invoke(object, member.id, Access::Get, {}));
    }
    HostedControl* control = object.hostedControl();
    if (!control) return;
    check.step(before + ", then Paint");
    SvgPainter painter(1500, 1500);
    expectClean(check, answerOf([&](ErrorInfo* error) { return control->Paint(painter, error); }));
}

} // namespace zilvo::console

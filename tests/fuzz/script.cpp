// A host script that uses any member of any control with any values of Lua: it has errors, and nothing else happens.
#include "hosts/console/lua/LuaHost.h"
#include "tests/fuzz/Fuzz.h"

#include <sstream>

using namespace zilvo;

namespace {

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream in(text);
    for (std::string part; std::getline(in, part, separator);)
        parts.push_back(part);
    return parts;
}

/// `c` is the control, `t` a table, `x` what was computed last.
const auto values = split(
    "nil|true|false|0|1|-1|2|8|13|27|300|0.5|32768|2^31|2^53|1/0|0/0|math.mininteger|'True'|'12'|''|"
    "'&OK'|'\\xff\\0'|'get'|'put'|'method'|'Alt+C'|'Tab'|{}|{true,false}|{[0]=true}|{1,2}|{[3]=true}|"
    "{Name='Arial',Size=20}|setmetatable({},{__index=error,__newindex=error,__len=error})|coroutine.create(print)|"
    "coroutine.wrap(function() c:key(13) end)|io.stdout|print|c|t|x|zilvo|c.surface|c.extender|c.ambient|"
    "c.popup|zilvo.Integer(7)|zilvo.Single('1e30')|zilvo.Boolean(-1)|zilvo.String(5)|zilvo.Font{Size=9}|"
    "zilvo.array(5,{true})|function(...) return ... end",
    '|');
const auto handlers = split(
    "print|error|function() error('no') end|function() c = nil x = nil t = nil collectgarbage() end|"
    "function(a) x = c.surface return a end|function(a) t = a c:key(13) end|function(a) return not a end|"
    "function() return coroutine.wrap(function() c:key(27) coroutine.yield(c) end)() end|function() return {} end",
    '|');
/// What the capitals stand for: see filled(). A snapshot would write files.
const auto statements =
    split("c:M(L)|x = c:M(L)|x = c.P|c.P = V|x = zilvo.F(L)|(V)[V] = V|x = (V)[V]|x = (V)(L)|x = W|W:click()|x = W.N|"
          "W.N = V|for k, v in pairs(V) do x = v end|c:widget(L):click()|print(#x, x == V, V .. V)|c:on(V, H)|t.x = V|"
          "c = zilvo.create(V, {bag = {P = V}, ambient = {UserMode = V}, width = V})|x = c:invoke(I, "
          "'get')|c:invoke(I, 'put', V)|c:invoke(I, V, V)",
          '|');
const auto hostMethods = split("widget on press release move key keydown focus save invoke inspect", ' ');
const auto hostProperties = split("surface extender ambient changes popup none", ' ');
const auto hostFunctions = split("Integer Long Single Boolean String Font array create", ' ');

class Script {
public:
    explicit Script(fuzz::Input& in)
        : in_(in), class_(in.oneOf(libraryModule().description().classes)), object_(class_.create(libraryModule())) {
        if (object_->hostedControl()) fuzz::collect(object_->hostedControl()->surface(), widgets_);
    }

    std::string text() {
        std::string text = "t = {} c = zilvo.create('" + platform::toUtf8(class_.identity.name) + "')\n";
        for (const auto& event : class_.description.events)
            text += "c:on('" + platform::toUtf8(event.name) + "', " + in_.oneOf(handlers) + ")\n";
        for (int left = 30; left > 0 && in_.remaining_bytes() > 0; --left) {
            for (const char part : in_.oneOf(statements))
                text += filled(part);
            text += "\n";
        }
        return text;
    }

private:
    std::string filled(char part) {
        switch (part) {
        case 'F':
            return in_.oneOf(hostFunctions);
        case 'H':
            return in_.oneOf(handlers);
        case 'I':
            return std::to_string(anyMember(class_.description).id);
        case 'L':
            return in_.ConsumeBool() ? in_.ConsumeBool() ? filled('V') + ", " + filled('V') : filled('V') : "";
        case 'M':
            return anyName(platform::MemberKind::Method, hostMethods);
        case 'N':
            return widgets_.empty() ? "none" : platform::toUtf8(anyMember(in_.oneOf(widgets_)->description()).name);
        case 'P':
            return anyName(platform::MemberKind::Property, hostProperties);
        case 'V':
            return in_.oneOf(values);
        case 'W':
            return widgets_.empty() ? "c:widget('none')" : shown(*in_.oneOf(widgets_));
        default:
            return {part};
        }
    }
    platform::MemberDescription anyMember(const platform::ClassDescription& description) {
        const auto* at = &description;
        while (at->base && in_.ConsumeBool())
            at = at->base;
        return at->members.empty() ? platform::MemberDescription() : in_.oneOf(at->members);
    }
    std::string anyName(platform::MemberKind kind, std::span<const std::string> hostNames) {
        const auto member = anyMember(class_.description);
        return member.kind == kind && in_.ConsumeBool() ? platform::toUtf8(member.name) : in_.oneOf(hostNames);
    }
    static std::string shown(const platform::Widget& widget) {
        return "c:widget('" + platform::toUtf8(widget.name()) + "'" +
               (widget.isArrayElement() ? ", " + std::to_string(widget.index()) : "") + ")";
    }

    fuzz::Input& in_;
    const platform::ClassEntry& class_;
    Ref<Object> object_;
    std::vector<platform::Widget*> widgets_;
};

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static platform::Components components;
    components.add(COMPONENT_FILE);
    static const Ref<Object> kept = components.create(u"GOButton"); // what the fuzzer watches must stay loaded
    std::cerr.rdbuf(nullptr);                                       // where the script's errors go
    fuzz::Input in(data, size);
    std::istringstream script(Script(in).text());
    console::StreamReader reader(script, false);
    console::LuaHost(components).converse(reader);
    fuzz::require(components.liveObjects() == 1, "nothing is left alive");
    return 0;
}

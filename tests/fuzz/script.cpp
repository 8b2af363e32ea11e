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

/// What stands for itself in a statement below; `c` is the control, `t` a table, `x` what was computed last.
const auto values =
    split("nil|true|false|0|1|-1|2|8|13|27|300|0.5|32768|2^31|2^53|1/0|0/0|math.mininteger|'True'|'12'|''|"
          "'&OK'|'\\xff\\0'|'get'|'put'|'method'|'Alt+C'|'Tab'|{}|{true,false}|{[0]=true}|{1,2}|{[3]=true}|"
          "{Name='Arial',Size=20}|setmetatable({},{__index=error,__newindex=error,__len=error})|"
          "function(...) return ... end|function() error('no') end|function() c = nil collectgarbage() end|"
          "function(a) x = c.surface a = c:save() end|function(a) t = a c:key(13) end|coroutine.create(print)|"
          "coroutine.wrap(function() c:key(13) end)|io.stdout|print|c|t|x|zilvo|c.surface|c.extender|c.ambient|"
          "c.popup|c:widget('cmdOK')|c:widget('optDeckCount',1)|zilvo.Integer(7)|zilvo.Single('1e30')|"
          "zilvo.Boolean(-1)|zilvo.String(5)|zilvo.Font{Size=9}|zilvo.array(5,{true})",
          '|');
/// M is a member, V a value, L any number of values. Snapshots would write files.
const auto statements = split("c:M(L)|x = c:M(L)|x = c.M|c.M = V|x = zilvo.F(L)|V[V] = V|x = (V)[V]|x = (V)(L)|"
                              "for k, v in pairs(V) do x = v end|c:widget(L):click()|print(#x, x == V, V .. V)|"
                              "c = zilvo.create(V, {bag = {M = V}, ambient = V, width = V})|c:on(V, V)|t.x = V",
                              '|');
const auto hostMembers =
    split("widget on press release move key keydown focus save invoke inspect surface extender ambient "
          "changes popup",
          ' ');
const auto hostFunctions = split("Integer Long Single Boolean String Font array create", ' ');

class Script {
public:
    explicit Script(fuzz::Input& in) : in_(in), class_(in.oneOf(libraryModule().description().classes)) {}

    std::string text() {
        std::string text = "t = {} c = zilvo.create('" + platform::toUtf8(class_.identity.name) + "')\n";
        for (const auto& event : class_.description.events)
            text += "c:on('" + platform::toUtf8(event.name) + "', " + in_.oneOf(values) + ")\n";
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
        case 'M':
            return class_.description.members.empty() || in_.ConsumeBool()
                       ? in_.oneOf(hostMembers)
                       : platform::toUtf8(in_.oneOf(class_.description.members).name);
        case 'F':
            return in_.oneOf(hostFunctions);
        case 'V':
            return in_.oneOf(values);
        case 'L':
            return in_.ConsumeBool() ? in_.oneOf(values) + (in_.ConsumeBool() ? ", " + filled('L') : "") : "";
        default:
            return {part};
        }
    }

    fuzz::Input& in_;
    const platform::ClassEntry& class_;
};

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static platform::Components components;
    components.add(COMPONENT_FILE);
    static const Ref<Object> kept = components.create(u"GOButton"); // what the fuzzer watches must stay loaded
    std::cerr.rdbuf(nullptr);                                       // where the script's errors go
    fuzz::Input in(data, size);
    std::istringstream script(Script(in).text());
    console::LuaHost(components).converse(script, false);
    fuzz::require(components.liveObjects() == 1, "nothing is left alive");
    return 0;
}

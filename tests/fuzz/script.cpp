// A host script that calls any member of any control with any values of Lua: errors of the script, and nothing else.
#include "hosts/console/lua/LuaHost.h"
#include "tests/fuzz/Fuzz.h"

#include <sstream>

using namespace zilvo;

namespace {

/// Values as a script writes them; `c` is the control, `t` a table, `x` the last result.
constexpr const char* values[] = {"nil",
                                  "true",
                                  "false",
                                  "0",
                                  "1",
                                  "-1",
                                  "2",
                                  "8",
                                  "300",
                                  "0.5",
                                  "32768",
                                  "2147483647",
                                  "2^31",
                                  "2^53",
                                  "1/0",
                                  "0/0",
                                  "math.mininteger",
                                  "'True'",
                                  "'12'",
                                  "''",
                                  "'&OK'",
                                  "'\\xff\\0'",
                                  "{}",
                                  "{true,false}",
                                  "{[0]=true}",
                                  "{1,2}",
                                  "{[3]=true}",
                                  "{Name='Arial',Size=20}",
                                  "setmetatable({},{__index=error,__newindex=error})",
                                  "function(...) return ... end",
                                  "function() error('no') end",
                                  "function() c = nil collectgarbage() end",
                                  "function(a) a = c:save() x = c.surface end",
                                  "coroutine.create(print)",
                                  "coroutine.wrap(function() c:key(13) end)",
                                  "io.stdout",
                                  "print",
                                  "c",
                                  "t",
                                  "x",
                                  "zilvo",
                                  "c.surface",
                                  "c.extender",
                                  "c.ambient",
                                  "c.popup",
                                  "zilvo.Integer(7)",
                                  "zilvo.Single('1e30')",
                                  "zilvo.Boolean(-1)",
                                  "zilvo.String(5)",
                                  "zilvo.Font{Size=9}",
                                  "zilvo.array(5,{true})",
                                  "'get'",
                                  "'put'",
                                  "'method'",
                                  "'Alt+C'",
                                  "'Tab'",
                                  "13",
                                  "27"};

/// What a control has besides its members; a snapshot would write files.
constexpr const char* hostNames[] = {"widget",   "on",      "press",   "release", "move",    "key",
                                     "keydown",  "focus",   "save",    "invoke",  "inspect", "surface",
                                     "extender", "ambient", "changes", "popup"};
constexpr const char* functions[] = {"Integer", "Long", "Single", "Boolean", "String", "Font", "array", "create"};

class Script {
public:
    explicit Script(fuzz::Input& in) : in_(in), entry_(in.oneOf(libraryModule().description().classes)) {}

    std::string text() {
        std::string script = "t = {} c = zilvo.create('" + platform::toUtf8(entry_.identity.name) + "'" +
                             (in_.ConsumeBool() ? ", {bag = {" + memberName() + " = " + value() + "}}" : "") + ")\n";
        for (const auto& event : entry_.description.events)
            if (in_.ConsumeBool()) script += "c:on('" + platform::toUtf8(event.name) + "', " + value() + ")\n";
        for (int left = 30; left > 0 && in_.remaining_bytes() > 0; --left)
            script += statement() + "\n";
        return script;
    }

private:
    std::string value() { return in_.oneOf(values); }
    std::string list() {
        std::string text;
        for (auto left = in_.below(5); left > 0; --left)
            text += (text.empty() ? "" : ", ") + value();
        return text;
    }
    std::string memberName() {
        const auto& members = entry_.description.members;
        return members.empty() ? "none" : platform::toUtf8(in_.oneOf(members).name);
    }
    std::string anyName() { return in_.ConsumeBool() ? in_.oneOf(hostNames) : memberName(); }
    std::string widget() {
        static constexpr const char* names[] = {"cmdOK", "optDeckCount", "pnl", "cmdStart", "c"};
        return std::string("c:widget('") + in_.oneOf(names) + "', " + value() + ")";
    }
    std::string statement() {
        switch (in_.below(10)) {
        case 0:
            return "c:" + anyName() + "(" + list() + ")";
        case 1:
            return "x = c." + anyName();
        case 2:
            return "c." + anyName() + " = " + value();
        case 3:
            return "x = c." + anyName() + "(" + list() + ")";
        case 4:
            return std::string("x = zilvo.") + in_.oneOf(functions) + "(" + list() + ")";
        case 5:
            return value() + "[" + value() + "] = " + value();
        case 6:
            return "x = (" + value() + ")[" + value() + "]";
        case 7:
            return "for k, v in pairs(" + value() + ") do t[v] = k end";
        case 8:
            return "x = " + widget() + " x:click()";
        default:
            return "print(#x, x == " + value() + ", " + value() + ")";
        }
    }

    fuzz::Input& in_;
    const platform::ClassEntry& entry_;
};

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // Loaded once: the fuzzer watches code that must stay.
    static platform::Components& components = []() -> platform::Components& {
        static platform::Components known;
        known.add(COMPONENT_FILE);
        static const Ref<Object> kept = known.create(u"GOButton");
        return known;
    }();
    fuzz::Input in(data, size);
    std::istringstream script(Script(in).text());
    std::ostringstream out;
    auto* const toOut = std::cout.rdbuf(out.rdbuf());
    auto* const toErrors = std::cerr.rdbuf(out.rdbuf());
    console::LuaHost(components).converse(script, false);
    std::cout.rdbuf(toOut);
    std::cerr.rdbuf(toErrors);
    fuzz::require(components.liveObjects() == 1, "nothing is left alive");
    return 0;
}

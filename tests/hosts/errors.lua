-- What a script finds by which names, when its handlers run, what fails and how, and that all goes on after it.

local here = arg[0]:match("[^/]*$")

local function equal(got, expected, what)
    if got == expected then return end
    error(string.format("%s: expected %s, got %s", what or "value", tostring(expected), tostring(got)), 2)
end

-- Runs `body`, which must fail in the script with a failure of that name whose message has all the parts.
local function fails(name, body, ...)
    local done, failure = pcall(body)
    if done then error("no failure, but " .. name .. " was expected", 2) end
    if type(failure) ~= "table" then error("not a failure: " .. tostring(failure), 2) end
    equal(failure.name, name, failure.message)
    assert(math.type(failure.status) == "integer" and failure.status >= 0x80000000 and failure.status < 0x100000000)
    for _, part in ipairs { ... } do assert(failure.message:find(part, 1, true), failure.message) end
    assert(failure.where:find(here .. ":%d+$"), failure.where)
    equal(tostring(failure), failure.where .. ": " .. failure.message)
    return failure
end

local function line() return debug.getinfo(2, "l").currentline end

local c = zilvo.create("ssOKCancel")

-- Names of classes, members, events and widgets, in any case; an object is equal to itself only.
local class
for _, each in ipairs(zilvo.describe().classes) do
    if each.name == "ssOKCancel" then class = each end
end
for _, name in ipairs { class.progId, class.classId, class.classId:lower(), "SSOKCANCEL" } do
    equal(zilvo.create(name).cancel, true, "Cancel of an instance of " .. name)
end
local push = c:widget("CMDOK")
assert(push == c:widget("cmdok") and push ~= c:widget("cmdCancel") and push.font == c:widget("cmdOK").Font)
assert(c.surface == c.surface and c.surface ~= c.extender)
c.cancel, push.TabIndex = true, 0
c:widget("cmdCancel").Caption = "Zur\u{fc}ck"
equal(c:widget("cmdCancel").caption, "Zur\u{fc}ck")
equal(table.concat(c.changes, " "), "Cancel")
assert(c.changes ~= c.changes, "each reading gives a table of its own")
local placed = zilvo.create("ssOKCancel", { width = 3000, height = 1, ambient = { ForeColor = 7, UserMode = false } })
placed.extender.height = 750
equal(placed.surface.Width + placed.surface.Height, 3750)
equal(placed.ambient.ForeColor, 7)
equal(placed.ambient.UserMode, false)

-- Handlers that disconnect, attach, call back and let go of their control while the event is raised.
do
    local log = {}
    local control = zilvo.create("ssOKCancel")
    local first
    first = control:on("cancelwasclicked", function()
        log[#log + 1] = "first"
        first:disconnect()
        first:disconnect()
        control:on("CancelWasClicked", function() log[#log + 1] = "late" end)
    end)
    control:on("CancelWasClicked", function() log[#log + 1] = "second" end)
    control:key(27)
    collectgarbage() -- letting go of a connection keeps the handler
    control:key(27)
    equal(table.concat(log, " "), "first second second late")
    control:on("OKWasClicked", function()
        control:key(27)
        control = nil
        collectgarbage()
    end)
    control:key(13)
    equal(table.concat(log, " ", 5), "second late")
end

-- In a coroutine, the handler runs where the call was made.
do
    local wanted, thread
    placed:on("OKWasClicked", function() thread = coroutine.running() end)
    coroutine.wrap(function()
        wanted = coroutine.running()
        placed:key(13)
    end)()
    equal(thread, wanted)
end

-- Values of a kind, and arrays.
local value = zilvo.Integer("12")
equal(value.kind .. value.value, "Integer12")
assert(value == zilvo.Integer(12) and value ~= zilvo.Integer(13) and value ~= zilvo.Long(12))
equal(tostring(zilvo.Long(7)), "7 (Long)")
equal(zilvo.Boolean(5).value, true)
equal(zilvo.String(true).value, "True")
equal(zilvo.Long(2147483647.0).value, 2147483647)
equal(math.type(zilvo.Single(3000000000).value), "float")
c.OKToolTipText = zilvo.Long(42)
equal(c.OKToolTipText, "42")
local array = zilvo.array(3, { true, false })
array[4] = array[3]
local keys = {}
for key, each in pairs(array) do keys[#keys + 1] = key .. tostring(each) end
equal(table.concat(keys, " ") .. #array .. array.lower .. array.upper, "3true 4true234")

-- Names that do not exist.
fails("class not available", function() zilvo.create("ssMaybe") end, "ssMaybe")
fails("unknown member", function() return c.Surface2 end, "ssOKCancel", "Surface2")
fails("unknown member", function() c.Surface2 = 1 end, "ssOKCancel", "Surface2")
fails("unknown member", function() c.Widget = 1 end, "Widget")
fails("unknown member", function() c:on("Clicked", print) end, "Clicked")
fails("unknown member", function() c:widget("cmdMaybe") end, "ssOKCancel", "cmdMaybe")
fails("missing element", function() c:widget("cmdOK", 1) end, "cmdOK(1)")
fails("missing element", function() c:widget("cmdOK", -1) end, "cmdOK(-1)")
fails("missing element", function() c:widget("cmdOK", 100000) end, "cmdOK(100000)")
fails("unknown member", function() return c:widget("cmdOK").Kind end, "cmdOK", "Kind")
fails("unknown member", function() return c:widget("cmdOK").Index end, "cmdOK")
fails("unknown member", function() c:widget("cmdOK"):widget("cmdCancel") end, "cmdOK")
fails("unknown member", function() return c.surface.Left end, "ssOKCancel.surface", "Left")
fails("unknown member", function() c.ambient.Colour = 1 end, "ssOKCancel.ambient", "Colour")
fails("unknown member", function() zilvo.Font { Colour = 1 } end, "Colour")
fails("unknown member", function() zilvo.create("ssOKCancel", { size = 1 }) end, "size")
fails("unknown member", function() zilvo.create("ssOKCancel", { ambient = { Colour = 1 } }) end, "Colour")
fails("invalid property value", function() c:keydown("Hyper+x") end, "Hyper+x")
fails("invalid property value", function() c:key("ab") end, "ab")
fails("invalid property value", function() c:widget("cmdOK"):spin("sideways") end, "sideways")
equal(c:widget("cmdOK"):spin("up"), false, "spinning a push button")

-- Values that do not fit.
fails("type mismatch", function() c.OKEnabled = nil end, "ssOKCancel.OKEnabled", "nil")
fails("type mismatch", function() c:save("all") end, "save", "string")
fails("type mismatch", function() c.OKEnabled = print end, "ssOKCancel.OKEnabled", "function")
fails("type mismatch", function() c.OKEnabled = c end, "ssOKCancel.OKEnabled", "control")
fails("type mismatch", function() c.OKEnabled = "perhaps" end, "ssOKCancel.OKEnabled", "perhaps")
fails("type mismatch", function() c.OKEnabled = {} end, "ssOKCancel.OKEnabled")
fails("type mismatch", function() c.OKEnabled = { 1 } end, "ssOKCancel.OKEnabled", "element 1")
fails("type mismatch", function() c.OKEnabled = { true, [3] = true } end, "ssOKCancel.OKEnabled", "3")
fails("type mismatch", function() c.OKEnabled = { [-1] = true } end, "-1")
fails("type mismatch", function() c.OKEnabled = { x = true } end, "key")
fails("overflow", function() c.OKEnabled = 3000000000 end, "ssOKCancel.OKEnabled", "3000000000")
fails("overflow", function() c.OKEnabled = 1e300 end, "ssOKCancel.OKEnabled")
fails("overflow", function() c:widget("cmdOK").TabIndex = 40000 end, "cmdOK.TabIndex", "40000")
fails("invalid property value", function() c:widget("cmdOK").Font.Size = -1 end, "Size", "-1")
fails("overflow", function() zilvo.Integer(40000) end, "zilvo.Integer", "40000")
fails("overflow", function() zilvo.Long(2 ^ 40) end, "zilvo.Long")
fails("type mismatch", function() zilvo.Long("twelve") end, "zilvo.Long", "twelve")
fails("type mismatch", function() zilvo.Long() end, "zilvo.Long", "nil")
fails("read-only property", function() zilvo.Long(1).value = 2 end)
fails("read-only property", function() c:widget("cmdOK").Name = "x" end, "cmdOK.Name")
fails("read-only property", function() c.surface = nil end, "surface")
fails("read-only property", function() c.press = print end, "press")
fails("read-only property", function() zilvo.beeps = 0 end, "beeps")
fails("subscript out of range", function() return zilvo.array(2, { true })[1] end, "1")
fails("subscript out of range", function() return zilvo.array(2, {}).lower end)
fails("type mismatch", function() zilvo.array(1, { [0] = true }) end)
fails("type mismatch", function() c:press("left", 0) end, "press", "x")
fails("overflow", function() c:press(0, 0, 70000) end, "button")
fails("type mismatch", function() zilvo.create("ssOKCancel", { bag = { Default = {1} } }) end, "Default")
fails("type mismatch", function() zilvo.create("ssOKCancel", { bag = { Default = "perhaps" } }) end, "perhaps")
fails("type mismatch", function() zilvo.create("ssOKCancel", { width = "wide" }) end, "width")
fails("type mismatch", function() zilvo.create("ssOKCancel", "new") end)
fails("type mismatch", function() zilvo.create() end, "nil")
fails("type mismatch", function() c.widget("cmdOK") end, ":")
fails("type mismatch", function() c:on("OKWasClicked", {}) end, "function")

-- Calls that do not fit.
fails("argument count", function() c:SetDefaultDefaults(1) end, "ssOKCancel.SetDefaultDefaults")
fails("argument count", function() c:SetDefaultDefaults(nil) end, "ssOKCancel.SetDefaultDefaults")
fails("argument count", function() c:invoke(0x68030005, "put") end)
fails("unknown member", function() c:invoke(1, "get") end)
fails("unknown member", function() c:invoke(0x60030009, "get") end)
fails("unknown member", function() c:invoke(0x68030005, "method") end)
fails("unknown member", function() c.SetDefaultDefaults = 1 end)
fails("invalid property value", function() c:invoke(0x68030005, "set", true) end, "set")
fails("type mismatch", function() c:invoke("Cancel", "get") end)
local failure = fails("failed", function() c:snapshot("/nowhere/at/all.svg") end, "/nowhere/at/all.svg")
equal(failure.status, 0x80004005)
fails("failed", function() c:snapshot("/") end, "directory")

-- The line is that of the statement, also when the call is made through pcall.
local done, direct = pcall(c.invoke, c, 1, "get")
equal(direct.where:match(":(%d+)$"), tostring(line() - 1), "the line of a call through pcall")

-- An error of a handler reaches the statement that led to the event, as it is.
local function raising(value, act)
    local control = zilvo.create("ssOKCancel")
    local connection = control:on("OKWasClicked", function() error(value, 0) end)
    local ok, got = pcall(act or function() control:key(13) end, control)
    equal(ok, false)
    connection:disconnect()
    equal(control:key(13), true, "the same key after the failure")
    return got
end
equal(raising("plain text"), "plain text")
local object = setmetatable({ 1 }, { __tostring = function() error("must not be asked") end })
assert(rawequal(raising(object), object))
equal(raising(nil), nil)
equal(raising(17), 17)
equal(raising("by the user's click", function(control)
    control.OKEnabled = true
    control:widget("cmdOK"):click()
end), "by the user's click")

local where
local nested = zilvo.create("ssOKCancel")
nested:on("OKWasClicked", function() nested:key(27) end)
nested:on("CancelWasClicked", function() where = line() + 1
    return c.Nothing end)
local inner = fails("unknown member", function() nested:key(13) end, "Nothing")
equal(inner.where:match(":(%d+)$"), tostring(where), "the line of the statement that failed first")
assert(rawequal(raising(inner), inner))

-- A handler that traps what fails goes on.
local trapped
local careful = zilvo.create("ssOKCancel")
careful:on("OKWasClicked", function() trapped = select(2, pcall(function() nested:key(27) end)) end)
equal(careful:key(13), true)
equal(trapped.name, "unknown member")
fails("unknown member", function() return careful.Other end, "Other")

-- A handler cannot be left half-way; one that calls itself without end is stopped.
local yielding = zilvo.create("ssOKCancel")
yielding:on("OKWasClicked", function() coroutine.yield() end)
local ok, message = coroutine.resume(coroutine.create(function() yielding:key(13) end))
assert(not ok and message:find("yield"), tostring(message))
local endless = zilvo.create("ssOKCancel")
endless:on("OKWasClicked", function() endless:key(13) end)
ok, message = pcall(function() endless:key(13) end)
assert(not ok and tostring(message):find("overflow"), tostring(message))
equal(c.Default, true, "a property after all this")

-- A script's finalizer may meet a control that has been finalized before it.
local met
local function abandon()
    local control
    setmetatable({}, { __gc = function() met = table.pack(pcall(function() return control.Default end)) end })
    control = zilvo.create("ssOKCancel")
end
abandon()
collectgarbage()
equal(met[1], false)
equal(met[2].name, "unexpected call")

-- Everything that was made goes, cycles through handlers included.
for _ = 1, 2 do
    local control = zilvo.create("ssOKCancel")
    local button = control:widget("cmdOK")
    control:on("OKWasClicked", function() return control, button end)
end
c, push, placed, nested, careful, yielding, endless, direct = nil, nil, nil, nil, nil, nil, nil, nil
collectgarbage()
collectgarbage()
equal(zilvo.alive, 0, "living objects")

-- Drives ssOKCancel as a host with a window would, and checks what the host sees.

local expect = dofile(arg[0]:match("^(.-)[^/]*$") .. "../support/expect.lua")
local equal = expect.equal

local function recorded(control)
    local log = {}
    for _, name in ipairs { "OKWasClicked", "CancelWasClicked" } do
        control:on(name, function() log[#log + 1] = name end)
    end
    return function()
        local text = table.concat(log, " ")
        log = {}
        return text
    end
end

-- A new instance: designed state, names without case, the three ways to name a class.
local c = zilvo.create("ssOKCancel")
local events = recorded(c)
equal(c.OKEnabled, false, "OKEnabled of a new instance")
equal(c.okenabled, false, "a member's name in another case")
equal(c.ItalicOK, false, "ItalicOK of a new instance")
equal(c.ItalicCancel, true, "ItalicCancel of a new instance")
local class = zilvo.describe().classes[1]
for _, each in ipairs(zilvo.describe().classes) do
    if each.name == "ssOKCancel" then class = each end
end
for _, name in ipairs { class.progId, class.classId, class.classId:lower(), "SSOKCANCEL" } do
    equal(zilvo.create(name).Default, true, "Default of an instance of " .. name)
end

-- The user's click, the disabled button, keys.
local ok, cancel = c:widget("cmdOK"), c:widget("CMDCANCEL")
equal(ok:click(), false, "a click on the disabled OK")
equal(events(), "")
c.OKEnabled = true
equal(ok.Enabled, true)
equal(ok:click(), true, "a click on OK")
equal(cancel:click(), true, "a click on Cancel")
equal(events(), "OKWasClicked CancelWasClicked")
equal(c:key(13), true)
equal(c:key(27), true)
equal(c:keydown("Escape"), true)
equal(c:keydown("enter"), true)
equal(events(), "OKWasClicked CancelWasClicked CancelWasClicked OKWasClicked")
equal(c:key("x"), false, "a character that means nothing")
equal(events(), "")

-- Widgets: one widget, one handle to compare; fonts are live and shared.
assert(ok == c:widget("cmdok") and ok ~= cancel)
assert(ok.Font == c:widget("cmdOK").Font and ok.Font ~= cancel.Font)
ok.Font.Italic = true
equal(c.ItalicOK, true, "ItalicOK after the button's font changed")
c.ItalicOK = false
equal(ok.Font.Italic, false)
cancel.Caption = "Zur\u{fc}ck"
equal(cancel.caption, "Zur\u{fc}ck")

-- Pointer and keyboard. A press outside the button that was pressed is no click.
local panel = c:widget("panelCmdOK")
local inside = panel.Left + ok.Left + ok.Width / 2
local middle = panel.Top + ok.Top + ok.Height / 2
c:press(inside, middle)
equal(select("#", c:focus()), 1)
equal(c:focus(), "cmdOK")
c:release(inside, middle)
equal(events(), "OKWasClicked")
c:press(inside, middle)
c:move(-100, -100)
c:release(-100, -100)
equal(events(), "")
c:keydown("Tab")
equal(c:focus(), "cmdCancel")
c:keydown("Shift+Tab")
equal(c:focus(), "cmdOK")
c.OKEnabled = false
equal(c:press(inside, middle), false, "a press on a disabled button")

-- What the control reports, and its settings.
c.Cancel = false
c.Default = false
c:SetDefaultDefaults()
equal(table.concat(c.changes, " "), "ItalicOK Cancel Default")
assert(c.changes ~= c.changes, "each reading gives a table of its own")
equal(c.Cancel, true)
c.OKToolTipText = "Go on"
local bag, kinds = c:save()
equal(bag.ItalicOK, false)
equal(kinds.ItalicOK, "Boolean")
equal(bag.OKToolTipText, "Go on")
equal(kinds.OKToolTipText, "String")
equal(bag.Default, nil, "a setting that equals its default")
equal(c:save(true).Default, true, "a setting that equals its default, kept")

local loaded = zilvo.create("ssOKCancel", { bag = bag })
equal(loaded.OKToolTipText, "Go on")
equal(loaded.ItalicCancel, true)
equal(loaded.ItalicOK, false)
equal(zilvo.create("ssOKCancel", { bag = {} }).ItalicOK, true, "ItalicOK read from an empty bag")
equal(zilvo.create("ssOKCancel", { bag = { default = zilvo.String("False") } }).Default, false)

-- By member id.
local id = {}
for _, member in ipairs(class.interface.members) do id[member.name] = member.id end
equal(c:invoke(id.Cancel, "get"), true)
c:invoke(id.Cancel, "put", false)
equal(c.Cancel, false)
equal(select("#", c:invoke(id.SetDefaultDefaults, "method")), 0)
equal(c.Cancel, true)

-- Ambient properties, extender, surface.
local placed = zilvo.create("ssOKCancel", {
    width = 3000, height = 600,
    ambient = { BackColor = 0x8000000F, ForeColor = 255, UserMode = false, Font = zilvo.Font { Name = "Arial", Size = 10 } },
})
equal(placed.extender.Width, 3000)
equal(placed.surface.Height, 600)
placed.extender.height = 750
equal(placed.surface.Height, 750)
equal(placed.ambient.BackColor, 0x8000000F)
equal(placed.ambient.ForeColor, 255)
equal(placed.ambient.UserMode, false)
equal(placed.ambient.Font.Name, "Arial")
placed.ambient.BackColor = placed.ambient.BackColor
placed.surface.BackColor = 0x8000000F
equal(placed.surface.BackColor, 0x8000000F)
equal(placed.extender.Visible, true)
placed.extender.Visible = false
equal(placed.extender.Visible, false)
assert(placed.surface == placed.surface and placed.surface ~= placed.extender)

-- Handlers that disconnect and attach while the event is being raised.
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
    control:key(27)
    equal(log[1] .. log[2], "firstsecond")
    local after = table.concat(log, " ", 3)
    assert(not after:find("first") and after:find("second") and after:find("late"), after)

    -- Letting go of a connection keeps the handler attached.
    log = {}
    collectgarbage()
    control:key(27)
    assert(#log >= 2)
end

-- A handler may call back into its control, and let go of it.
do
    local control = zilvo.create("ssOKCancel")
    local seen
    control:on("OKWasClicked", function()
        control.OKToolTipText = "changed by the handler"
        control:key(27)
    end)
    control:on("CancelWasClicked", function()
        seen = control.OKToolTipText
        control = nil
        collectgarbage()
    end)
    control:key(13)
    equal(seen, "changed by the handler")
end

-- In a coroutine, the handler runs where the call was made.
do
    local control = zilvo.create("ssOKCancel")
    local thread
    control:on("OKWasClicked", function() thread = coroutine.running() end)
    local wanted
    coroutine.wrap(function()
        wanted = coroutine.running()
        control:key(13)
    end)()
    equal(thread, wanted)
end

-- The picture.
local file = os.tmpname()
c:snapshot(file)
local stream = assert(io.open(file))
local svg = stream:read("a")
stream:close()
os.remove(file)
assert(svg:find("<svg", 1, true) and svg:find("</svg>\n$"))

-- Values of a kind.
local value = zilvo.Integer("12")
equal(value.kind, "Integer")
equal(value.value, 12)
assert(value == zilvo.Integer(12) and value ~= zilvo.Integer(13) and value ~= zilvo.Long(12))
equal(tostring(zilvo.Long(7)), "7 (Long)")
equal(zilvo.Boolean(5).value, true)
equal(zilvo.String(true).value, "True")
equal(zilvo.Integer(2.5).value, 2)
equal(zilvo.Long(2147483647.0).value, 2147483647)
equal(math.type(zilvo.Single(3000000000).value), "float")
c.OKToolTipText = zilvo.Long(42)
equal(c.OKToolTipText, "42")
local array = zilvo.array(3, { true, false })
equal(#array, 2)
equal(array.lower, 3)
equal(array.upper, 4)
equal(array[3], true)
array[4] = true
equal(array[4], true)
local keys = {}
for key in pairs(array) do keys[#keys + 1] = key end
equal(table.concat(keys, " "), "3 4")

-- Everything that was made goes, cycles through handlers included.
assert(zilvo.alive > 0)
c, ok, cancel, panel, loaded, placed, events = nil, nil, nil, nil, nil, nil, nil
for _ = 1, 2 do
    local control = zilvo.create("ssOKCancel")
    local button = control:widget("cmdOK")
    control:on("OKWasClicked", function() return control, button end)
end
collectgarbage()
collectgarbage()
equal(zilvo.alive, 0, "living objects")

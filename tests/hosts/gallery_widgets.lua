-- Every kind of widget as the user and the script reach it, and what lies in an embedded control.

local expect = dofile(arg[0]:match("^(.-)[^/]*$") .. "../support/expect.lua")
local equal, logged = expect.equal, expect.logged

local g = zilvo.create("WidgetGallery")
local heard = logged(g, "WidgetGallery")

-- The user's click on each kind; what cannot be clicked says so and does nothing.
for _, case in ipairs {
    { "optChoice", 3, "OptionClicked(3)" }, { "optChoice", 3, "" }, { "chkPick", 0, "CheckClicked(0)" },
    { "sscToggle", nil, "SSCheckClicked(-1,-1)" }, { "ssoSeat", 1, "SSOptionClicked(1,-1)" },
    { "ribCard", 0, "RibbonClicked(0,-1)" }, { "ribCard", 0, "RibbonClicked(0,0)" },
    { "imgChip", 1, "ImageClicked(1)" }, { "cmdPush", 2, "CommandClicked(2)" },
    { "mnuPick", 0, "MenuClicked(0)" }, { "mnuMorePick", 11, "MenuClicked(11)" },
} do
    local name, index, expected = table.unpack(case, 1, 3)
    equal(g:widget(name, index):click(), true, "a click on " .. name)
    equal(heard(), expected, "what is heard of " .. name)
end
for _, case in ipairs { { "lblTitle" }, { "shpTable" }, { "mnuPick", 1 }, { "mnuRoot" }, { "mnuBar" }, { "mnuMore" } } do
    equal(g:widget(case[1], case[2]):click(), false, "a click on " .. case[1])
end
equal(g:widget("spnCount"):spin("up"), true)
equal(g:widget("spnCount"):spin("down"), true)
equal(heard(), "SpunUp() SpunDown()")
g:widget("spnCount").Enabled = false
equal(g:widget("spnCount"):spin("up"), false)
g:widget("frameChecks").Enabled = false
equal(g:widget("chkPick", 1):click(), false, "a click in a disabled container")
equal(heard(), "")

-- The same from code: an option button tells, a 3-D one does not. A handler runs inside the assignment.
g:widget("optChoice", 1).Value = true
g:widget("ssoSeat", 3).value = true
equal(heard(), "OptionClicked(1)")
equal(g:widget("optChoice", 3).Value, false)
equal(g:widget("optChoice", 1).Index, 1)
equal(g:widget("optChoice", 1).Name, "optChoice")
equal(g:widget("cmdPush", 0).Left, 5610 / 15, "a position in the inner unit")
local failing = g:on("OptionClicked", function() error("refused", 0) end)
equal(select(2, pcall(function() g:widget("optChoice", 2).Value = true end)), "refused")
equal(g:widget("optChoice", 2).Value, true, "what was done before the handler failed")
failing:disconnect()
heard()

local done, failure = pcall(g.widget, g, "optChoice")
assert(not done and failure.name == "missing element")
done, failure = pcall(g.widget, g, "optChoice", 5)
assert(not done and failure.name == "missing element" and failure.message:find("optChoice(5)", 1, true))
done, failure = pcall(g.widget, g, "optChoice", "one")
assert(not done and failure.name == "type mismatch")

-- Keys and the keyboard's place.
equal(g:keydown("Alt+h"), true)
local name, index = g:focus()
equal(name .. index, "optChoice3")
g:keydown("Down")
equal(select(2, g:focus()), 4)
heard()
g:key("\u{e9}")
equal(g.KeysSeen, "233 ")
equal(g:key(13), true)
equal(heard(), "CommandClicked(0)")

-- Pointer presses reach the surface and the panel; a menu pops up where the button went down and widens the picture.
local function pictureSize()
    local file = os.tmpname()
    g:snapshot(file)
    local stream = assert(io.open(file))
    local width, height = stream:read("a"):match('<svg[^>]- width="([%d.]+)"[^>]- height="([%d.]+)"')
    stream:close()
    os.remove(file)
    return tonumber(width), tonumber(height)
end
equal(g.popup, nil)
local width, height = pictureSize()
equal(width, g.surface.Width / 15)
equal(height, g.surface.Height / 15)
g:press(30, 30, 2, 4)
equal(heard(), "SurfacePressed(2,4)")
g:press(2000, 1600, 2)
equal(heard(), "PanelPressed(2,0)")
assert(g.popup == g:widget("mnuRoot"))
g:release(2000, 1600, 2)
g:move(2060, 1700)
g:press(2060, 1700)
g:release(2060, 1700)
equal(heard(), "MenuClicked(0)", "the item under the pointer")
g:press(2500, 200, 2)
g:keydown("Down")
g:keydown("Enter")
equal(heard(), "PanelPressed(2,0) MenuClicked(0)")
g.extender.Height = 600
local before = select(2, pictureSize())
g:press(2500, 200, 2)
local after = select(2, pictureSize())
assert(after > before, "an open menu reaches beyond the picture")
g:key(27)
equal(select(2, pictureSize()), before)

-- Embedded: reached through the widget that embeds it, its events through the outer control.
local outer = zilvo.create("Outer")
local outerHeard = logged(outer, "Outer")
local inner = outer:widget("smallone")
equal(tostring(inner), "Small smallOne")
assert(inner:widget("ssoPick", 2) == outer:widget("smallOne"):widget("SSOPICK", 2))
equal(inner:widget("ssoPick", 2):click(), true)
equal(outerHeard(), "Picked(2)")
outer:on("Picked", function() return 3 end)
inner:widget("ssoPick", 1):click()
equal(inner:widget("ssoPick", 3).Value, true, "the pick that the outer control's host chose")
outer.InnerIsVisible = false
equal(inner.Visible, false)
equal(inner:widget("ssoPick", 2):click(), false, "a click in a hidden embedded control")
inner.Visible = true
local flags = { [0] = false, false, false, false, false }
outer.Allowed = 2
outer:FlagsOfAllowed(flags)
equal(flags[2], true)
equal(flags[3], false)
done, failure = pcall(function() outer:Refuse(7) end)
equal(failure.name, "invalid property value")
done, failure = pcall(function() return outer:widget("ssoPick", 1) end)
equal(failure.name, "unknown member")
inner:widget("mnuPick", 12):click()
equal(outerHeard():match("Picked%(12%)$"), "Picked(12)")

-- A widget's handle keeps its control.
local kept
do
    local control = zilvo.create("Outer")
    kept = control:widget("smallOne"):widget("ssoPick", 1)
end
collectgarbage()
equal(kept.Caption, "Pick &1")
equal(kept:click(), true)

g, heard, outer, outerHeard, inner, kept, failing = nil, nil, nil, nil, nil, nil, nil
collectgarbage()
collectgarbage()
equal(zilvo.alive, 0, "living objects")

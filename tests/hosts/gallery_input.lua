-- The user's keyboard and pointer over a whole control, as a script drives them: what is heard and where the keyboard is.

local expect = dofile(arg[0]:match("^(.-)[^/]*$") .. "../support/expect.lua")
local equal, logged = expect.equal, expect.logged

local g = zilvo.create("WidgetGallery")
local heard = logged(g, "WidgetGallery")

local function focus()
    local name, index = g:focus()
    return (name or "nothing") .. (index or "")
end

-- Does each step in turn: keys to press, where the keyboard is then, what was heard of them.
local function play(steps)
    for i, step in ipairs(steps) do
        local keys, where, expected = table.unpack(step)
        for key in keys:gmatch("%S+") do g:keydown(key) end
        equal(focus(), where, "the keyboard after " .. keys .. " in step " .. i)
        equal(heard(), expected or "", "heard of " .. keys .. " in step " .. i)
    end
end

equal(focus(), "nothing")
play {
    { "Tab", "optChoice1" },
    { "Down", "optChoice2", "OptionClicked(2)" },
    { "Up Up", "optChoice4", "OptionClicked(1) OptionClicked(4)" },
    { "Tab Space", "chkPick0", "CheckClicked(0)" },
    { "Tab Tab Tab Space", "sscToggle", "SSCheckClicked(-1,-1)" },
    { "Tab Left", "ssoSeat1", "SSOptionClicked(1,-1)" },
    { "Tab Space Space", "ribCard0", "RibbonClicked(0,-1) RibbonClicked(0,0)" },
    { "Tab Tab Tab Up Left", "spnCount", "SpunUp() SpunDown()" },
    { "Enter", "spnCount", "CommandClicked(0)" },
    { "Shift+Tab", "ribCard2" },
    { "Alt+p", "cmdPush2", "CommandClicked(2)" },
    { "Enter Escape", "cmdPush2", "CommandClicked(2) CommandClicked(1)" },
    { "Tab", "optChoice4" },
    { "Alt+t Alt+t", "optChoice2", "SSCheckClicked(-1,0) OptionClicked(2)" },
}

-- A widget that can no longer be used hands the keyboard on; a group without a usable selected one is entered at its first.
g:widget("optChoice", 2).Enabled = false
equal(focus(), "chkPick0")
g:widget("frameChecks").Visible = false
equal(focus(), "sscToggle")
g:widget("frameChecks").Visible = true
play { { "Shift+Tab", "chkPick2" }, { "Shift+Tab Shift+Tab Shift+Tab", "optChoice1" } }

-- The default and the cancel button are one each.
g:widget("cmdPush", 2).Default = true
equal(g:widget("cmdPush", 0).Default, false)
g:widget("cmdPush", 1).Cancel = false
play { { "Enter Escape", "optChoice1", "CommandClicked(2)" } }

-- A press that is let go of elsewhere clicks nothing; the widget in front gets it.
local function drag(fromX, fromY, toX, toY)
    g:press(fromX, fromY)
    g:move(toX, toY)
    g:release(toX, toY)
    return heard()
end
equal(drag(6000, 2400, 6000, 2400), "CommandClicked(0)")
equal(drag(6000, 2400, 6000, 2850), "")
equal(drag(5700, 600, 5800, 700), "ImageClicked(1)")
equal(drag(5200, 400, 5700, 600), "", "pressed on the one behind, let go of on the one in front")
g:widget("imgChip", 1).Visible = false
equal(drag(5200, 400, 5700, 600), "ImageClicked(0)")

-- The menu: into the submenu with the keyboard, out of it one level at a time; a press beside it only closes it.
g:press(1800, 900, 2)
equal(g.popup.Name, "mnuRoot")
play { { "Up Right Down Enter", "cmdPush0", "PanelPressed(2,0) MenuClicked(11)" } }
g:press(1800, 900, 2)
play { { "m Escape l x", "cmdPush0", "PanelPressed(2,0)" } }
equal(drag(6000, 2400, 6000, 2400), "", "a press beside the menu")
equal(drag(6000, 2400, 6000, 2400), "CommandClicked(0)")

-- A hidden control takes nothing.
g.extender.Visible = false
equal(g:keydown("Alt+g"), false)
equal(g:widget("cmdPush", 0):click(), false)
equal(g:press(10, 10), false)
equal(heard(), "")

-- What each kind of widget does when the user or the code acts on it, whom it tells, and where keys and presses go.
local g = zilvo.create("WidgetGallery")
--> created WidgetGallery
--> surface: BackColor 0x8000000F, ForeColor 0x80000008, Width 7080, Height 3660, ScaleWidth 472, ScaleHeight 244
--> panelOptions: Threed.SSPanel, Caption "Options", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 8, Top 8, Width 160, Height 110, ToolTipText "Right button for the menu"
--> optChoice(1): OptionButton in panelOptions, Value True, Caption "&One", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 150, Top 300, Width 900, Height 270, TabIndex 1
--> optChoice(2): OptionButton in panelOptions, Caption "&Two", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 150, Top 600, Width 900, Height 270, TabIndex 2
--> optChoice(3): OptionButton in panelOptions, Caption "T&hree", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 150, Top 900, Width 900, Height 270, TabIndex 3
--> frameChecks: Threed.SSFrame, Caption "Checks", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 176, Top 8, Width 160, Height 110, TabIndex 5
--> chkPick(0): CheckBox in frameChecks, Caption "&Left mark", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 150, Top 300, Width 1650, Height 300, TabIndex 6
--> chkPick(1): CheckBox in frameChecks, Value 2, Caption "&Right mark", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 150, Top 690, Width 1650, Height 300, TabIndex 7
--> optOther: OptionButton in frameChecks, Caption "&Other", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 150, Top 1080, Width 1650, Height 300, TabIndex 8
--> panelThreeD: Threed.SSPanel, BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 8, Top 126, Width 328, Height 110, TabIndex 9
--> sscToggle: Threed.SSCheck in panelThreeD, Caption "&Toggle", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 150, Top 120, Width 1200, Height 300, TabIndex 10
--> ssoSeat(1): Threed.SSOption in panelThreeD, Caption "Seat &1", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 150, Top 510, Width 1200, Height 300, TabIndex 11
--> ssoSeat(2): Threed.SSOption in panelThreeD, Value True, Caption "Seat &2", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 150, Top 870, Width 1200, Height 300, TabIndex 12
--> ssoSeat(3): Threed.SSOption in panelThreeD, Caption "Seat &3", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 150, Top 1230, Width 1200, Height 300, TabIndex 13
--> panelRibbons: Threed.SSPanel in panelThreeD, BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 2400, Top 150, Width 2400, Height 750, TabIndex 14
--> ribCard(0): Threed.SSRibbon in panelRibbons, BackColor 0x8000000F, Left 120, Top 120, Width 510, Height 510, TabIndex 15
--> ribCard(1): Threed.SSRibbon in panelRibbons, Value True, BackColor 0x8000000F, Outline True, Left 720, Top 120, Width 510, Height 510, TabIndex 16
--> imgChip(0): Image, Left 344, Top 8, Width 48, Height 48, ToolTipText "The chip behind"
--> imgChip(1): Image, Left 364, Top 20, Width 48, Height 48, ToolTipText "The chip in front"
--> lblTable: Label, Caption "Table", BackColor 0x8000000F, ForeColor 0x00FFFFFF, Font "Arial 9.75 bold", Left 364, Top 100, Width 80, Height 16, TabIndex 18
--> shpTable: Shape, Shape 2, BorderWidth 2, BorderColor 0x80000008, FillColor 0x00006000, BackColor 0x80000005, Left 344, Top 78, Width 120, Height 60
--> spnCount: Spin.SpinButton, Left 344, Top 150, Width 20, Height 40, TabIndex 20
--> cmdPush(0): CommandButton, Default True, Caption "&Go", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 374, Top 150, Width 90, Height 25, TabIndex 21
--> cmdPush(1): CommandButton, Cancel True, Caption "&Quit", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 374, Top 180, Width 90, Height 25, TabIndex 22
--> cmdPush(2): CommandButton, Caption "&Plain", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 374, Top 210, Width 90, Height 25, TabIndex 23
--> mnuRoot: Menu, Visible False
--> mnuPick(0): Menu in mnuRoot, Caption "&Open"
--> mnuPick(1): Menu in mnuRoot, Caption "&Locked", Enabled False
--> mnuPick(2): Menu in mnuRoot, Caption "&Ticked", Checked True
--> mnuBar: Menu in mnuRoot, Caption "-"
--> mnuMore: Menu in mnuRoot, Caption "&More"
--> mnuMorePick(10): Menu in mnuMore, Caption "&First"
--> mnuMorePick(11): Menu in mnuMore, Caption "&Second"
local function at(text) return g:widget(text:match("%a+"), tonumber(text:match("%d+"))) end
local function set(text, member, value) at(text)[member] = value end
-- Clicks the widgets, or presses the keys, in turn; those that do nothing are named.
local function each(names, act)
    local idle = {}
    for name in names:gmatch("%S+") do idle[#idle + 1] = not act(name) and name or nil end
    if #idle > 0 then print("nothing for", table.unpack(idle)) end
end
local function click(names) each(names, function(name) return at(name):click() end) end
local function keys(names) each(names, function(name) return g:keydown(name) end) end
-- The user's clicks.
click "cmdPush2 optChoice2 optChoice2 optOther chkPick0 chkPick1"
--> focus none -> cmdPush(2)
--> CommandClicked(2)
--> focus cmdPush(2) -> optChoice(2)
--> optChoice(1): Value True -> False
--> optChoice(2): Value False -> True
--> OptionClicked(2)
--> focus optChoice(2) -> optOther
--> optOther: Value False -> True
--> OptionClicked(-1)
--> focus optOther -> chkPick(0)
--> chkPick(0): Value 0 -> 1
--> CheckClicked(0)
--> focus chkPick(0) -> chkPick(1)
--> chkPick(1): Value 2 -> 0
--> CheckClicked(1)
click "ssoSeat1 ssoSeat1 ribCard0 ribCard1 ribCard1"
--> focus chkPick(1) -> ssoSeat(1)
--> ssoSeat(1): Value False -> True
--> ssoSeat(2): Value True -> False
--> SSOptionClicked(1, -1)
--> SSOptionClicked(1, -1)
--> focus ssoSeat(1) -> ribCard(0)
--> ribCard(0): Value False -> True
--> ribCard(1): Value True -> False
--> RibbonClicked(0, -1)
--> focus ribCard(0) -> ribCard(1)
--> ribCard(0): Value True -> False
--> ribCard(1): Value False -> True
--> RibbonClicked(1, -1)
--> ribCard(1): Value True -> False
--> RibbonClicked(1, 0)
click "mnuPick0 mnuPick1 mnuMorePick11 panelOptions lblTable shpTable frameChecks panelThreeD spnCount mnuRoot mnuBar mnuMore"
--> MenuClicked(0)
--> MenuClicked(11)
--> PanelPressed(1, 0)
--> PressedAt(1200, 825)
--> prints nothing for mnuPick1 lblTable shpTable frameChecks panelThreeD spnCount mnuRoot mnuBar mnuMore
print(at"spnCount":spin("up"), at"spnCount":spin("down"), at"cmdPush0":spin("up"), at"mnuPick0":spin("up"), at"optChoice3".Index, at"chkPick0".Index)
--> focus ribCard(1) -> spnCount
--> SpunUp()
--> SpunDown()
--> prints true true false false 3 0
-- The same from code: option buttons and check boxes tell, the others do not.
for _, on in ipairs { true, true, false } do at"optChoice3".Value = on end; at"optOther".Value = false
--> optChoice(2): Value True -> False
--> optChoice(3): Value False -> True
--> OptionClicked(3)
--> optChoice(3): Value True -> False
--> optOther: Value True -> False
for _, value in ipairs { 1, 0, 2 } do at"chkPick0".Value = value end
--> chkPick(0): Value 1 -> 0
--> CheckClicked(0)
--> chkPick(0): Value 0 -> 2
--> CheckClicked(0)
at"sscToggle".Value = true; at"mnuPick0".Checked = true; at"ssoSeat3".Value = true; at"ssoSeat2".Value = false
--> sscToggle: Value False -> True
--> mnuPick(0): Checked False -> True
--> ssoSeat(1): Value True -> False
--> ssoSeat(3): Value False -> True
at"ribCard0".Value = true; at"ribCard1".Value = true; at"ribCard0".Value = false
--> ribCard(0): Value False -> True, Value True -> False
--> ribCard(1): Value False -> True
at"optChoice3".Enabled = false; at"panelOptions".Visible = false; at"optChoice3".Value = true; at"optChoice1".Value = false
--> optChoice(3): Enabled True -> False
--> panelOptions: Visible True -> False
--> optChoice(3): Value False -> True
--> OptionClicked(3)
-- One default and one cancel button at most.
at"cmdPush2".Default = true; at"cmdPush0".Default = false; at"cmdPush0".Cancel = true
--> cmdPush(0): Default True -> False
--> cmdPush(2): Default False -> True
--> cmdPush(0): Cancel False -> True
--> cmdPush(1): Cancel True -> False
keys "Enter Escape"
--> KeyTyped(13)
--> CommandClicked(2)
--> KeyTyped(27)
--> CommandClicked(0)
at"cmdPush2".Default = false; at"cmdPush1".Cancel = false; at"cmdPush0".Cancel = false
--> cmdPush(2): Default True -> False
--> cmdPush(0): Cancel True -> False
keys "Return Esc"
--> KeyTyped(13)
--> KeyTyped(27)
--> prints nothing for Return Esc
-- A handler finds the new state and may change it again; what it makes of a value stays in its variable.
g:on("CheckClicked", function(index) if index == 0 then at"chkPick1".Value = 0 end end)
g:on("SSCheckClicked", function() return 7, 0 end)
click "chkPick0 sscToggle"
--> focus spnCount -> chkPick(0)
--> chkPick(0): Value 2 -> 0
--> CheckClicked(0)
--> focus chkPick(0) -> sscToggle
--> sscToggle: Value True -> False
--> SSCheckClicked(-1, 0)
-->   gives 7
-->   gives 0
-- A failing handler fails what led to it and undoes nothing.
g:on("RibbonClicked", function() error("stop", 0) end); pcall(click, "ribCard0")
--> focus sscToggle -> ribCard(0)
--> ribCard(0): Value False -> True
--> ribCard(1): Value True -> False
--> RibbonClicked(0, -1)
--> fails as the handler did
-- Places are pixels on the surface and twips in a panel or frame; what a member cannot hold is refused.
at"panelOptions".Width = 170.5; at"optChoice2".Left = 10; at"chkPick1".Height = 345
--> panelOptions: Width 160 -> 170.5
--> optChoice(2): Left 150 -> 10
--> chkPick(1): Height 300 -> 345
pcall(set, "cmdPush0", "Left", 3e38); pcall(set, "cmdPush0", "Height", 3e38); pcall(set, "cmdPush0", "Width", -1); pcall(set, "cmdPush0", "TabIndex", -1)
--> fails: invalid property value: cmdPush(0).Left cannot be 3e+38 (Single)
--> fails: invalid property value: cmdPush(0).Height cannot be 3e+38 (Single)
--> fails: invalid property value: cmdPush(0).Width cannot be -1 (Single)
--> fails: invalid property value: cmdPush(0).TabIndex cannot be -1 (Integer)
pcall(set, "chkPick0", "Value", 3); pcall(set, "chkPick0", "Value", -1)
--> fails: invalid property value: chkPick(0).Value cannot be 3 (Integer)
--> fails: invalid property value: chkPick(0).Value cannot be -1 (Integer)
for _, form in ipairs { -1, 0, 5, 6 } do pcall(set, "shpTable", "Shape", form) end
--> fails: invalid property value: shpTable.Shape cannot be -1 (Integer)
--> shpTable: Shape 2 -> 0, Shape 0 -> 5
--> fails: invalid property value: shpTable.Shape cannot be 6 (Integer)
for _, name in ipairs { "mnuMore", "mnuBar" } do pcall(set, name, "Checked", true); set(name, "Checked", false) end
--> fails: invalid property value: mnuMore.Checked cannot be True on a root, a submenu or a separator
--> fails: invalid property value: mnuBar.Checked cannot be True on a root, a submenu or a separator
-- Tab goes round, with one stop for a group of options and one for each ribbon button.
g = zilvo.create("WidgetGallery")
--> created WidgetGallery 2
for _ = 1, 13 do keys "Tab" end
--> focus none -> optChoice(1), optChoice(1) -> chkPick(0), chkPick(0) -> chkPick(1), chkPick(1) -> optOther, optOther -> sscToggle, sscToggle -> ssoSeat(2), ssoSeat(2) -> ribCard(0), ribCard(0) -> ribCard(1), ribCard(1) -> spnCount, spnCount -> cmdPush(0), cmdPush(0) -> cmdPush(1), cmdPush(1) -> cmdPush(2), cmdPush(2) -> optChoice(1)
for _ = 1, 12 do keys "shift+TAB" end
--> focus optChoice(1) -> cmdPush(2), cmdPush(2) -> cmdPush(1), cmdPush(1) -> cmdPush(0), cmdPush(0) -> spnCount, spnCount -> ribCard(1), ribCard(1) -> ribCard(0), ribCard(0) -> ssoSeat(2), ssoSeat(2) -> sscToggle, sscToggle -> optOther, optOther -> chkPick(1), chkPick(1) -> chkPick(0), chkPick(0) -> optChoice(1)
-- It passes over what takes no input, and enters a group at its first when the selected one cannot be reached.
at"optChoice1".Enabled = false; at"ssoSeat2".Enabled = false; at"ssoSeat3".TabIndex = 11; at"cmdPush2".TabIndex = 19
--> focus optChoice(1) -> none
--> optChoice(1): Enabled True -> False
--> ssoSeat(2): Enabled True -> False
--> ssoSeat(3): TabIndex 13 -> 11
--> cmdPush(2): TabIndex 23 -> 19
at"panelRibbons".Enabled = false; at"cmdPush1".Visible = false
--> panelRibbons: Enabled True -> False
--> cmdPush(1): Visible True -> False
for _ = 1, 10 do keys "Tab" end; keys "Shift+Tab"
--> focus none -> optChoice(2), optChoice(2) -> chkPick(0), chkPick(0) -> chkPick(1), chkPick(1) -> optOther, optOther -> sscToggle, sscToggle -> ssoSeat(1), ssoSeat(1) -> cmdPush(2), cmdPush(2) -> spnCount, spnCount -> cmdPush(0), cmdPush(0) -> optChoice(2), optChoice(2) -> cmdPush(0)
-- What can no longer take input hands the keyboard on to the next.
at"cmdPush0".Enabled = false; g:focus(); at"panelOptions".Enabled = false; g:focus()
--> focus cmdPush(0) -> none
--> cmdPush(0): Enabled True -> False
--> focus none -> optChoice(2), optChoice(2) -> none
--> panelOptions: Enabled True -> False
--> focus none -> chkPick(0)
g:on("SSCheckClicked", function() at"panelThreeD".Visible = false end)
keys "Alt+t"
--> focus chkPick(0) -> sscToggle
--> sscToggle: Value False -> True
--> SSCheckClicked(-1, -1)
-->   focus sscToggle -> none
-->   panelThreeD: Visible True -> False
--> focus none -> cmdPush(2)
at"spnCount".Enabled = false; at"frameChecks".Visible = false; at"cmdPush2".Visible = false; g:focus()
--> spnCount: Enabled True -> False
--> frameChecks: Visible True -> False
--> focus cmdPush(2) -> none
--> cmdPush(2): Visible True -> False
keys "Tab Space Enter Escape Down Alt+P x"
--> KeyTyped(32)
--> KeyTyped(13)
--> KeyTyped(27)
--> KeyTyped(120)
--> prints nothing for Tab Space Enter Escape Down Alt+P x
-- Arrow keys move in a group and select; on a spin button they spin.
g = zilvo.create("WidgetGallery")
--> created WidgetGallery 3
at"optChoice2".Visible = false; keys "Down Tab Down Tab Left Tab Tab Down Tab"; at"optChoice2".Visible = true
--> optChoice(2): Visible True -> False
--> focus none -> optChoice(1), optChoice(1) -> optChoice(3)
--> optChoice(1): Value True -> False
--> optChoice(3): Value False -> True
--> OptionClicked(3)
--> focus optChoice(3) -> chkPick(0), chkPick(0) -> chkPick(1), chkPick(1) -> optOther, optOther -> sscToggle
--> prints nothing for Down Left Down
--> optChoice(2): Visible False -> True
keys "Tab Down Right Left Up"
--> focus sscToggle -> ssoSeat(2), ssoSeat(2) -> ssoSeat(3)
--> ssoSeat(2): Value True -> False
--> ssoSeat(3): Value False -> True
--> SSOptionClicked(3, -1)
--> focus ssoSeat(3) -> ssoSeat(1)
--> ssoSeat(1): Value False -> True
--> ssoSeat(3): Value True -> False
--> SSOptionClicked(1, -1)
--> focus ssoSeat(1) -> ssoSeat(3)
--> ssoSeat(1): Value True -> False
--> ssoSeat(3): Value False -> True
--> SSOptionClicked(3, -1)
--> focus ssoSeat(3) -> ssoSeat(2)
--> ssoSeat(2): Value False -> True
--> ssoSeat(3): Value True -> False
--> SSOptionClicked(2, -1)
keys "Tab Left Tab Tab Up Right Down Left Space Tab Down"
--> focus ssoSeat(2) -> ribCard(0), ribCard(0) -> ribCard(1), ribCard(1) -> spnCount
--> SpunUp()
--> SpunUp()
--> SpunDown()
--> SpunDown()
--> KeyTyped(32)
--> focus spnCount -> cmdPush(0)
--> prints nothing for Left Space Down
-- Access keys act on their widget; one that is shared goes round, and all follow the caption.
keys "Alt+T Alt+t Alt+T"
--> focus cmdPush(0) -> optChoice(2)
--> optChoice(2): Value False -> True
--> optChoice(3): Value True -> False
--> OptionClicked(2)
--> focus optChoice(2) -> sscToggle
--> sscToggle: Value False -> True
--> SSCheckClicked(-1, -1)
--> focus sscToggle -> optChoice(2)
at"sscToggle".Caption = "Tit && &Zip &Zap"; at"optChoice2".Caption = "This && That&"; at"ssoSeat3".Visible = false
--> sscToggle: Caption "&Toggle" -> "Tit && &Zip &Zap"
--> optChoice(2): Caption "&Two" -> "This && That&"
--> ssoSeat(3): Visible True -> False
keys "Alt+Shift+z Alt+T Alt+3 Alt+X Alt+& Alt+Escape Ctrl+Enter Ctrl+Space Control+l"
--> focus optChoice(2) -> sscToggle
--> sscToggle: Value True -> False
--> SSCheckClicked(-1, 0)
--> prints nothing for Alt+T Alt+3 Alt+X Alt+& Alt+Escape Ctrl+Enter Ctrl+Space Control+l
-- Space is for the widget with the keyboard, and so is Enter when that is a push button.
keys "Enter Alt+P Space Enter"
--> KeyTyped(13)
--> CommandClicked(0)
--> focus sscToggle -> cmdPush(2)
--> CommandClicked(2)
--> KeyTyped(32)
--> CommandClicked(2)
--> CommandClicked(2)
-- The control sees what is typed before any widget, may change it or keep it.
g:on("KeyTyped", function(code) return code == 120 and 13 or code == 13 and 0 or nil end)
keys "Alt+z x Enter +"; g:key("\u{e9}")
--> focus cmdPush(2) -> sscToggle
--> sscToggle: Value False -> True
--> SSCheckClicked(-1, -1)
--> KeyTyped(120)
-->   gives 13
--> CommandClicked(0)
--> KeyTyped(13)
-->   gives 0
--> KeyTyped(43)
--> prints nothing for +
--> KeyTyped(233)
-- A picture shows the whole menu.
local file = os.tmpname()
local function pictured() g:snapshot(file); return io.open(file):read("a"):match('height="(%d+)') end
g.extender.Height = 1500; local before = pictured(); g:press(2400, 200, 2); print(before, pictured(), g.popup.Name, os.remove(file))
--> surface: Height 3660 -> 1500, ScaleHeight 244 -> 100
--> size 7080 x 1500
--> pop-up mnuRoot
--> prints 100 104 mnuRoot true
-- The right button opens the menu, which takes all input while it is up; a press and a release on one item choose it.
g = zilvo.create("WidgetGallery")
--> created WidgetGallery 4
local function drag(fromX, fromY, toX, toY, button) return g:press(fromX, fromY, button), g:move(toX, toY), g:release(toX, toY, button) end
local function tap(x, y) return drag(x, y, x, y) end
local function pop() g:press(1800, 900, 2); g:release(1800, 900, 2) end
pop(); for _, y in ipairs { 1372, 1867, 2077, 1087 } do tap(2200, y) end
--> pop-up mnuRoot
--> MenuClicked(0)
pop(); g:press(2200, 1087); keys "Escape"; pop(); g:move(2200, 1087); g:release(2200, 1087); g:press(2200, 1087); g:release(0, 0)
--> pop-up mnuRoot
--> pop-up mnuRoot
g:press(2200, 1087); g:release(2200, 1087, 2); g:release(2200, 1657); drag(2200, 1087, 2200, 1657)
--> MenuClicked(2)
pop(); tap(6000, 2400); tap(6000, 2400)
--> pop-up mnuRoot
--> focus none -> cmdPush(0)
--> CommandClicked(0)
-- The pointer walks into the submenu and out of it.
pop(); for x = 2200, 3300, 30 do g:move(x, 2077) end; tap(3300, 2077)
--> pop-up mnuRoot
--> MenuClicked(10)
pop(); g:move(2200, 2077); keys "Down"; g:move(0, 0); g:move(2200, 1087); g:key(13)
--> pop-up mnuRoot
--> MenuClicked(0)
-- The keyboard goes round, past what is disabled, into the submenu, and out of it one level at a time; letters choose.
for _, way in ipairs { "Down Down Enter", "Down Down Down Down Enter", "Up Enter Enter", "Up Right Down Enter", "Up Right Left Up Enter",
    "Up Right Escape Escape", "T", "m s", "m o Escape Escape", "Enter Right Left Tab Space Alt+G l x Escape" } do pop(); keys(way) end
--> pop-up mnuRoot
--> MenuClicked(2)
--> pop-up mnuRoot
--> MenuClicked(0)
--> pop-up mnuRoot
--> MenuClicked(10)
--> pop-up mnuRoot
--> MenuClicked(11)
--> pop-up mnuRoot
--> MenuClicked(2)
--> pop-up mnuRoot
--> pop-up mnuRoot
--> MenuClicked(2)
--> pop-up mnuRoot
--> MenuClicked(11)
--> pop-up mnuRoot
--> pop-up mnuRoot
-- What was disabled or hidden meanwhile is not chosen; a click on something else takes the menu away.
pop(); keys "Down"; at"mnuPick0".Enabled = false; keys "Enter"; at"mnuPick1".Visible = false; pop(); tap(2200, 1372)
--> pop-up mnuRoot
--> mnuPick(0): Enabled True -> False
--> mnuPick(1): Visible True -> False
--> pop-up mnuRoot
--> MenuClicked(2)
at"mnuMore".Enabled = false; pop(); click "mnuPick2"; at"mnuPick2".Visible = false; pop(); click "mnuPick0 mnuPick2 mnuMorePick11 cmdPush1"; g:key(27)
--> mnuMore: Enabled True -> False
--> pop-up mnuRoot
--> MenuClicked(2)
--> mnuPick(2): Visible True -> False
--> pop-up mnuRoot
--> focus cmdPush(0) -> cmdPush(1)
--> CommandClicked(1)
--> prints nothing for mnuPick0 mnuPick2 mnuMorePick11
--> KeyTyped(27)
--> CommandClicked(1)
-- The menu takes the pointer from what is held down.
g:press(6000, 2400); pop(); keys "Escape"; print(g:release(6000, 2400))
--> focus cmdPush(1) -> cmdPush(0)
--> pop-up mnuRoot
--> prints false
-- A click is a press and a release on the same widget; the one in front takes it.
print(drag(6000, 2400, 6900, 2600))
--> CommandClicked(0)
--> prints true true true
drag(6000, 2400, 6000, 2850); drag(6000, 2400, -900, 0); print(drag(6000, 2850, 6000, 2850, 2))
--> prints true false false
g:press(6000, 2400); g:move(0, 0); g:press(6000, 2850, 4); g:release(6000, 2850, 4); g:move(6000, 2400); print(g:release(6000, 2400), g:release(6000, 2400))
--> CommandClicked(0)
--> prints true false
g:press(6000, 2400); at"cmdPush0".Enabled = false; print(g:release(6000, 2400))
--> focus cmdPush(0) -> none
--> cmdPush(0): Enabled True -> False
--> focus none -> cmdPush(1)
--> prints false
drag(5700, 600, 6100, 900); drag(5200, 600, 5700, 600); at"imgChip1".Enabled = false; print(tap(5700, 600))
--> ImageClicked(1)
--> imgChip(1): Enabled True -> False
--> prints false false false
-- A label takes the press from what lies behind it, also from what was made later; a shape lets it through.
at"cmdPush2".Left = 380; at"cmdPush2".Top = 90; print(tap(6000, 1600)); tap(6000, 1400); tap(6060, 1305)
--> cmdPush(2): Left 374 -> 380, Top 210 -> 90
--> prints true true false
--> focus cmdPush(1) -> cmdPush(2)
--> CommandClicked(2)
--> SurfacePressed(1, 0)
--> PressedAt(404, 87)
-- Panels and the surface report every button, with where and the keys that were down.
g:press(30, 45, 2, 5); g:press(1800, 900, 4, 2); g:press(4500, 3000); print(g:press(-1, 10), g:press(7080, 10))
--> SurfacePressed(2, 5)
--> PressedAt(2, 3)
--> PanelPressed(4, 2)
--> PressedAt(1680, 780)
--> prints false false
-- A host without a pointer clicks what a pointer can reach; what reaches over its container's edge is cut off there.
click "imgChip0"; at"imgChip1".Left = 344; at"imgChip1".Top = 8; at"cmdPush2".Left = 1000; at"cmdPush1".Width = 0; at"optChoice3".Top = 1600
--> ImageClicked(0)
--> imgChip(1): Left 364 -> 344, Top 20 -> 8
--> cmdPush(2): Left 380 -> 1000
--> cmdPush(1): Width 90 -> 0
--> optChoice(3): Top 900 -> 1600
click "imgChip0 cmdPush2 cmdPush1 optChoice3"; tap(495, 1785)
--> focus cmdPush(2) -> optChoice(3)
--> optChoice(1): Value True -> False
--> optChoice(3): Value False -> True
--> OptionClicked(3)
--> prints nothing for imgChip0 cmdPush2 cmdPush1
--> SurfacePressed(1, 0)
--> PressedAt(33, 119)
-- A press spins once, in the half that it meets; wide and low the halves lie side by side.
g:press(5300, 2540); g:release(5300, 2540); g:press(5300, 2560); g:press(5300, 2560, 2)
--> focus optChoice(3) -> spnCount
--> SpunUp()
--> SpunDown()
at"spnCount".Width = 60; at"spnCount".Left = 300; g:press(4700, 2260); g:press(5100, 2840)
--> spnCount: Width 20 -> 60, Left 344 -> 300
--> SpunDown()
--> SpunUp()
-- What is disabled or hidden, or lies in something that is, takes no input; neither does a control that its host hides.
local function containers(enabled, visible)
    for _, name in ipairs { "panelOptions", "panelThreeD", "spnCount" } do set(name, "Enabled", enabled); set(name, "Visible", visible) end
    click "optChoice2 ribCard0 panelOptions"; print(at"spnCount":spin("up")); tap(3000, 2295)
end
containers(false, true); tap(600, 870); tap(4700, 2840)
--> panelOptions: Enabled True -> False
--> panelThreeD: Enabled True -> False
--> focus spnCount -> none
--> spnCount: Enabled True -> False
--> focus none -> cmdPush(1)
--> prints nothing for optChoice2 ribCard0 panelOptions
--> prints false
containers(true, false)
--> panelOptions: Enabled False -> True, Visible True -> False
--> panelThreeD: Enabled False -> True, Visible True -> False
--> spnCount: Enabled False -> True, Visible True -> False
--> prints nothing for optChoice2 ribCard0 panelOptions
--> prints false
--> SurfacePressed(1, 0)
--> PressedAt(200, 153)
at"cmdPush2".Left = 380; keys "Tab"; g.extender.Visible = false; keys "Alt+P Enter Tab x"; click "cmdPush2 mnuPick2"; print(g:press(30, 30))
--> cmdPush(2): Left 1000 -> 380
--> focus cmdPush(1) -> cmdPush(2), cmdPush(2) -> none
--> extender: Visible True -> False
--> prints nothing for Alt+P Enter Tab x
--> prints nothing for cmdPush2 mnuPick2
--> prints false

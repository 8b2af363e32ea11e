-- A control inside another: calls go in, events come out with their variable; colours, sizes and input reach it.
local outer = zilvo.create("Outer")
--> created Outer
--> Outer: Allowed 3
--> surface: BackColor 0x00A8B090, ForeColor 0x80000008, Width 2400, Height 2400, ScaleWidth 2400, ScaleHeight 2400
--> cmdPush(0): CommandButton, Cancel True, Caption "&Before", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 60, Top 60, Width 1500, Height 360
--> cmdPush(1): CommandButton, Default True, Caption "&After", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 60, Top 1860, Width 1500, Height 360, TabIndex 2
--> smallOne: Small, Left 60, Top 480, Width 1500, Height 1320, TabIndex 1
--> smallOne: IsReady True, Allowed 3, Breadth 1500, Mood CalmMood, Font "MS Sans Serif 8.25", Ground 0x00A8B090, Shown True, RunsInUserMode True
--> smallOne.surface: BackColor 0x00A8B090, ForeColor 0x80000008, Width 1500, Height 1320, ScaleWidth 1500, ScaleHeight 1320
--> smallOne.ssoPick(1): Threed.SSOption, Caption "Pick &1", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 60, Top 60, Width 900, Height 270
--> smallOne.ssoPick(2): Threed.SSOption, Caption "Pick &2", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 60, Top 360, Width 900, Height 270, TabIndex 1
--> smallOne.ssoPick(3): Threed.SSOption, Caption "Pick &3", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 60, Top 660, Width 900, Height 270, TabIndex 2
--> smallOne.lblTitle: Label, BackColor 0x00FFFFFF, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 60, Top 960, Width 1380, Height 210, TabIndex 3
--> smallOne.mnuRoot: Menu, Visible False
--> smallOne.mnuPick(11): Menu in mnuRoot, Caption "&Eleven"
--> smallOne.mnuPick(12): Menu in mnuRoot, Caption "&Twelve"
local small = outer:widget("smallOne")
local function keys(names) for name in names:gmatch("%S+") do outer:keydown(name) end end
local function click(name, index) return small:widget(name, index):click() end
-- Its event comes out with the very variable: what the host makes of it goes in.
local choice = outer:on("Picked", function(which) return which == 1 and 3 or which == 2 and 0 or nil end)
click("ssoPick", 1)
--> focus none -> ssoPick(1)
--> smallOne.ssoPick(1): Value False -> True
--> Picked(1)
-->   gives 3
--> smallOne.ssoPick(1): Value True -> False
--> smallOne.ssoPick(3): Value False -> True
pcall(click, "ssoPick", 2)
--> focus ssoPick(1) -> ssoPick(2)
--> smallOne.ssoPick(2): Value False -> True
--> smallOne.ssoPick(3): Value True -> False
--> Picked(2)
-->   gives 0
--> fails: missing element: Outer.Input: ssoPick has no element 0
choice:disconnect()
-- Calls go through by id and by name, arrays as the caller's own; its failures come out unchanged, earlier steps stay.
outer.Allowed = 2; outer.Title = "the first"; print(outer.Allowed, outer.Title, click("ssoPick", 3))
--> smallOne.ssoPick(3): Enabled True -> False
--> smallOne.lblTitle: Caption "" -> "the first"
--> Outer: Allowed 3 -> 2, Title "" -> "the first"
--> smallOne: Allowed 3 -> 2, Title "" -> "the first"
--> prints 2 the first false
print(outer:Step(4), outer:Flip({ true, false, false }))
--> prints 5 2 {false, true, true}
pcall(function() outer.Allowed = 9 end); pcall(outer.Step, outer, 32767)
--> smallOne.ssoPick(3): Enabled False -> True
--> Outer: Allowed 2 -> 9
--> smallOne: Allowed 2 -> 9
--> fails: missing element: Outer.Allowed: Small.Allowed: ssoPick has no element 9
--> fails: overflow: Outer.Step: Small.Step: Number: 32768 (Long) is out of the range of Integer
-- The user goes into it and out again; what the inner control acts on goes no further.
keys "Tab Tab Tab Down"
--> focus ssoPick(2) -> cmdPush(1), cmdPush(1) -> cmdPush(0), cmdPush(0) -> ssoPick(2), ssoPick(2) -> ssoPick(3)
--> smallOne.ssoPick(2): Value True -> False
--> smallOne.ssoPick(3): Value False -> True
--> Picked(3)
keys "Enter 9 Escape Tab Escape Alt+1"
--> PushClicked(1)
--> Picked(0)
--> Picked(0)
--> focus ssoPick(3) -> cmdPush(1)
--> PushClicked(0)
--> focus cmdPush(1) -> ssoPick(1)
--> smallOne.ssoPick(1): Value False -> True
--> smallOne.ssoPick(3): Value True -> False
--> Picked(1)
outer:press(180, 1000); outer:release(100, 100); outer:press(180, 1000); outer:release(180, 1000)
--> focus ssoPick(1) -> ssoPick(2)
--> smallOne.ssoPick(1): Value True -> False
--> smallOne.ssoPick(2): Value False -> True
--> Picked(2)
outer:press(1500, 700); outer:press(1400, 700, 2); keys "Down Enter"; print(click("mnuPick", 12), outer.popup.Name)
--> Picked(1440)
--> pop-up mnuRoot
--> Picked(11)
--> Picked(12)
--> prints true mnuRoot
-- What changes of the outer control changes for the inner one, too; its size is the widget's, whoever sets it.
outer.ambient.BackColor = 0x123456; outer.ambient.ForeColor = 0x654321; outer.ambient.UserMode = false
--> surface: BackColor 0x00A8B090 -> 0x00123456
--> smallOne.surface: BackColor 0x00A8B090 -> 0x00123456
--> surface: ForeColor 0x80000008 -> 0x00654321
--> smallOne.surface: ForeColor 0x80000008 -> 0x00654321
--> smallOne: Ground 0x00A8B090 -> 0x00123456, RunsInUserMode True -> False
small.Height = 900; small.Breadth = 1300
--> smallOne: Height 1320 -> 900
--> smallOne.surface: Height 1320 -> 900, ScaleHeight 1320 -> 900, Width 1500 -> 1300, ScaleWidth 1500 -> 1300
--> smallOne: Width 1500 -> 1300
--> smallOne.lblTitle: Width 1380 -> 1180
--> smallOne: Breadth 1500 -> 1300
-- While it is hidden it takes nothing; it may hide itself.
small.Visible = false; print(outer:focus())
--> focus ssoPick(2) -> none
--> smallOne: Visible True -> False
--> focus none -> cmdPush(0)
--> smallOne: Shown True -> False
--> prints cmdPush 0
print(click("ssoPick", 2), click("mnuPick", 12), outer:press(180, 640), outer:keydown("Alt+2"))
--> prints false false true false
small.Shown = true
--> beep
--> smallOne: Visible False -> True, Shown False -> True
-- A widget that a script has keeps its control; nothing else does.
local kept = zilvo.create("Outer"):widget("smallOne"):widget("ssoPick", 1)
--> created Outer 2
outer, small = nil, nil; collectgarbage(); collectgarbage()
print(zilvo.alive, kept:click()); kept = nil; collectgarbage(); collectgarbage(); print(zilvo.alive)
--> focus none -> ssoPick(1)
--> smallOne.ssoPick(1): Value False -> True
--> Picked(1)
--> prints 2 true
--> prints 0

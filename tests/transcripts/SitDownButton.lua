-- A host lets a player take a seat: it is asked which seats are free, and told which one he takes.
local sit = zilvo.create("SitDownButton", { ambient = { BackColor = 0x00123456, ForeColor = 0x00654321 } })
--> created SitDownButton
--> SitDownButton: NumberOfSeatsAllowed Seat7WasSelected
--> surface: BackColor 0x8000000F, ForeColor 0x80000008, Width 1320, Height 2625, ScaleWidth 1320, ScaleHeight 2625
--> panelSitdown: Threed.SSPanel, Caption "Sitdown Button", BackColor 0x00A8B090, ForeColor 0x80000012, Font "Comic Sans MS 9.75", Left 80, Width 1160, Height 920, ToolTipText "Use Alt-V+S to hide this button", TabIndex 11
--> cmdSitDown: CommandButton in panelSitdown, Caption " Sit Down", BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "Comic Sans MS 12", Left 40, Top 40, Width 1060, Height 820, ToolTipText "   Click here to select a Seat  ", TabIndex 12
--> frameSeatSelector: Threed.SSFrame, Caption "Select Seat", BackColor 0x8000000F, ForeColor 0x80000012, Font "Comic Sans MS 9.75", Top 900, Width 1260, Height 1700, Visible False
--> optSeatSelected(1): Threed.SSOption in frameSeatSelector, Caption "&1", BackColor 0x8000000F, ForeColor 0x80000012, Font "Comic Sans MS 9", Left 730, Top 360, Width 375, Height 180, ToolTipText "Sit-down at Seat 1", TabIndex 1
--> optSeatSelected(2): Threed.SSOption in frameSeatSelector, Caption "&2", BackColor 0x8000000F, ForeColor 0x80000012, Font "Comic Sans MS 9", Left 730, Top 620, Width 375, Height 180, ToolTipText "Sit-down at Seat 2", TabIndex 2
--> optSeatSelected(3): Threed.SSOption in frameSeatSelector, Caption "&3", BackColor 0x8000000F, ForeColor 0x80000012, Font "Comic Sans MS 9", Left 730, Top 880, Width 375, Height 180, ToolTipText "Sit-down at Seat 3", TabIndex 3
--> optSeatSelected(4): Threed.SSOption in frameSeatSelector, Caption "&4", BackColor 0x8000000F, ForeColor 0x80000012, Font "Comic Sans MS 9", Left 380, Top 1140, Width 375, Height 180, ToolTipText "Sit-down at Seat 4", TabIndex 4
--> optSeatSelected(5): Threed.SSOption in frameSeatSelector, Caption "&5", BackColor 0x8000000F, ForeColor 0x80000012, Font "Comic Sans MS 9", Left 150, Top 880, Width 375, Height 180, ToolTipText "Sit-down at Seat 5", TabIndex 5
--> optSeatSelected(6): Threed.SSOption in frameSeatSelector, Caption "&6", BackColor 0x8000000F, ForeColor 0x80000012, Font "Comic Sans MS 9", Left 150, Top 620, Width 375, Height 180, ToolTipText "Sit-down at Seat 6", TabIndex 6
--> optSeatSelected(7): Threed.SSOption in frameSeatSelector, Caption "&7", BackColor 0x8000000F, ForeColor 0x80000012, Font "Comic Sans MS 9", Left 150, Top 360, Width 375, Height 180, ToolTipText "Sit-down at Seat 7", TabIndex 7
--> optSeatSelected(8): Threed.SSOption in frameSeatSelector, Caption "&8", BackColor 0x8000000F, ForeColor 0x80000012, Font "Comic Sans MS 9", Left 730, Top 1140, Width 375, Height 180, ToolTipText "Sit-down at Seat 8", TabIndex 8
--> optSeatSelected(9): Threed.SSOption in frameSeatSelector, Caption "&9", BackColor 0x8000000F, ForeColor 0x80000012, Font "Comic Sans MS 9", Left 150, Top 1400, Width 375, Height 180, ToolTipText "Sit-down at Seat 9", TabIndex 9
--> optSeatSelected(10): Threed.SSOption in frameSeatSelector, Caption "1&0", BackColor 0x8000000F, ForeColor 0x80000012, Font "Comic Sans MS 9", Left 630, Top 1400, Width 495, Height 180, ToolTipText "Sit-down at Seat 10", TabIndex 10
local selector, button = sit:widget("frameSeatSelector"), sit:widget("cmdSitDown")
local function seat(k) return sit:widget("optSeatSelected", k) end
-- The button opens the selector and closes it; a seat closes it.
print(seat(4):click())
--> prints false
local free = { true, true, false, true, true, true, false }
sit:on("TellMeWhichSeatsAreAvailable", function() sit:AvailableSeatsAre(free) end)
button:click()
--> focus none -> cmdSitDown
--> frameSeatSelector: Visible False -> True
--> SitdownButtonWasClicked()
--> TellMeWhichSeatsAreAvailable()
-->   optSeatSelected(3): Enabled True -> False
-->   optSeatSelected(7): Enabled True -> False
print(seat(3):click(), seat(4):click())
--> focus cmdSitDown -> optSeatSelected(4)
--> optSeatSelected(4): Value False -> True
--> focus optSeatSelected(4) -> none
--> frameSeatSelector: Visible True -> False
--> SeatSelectedWas(Seat4WasSelected)
--> focus none -> cmdSitDown
--> prints false true
for _ = 1, 2 do button:click() end
--> frameSeatSelector: Visible False -> True
--> SitdownButtonWasClicked()
--> TellMeWhichSeatsAreAvailable()
-->   optSeatSelected(4): Value True -> False
--> frameSeatSelector: Visible True -> False
--> SitdownButtonWasClicked()
-- Keys: one stop for all seats, whose letters take them.
sit:on("SeatSelectedWas", function() return 99 end)
for _, key in ipairs { "Tab", "Alt+1", "Enter", "Tab", "Tab", "Shift+Tab", "Escape", "Alt+1" } do sit:keydown(key) end
--> frameSeatSelector: Visible False -> True
--> SitdownButtonWasClicked()
--> TellMeWhichSeatsAreAvailable()
--> focus cmdSitDown -> optSeatSelected(1), optSeatSelected(1) -> cmdSitDown, cmdSitDown -> optSeatSelected(1)
--> optSeatSelected(1): Value False -> True
--> focus optSeatSelected(1) -> none
--> frameSeatSelector: Visible True -> False
--> SeatSelectedWas(Seat1WasSelected)
-->   gives 99
--> focus none -> cmdSitDown
-- Arrays: some cannot be read to their end; element 0 means nothing, and seats above keep what they have.
local many = {}
for k = 1, 32768 do many[k] = k < 10 end
for _, seats in ipairs { {}, zilvo.array(2, { true }), many, { table.unpack(many, 1, 11) }, { [0] = true } } do
  pcall(sit.AvailableSeatsAre, sit, seats)
end
--> fails: subscript out of range: SitDownButton.AvailableSeatsAre: the array has no elements
--> optSeatSelected(1): Value True -> False
--> SitDownButton: NumberOfSeatsAllowed Seat7WasSelected -> Seat2WasSelected
--> fails: subscript out of range: SitDownButton.AvailableSeatsAre: there is no element 1 in an array from 2 to 2
--> SitDownButton: NumberOfSeatsAllowed Seat2WasSelected -> 32768
--> fails: overflow: SitDownButton.AvailableSeatsAre: TableSeat's upper bound: 32768 (Long) is out of the range of Integer
--> optSeatSelected(3): Enabled False -> True
--> optSeatSelected(7): Enabled False -> True
--> optSeatSelected(10): Enabled True -> False
--> SitDownButton: NumberOfSeatsAllowed 32768 -> 11
--> fails: missing element: SitDownButton.AvailableSeatsAre: optSeatSelected has no element 11
--> SitDownButton: NumberOfSeatsAllowed 11 -> noSeatWasSelected
sit:AvailableSeatsAre { [0] = false, true, false, true }
--> optSeatSelected(2): Enabled True -> False
--> SitDownButton: NumberOfSeatsAllowed noSeatWasSelected -> Seat3WasSelected
-- A handler closes the selector before the host is asked, or fails.
local clicked = sit:on("SitdownButtonWasClicked", function() selector.Visible = false end)
button:click()
--> frameSeatSelector: Visible False -> True
--> SitdownButtonWasClicked()
-->   frameSeatSelector: Visible True -> False
clicked:disconnect()
sit:on("SitdownButtonWasClicked", function() error("stop") end)
pcall(function() button:click() end)
--> frameSeatSelector: Visible False -> True
--> SitdownButtonWasClicked()
--> fails as the handler did
-- The number of seats is the host's to say; any change of what surrounds it gives both colours; nothing is saved.
sit:invoke(0x68030000, "put", -2147483648)
--> SitDownButton: NumberOfSeatsAllowed Seat3WasSelected -> -2147483648
sit.ambient.UserMode = false
--> surface: BackColor 0x8000000F -> 0x00123456, ForeColor 0x80000008 -> 0x00654321
sit.surface.Height = 900
--> surface: Height 2625 -> 900, ScaleHeight 2625 -> 900
--> size 1320 x 900
sit:save(true)
--> saves nothing
zilvo.create("SitDownButton", {
  bag = { NumberOfSeatsAllowed = 3 }, ambient = { UserMode = false, BackColor = 0x00123456, ForeColor = 0x00654321 },
})
--> created SitDownButton 2
--> frameSeatSelector: Height 1700 -> 1400
--> surface: Height 2625 -> 2385, ScaleHeight 2625 -> 2385
--> size 1320 x 2385
--> optSeatSelected(8): Visible True -> False
--> optSeatSelected(9): Visible True -> False
--> optSeatSelected(10): Visible True -> False
--> surface: BackColor 0x8000000F -> 0x00123456, ForeColor 0x80000008 -> 0x00654321

-- A host is asked which seats are free, and lets the player tick those to which he spreads.
local spread = zilvo.create("SpreadSeatButtons", { ambient = { BackColor = 0x00123456, ForeColor = 0x00654321 } })
--> created SpreadSeatButtons
--> SpreadSeatButtons: NumberOfSeatsAllowed Seat7WasSelected
--> surface: BackColor 0x8000000F, ForeColor 0x80000008, Width 1830, Height 2775, ScaleWidth 1830, ScaleHeight 2775
--> SpreadSeatBoxes: SeatCheckBoxes, Top 915, Width 1815, Height 2385, TabIndex 2
--> SpreadSeatBoxes: NumberOfSeatsAllowed Seat7WasSelected
--> SpreadSeatBoxes.surface: BackColor 0x8000000F, ForeColor 0x80000008, Width 1815, Height 2385, ScaleWidth 1815, ScaleHeight 2385
--> SpreadSeatBoxes.buttonSeatOwner: OptionButton, Value True, Caption "?", BackColor 0x8000000F, ForeColor 0x80000012, Font "Comic Sans MS 8.25 bold", Left 720, Top 480, Width 380, Height 240, Visible False, TabIndex 11
--> SpreadSeatBoxes.frameSeatSpread: Threed.SSFrame, Caption "Spread To", BackColor 0x8000000F, ForeColor 0x80000012, Font "Comic Sans MS 9.75", Width 1780, Height 1400
--> SpreadSeatBoxes.checkSeatSelected(1): CheckBox in frameSeatSpread, Caption "1", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 1300, Top 360, Width 375, Height 195, Enabled False, TabIndex 10
--> SpreadSeatBoxes.checkSeatSelected(2): CheckBox in frameSeatSpread, Caption "2", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 1200, Top 620, Width 375, Height 195, Enabled False, TabIndex 1
--> SpreadSeatBoxes.checkSeatSelected(3): CheckBox in frameSeatSpread, Caption "3", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 1100, Top 880, Width 375, Height 195, Enabled False, TabIndex 2
--> SpreadSeatBoxes.checkSeatSelected(4): CheckBox in frameSeatSpread, Caption "4", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 660, Top 1100, Width 375, Height 195, Enabled False, TabIndex 3
--> SpreadSeatBoxes.checkSeatSelected(5): CheckBox in frameSeatSpread, Caption "5", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 310, Top 880, Width 375, Height 195, Enabled False, TabIndex 4
--> SpreadSeatBoxes.checkSeatSelected(6): CheckBox in frameSeatSpread, Caption "6", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 210, Top 620, Width 375, Height 195, Enabled False, TabIndex 5
--> SpreadSeatBoxes.checkSeatSelected(7): CheckBox in frameSeatSpread, Caption "7", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 110, Top 360, Width 375, Height 195, Enabled False, TabIndex 6
--> SpreadSeatBoxes.checkSeatSelected(8): CheckBox in frameSeatSpread, Caption "8", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 1000, Top 1140, Width 375, Height 195, Visible False, Enabled False, TabIndex 8
--> SpreadSeatBoxes.checkSeatSelected(9): CheckBox in frameSeatSpread, Caption "9", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 150, Top 1400, Width 375, Height 195, Visible False, Enabled False, TabIndex 7
--> SpreadSeatBoxes.checkSeatSelected(10): CheckBox in frameSeatSpread, Caption "10", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 1100, Top 1400, Width 495, Height 195, Visible False, Enabled False, TabIndex 9
--> panelSpreadSeatButton: Threed.SSPanel, Caption "Sitdown Button", BackColor 0x00A8B090, ForeColor 0x80000012, Font "Comic Sans MS 9.75", Left 335, Width 1140, Height 920, ToolTipText "Use Alt-V+S to hide this button"
--> commandSpreadToSeats: CommandButton in panelSpreadSeatButton, Caption "Spread    Seats", BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "Comic Sans MS 12", Left 40, Top 60, Width 1050, Height 820, ToolTipText "   Click here to select a Seat  ", TabIndex 1
local boxes, ask = spread:widget("SpreadSeatBoxes"), spread:widget("commandSpreadToSeats")
local function box(k) return boxes:widget("checkSeatSelected", k) end
-- The button asks at each click; the boxes do what they are told, and what they tell comes out.
spread:on("TellMeWhichSeatsAreAvailable", function()
  spread:AvailableSeatsAre { false, true, false, true, false, false, false }
end)
for _ = 1, 2 do ask:click() end
--> focus none -> commandSpreadToSeats
--> TellMeWhichSeatsAreAvailable()
-->   SpreadSeatBoxes.checkSeatSelected(2): Enabled False -> True
-->   SpreadSeatBoxes.checkSeatSelected(4): Enabled False -> True
--> TellMeWhichSeatsAreAvailable()
for _, k in ipairs { 4, 4, 1 } do box(k):click() end
--> focus commandSpreadToSeats -> checkSeatSelected(4)
--> SpreadSeatBoxes.checkSeatSelected(4): Value 0 -> 1
--> SeatSpreadToWas(Seat4WasSelected)
--> SpreadSeatBoxes.checkSeatSelected(4): Value 1 -> 0
--> SeatSpreadToWas(-4)
for _, key in ipairs { "Tab", "Enter", "Space", "Escape", "Tab", "Space", "Shift+Tab" } do spread:keydown(key) end
--> focus checkSeatSelected(4) -> commandSpreadToSeats
--> TellMeWhichSeatsAreAvailable()
--> TellMeWhichSeatsAreAvailable()
--> focus commandSpreadToSeats -> checkSeatSelected(2)
--> SpreadSeatBoxes.checkSeatSelected(2): Value 0 -> 1
--> SeatSpreadToWas(Seat2WasSelected)
--> focus checkSeatSelected(2) -> commandSpreadToSeats
spread:invoke(0x68030000, "put", 5)
--> SpreadSeatButtons: NumberOfSeatsAllowed Seat7WasSelected -> Seat5WasSelected
--> SpreadSeatBoxes: NumberOfSeatsAllowed Seat7WasSelected -> Seat5WasSelected
-- What the boxes refuse is refused, after what they did before.
for _, seats in ipairs { {}, zilvo.array(2, { true }) } do pcall(spread.AvailableSeatsAre, spread, seats) end
--> fails: subscript out of range: SpreadSeatButtons.AvailableSeatsAre: SeatCheckBoxes.AvailableSeatsAre: the array has no elements
--> SpreadSeatButtons: NumberOfSeatsAllowed Seat5WasSelected -> Seat2WasSelected
--> SpreadSeatBoxes: NumberOfSeatsAllowed Seat5WasSelected -> Seat2WasSelected
--> fails: subscript out of range: SpreadSeatButtons.AvailableSeatsAre: SeatCheckBoxes.AvailableSeatsAre: there is no element 1 in an array from 2 to 2
-- A handler changes the seat for the next one, calls back, or fails.
spread:on("SeatSpreadToWas", function(seat) return seat + 90 end)
spread:on("SeatSpreadToWas", function(seat)
  if seat == 94 then error("stop") end
  spread:AvailableSeatsAre { true }
end)
for _, k in ipairs { 2, 4 } do pcall(function() box(k):click() end) end
--> focus commandSpreadToSeats -> checkSeatSelected(2)
--> SpreadSeatBoxes.checkSeatSelected(2): Value 1 -> 0
--> SeatSpreadToWas(-2)
-->   gives 88
-->   SpreadSeatBoxes.checkSeatSelected(1): Enabled False -> True
-->   SpreadSeatButtons: NumberOfSeatsAllowed Seat2WasSelected -> Seat1WasSelected
-->   SpreadSeatBoxes: NumberOfSeatsAllowed Seat2WasSelected -> Seat1WasSelected
--> focus checkSeatSelected(2) -> checkSeatSelected(4)
--> SpreadSeatBoxes.checkSeatSelected(4): Value 0 -> 1
--> SeatSpreadToWas(Seat4WasSelected)
-->   gives 94
--> fails as the handler did
-- Boxes that the host has hidden are not asked for.
boxes.Visible = false
--> focus checkSeatSelected(4) -> none
--> SpreadSeatBoxes: Visible True -> False
print(ask:click(), box(2):click())
--> focus none -> commandSpreadToSeats
--> prints true false
-- Any change of what surrounds it gives both colours, loading does not; sizes are not followed, and nothing is saved.
spread.ambient.UserMode = false
--> surface: BackColor 0x8000000F -> 0x00123456, ForeColor 0x80000008 -> 0x00654321
spread.surface.Height = 900
--> surface: Height 2775 -> 900, ScaleHeight 2775 -> 900
--> size 1830 x 900
spread:save(true)
--> saves nothing
zilvo.create("SpreadSeatButtons", { bag = { NumberOfSeatsAllowed = 3 }, ambient = { BackColor = 0x00123456 } })
--> created SpreadSeatButtons 2

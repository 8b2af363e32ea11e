-- A host lets the player tick the seats to which he spreads, and say that he is done.
local panel = zilvo.create("paneledSeatBoxes")
--> created paneledSeatBoxes
--> paneledSeatBoxes: DoneButtonIsVisible True, NumberOfSeatsAllowed Seat7WasSelected
--> surface: BackColor 0x8000000F, ForeColor 0x80000008, Width 2085, Height 1635, ScaleWidth 2085, ScaleHeight 1635
--> panelSpreadTO: Threed.SSPanel, BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Width 2080, Height 1635
--> commandDoneButton: CommandButton in panelSpreadTO, Caption "Done", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 700, Top 480, Width 735, Height 255, TabIndex 2
--> SpreadSeatBoxes: SeatCheckBoxes in panelSpreadTO, Left 150, Top 120, Width 1800, Height 2385, TabIndex 1
--> SpreadSeatBoxes: NumberOfSeatsAllowed Seat7WasSelected
--> SpreadSeatBoxes.surface: BackColor 0x8000000F, ForeColor 0x80000008, Width 1800, Height 2385, ScaleWidth 1800, ScaleHeight 2385
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
local boxes, done = panel:widget("SpreadSeatBoxes"), panel:widget("commandDoneButton")
local function box(k) return boxes:widget("checkSeatSelected", k) end
-- The boxes do what the panel is told, and what they tell comes out; the button in front of them tells of its clicks.
panel:AvailableSeatsAre { true, false, true, false, false, false, false }
--> SpreadSeatBoxes.checkSeatSelected(1): Enabled False -> True
--> SpreadSeatBoxes.checkSeatSelected(3): Enabled False -> True
for _, k in ipairs { 3, 3, 2 } do box(k):click() end
--> focus none -> checkSeatSelected(3)
--> SpreadSeatBoxes.checkSeatSelected(3): Value 0 -> 1
--> SeatSpreadToWas(Seat3WasSelected)
--> SpreadSeatBoxes.checkSeatSelected(3): Value 1 -> 0
--> SeatSpreadToWas(-3)
done:click()
--> focus checkSeatSelected(3) -> commandDoneButton
--> DoneButtonWasClicked()
panel:MySeatIS(3)
--> SpreadSeatBoxes.buttonSeatOwner: Caption "?" -> "3", Left 720 -> 1140, Top 480 -> 880, Visible False -> True
panel:MySeatIS(0)
--> SpreadSeatBoxes.buttonSeatOwner: Visible True -> False
panel:invoke(0x68030000, "put", 9)
--> paneledSeatBoxes: NumberOfSeatsAllowed Seat7WasSelected -> Seat9WasSelected
--> SpreadSeatBoxes: NumberOfSeatsAllowed Seat7WasSelected -> Seat9WasSelected
for _, key in ipairs { "Tab", "Space", "Tab", "Tab", "Enter", "Space", "Escape", "Shift+Tab" } do panel:keydown(key) end
--> focus commandDoneButton -> checkSeatSelected(3)
--> SpreadSeatBoxes.checkSeatSelected(3): Value 0 -> 1
--> SeatSpreadToWas(Seat3WasSelected)
--> focus checkSeatSelected(3) -> checkSeatSelected(1), checkSeatSelected(1) -> commandDoneButton
--> DoneButtonWasClicked()
--> DoneButtonWasClicked()
--> focus commandDoneButton -> checkSeatSelected(1)
-- What the boxes refuse is refused, after what they did before.
for _, seats in ipairs { {}, zilvo.array(2, { true }) } do pcall(panel.AvailableSeatsAre, panel, seats) end
--> fails: subscript out of range: paneledSeatBoxes.AvailableSeatsAre: SeatCheckBoxes.AvailableSeatsAre: the array has no elements
--> paneledSeatBoxes: NumberOfSeatsAllowed Seat9WasSelected -> Seat2WasSelected
--> SpreadSeatBoxes: NumberOfSeatsAllowed Seat9WasSelected -> Seat2WasSelected
--> fails: subscript out of range: paneledSeatBoxes.AvailableSeatsAre: SeatCheckBoxes.AvailableSeatsAre: there is no element 1 in an array from 2 to 2
-- A handler changes the seat for the next one, calls back, or fails.
panel:on("SeatSpreadToWas", function(seat) return seat + 90 end)
panel:on("SeatSpreadToWas", function(seat)
  if seat == 91 then error("stop") end
  panel:AvailableSeatsAre { true }
end)
for _, k in ipairs { 3, 1 } do pcall(function() box(k):click() end) end
--> focus checkSeatSelected(1) -> checkSeatSelected(3)
--> SpreadSeatBoxes.checkSeatSelected(3): Value 1 -> 0
--> SeatSpreadToWas(-3)
-->   gives 87
-->   paneledSeatBoxes: NumberOfSeatsAllowed Seat2WasSelected -> Seat1WasSelected
-->   SpreadSeatBoxes: NumberOfSeatsAllowed Seat2WasSelected -> Seat1WasSelected
--> focus checkSeatSelected(3) -> checkSeatSelected(1)
--> SpreadSeatBoxes.checkSeatSelected(1): Value 0 -> 1
--> SeatSpreadToWas(Seat1WasSelected)
-->   gives 91
--> fails as the handler did
-- Whether the button is shown is saved, but no reason to save.
panel:save()
--> saves nothing
panel:save(true)
--> saves DoneButtonIsVisible Boolean True
panel.DoneButtonIsVisible = "False"
--> commandDoneButton: Visible True -> False
--> paneledSeatBoxes: DoneButtonIsVisible True -> False
print(panel.DoneButtonIsVisible, done:click())
--> prints false false
local saved = panel:save()
--> saves DoneButtonIsVisible Boolean False
-- Nothing else is saved, and the host's colours are not followed.
panel.ambient.ForeColor = 0x00654321
for _, stored in ipairs { {}, saved, { DoneButtonIsVisible = "maybe" } } do
  pcall(zilvo.create, "paneledSeatBoxes", { bag = stored, ambient = { ForeColor = 0x00654321 } })
end
--> created paneledSeatBoxes 2
--> created paneledSeatBoxes 3
--> commandDoneButton: Visible True -> False
--> paneledSeatBoxes: DoneButtonIsVisible True -> False
--> created paneledSeatBoxes 4
--> fails: type mismatch: paneledSeatBoxes.ReadProperties: DoneButtonIsVisible: "maybe" (String) does not convert to Boolean

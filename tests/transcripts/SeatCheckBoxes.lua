-- A host lets the player tick the seats to which he spreads, round his own.
local boxes = zilvo.create("SeatCheckBoxes")
--> created SeatCheckBoxes
--> SeatCheckBoxes: NumberOfSeatsAllowed Seat7WasSelected
--> surface: BackColor 0x8000000F, ForeColor 0x80000008, Width 1800, Height 1740, ScaleWidth 1800, ScaleHeight 1740
--> buttonSeatOwner: OptionButton, Value True, Caption "?", BackColor 0x8000000F, ForeColor 0x80000012, Font "Comic Sans MS 8.25 bold", Left 720, Top 480, Width 380, Height 240, Visible False, TabIndex 11
--> frameSeatSpread: Threed.SSFrame, Caption "Spread To", BackColor 0x8000000F, ForeColor 0x80000012, Font "Comic Sans MS 9.75", Width 1780, Height 1700
--> checkSeatSelected(1): CheckBox in frameSeatSpread, Caption "1", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 1300, Top 360, Width 375, Height 195, Enabled False, TabIndex 10
--> checkSeatSelected(2): CheckBox in frameSeatSpread, Caption "2", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 1200, Top 620, Width 375, Height 195, Enabled False, TabIndex 1
--> checkSeatSelected(3): CheckBox in frameSeatSpread, Caption "3", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 1100, Top 880, Width 375, Height 195, Enabled False, TabIndex 2
--> checkSeatSelected(4): CheckBox in frameSeatSpread, Caption "4", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 660, Top 1100, Width 375, Height 195, Enabled False, TabIndex 3
--> checkSeatSelected(5): CheckBox in frameSeatSpread, Caption "5", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 310, Top 880, Width 375, Height 195, Enabled False, TabIndex 4
--> checkSeatSelected(6): CheckBox in frameSeatSpread, Caption "6", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 210, Top 620, Width 375, Height 195, Enabled False, TabIndex 5
--> checkSeatSelected(7): CheckBox in frameSeatSpread, Caption "7", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 110, Top 360, Width 375, Height 195, Enabled False, TabIndex 6
--> checkSeatSelected(8): CheckBox in frameSeatSpread, Caption "8", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 1000, Top 1140, Width 375, Height 195, Enabled False, TabIndex 8
--> checkSeatSelected(9): CheckBox in frameSeatSpread, Caption "9", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 150, Top 1400, Width 375, Height 195, Enabled False, TabIndex 7
--> checkSeatSelected(10): CheckBox in frameSeatSpread, Caption "10", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 1100, Top 1400, Width 495, Height 195, Enabled False, TabIndex 9
local function box(k) return boxes:widget("checkSeatSelected", k) end
local function setSeats(seats) boxes:AvailableSeatsAre(seats) end
-- Only a box that is free can be ticked; each tick and untick is told at once.
setSeats { true, false, true, false, false, false, true }
--> checkSeatSelected(1): Enabled False -> True
--> checkSeatSelected(3): Enabled False -> True
--> checkSeatSelected(7): Enabled False -> True
for _, k in ipairs { 3, 3, 2, 7 } do box(k):click() end
--> focus none -> checkSeatSelected(3)
--> checkSeatSelected(3): Value 0 -> 1
--> SeatSpreadToWas(Seat3WasSelected)
--> checkSeatSelected(3): Value 1 -> 0
--> SeatSpreadToWas(-3)
--> focus checkSeatSelected(3) -> checkSeatSelected(7)
--> checkSeatSelected(7): Value 0 -> 1
--> SeatSpreadToWas(Seat7WasSelected)
-- Other free seats: their boxes are cleared; those above keep what they have, and element 0 means nothing.
setSeats { [0] = true, false, false, true, false, false, false }
--> checkSeatSelected(1): Enabled True -> False
--> SeatCheckBoxes: NumberOfSeatsAllowed Seat7WasSelected -> Seat6WasSelected
setSeats(zilvo.array(0, { true, true, false, true, false, false, false, false }))
--> checkSeatSelected(1): Enabled False -> True
--> checkSeatSelected(7): Value 1 -> 0
--> SeatCheckBoxes: NumberOfSeatsAllowed Seat6WasSelected -> Seat7WasSelected
--> SeatSpreadToWas(-7)
--> focus checkSeatSelected(7) -> none
--> checkSeatSelected(7): Enabled True -> False
setSeats(zilvo.array(-2, { true, true }))
--> SeatCheckBoxes: NumberOfSeatsAllowed Seat7WasSelected -> -1
-- Arrays that cannot be read to their end.
local many = {}
for k = 1, 32768 do many[k] = k == 1 or k == 3 or k == 10 end
box(1).Value = 2
--> checkSeatSelected(1): Value 0 -> 2
--> SeatSpreadToWas(Seat1WasSelected)
for _, list in ipairs { {}, zilvo.array(2, { true }), many, { table.unpack(many, 1, 11) } } do pcall(setSeats, list) end
--> fails: subscript out of range: SeatCheckBoxes.AvailableSeatsAre: the array has no elements
--> checkSeatSelected(1): Value 2 -> 0
--> SeatCheckBoxes: NumberOfSeatsAllowed -1 -> Seat2WasSelected
--> SeatSpreadToWas(-1)
--> fails: subscript out of range: SeatCheckBoxes.AvailableSeatsAre: there is no element 1 in an array from 2 to 2
--> SeatCheckBoxes: NumberOfSeatsAllowed Seat2WasSelected -> 32768
--> fails: overflow: SeatCheckBoxes.AvailableSeatsAre: TableSeat's upper bound: 32768 (Long) is out of the range of Integer
--> checkSeatSelected(10): Enabled False -> True
--> SeatCheckBoxes: NumberOfSeatsAllowed 32768 -> 11
--> fails: missing element: SeatCheckBoxes.AvailableSeatsAre: checkSeatSelected has no element 11
-- A handler changes the seat that it is given, answers with other seats, or fails.
for _, k in ipairs { 1, 3 } do box(k).Value = 1 end
--> checkSeatSelected(1): Value 0 -> 1
--> SeatSpreadToWas(Seat1WasSelected)
--> checkSeatSelected(3): Value 0 -> 1
--> SeatSpreadToWas(Seat3WasSelected)
local connection = boxes:on("SeatSpreadToWas", function(seat)
  if seat == -3 then error("stop") end
  setSeats { false, false }
  return 99
end)
pcall(setSeats, { true, true, false, false })
--> checkSeatSelected(1): Value 1 -> 0
--> SeatCheckBoxes: NumberOfSeatsAllowed 11 -> Seat4WasSelected
--> SeatSpreadToWas(-1)
-->   checkSeatSelected(1): Enabled True -> False
-->   SeatCheckBoxes: NumberOfSeatsAllowed Seat4WasSelected -> Seat2WasSelected
-->   gives 99
--> checkSeatSelected(1): Enabled False -> True
--> checkSeatSelected(2): Enabled False -> True
--> checkSeatSelected(3): Value 1 -> 0
--> SeatSpreadToWas(-3)
--> fails as the handler did
connection:disconnect()
-- The marker lies over the player's own box and takes its clicks.
local function point(x, y) return boxes:press(x, y) and boxes:release(x, y) end
for _, seat in ipairs { 1, 2, 4, 8, 10, 3 } do boxes:MySeatIS(seat) end
--> buttonSeatOwner: Caption "?" -> "1", Left 720 -> 1340, Top 480 -> 360, Visible False -> True, Caption "1" -> "2", Left 1340 -> 1240, Top 360 -> 620, Caption "2" -> "4", Left 1240 -> 700, Top 620 -> 1100, Caption "4" -> "8", Left 700 -> 1040, Top 1100 -> 1140, Caption "8" -> "10", Left 1040 -> 1140, Top 1140 -> 1400, Caption "10" -> "3", Top 1400 -> 880
point(1300, 950)
--> focus none -> buttonSeatOwner
point(1120, 950)
--> focus buttonSeatOwner -> checkSeatSelected(3)
--> checkSeatSelected(3): Value 0 -> 1
--> SeatSpreadToWas(Seat3WasSelected)
for _, seat in ipairs { 5, 6, 7, 9 } do boxes:MySeatIS(seat) end
--> buttonSeatOwner: Caption "3" -> "5", Left 1140 -> 310, Caption "5" -> "6", Left 310 -> 210, Top 880 -> 620, Caption "6" -> "7", Left 210 -> 110, Top 620 -> 360, Caption "7" -> "9", Left 110 -> 150, Top 360 -> 1400
for _, none in ipairs { 0, 11, -1 } do
  boxes:MySeatIS(none)
  boxes:MySeatIS(9)
end
--> buttonSeatOwner: Visible True -> False, Visible False -> True, Visible True -> False, Visible False -> True, Visible True -> False, Visible False -> True
-- Where a box was moved to is rounded, or is too far.
local function mark(k, left, top)
  box(k).Left = left
  box(k).Top = top
  boxes:MySeatIS(k)
end
mark(9, 151.5, 1400.5)
--> checkSeatSelected(9): Left 150 -> 151.5, Top 1400 -> 1400.5
--> buttonSeatOwner: Left 150 -> 152
pcall(mark, 5, 310, 32768)
--> checkSeatSelected(5): Top 880 -> 32768
--> fails: overflow: SeatCheckBoxes.MySeatIS: 32768 (Single) is out of the range of Integer
-- Keys go round the boxes that are free, and the marker.
for _, key in ipairs { "Tab", "Tab", "Tab", "Tab", "Tab", "Shift+Tab", "Space" } do boxes:keydown(key) end
--> focus checkSeatSelected(3) -> checkSeatSelected(10), checkSeatSelected(10) -> checkSeatSelected(1), checkSeatSelected(1) -> buttonSeatOwner, buttonSeatOwner -> checkSeatSelected(2), checkSeatSelected(2) -> checkSeatSelected(3), checkSeatSelected(3) -> checkSeatSelected(2)
--> checkSeatSelected(2): Value 0 -> 1
--> SeatSpreadToWas(Seat2WasSelected)
-- The number of seats is the host's to say.
boxes.NumberOfSeatsAllowed = -2147483648
--> SeatCheckBoxes: NumberOfSeatsAllowed Seat2WasSelected -> -2147483648
boxes:invoke(0x68030000, "put", 11)
--> SeatCheckBoxes: NumberOfSeatsAllowed -2147483648 -> 11
-- One that is loaded reads no setting, takes the host's colours once, and shows the boxes of seven seats.
boxes = zilvo.create("SeatCheckBoxes", {
  bag = { NumberOfSeatsAllowed = 3 }, ambient = { BackColor = 0x00123456, ForeColor = 0x00654321 },
})
--> created SeatCheckBoxes 2
--> frameSeatSpread: Height 1700 -> 1400
--> surface: Height 1740 -> 2385, ScaleHeight 1740 -> 2385
--> size 1800 x 2385
--> checkSeatSelected(8): Visible True -> False
--> checkSeatSelected(9): Visible True -> False
--> checkSeatSelected(10): Visible True -> False
--> surface: BackColor 0x8000000F -> 0x00123456, ForeColor 0x80000008 -> 0x00654321
setSeats { false, false, false, false, false, false, false, true }
--> checkSeatSelected(8): Enabled False -> True, Visible False -> True
--> SeatCheckBoxes: NumberOfSeatsAllowed Seat7WasSelected -> Seat8WasSelected
boxes.ambient.BackColor, boxes.ambient.ForeColor, boxes.ambient.UserMode = 0x00FFFFFF, 0, false
boxes.extender.Height = 900
--> surface: Height 2385 -> 900, ScaleHeight 2385 -> 900
--> size 1800 x 900
boxes:save(true)
--> saves nothing

-- A host lets the user pick one of seven seats, and picks one itself.
local seats = zilvo.create("PlayerButtons")
--> created PlayerButtons
--> surface: BackColor 0x8000000F, ForeColor 0x80000008, Width 11730, Height 660, ScaleWidth 11730, ScaleHeight 660
--> panelPlayerSeatButtons: Threed.SSPanel, BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Top 20, Width 11700, Height 615
--> optPlayerSeatSelector(1): OptionButton in panelPlayerSeatButtons, Caption "Seat &1", BackColor 0x00C0C0C0, ForeColor 0x0000FFFF, Font "MS Sans Serif 9.75 bold", Left 10270, Top 200, Width 1000, Height 240, TabIndex 1
--> optPlayerSeatSelector(2): OptionButton in panelPlayerSeatButtons, Caption "Seat &2", BackColor 0x00C0C0C0, ForeColor 0x0000FFFF, Font "MS Sans Serif 9.75 bold", Left 8400, Top 200, Width 1000, Height 240, TabIndex 2
--> optPlayerSeatSelector(3): OptionButton in panelPlayerSeatButtons, Caption "Seat &3", BackColor 0x00C0C0C0, ForeColor 0x0000FFFF, Font "MS Sans Serif 8.25", Left 6750, Top 200, Width 1000, Height 195, TabIndex 3
--> optPlayerSeatSelector(4): OptionButton in panelPlayerSeatButtons, Caption "Seat &4", BackColor 0x00C0C0C0, ForeColor 0x0000FFFF, Font "MS Sans Serif 8.25", Left 5030, Top 200, Width 1000, Height 195, TabIndex 4
--> optPlayerSeatSelector(5): OptionButton in panelPlayerSeatButtons, Caption "Seat &5", BackColor 0x00C0C0C0, ForeColor 0x0000FFFF, Font "MS Sans Serif 8.25", Left 3400, Top 200, Width 1000, Height 195, TabIndex 5
--> optPlayerSeatSelector(6): OptionButton in panelPlayerSeatButtons, Caption "Seat &6", BackColor 0x00C0C0C0, ForeColor 0x0000FFFF, Font "MS Sans Serif 8.25", Left 1820, Top 200, Width 1000, Height 195, TabIndex 6
--> optPlayerSeatSelector(7): OptionButton in panelPlayerSeatButtons, Caption "Seat &7", BackColor 0x00C0C0C0, ForeColor 0x0000FFFF, Font "MS Sans Serif 8.25", Left 250, Top 200, Width 1000, Height 195, TabIndex 7
local function seat(k) return seats:widget("optPlayerSeatSelector", k) end
-- Every pick of another seat is told; what is no seat means seat 1.
for _, k in ipairs { 6, 6 } do seat(k):click() end
--> focus none -> optPlayerSeatSelector(6)
--> optPlayerSeatSelector(6): Value False -> True
--> PlayerSeatSelected(6)
print(seats:SelectButton(4.5))
--> optPlayerSeatSelector(4): Value False -> True
--> optPlayerSeatSelector(6): Value True -> False
--> PlayerSeatSelected(4)
--> prints 4.5
for _, k in ipairs { 4, 0, 1, 7, 8, -32768 } do seats:SelectButton(k) end
--> optPlayerSeatSelector(1): Value False -> True
--> optPlayerSeatSelector(4): Value True -> False
--> PlayerSeatSelected(1)
--> optPlayerSeatSelector(1): Value True -> False
--> optPlayerSeatSelector(7): Value False -> True
--> PlayerSeatSelected(7)
--> optPlayerSeatSelector(1): Value False -> True
--> optPlayerSeatSelector(7): Value True -> False
--> PlayerSeatSelected(1)
-- The seats that may be picked; one that may not can stay picked, and be picked by the host.
seats:SetupTheRadioButtons { true, true, false, false, true, true, true }
--> optPlayerSeatSelector(3): Enabled True -> False
--> optPlayerSeatSelector(4): Enabled True -> False
seats:SetupTheRadioButtons { [0] = true, false, true, true }
--> optPlayerSeatSelector(1): Enabled True -> False
--> optPlayerSeatSelector(3): Enabled False -> True
seat(5).Visible = false
--> optPlayerSeatSelector(5): Visible True -> False
print(seat(1).Value, seat(1):click(), seat(4):click(), seat(5):click())
--> prints true false false false
seats:SelectButton(4)
--> optPlayerSeatSelector(1): Value True -> False
--> optPlayerSeatSelector(4): Value False -> True
--> PlayerSeatSelected(4)
for _, key in ipairs { "Tab", "Left", "Alt+4", "Alt+5", "Alt+6", "Tab", "Space" } do seats:keydown(key) end
--> focus optPlayerSeatSelector(6) -> optPlayerSeatSelector(2), optPlayerSeatSelector(2) -> optPlayerSeatSelector(7)
--> optPlayerSeatSelector(4): Value True -> False
--> optPlayerSeatSelector(7): Value False -> True
--> PlayerSeatSelected(7)
--> focus optPlayerSeatSelector(7) -> optPlayerSeatSelector(6)
--> optPlayerSeatSelector(6): Value False -> True
--> optPlayerSeatSelector(7): Value True -> False
--> PlayerSeatSelected(6)
-- Arrays that cannot be read to their end.
local many = {}
for k = 1, 32768 do many[k] = k ~= 7 end
for _, array in ipairs { {}, zilvo.array(2, { true }), many, { table.unpack(many, 1, 8) }, { [0] = true } } do
  pcall(seats.SetupTheRadioButtons, seats, array)
end
--> fails: subscript out of range: PlayerButtons.SetupTheRadioButtons: the array has no elements
--> fails: subscript out of range: PlayerButtons.SetupTheRadioButtons: there is no element 1 in an array from 2 to 2
--> fails: overflow: PlayerButtons.SetupTheRadioButtons: RadioButton's upper bound: 32768 (Long) is out of the range of Integer
--> optPlayerSeatSelector(1): Enabled False -> True
--> optPlayerSeatSelector(4): Enabled False -> True
--> optPlayerSeatSelector(7): Enabled True -> False
--> fails: missing element: PlayerButtons.SetupTheRadioButtons: optPlayerSeatSelector has no element 8
-- A handler changes the seat that it is given, picks another, or fails.
seats:on("PlayerSeatSelected", function(k)
  if k == 4 then error("stop") end
  if k == 3 then seats:SelectButton(1) end
  return 99
end)
print(seats:SelectButton(3))
--> optPlayerSeatSelector(3): Value False -> True
--> optPlayerSeatSelector(6): Value True -> False
--> PlayerSeatSelected(3)
-->   optPlayerSeatSelector(1): Value False -> True
-->   optPlayerSeatSelector(3): Value True -> False
-->   PlayerSeatSelected(1)
-->     gives 99
-->   gives 99
--> prints 3
pcall(seats.invoke, seats, 0x60030001, "method", 4)
--> optPlayerSeatSelector(1): Value True -> False
--> optPlayerSeatSelector(4): Value False -> True
--> PlayerSeatSelected(4)
--> fails as the handler did
-- Nothing is saved, and the host's colours are not followed.
seats:save(true)
--> saves nothing
seats = zilvo.create("PlayerButtons", { bag = {}, ambient = { BackColor = 0x00123456 } })
--> created PlayerButtons 2
seats.ambient.ForeColor = 0x00654321

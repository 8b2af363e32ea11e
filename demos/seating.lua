-- A table for seven: a player sits down by pointer, then spreads to two more seats; the host answers which seats are
-- free and folds the seats that he plays into a descriptor.
local free = { true, false, true, true, false, true, true }
local played = zilvo.Integer(0)

local function show(descriptor)
  local seats = {}
  for seat = 1, 7 do
    if SeatBitIsSet(descriptor, seat) then seats[#seats + 1] = seat end
  end
  return #seats == 0 and "none" or table.concat(seats, ", ")
end

-- A real press and release in the middle of a widget, at its place on the control.
local function point(control, ...)
  local x, y = 0, 0
  for _, widget in ipairs { ... } do
    x, y = x + widget.Left, y + widget.Top
  end
  local last = select(-1, ...)
  x, y = x + last.Width / 2, y + last.Height / 2
  control:press(x, y)
  control:release(x, y)
end

print("The player sits down")
local sit = zilvo.create("SitDownButton")
sit:on("TellMeWhichSeatsAreAvailable", function()
  print("  the control asks which seats are free")
  sit:AvailableSeatsAre(free)
end)
local own
sit:on("SeatSelectedWas", function(seat) own = seat end)
point(sit, sit:widget("panelSitdown"), sit:widget("cmdSitDown"))
point(sit, sit:widget("frameSeatSelector"), sit:widget("optSeatSelected", 2))
assert(own == nil, "seat 2 is taken")
point(sit, sit:widget("frameSeatSelector"), sit:widget("optSeatSelected", 4))
assert(own == Seat4WasSelected and not sit:widget("frameSeatSelector").Visible)
played = SeatBitSet(played, own)
free[own] = false
print("  he sits at seat " .. own)

print("He spreads to two more")
local spread = zilvo.create("paneledSeatBoxes", { bag = {} })
spread:AvailableSeatsAre(free)
spread:MySeatIS(own)
spread:on("SeatSpreadToWas", function(seat)
  played = seat > 0 and SeatBitSet(played, seat) or SeatBitReset(played, -seat)
  print("  " .. (seat > 0 and "adds" or "withdraws") .. " seat " .. math.abs(seat))
end)
local done = false
spread:on("DoneButtonWasClicked", function() done = true end)

local panel, boxes = spread:widget("panelSpreadTO"), spread:widget("SpreadSeatBoxes")
local function tick(seat)
  point(spread, panel, boxes, boxes:widget("frameSeatSpread"), boxes:widget("checkSeatSelected", seat))
end
tick(3)
tick(6)
tick(7)
tick(7)
tick(4) -- his own: disabled, and covered by the marker
point(spread, panel, spread:widget("commandDoneButton"))
assert(done)

print("He plays seats " .. show(played) .. ", descriptor " .. played)
assert(show(played) == "3, 4, 6")

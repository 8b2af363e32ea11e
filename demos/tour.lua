-- A walk through all seventeen controls: first everything that the OK/Cancel pair can do (created new and loaded,
-- clicked, typed to, changed, saved, loaded again and drawn), then a few steps with each of the others. Every event is
-- printed as it arrives. The name of the picture may be given: ./run demos/tour.lua FILE.svg
local picture = ... or "ssOKCancel.svg"

-- A control whose events are printed under its name, with their arguments.
local events = {}
for _, class in ipairs(zilvo.describe().classes) do
  events[class.name] = class.events and class.events.members or {}
end
local function create(class, options)
  local control = zilvo.create(class, options)
  for _, event in ipairs(events[class]) do
    control:on(event.name, function(...)
      print(string.format("    %s: %s(%s)", class, event.name, table.concat({ ... }, ", ")))
    end)
  end
  return control
end

local function state(control)
  return string.format("OK enabled %s, default %s, italic %s; Cancel is cancel button %s, italic %s",
    control.OKEnabled, control.Default, control.ItalicOK, control.Cancel, control.ItalicCancel)
end

print("A new OK/Cancel pair")
local new = create("ssOKCancel")
print("  " .. state(new))
print("  a click on the disabled OK button does anything: " .. tostring(new:widget("cmdOK"):click()))
print("  Enter and Escape:")
new:key(13)
new:key(27)
new.OKEnabled = true
print("  enabled, a click on OK and one on Cancel:")
new:widget("cmdOK"):click()
new:widget("cmdCancel"):click()
print("  a real pointer on OK, and Cancel's access key:")
new:press(700, 500)
new:release(700, 500)
new:keydown("Alt+C")

print("Changing its settings")
new.Default = false
new.ItalicOK = true
new.OKToolTipText = "Take it"
new.CancelToolTipText = "Leave it"
print("  reported as changed: " .. table.concat(new.changes, ", "))
local bag, kinds = new:save()
for _, key in ipairs { "Default", "Cancel", "ItalicOK", "ItalicCancel", "OKToolTipText", "CancelToolTipText" } do
  print(string.format("  saved %-18s %s", key, bag[key] == nil and "(left out, it is the default)"
    or kinds[key] .. " " .. tostring(bag[key])))
end

print("Loaded from what was saved")
local loaded = create("ssOKCancel", { bag = bag })
print("  " .. state(loaded))
assert(loaded.Default == false and loaded.ItalicOK == true and loaded.CancelToolTipText == "Leave it")
loaded:SetDefaultDefaults()
loaded:keydown("Enter")

print("Loaded from an empty bag")
print("  " .. state(create("ssOKCancel", { bag = {} })))

print("What goes wrong is said")
local ok, failure = pcall(zilvo.create, "ssOKCancel", { bag = { Default = "perhaps" } })
print("  " .. failure.name .. ": " .. failure.message)
ok, failure = pcall(function() new.OKCaption = "Yes" end)
print("  " .. failure.name .. ": " .. failure.message)
assert(not ok)

print("START and STOP take turns")
local pair = create("StartStopButtons", { bag = {} })
assert(not pair:widget("StopButton"):click())
pair:widget("StartButton"):click()
pair:widget("StopButton"):click()

print("A vertical OK with a caption and a font of the host's")
local vertical = create("verticalOK")
vertical.Caption = "Go"
vertical.Font.Size = 7
vertical:widget("commandVerticalOK"):click()

print("The GO button takes six shapes, bare or on panels")
local go, paneled = create("GOButton"), create("paneledGOButton")
go.GOButtonShape = GOButtonIsARoundedSquare
paneled.GOButtonShape = GOButtonIsACircle
ok, failure = pcall(function() paneled.GOButtonShape = 6 end)
print("  " .. failure.message)
assert(not ok and paneled.GOButtonShape == GOButtonIsACircle)

print("Switch Cards reports every click")
create("SwitchCardsButton"):widget("commandSwitch"):click()

print("Plus and minus take turns")
local mode = create("PlusMinusButton")
mode:widget("ImagePlusMinus", aPlusButton):click()
mode:RestartYourself()

print("A letter in a ring")
local letter = create("LetterButton")
letter.Letter, letter.LetterLeft = "Queen", 7
print("  " .. letter.Letter .. " at " .. letter.LetterLeft)

print("Where cards go")
local cards = create("GamingCardSelection")
cards:widget("GamingCardButtons", theCardsToShoeWasSelected):click()
cards:SelectThisButton(theCardsToTableAreaWasSelected)
cards:widget("chkXButton", 0):click()
print("  still shown: " .. tostring(cards.extender.Visible))

print("Seats: one to sit on, others to spread to, a row to pick from")
local free = { true, false, true, true, true, true, false }
local sit = create("SitDownButton")
sit:on("TellMeWhichSeatsAreAvailable", function() sit:AvailableSeatsAre(free) end)
sit:widget("cmdSitDown"):click()
sit:widget("optSeatSelected", 4):click()
for _, case in ipairs { { "SeatCheckBoxes" }, { "paneledSeatBoxes", "commandDoneButton" } } do
  local class, button = case[1], case[2]
  local boxes = create(class)
  boxes:AvailableSeatsAre(free)
  boxes:MySeatIS(SpreadToSeat4Requested)
  local inner = button and boxes:widget("SpreadSeatBoxes") or boxes
  inner:widget("checkSeatSelected", 5):click()
  if button then boxes:widget(button):click() end
end
local spread = create("SpreadSeatButtons")
spread:on("TellMeWhichSeatsAreAvailable", function() spread:AvailableSeatsAre(free) end)
spread:widget("commandSpreadToSeats"):click()
spread:widget("SpreadSeatBoxes"):widget("checkSeatSelected", 6):click()
local player = create("PlayerButtons")
player:SetupTheRadioButtons(free)
player:SelectButton(3)
player:keydown("Alt+5")
print("  seats 4 and 5 as bits: " .. SeatBitSet(SeatBitSet(0, 4), 5))

print("The table's set-up: decks, shuffle, a count of cards")
local decks = create("DeckButtons")
decks:press(7900, 800, 2)
for _, key in ipairs { "Down", "Right", "V" } do decks:keydown(key) end
local shuffle = create("CardShufflingOptions")
shuffle.CardShuffleMethod = RandomShuffleGeneric
local counter = create("SpinCounter")
counter:widget("SpinButton"):spin("up")
counter.ControlHandedness = BottomMountSpinCounter

loaded.OKEnabled = true
loaded:snapshot(picture)
print("The picture is in " .. picture)

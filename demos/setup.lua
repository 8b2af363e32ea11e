-- Sets a table up: how many decks, by casino; how they are shuffled; how many cards are in a stack. Saves all of it
-- and loads it again.
local decks = zilvo.create("DeckButtons")
decks:on("NumberOfDecksChanged", function(count) print("  " .. count .. " decks") end)
print("Decks, by casino")
decks:press(7900, 800, 2) -- the right button, on the panel
decks:release(7900, 800, 2)
assert(decks.popup.Caption == "DeckButton Defaults Menu")
for _, key in ipairs { "Down", "Right", "V" } do decks:keydown(key) end -- Las Vegas Strip
assert(decks.NumberOfDecks == 6 and decks:widget("menuCasinoDefaults", 20).Checked)
decks:widget("menuCasinoDefaults", 30):click() -- Reno
decks.NumberOfDecks = 3
print("  three decks are refused with a beep; beeps so far: " .. zilvo.beeps)
assert(zilvo.beeps == 1 and decks.NumberOfDecks == 1)

print("The shuffle")
local shuffle = zilvo.create("CardShufflingOptions")
shuffle:on("CardShuffleMethodChanged", function(method) print("  method " .. method) end)
shuffle.CardShuffleMethod = StraightThruGeneric
shuffle:widget("optCardShuffleMethod", RandomShuffleGeneric):click()
assert(shuffle.CardShuffleMethod == StraightThruGeneric) -- a click is reported, not stored

print("Cards in a stack")
local counter = zilvo.create("SpinCounter")
counter:on("CounterValueHasChanged", function(count) print("  " .. count) end)
counter.MaximumLimit = 52
counter.CounterValue = 51
counter:widget("SpinButton"):spin("up")
counter:widget("SpinButton"):spin("up")
counter:widget("SpinButton"):spin("down")
counter.ControlHandedness = LeftHandSpinCounter

print("Saved and loaded again")
local function reload(class, control)
  local bag, kinds = control:save()
  for key, value in pairs(bag) do
    print(string.format("  %s.%s = %s %s", class, key, kinds[key], tostring(value)))
  end
  return zilvo.create(class, { bag = bag })
end
local again = reload("SpinCounter", counter)
assert(again.CounterValue == 51 and again.MaximumLimit == 52 and again.ControlHandedness == LeftHandSpinCounter)
assert(again:widget("labelCardsInStack").Caption == "(051)")
assert(reload("CardShufflingOptions", shuffle).CardShuffleMethod == StraightThruGeneric)
assert(next((decks:save())) == nil and reload("DeckButtons", decks).NumberOfDecks == 1)

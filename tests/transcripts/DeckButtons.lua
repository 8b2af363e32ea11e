-- A host lets the player choose how many decks the table has.
local decks = zilvo.create("DeckButtons")
--> created DeckButtons
--> DeckButtons: NumberOfDecks 1, ObjectWidth WideObject
--> surface: BackColor 0x8000000F, ForeColor 0x80000008, Width 8115, Height 930, ScaleWidth 541, ScaleHeight 62
--> panelDeckCount: Threed.SSPanel, Caption "# of Decks", BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "Arial 9.75 bold", Width 541, Height 62, ToolTipText "Number of Decks in Play.  Greater than 2 decks denotes a \"Shoe\" game."
--> optDeckCount(1): OptionButton in panelDeckCount, Value True, Caption "&1 Deck", BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "Arial 8.25 bold", Left 120, Top 275, Width 1050, Height 255, ToolTipText "Single-Deck - Handheld", TabIndex 1
--> optDeckCount(2): OptionButton in panelDeckCount, Caption "&2 Decks", BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "Arial 8.25 bold", Left 1320, Top 275, Width 1050, Height 255, ToolTipText "Double-Deck - Handheld", TabIndex 2
--> optDeckCount(4): OptionButton in panelDeckCount, Caption "&4 Decks", BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "Arial 8.25 bold", Left 2640, Top 275, Width 1050, Height 255, ToolTipText "4-Deck Shoe", TabIndex 3
--> optDeckCount(5): OptionButton in panelDeckCount, Caption "5 Decks", BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "Arial 8.25 bold", Left 3960, Top 275, Width 1050, Height 255, ToolTipText "5-Deck (QuickDraw) Game.", TabIndex 4
--> optDeckCount(6): OptionButton in panelDeckCount, Caption "&6 Decks", BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "Arial 8.25 bold", Left 5250, Top 275, Width 1050, Height 255, ToolTipText "6-Deck Shoe", TabIndex 5
--> optDeckCount(8): OptionButton in panelDeckCount, Caption "&8 Decks", BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "Arial 8.25 bold", Left 6600, Top 275, Width 1050, Height 255, ToolTipText "8-Deck Shoe", TabIndex 6
--> optDeckCount(10): OptionButton in panelDeckCount, Caption "10 Decks", BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "Arial 8.25 bold", Left 3960, Top 560, Width 1050, Height 255, Enabled False, ToolTipText "10-Deck Shoe - BAC Only", TabIndex 7
--> optDeckCount(12): OptionButton in panelDeckCount, Caption "12 Decks", BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "Arial 8.25 bold", Left 5250, Top 560, Width 1050, Height 255, Enabled False, ToolTipText "The old 6-Deck Dual-Shoe Game.", TabIndex 8
--> optDeckCount(7): OptionButton in panelDeckCount, Caption "7 Decks", BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "Arial 8.25 bold", Left 1320, Top 560, Width 1050, Height 255, Enabled False, ToolTipText "10-Deck Shoe - BAC Only", TabIndex 9
--> optDeckCount(9): OptionButton in panelDeckCount, Caption "&9 Decks", BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "Arial 8.25 bold", Left 2640, Top 560, Width 1050, Height 255, Enabled False, ToolTipText "10-Deck Shoe - BAC Only", TabIndex 10
--> menuDefaultMenu: Menu, Caption "DeckButton Defaults Menu"
--> menuLikelyDefaults: Menu in menuDefaultMenu, Caption "Defaults (likely)"
--> menuCasinoDefaults(0): Menu in menuLikelyDefaults, Caption "Reset &Deck Buttons"
--> menuCasinoDefaults(1): Menu in menuLikelyDefaults, Caption "-"
--> menuCasinoDefaults(10): Menu in menuLikelyDefaults, Caption "&Atlantic City"
--> menuCasinoDefaults(11): Menu in menuLikelyDefaults, Caption "-"
--> menuCasinoDefaults(20): Menu in menuLikelyDefaults, Caption "Las &Vegas Strip"
--> menuCasinoDefaults(21): Menu in menuLikelyDefaults, Caption "-"
--> menuCasinoDefaults(25): Menu in menuLikelyDefaults, Caption "Las Vegas (Do&wntown)"
--> menuCasinoDefaults(26): Menu in menuLikelyDefaults, Caption "-"
--> menuCasinoDefaults(30): Menu in menuLikelyDefaults, Caption "&Reno"
--> menuCasinoDefaults(31): Menu in menuLikelyDefaults, Caption "-"
--> menuCasinoDefaults(40): Menu in menuLikelyDefaults, Caption "Lake &Tahoe"
--> menuCasinoDefaults(41): Menu in menuLikelyDefaults, Caption "-"
--> menuCasinoDefaults(50): Menu in menuLikelyDefaults, Caption "&Laughlin"
--> menuCasinoDefaults(51): Menu in menuLikelyDefaults, Caption "-"
--> menuCasinoDefaults(60): Menu in menuLikelyDefaults, Caption "River&Boats"
--> menuCasinoDefaults(61): Menu in menuLikelyDefaults, Caption "-"
--> menuCasinoDefaults(70): Menu in menuLikelyDefaults, Caption "&Cruise Ships"
local function deck(k) return decks:widget("optDeckCount", k) end
local function casino(k) return decks:widget("menuCasinoDefaults", k) end
-- The host selects any count, greyed out or not; 0 deselects all but 7 and 9; what has no button beeps.
for _, count in ipairs { 10, 0, 12, 12, 0, 7, 0, 1 } do decks.NumberOfDecks = count end
--> optDeckCount(1): Value True -> False
--> optDeckCount(10): Value False -> True
--> DeckButtons: NumberOfDecks 1 -> 10
--> NumberOfDecksChanged(10)
--> optDeckCount(10): Value True -> False
--> optDeckCount(12): Value False -> True
--> DeckButtons: NumberOfDecks 10 -> 12
--> NumberOfDecksChanged(12)
--> optDeckCount(12): Value True -> False
--> optDeckCount(7): Value False -> True
--> DeckButtons: NumberOfDecks 12 -> 7
--> NumberOfDecksChanged(7)
--> optDeckCount(1): Value False -> True
--> optDeckCount(7): Value True -> False
--> DeckButtons: NumberOfDecks 7 -> 1
--> NumberOfDecksChanged(1)
for _, count in ipairs { 3, 11, 13, -1 } do decks:invoke(0x68030001, "put", count) end
--> beep
--> beep
--> beep
--> beep
local function set(name, value) decks[name] = value end
pcall(set, "NumberOfDecks", 32768)
--> fails: overflow: DeckButtons.NumberOfDecks: 32768 (Long) is out of the range of Integer
-- Each casino selects its count and takes the check mark.
for _, k in ipairs { 10, 20, 25, 30, 40, 50, 60, 70, 70 } do
  if k <= 40 then decks:ResetButtons() end
  casino(k):click()
end
--> optDeckCount(1): Value True -> False
--> optDeckCount(8): Value False -> True
--> DeckButtons: NumberOfDecks 1 -> 8
--> NumberOfDecksChanged(8)
--> menuCasinoDefaults(10): Checked False -> True
--> optDeckCount(8): Value True -> False
--> menuCasinoDefaults(10): Checked True -> False
--> optDeckCount(6): Value False -> True
--> DeckButtons: NumberOfDecks 8 -> 6
--> NumberOfDecksChanged(6)
--> menuCasinoDefaults(20): Checked False -> True
--> optDeckCount(6): Value True -> False
--> menuCasinoDefaults(20): Checked True -> False
--> optDeckCount(2): Value False -> True
--> DeckButtons: NumberOfDecks 6 -> 2
--> NumberOfDecksChanged(2)
--> menuCasinoDefaults(25): Checked False -> True
--> optDeckCount(2): Value True -> False
--> menuCasinoDefaults(25): Checked True -> False
--> optDeckCount(1): Value False -> True
--> DeckButtons: NumberOfDecks 2 -> 1
--> NumberOfDecksChanged(1)
--> menuCasinoDefaults(30): Checked False -> True
--> optDeckCount(1): Value True -> False
--> menuCasinoDefaults(30): Checked True -> False
--> optDeckCount(2): Value False -> True
--> DeckButtons: NumberOfDecks 1 -> 2
--> NumberOfDecksChanged(2)
--> menuCasinoDefaults(40): Checked False -> True, Checked True -> False
--> optDeckCount(1): Value False -> True
--> optDeckCount(2): Value True -> False
--> DeckButtons: NumberOfDecks 2 -> 1
--> NumberOfDecksChanged(1)
--> menuCasinoDefaults(50): Checked False -> True, Checked True -> False
--> optDeckCount(1): Value True -> False
--> optDeckCount(6): Value False -> True
--> DeckButtons: NumberOfDecks 1 -> 6
--> NumberOfDecksChanged(6)
--> menuCasinoDefaults(60): Checked False -> True, Checked True -> False
--> optDeckCount(6): Value True -> False
--> optDeckCount(8): Value False -> True
--> DeckButtons: NumberOfDecks 6 -> 8
--> NumberOfDecksChanged(8)
--> menuCasinoDefaults(70): Checked False -> True, Checked True -> False, Checked False -> True
for _, k in ipairs { 0, 0, 70 } do casino(k):click() end
--> menuCasinoDefaults(70): Checked True -> False
--> optDeckCount(8): Value True -> False, Value False -> True
--> NumberOfDecksChanged(8)
--> menuCasinoDefaults(70): Checked False -> True
for _, k in ipairs { 80, 90 } do pcall(casino, k) end
--> fails: missing element: DeckButtons.menuCasinoDefaults(80) does not exist
--> fails: missing element: DeckButtons.menuCasinoDefaults(90) does not exist
print(casino(1):click(), decks:widget("menuLikelyDefaults"):click(), decks:widget("menuDefaultMenu"):click())
--> prints false false false
-- The right button pops them up, alone or with others, with Shift and Ctrl, but not over a count.
local function press(x, y, button, shift)
  decks:press(x, y, button, shift)
  decks:release(x, y, button)
end
for _, button in ipairs { 1, 4, 5 } do press(7900, 800, button) end
press(300, 350, 2)
press(7900, 800, 2, 3)
--> pop-up menuDefaultMenu
for _, key in ipairs { "Down", "Right", "A" } do decks:keydown(key) end
--> menuCasinoDefaults(70): Checked True -> False
--> menuCasinoDefaults(10): Checked False -> True
press(7900, 800, 6)
--> pop-up menuDefaultMenu
for _, key in ipairs { "Up", "Enter", "Up", "Up", "Down", "Enter" } do decks:keydown(key) end
--> menuCasinoDefaults(10): Checked True -> False
--> menuCasinoDefaults(70): Checked False -> True
press(7900, 800, 2)
--> pop-up menuDefaultMenu
for _, key in ipairs { "Down", "Right", "Left", "Escape" } do decks:keydown(key) end
-- The player selects by pointer, by access key, or by Tab and arrows; the check mark stays.
for _, key in ipairs { "Alt+A", "Tab", "Tab", "Shift+Tab", "Alt+4" } do decks:keydown(key) end
--> focus none -> optDeckCount(8), optDeckCount(8) -> optDeckCount(4)
--> optDeckCount(4): Value False -> True
--> optDeckCount(8): Value True -> False
--> DeckButtons: NumberOfDecks 8 -> 4
--> NumberOfDecksChanged(4)
decks.NumberOfDecks = 0
--> optDeckCount(4): Value True -> False
decks:keydown("Right")
--> focus optDeckCount(4) -> optDeckCount(5)
--> optDeckCount(5): Value False -> True
--> DeckButtons: NumberOfDecks 4 -> 5
--> NumberOfDecksChanged(5)
decks:invoke(0x60030006, "method")
--> optDeckCount(5): Value True -> False
print(deck(2):click(), deck(2):click(), deck(7):click(), decks:keydown("Alt+9"))
--> focus optDeckCount(5) -> optDeckCount(2)
--> optDeckCount(2): Value False -> True
--> DeckButtons: NumberOfDecks 5 -> 2
--> NumberOfDecksChanged(2)
--> prints true true false false
-- Narrow, four counts are hidden, and a part of the control is bare until it gets a size.
decks:invoke(0x68030000, "put", NarrowObject)
--> optDeckCount(1): Left 120 -> 1320
--> optDeckCount(2): Left 1320 -> 2640
--> optDeckCount(4): Left 2640 -> 3960
--> optDeckCount(5): Top 275 -> 560, Left 3960 -> 1320
--> optDeckCount(6): Top 275 -> 560, Left 5250 -> 2640
--> optDeckCount(8): Top 275 -> 560, Left 6600 -> 3960
--> optDeckCount(7): Visible True -> False
--> optDeckCount(9): Visible True -> False
--> optDeckCount(10): Visible True -> False
--> optDeckCount(12): Visible True -> False
--> panelDeckCount: Width 541 -> 396
--> DeckButtons: ObjectWidth WideObject -> NarrowObject
press(7900, 800, 2)
--> pop-up menuDefaultMenu
decks:key(27)
for _, count in ipairs { 9, 0 } do decks.NumberOfDecks = count end
--> optDeckCount(2): Value True -> False
--> optDeckCount(9): Value False -> True
--> DeckButtons: NumberOfDecks 2 -> 9
--> NumberOfDecksChanged(9)
print(deck(9):click(), decks:keydown("Alt+A"))
--> prints false false
decks.extender.Height = 1500
--> surface: Height 930 -> 1500, ScaleHeight 62 -> 100
--> size 8115 x 1500
--> panelDeckCount: Height 62 -> 100, Width 396 -> 541
for _, width in ipairs { 77, 0, NarrowObject, 77 } do decks.ObjectWidth = width end
--> panelDeckCount: Width 541 -> 396
--> DeckButtons: ObjectWidth NarrowObject -> 77
for _, k in ipairs { 7, 9, 10, 12 } do
  deck(k).Left = 0
  deck(k).Top = 0
  deck(k).Enabled = true
end
--> optDeckCount(7): Left 1320 -> 0, Top 560 -> 0, Enabled False -> True
--> optDeckCount(9): Left 2640 -> 0, Top 560 -> 0, Enabled False -> True
--> optDeckCount(10): Left 3960 -> 0, Top 560 -> 0, Enabled False -> True
--> optDeckCount(12): Left 5250 -> 0, Top 560 -> 0, Enabled False -> True
decks.ObjectWidth = WideObject
--> DeckButtons: ObjectWidth 77 -> WideObject
--> size 8115 x 1500
--> panelDeckCount: Width 396 -> 541
--> optDeckCount(1): Left 1320 -> 120
--> optDeckCount(2): Left 2640 -> 1320
--> optDeckCount(4): Left 3960 -> 2640
--> optDeckCount(5): Top 560 -> 275, Left 1320 -> 3960
--> optDeckCount(6): Top 560 -> 275, Left 2640 -> 5250
--> optDeckCount(7): Top 0 -> 560, Left 0 -> 1320, Enabled True -> False, Visible False -> True
--> optDeckCount(8): Top 560 -> 275, Left 3960 -> 6600
--> optDeckCount(9): Top 0 -> 560, Left 0 -> 2640, Enabled True -> False, Visible False -> True
--> optDeckCount(10): Top 0 -> 560, Left 0 -> 3960, Enabled True -> False, Visible False -> True
--> optDeckCount(12): Top 0 -> 560, Left 0 -> 5250, Enabled True -> False, Visible False -> True
-- A handler calls back, writes its argument, or fails before the check mark is set.
decks:on("NumberOfDecksChanged", function(count)
  if count == 6 then decks.NumberOfDecks = 4 end
  if count == 2 then error("stop") end
  return 99
end)
casino(20):click()
--> menuCasinoDefaults(70): Checked True -> False
--> optDeckCount(6): Value False -> True
--> optDeckCount(9): Value True -> False
--> DeckButtons: NumberOfDecks 9 -> 6
--> NumberOfDecksChanged(6)
-->   optDeckCount(4): Value False -> True
-->   optDeckCount(6): Value True -> False
-->   DeckButtons: NumberOfDecks 6 -> 4
-->   NumberOfDecksChanged(4)
-->     gives 99
-->   gives 99
--> menuCasinoDefaults(20): Checked False -> True
pcall(function() casino(25):click() end)
--> menuCasinoDefaults(20): Checked True -> False
--> optDeckCount(2): Value False -> True
--> optDeckCount(4): Value True -> False
--> DeckButtons: NumberOfDecks 4 -> 2
--> NumberOfDecksChanged(2)
--> fails as the handler did
-- Nothing is saved or loaded, and no ambient property taken.
decks.ambient.BackColor = 0
decks:save(true)
--> saves nothing
local again = zilvo.create("DeckButtons", { bag = { NumberOfDecks = 6, ObjectWidth = 1 }, width = 6000 })
--> created DeckButtons 2
--> surface: Width 8115 -> 6000, ScaleWidth 541 -> 400
--> size 6000 x 930
--> panelDeckCount: Width 541 -> 400

-- A host lets the player choose how the cards are shuffled.
local shuffle = zilvo.create("CardShufflingOptions")
--> created CardShufflingOptions
--> CardShufflingOptions: CardShuffleMethod noGenericCardShuffle
--> surface: BackColor 0x8000000F, ForeColor 0x80000008, Width 8565, Height 1245, ScaleWidth 571, ScaleHeight 83
--> panelCardShufflingOptions: Threed.SSPanel, Caption "Card Shuffling Options", BackColor 0x00C0C0C0, ForeColor 0x00004000, Font "Comic Sans MS 14.25 bold", Width 571, Height 83.333336, ToolTipText "Different Shuffle Methods produce a different \"Flavor\" of Drills."
--> optCardShuffleMethod(0): OptionButton in panelCardShufflingOptions, Value True, Caption "No Shuffling", BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "Comic Sans MS 9.75 bold", Left 720, Top 550, Width 1215, Height 500, ToolTipText "No Shuffling produces extreme practice-counts.", TabIndex 1
--> optCardShuffleMethod(1): OptionButton in panelCardShufflingOptions, Caption "Strip Shuffle", BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "Comic Sans MS 9.75 bold", Left 2280, Top 550, Width 1215, Height 500, ToolTipText "Cards are Little-stripped, Big-stripped and then Little-stripped - 3 sets of times.", TabIndex 2
--> optCardShuffleMethod(2): OptionButton in panelCardShufflingOptions, Caption "S-Thru Shuffle", BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "Comic Sans MS 9.75 bold", Left 3720, Top 550, Width 1215, Height 500, ToolTipText "Cards are Little-stripped, followed by a \"perfect\" reverse-intertwine.", TabIndex 5
--> optCardShuffleMethod(3): OptionButton in panelCardShufflingOptions, Caption "SM Box Shuffle", BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "Comic Sans MS 9.75 bold", Left 5160, Top 550, Width 1215, Height 500, Enabled False, ToolTipText "Cards are Shuffled with the ShuffleMaster BOX.", TabIndex 4
--> optCardShuffleMethod(4): OptionButton in panelCardShufflingOptions, Caption "Random Shuffle", BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "Comic Sans MS 9.75 bold", Left 6720, Top 550, Width 1215, Height 500, ToolTipText "Cards are Shuffled \"Randomly\".", TabIndex 3
local function method(k) return shuffle:widget("optCardShuffleMethod", k) end
-- The host's choice is stored, the player's is only reported.
for _, k in ipairs { 3, 3 } do shuffle.CardShuffleMethod = k end
--> optCardShuffleMethod(0): Value True -> False
--> optCardShuffleMethod(3): Value False -> True
--> CardShufflingOptions: CardShuffleMethod noGenericCardShuffle -> SMBoxShuffleGeneric
--> CardShuffleMethodChanged(3)
print(method(4):click(), method(4):click(), method(3):click(), shuffle.CardShuffleMethod)
--> focus none -> optCardShuffleMethod(4)
--> optCardShuffleMethod(3): Value True -> False
--> optCardShuffleMethod(4): Value False -> True
--> CardShuffleMethodChanged(4)
--> prints true true false 3
for _, key in ipairs { "Tab", "Shift+Tab", "Right" } do shuffle:keydown(key) end
--> focus optCardShuffleMethod(4) -> optCardShuffleMethod(2)
--> optCardShuffleMethod(2): Value False -> True
--> optCardShuffleMethod(4): Value True -> False
--> CardShuffleMethodChanged(2)
local saved = shuffle:save()
--> saves CardShuffleMethod Long 3
shuffle:invoke(0x68030000, "put", 2)
--> CardShufflingOptions: CardShuffleMethod SMBoxShuffleGeneric -> StraightThruGeneric
shuffle.CardShuffleMethod = 0
--> optCardShuffleMethod(0): Value False -> True
--> optCardShuffleMethod(2): Value True -> False
--> CardShufflingOptions: CardShuffleMethod StraightThruGeneric -> noGenericCardShuffle
--> CardShuffleMethodChanged(0)
for _, keepsDefaults in ipairs { false, true } do shuffle:save(keepsDefaults) end
--> saves nothing
--> saves CardShuffleMethod Long 0
-- What is no method is refused before anything changes.
local function set(value) shuffle.CardShuffleMethod = value end
for _, none in ipairs { 5, -1, 32768, "random" } do pcall(set, none) end
--> fails: missing element: CardShufflingOptions.CardShuffleMethod: optCardShuffleMethod has no element 5
--> fails: missing element: CardShufflingOptions.CardShuffleMethod: optCardShuffleMethod has no element -1
--> fails: overflow: CardShufflingOptions.CardShuffleMethod: 32768 (Long) is out of the range of Integer
--> fails: type mismatch: CardShufflingOptions.CardShuffleMethod: "random" (String) does not convert to Long
-- A handler calls back, writes its argument, or fails.
shuffle:on("CardShuffleMethodChanged", function(k)
  if k == 1 then shuffle.CardShuffleMethod = 4 end
  if k == 2 then error("stop") end
  return 3
end)
shuffle.CardShuffleMethod = 1
--> optCardShuffleMethod(0): Value True -> False
--> optCardShuffleMethod(1): Value False -> True
--> CardShufflingOptions: CardShuffleMethod noGenericCardShuffle -> StripShuffleGeneric
--> CardShuffleMethodChanged(1)
-->   optCardShuffleMethod(1): Value True -> False
-->   optCardShuffleMethod(4): Value False -> True
-->   CardShufflingOptions: CardShuffleMethod StripShuffleGeneric -> RandomShuffleGeneric
-->   CardShuffleMethodChanged(4)
-->     gives 3
-->   gives 3
pcall(set, 2)
--> optCardShuffleMethod(2): Value False -> True
--> optCardShuffleMethod(4): Value True -> False
--> CardShufflingOptions: CardShuffleMethod RandomShuffleGeneric -> StraightThruGeneric
--> CardShuffleMethodChanged(2)
--> fails as the handler did
-- It takes no ambient property, and nothing follows its size.
shuffle.ambient.BackColor = 0
shuffle.extender.Width = 6000
--> surface: Width 8565 -> 6000, ScaleWidth 571 -> 400
--> size 6000 x 1245
-- Loading selects the method, which is an event.
zilvo.create("CardShufflingOptions", { bag = {} })
--> created CardShufflingOptions 2
for _, stored in ipairs { saved.CardShuffleMethod, "4", 5, "random" } do
  pcall(zilvo.create, "CardShufflingOptions", { bag = { CardShuffleMethod = stored } })
end
--> created CardShufflingOptions 3
--> optCardShuffleMethod(0): Value True -> False
--> optCardShuffleMethod(3): Value False -> True
--> CardShufflingOptions: CardShuffleMethod noGenericCardShuffle -> SMBoxShuffleGeneric
--> CardShuffleMethodChanged(3)
--> created CardShufflingOptions 4
--> optCardShuffleMethod(0): Value True -> False
--> optCardShuffleMethod(4): Value False -> True
--> CardShufflingOptions: CardShuffleMethod noGenericCardShuffle -> RandomShuffleGeneric
--> CardShuffleMethodChanged(4)
--> created CardShufflingOptions 5
--> fails: missing element: CardShufflingOptions.ReadProperties: optCardShuffleMethod has no element 5
--> created CardShufflingOptions 6
--> fails: type mismatch: CardShufflingOptions.ReadProperties: CardShuffleMethod: "random" (String) does not convert to Long

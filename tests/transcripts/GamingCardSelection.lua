-- A host lets its player say where dealt cards go: to the discard tray, the table or the shoe.
local palette = zilvo.create("GamingCardSelection")
--> created GamingCardSelection
--> surface: BackColor 0x8000000F, ForeColor 0x80000008, Width 2115, Height 1230, ScaleWidth 141, ScaleHeight 82
--> chkXButton(1): Threed.SSCheck, BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 1, Top 1, Width 13, Height 13, TabIndex 5
--> chkXButton(0): Threed.SSCheck, BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 129, Top 1, Width 13, Height 13, TabIndex 4
--> cmdLoadCards: CommandButton, Caption "Load Cards", BackColor 0x8000000F, ForeColor 0x80000012, Font "Comic Sans MS 9.75 bold italic", Left 32, Top 49, Width 81, Height 33, Visible False, TabIndex 6
--> SSPanel1: Threed.SSPanel, BackColor 0x00A8B090, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 7, Width 130, Height 49
--> GamingCardButtons(1): Threed.SSRibbon in SSPanel1, BackColor 0x00A8B090, Left 120, Top 120, Width 510, Height 510, TabIndex 1
--> GamingCardButtons(2): Threed.SSRibbon in SSPanel1, BackColor 0x00A8B090, Left 720, Top 120, Width 510, Height 510, TabIndex 2
--> GamingCardButtons(3): Threed.SSRibbon in SSPanel1, BackColor 0x00A8B090, Left 1320, Top 120, Width 510, Height 510, TabIndex 3
local function button(k) return palette:widget("GamingCardButtons", k) end
-- Pressing one releases the others, tells, then clears its outline; pressing it again only releases it.
for k = 1, 3 do button(k).Outline = true end
--> GamingCardButtons(1): Outline False -> True
--> GamingCardButtons(2): Outline False -> True
--> GamingCardButtons(3): Outline False -> True
for k = 1, 3 do button(k):click() end
--> focus none -> GamingCardButtons(1)
--> GamingCardButtons(1): Value False -> True
--> CardsToDiscardTrayClicked()
--> GamingCardButtons(1): Outline True -> False
--> focus GamingCardButtons(1) -> GamingCardButtons(2)
--> GamingCardButtons(1): Value True -> False
--> GamingCardButtons(2): Value False -> True
--> CardsToTableClicked()
--> GamingCardButtons(2): Outline True -> False
--> focus GamingCardButtons(2) -> GamingCardButtons(3)
--> GamingCardButtons(2): Value True -> False
--> GamingCardButtons(3): Value False -> True
--> CardsToShoeClicked()
--> GamingCardButtons(3): Outline True -> False
button(3).Outline = true
--> GamingCardButtons(3): Outline False -> True
button(3):click()
--> GamingCardButtons(3): Value True -> False
for _, key in ipairs { "Tab", "Tab", "Tab", "Space", "Right", "Enter" } do palette:keydown(key) end
--> focus GamingCardButtons(3) -> chkXButton(0), chkXButton(0) -> chkXButton(1), chkXButton(1) -> GamingCardButtons(1)
--> GamingCardButtons(1): Value False -> True
--> CardsToDiscardTrayClicked()
-- Pressed by the host, without an event.
local function choose(k) return palette:SelectThisButton(k) end
print(choose(theCardsToTableAreaWasSelected), choose(2.2), choose("3"))
--> GamingCardButtons(1): Value True -> False
--> GamingCardButtons(2): Value False -> True, Value True -> False
--> GamingCardButtons(3): Value False -> True
--> prints 2 2.2 3
for _, k in ipairs { 0, 4, 32768, -32769, 65537, "shoe" } do pcall(palette.invoke, palette, 0x60030003, "method", k) end
--> fails: missing element: GamingCardSelection.SelectThisButton: GamingCardButtons has no element 0
--> fails: missing element: GamingCardSelection.SelectThisButton: GamingCardButtons has no element 4
--> fails: overflow: GamingCardSelection.SelectThisButton: 32768 (Long) is out of the range of Integer
--> fails: overflow: GamingCardSelection.SelectThisButton: -32769 (Long) is out of the range of Integer
--> fails: overflow: GamingCardSelection.SelectThisButton: 65537 (Long) is out of the range of Integer
--> fails: type mismatch: GamingCardSelection.SelectThisButton: "shoe" (String) does not convert to Long
button(3):click()
--> focus GamingCardButtons(1) -> GamingCardButtons(3)
--> GamingCardButtons(3): Value True -> False
-- The close boxes hide the palette, checked or not; they lie in front of the panel.
for _, x in ipairs { 2000, 2000, 200 } do
  palette:press(x, 200)
  print(palette:release(x, 200), button(1):click())
  palette.extender.Visible = true
end
--> focus GamingCardButtons(3) -> chkXButton(0)
--> chkXButton(0): Value False -> True
--> focus chkXButton(0) -> none
--> extender: Visible True -> False
--> prints true false
--> extender: Visible False -> True
--> focus none -> chkXButton(0)
--> chkXButton(0): Value True -> False
--> focus chkXButton(0) -> none
--> extender: Visible True -> False
--> prints true false
--> extender: Visible False -> True
--> focus none -> chkXButton(1)
--> chkXButton(1): Value False -> True
--> focus chkXButton(1) -> none
--> extender: Visible True -> False
--> prints true false
--> extender: Visible False -> True
-- Cards can be loaded when the button for that is shown.
local load = palette:widget("cmdLoadCards")
print(load:click())
--> prints false
load.Visible = true
--> cmdLoadCards: Visible False -> True
print(load:click(), palette:key(13))
--> focus none -> cmdLoadCards
--> LoadCardsRequested()
--> LoadCardsRequested()
--> prints true true
-- A host that has the cards go elsewhere, and fails.
palette:on("CardsToTableClicked", function()
  palette:SelectThisButton(3)
  error("stop", 0)
end)
button(2).Outline = true
--> GamingCardButtons(2): Outline False -> True
print(pcall(function() button(2):click() end))
--> focus cmdLoadCards -> GamingCardButtons(2)
--> GamingCardButtons(2): Value False -> True
--> CardsToTableClicked()
-->   GamingCardButtons(2): Value True -> False
-->   GamingCardButtons(3): Value False -> True
--> fails as the handler did
--> prints false stop
-- Nothing is saved, and all stays where and as it is, whatever the size and the colours of the window.
palette:save(true)
--> saves nothing
local loaded = zilvo.create("GamingCardSelection",
  { bag = { Value = 3 }, width = 3000, ambient = { Font = zilvo.Font {} } })
--> created GamingCardSelection 2
--> surface: Width 2115 -> 3000, ScaleWidth 141 -> 200
--> size 3000 x 1230
for _, name in ipairs { "BackColor", "ForeColor", "UserMode" } do loaded.ambient[name] = 0 end

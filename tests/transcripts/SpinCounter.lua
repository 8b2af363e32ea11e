-- A host lets the player set a count: of the cards in a stack, say.
local look = { BackColor = 0x00123456, ForeColor = 0x00654321, Font = zilvo.Font { Name = "Verdana", Size = 10 } }
local counter = zilvo.create("SpinCounter", { ambient = look })
--> created SpinCounter
--> SpinCounter: Font "Comic Sans MS 9.75 bold italic"
--> surface: BackColor 0x8000000F, ForeColor 0x80000008, Width 1500, Height 720, ScaleWidth 100, ScaleHeight 48
--> labelCardsInStack: Label, Caption "(###)", BackColor 0x00FFFFFF, ForeColor 0x80000012, Font "Comic Sans MS 9.75 bold italic", Width 65, Height 24, TabIndex 1
--> SpinButton: Spin.SpinButton, Left 66.066666, Width 33, Height 23
--> SpinCounter: MaximumLimit 0 -> 999
--> PropertyChanged MaximumLimit
--> surface: ForeColor 0x80000008 -> 0x00654321, BackColor 0x8000000F -> 0x00123456
--> labelCardsInStack: Height 24 -> 48
--> SpinButton: Height 23 -> 48
--> SpinCounter: ControlHandedness 0 -> RighHandSpinCounter
local spinner, label = counter:widget("SpinButton"), counter:widget("labelCardsInStack")
-- A spin ends at its bound, and is reported there, too.
for _, limit in ipairs { 0, -5, 1000, 999, 1 } do counter.MaximumLimit = limit end
--> PropertyChanged MaximumLimit
--> SpinCounter: MaximumLimit 999 -> 1
--> PropertyChanged MaximumLimit
for _, key in ipairs { "Tab", "Up", "Right", "Down", "Left" } do counter:keydown(key) end
--> focus none -> SpinButton
--> labelCardsInStack: Caption "(###)" -> "(001)"
--> SpinCounter: CounterValue 0 -> 1
--> PropertyChanged CounterValue
--> CounterValueHasChanged(1)
--> PropertyChanged CounterValue
--> CounterValueHasChanged(1)
--> labelCardsInStack: Caption "(001)" -> "(000)"
--> SpinCounter: CounterValue 1 -> 0
--> PropertyChanged CounterValue
--> CounterValueHasChanged(0)
--> PropertyChanged CounterValue
--> CounterValueHasChanged(0)
-- Sets within the bounds are shown, then reported; others are ignored.
counter.MaximumLimit = 10
--> SpinCounter: MaximumLimit 1 -> 10
--> PropertyChanged MaximumLimit
for _, count in ipairs { 11, -1, 10, 10 } do counter.CounterValue = count end
--> labelCardsInStack: Caption "(000)" -> "(010)"
--> SpinCounter: CounterValue 0 -> 10
--> PropertyChanged CounterValue
--> CounterValueHasChanged(10)
--> PropertyChanged CounterValue
--> CounterValueHasChanged(10)
counter.AllowNegNumbers = true
--> SpinCounter: AllowNegNumbers False -> True
--> PropertyChanged AllowNegNumbers
for _, count in ipairs { 11, -1 } do counter.CounterValue = count end
--> labelCardsInStack: Caption "(010)" -> "(-001)"
--> SpinCounter: CounterValue 10 -> -1
--> PropertyChanged CounterValue
--> CounterValueHasChanged(-1)
spinner:spin("down")
--> labelCardsInStack: Caption "(-001)" -> "(-002)"
--> SpinCounter: CounterValue -1 -> -2
--> PropertyChanged CounterValue
--> CounterValueHasChanged(-2)
counter.CounterValue = -32768
--> labelCardsInStack: Caption "(-002)" -> "(-32768)"
--> SpinCounter: CounterValue -2 -> -32768
--> PropertyChanged CounterValue
--> CounterValueHasChanged(-32768)
spinner:spin("down")
--> PropertyChanged CounterValue
--> CounterValueHasChanged(-32768)
counter.NumberWrap = true
--> SpinCounter: NumberWrap False -> True
spinner:spin("down")
--> labelCardsInStack: Caption "(-32768)" -> "(010)"
--> SpinCounter: CounterValue -32768 -> 10
--> PropertyChanged CounterValue
--> CounterValueHasChanged(10)
counter.AllowNegNumbers = false
--> SpinCounter: AllowNegNumbers True -> False
--> PropertyChanged AllowNegNumbers
counter.MaximumLimit = 1
--> SpinCounter: MaximumLimit 10 -> 1
--> PropertyChanged MaximumLimit
for _, way in ipairs { "up", "down" } do spinner:spin(way) end
--> PropertyChanged CounterValue
--> CounterValueHasChanged(10)
--> labelCardsInStack: Caption "(010)" -> "(009)"
--> SpinCounter: CounterValue 10 -> 9
--> PropertyChanged CounterValue
--> CounterValueHasChanged(9)
counter.CounterValue = 1
--> labelCardsInStack: Caption "(009)" -> "(001)"
--> SpinCounter: CounterValue 9 -> 1
--> PropertyChanged CounterValue
--> CounterValueHasChanged(1)
for _ = 1, 2 do spinner:spin("down") end
--> labelCardsInStack: Caption "(001)" -> "(000)"
--> SpinCounter: CounterValue 1 -> 0
--> PropertyChanged CounterValue
--> CounterValueHasChanged(0)
--> labelCardsInStack: Caption "(000)" -> "(001)"
--> SpinCounter: CounterValue 0 -> 1
--> PropertyChanged CounterValue
--> CounterValueHasChanged(1)
counter.NumberWrap = false
--> SpinCounter: NumberWrap True -> False
local function set(name, value) counter[name] = value end
pcall(set, "CounterValue", "many")
--> fails: type mismatch: SpinCounter.CounterValue: "many" (String) does not convert to Integer
pcall(set, "MaximumLimit", 32768)
--> fails: overflow: SpinCounter.MaximumLimit: 32768 (Long) is out of the range of Integer
-- On whichever side the arrows are mounted, both can be pressed.
local function mount(side)
  for _, widget in ipairs { label, spinner } do
    widget.Left = 9
    widget.Top = 9
  end
  spinner.Width = 9
  counter.ControlHandedness = side
end
local function press(x, y, button)
  counter:press(x, y, button)
  counter:release(x, y, button)
end
mount(LeftHandSpinCounter)
--> labelCardsInStack: Left 0 -> 9, Top 0 -> 9
--> SpinButton: Left 66.066666 -> 9, Top 0 -> 9, Width 33 -> 9
--> SpinCounter: ControlHandedness RighHandSpinCounter -> LeftHandSpinCounter
--> PropertyChanged ControlHandedness
--> labelCardsInStack: Left 9 -> 35, Top 9 -> 0
--> SpinButton: Left 9 -> 0, Top 9 -> 0, Width 9 -> 33
press(250, 350)
--> PropertyChanged CounterValue
--> CounterValueHasChanged(1)
press(250, 370)
--> labelCardsInStack: Caption "(001)" -> "(000)"
--> SpinCounter: CounterValue 1 -> 0
--> PropertyChanged CounterValue
--> CounterValueHasChanged(0)
mount(RighHandSpinCounter)
--> labelCardsInStack: Left 35 -> 9, Top 0 -> 9
--> SpinButton: Left 0 -> 9, Top 0 -> 9, Width 33 -> 9
--> SpinCounter: ControlHandedness LeftHandSpinCounter -> RighHandSpinCounter
--> PropertyChanged ControlHandedness
--> labelCardsInStack: Left 9 -> 0, Top 9 -> 0
--> SpinButton: Left 9 -> 67, Top 9 -> 0, Width 9 -> 33
for _, x in ipairs { 600, 1000 } do press(x, 350) end
press(1250, 350, 2)
mount(TopMountSpinCounter)
--> labelCardsInStack: Left 0 -> 9, Top 0 -> 9
--> SpinButton: Left 67 -> 9, Top 0 -> 9, Width 33 -> 9
--> SpinCounter: ControlHandedness RighHandSpinCounter -> TopMountSpinCounter
--> PropertyChanged ControlHandedness
--> labelCardsInStack: Left 9 -> 0, Top 9 -> 0, Height 48 -> 24
--> SpinButton: Left 9 -> 0, Top 9 -> 24, Width 9 -> 65
press(50, 710)
--> PropertyChanged CounterValue
--> CounterValueHasChanged(0)
press(900, 370)
--> labelCardsInStack: Caption "(000)" -> "(001)"
--> SpinCounter: CounterValue 0 -> 1
--> PropertyChanged CounterValue
--> CounterValueHasChanged(1)
press(900, 350)
mount(BottomMountSpinCounter)
--> labelCardsInStack: Left 0 -> 9, Top 0 -> 9
--> SpinButton: Left 0 -> 9, Top 24 -> 9, Width 65 -> 9
--> SpinCounter: ControlHandedness TopMountSpinCounter -> BottomMountSpinCounter
--> PropertyChanged ControlHandedness
--> SpinButton: Left 9 -> 0, Top 9 -> 0, Width 9 -> 65
--> labelCardsInStack: Left 9 -> 0, Top 9 -> 24
press(900, 350)
--> PropertyChanged CounterValue
--> CounterValueHasChanged(1)
press(50, 10)
--> labelCardsInStack: Caption "(001)" -> "(000)"
--> SpinCounter: CounterValue 1 -> 0
--> PropertyChanged CounterValue
--> CounterValueHasChanged(0)
press(50, 370)
for _, side in ipairs { 0, 5, 65537, 4 } do counter:invoke(0x68030006, "put", side) end
--> beep
--> beep
--> beep
--> PropertyChanged ControlHandedness
-- The width is fixed, the height is the host's.
counter.surface.Height = 500025
--> surface: Height 720 -> 500025, ScaleHeight 48 -> 33335
--> size 1500 x 500025
--> labelCardsInStack: Height 24 -> 33335
--> SpinButton: Height 48 -> 33335
--> labelCardsInStack: Top 24 -> 16667
counter.ControlHandedness = 1
--> SpinCounter: ControlHandedness BottomMountSpinCounter -> LeftHandSpinCounter
--> PropertyChanged ControlHandedness
--> labelCardsInStack: Left 0 -> 35, Top 16667 -> 0
--> SpinButton: Width 65 -> 33
counter:ResetSizeToDefault()
--> surface: Height 500025 -> 360, ScaleHeight 33335 -> 24
--> size 1500 x 360
--> labelCardsInStack: Height 33335 -> 24
--> SpinButton: Height 33335 -> 24
for _, use in ipairs { false, true } do counter.UseDefaultSize = use end
--> size 1500 x 360
label.Height = 9
--> labelCardsInStack: Height 24 -> 9
counter.extender.Width = 3000
--> surface: Width 1500 -> 3000, ScaleWidth 100 -> 200
--> size 3000 x 360
--> surface: Width 3000 -> 1500, ScaleWidth 200 -> 100
--> size 1500 x 360
--> labelCardsInStack: Height 9 -> 24
-- What a handler does comes after the count was set.
counter:on("CounterValueHasChanged", function(count)
  if count == 1 then return 555 end
  counter.CounterValue = 1
  error("stop")
end)
pcall(set, "CounterValue", 0)
--> PropertyChanged CounterValue
--> CounterValueHasChanged(0)
-->   labelCardsInStack: Caption "(000)" -> "(001)"
-->   SpinCounter: CounterValue 0 -> 1
-->   PropertyChanged CounterValue
-->   CounterValueHasChanged(1)
-->     gives 555
--> fails as the handler did
-- Whichever ambient property changes, both colours are taken; the label keeps its own.
for _, colour in ipairs { "BackColor", "ForeColor" } do counter.surface[colour] = 0 end
--> surface: BackColor 0x00123456 -> 0x00000000, ForeColor 0x00654321 -> 0x00000000
counter.ambient.UserMode = false
--> surface: ForeColor 0x00000000 -> 0x00654321, BackColor 0x00000000 -> 0x00123456
spinner.Enabled = false
--> focus SpinButton -> none
--> SpinButton: Enabled True -> False
print(spinner:spin("up"), spinner:click(), label:click())
--> prints false false false
-- A font that the host gives is shared with it; the ambient one and one of saved settings are copied.
local font = zilvo.Font { Name = "Arial", Size = 8 }
counter.Font = font
--> labelCardsInStack: Font "Comic Sans MS 9.75 bold italic" -> "Arial 8"
--> SpinCounter: Font "Comic Sans MS 9.75 bold italic" -> "Arial 8"
--> PropertyChanged Font
for _, name in ipairs { "Underline", "Strikethrough", "Italic" } do font[name] = true end
--> labelCardsInStack: Font "Arial 8" -> "Arial 8 underline", Font "Arial 8 underline" -> "Arial 8 underline strikethrough", Font "Arial 8 underline strikethrough" -> "Arial 8 italic underline strikethrough"
--> SpinCounter: Font "Arial 8" -> "Arial 8 italic underline strikethrough"
print(counter.Font == font)
--> prints true
local empty = zilvo.create("SpinCounter", { bag = {}, ambient = look })
--> created SpinCounter 2
--> PropertyChanged AllowNegNumbers
--> surface: Height 720 -> 360, ScaleHeight 48 -> 24
--> SpinCounter: MaximumLimit 0 -> 999
--> size 1500 x 360
--> SpinButton: Height 23 -> 24
--> labelCardsInStack: Font "Comic Sans MS 9.75 bold italic" -> "Verdana 10"
--> surface: ForeColor 0x80000008 -> 0x00654321, BackColor 0x8000000F -> 0x00123456
--> labelCardsInStack: Caption "(###)" -> "(000)"
--> SpinCounter: ControlHandedness 0 -> RighHandSpinCounter, Font "Comic Sans MS 9.75 bold italic" -> "Verdana 10"
empty:save()
--> saves nothing
empty:save(true)
--> saves Height Single 360, CounterValue Integer 0, AllowNegNumbers Boolean False, MaximumLimit Integer 999, ControlHandedness Long 2, Font Font "Verdana 10"
empty.Font.Size = 12
--> labelCardsInStack: Font "Verdana 10" -> "Verdana 12"
--> SpinCounter: Font "Verdana 10" -> "Verdana 12"
local saved = empty:save()
--> saves Font Font "Verdana 12"
local full = zilvo.create("SpinCounter", { ambient = look, bag = {
  Height = "300", CounterValue = " 1200 ", AllowNegNumbers = 2, MaximumLimit = 5000, ControlHandedness = 77,
  Font = saved.Font,
} })
--> created SpinCounter 3
--> SpinCounter: AllowNegNumbers False -> True, CounterValue 0 -> 1200
--> PropertyChanged AllowNegNumbers
--> surface: Height 720 -> 300, ScaleHeight 48 -> 20
--> SpinCounter: MaximumLimit 0 -> 5000
--> size 1500 x 300
--> labelCardsInStack: Height 24 -> 20
--> SpinButton: Height 23 -> 20
--> labelCardsInStack: Font "Comic Sans MS 9.75 bold italic" -> "Verdana 12"
--> surface: ForeColor 0x80000008 -> 0x00654321, BackColor 0x8000000F -> 0x00123456
--> labelCardsInStack: Caption "(###)" -> "(1200)"
--> SpinCounter: ControlHandedness 0 -> 77, Font "Comic Sans MS 9.75 bold italic" -> "Verdana 12"
for _, control in ipairs { empty, full } do control.Font.Bold = true end
--> [SpinCounter 2] labelCardsInStack: Font "Verdana 12" -> "Verdana 12 bold"
--> labelCardsInStack: Font "Verdana 12" -> "Verdana 12 bold"
--> [SpinCounter 2] SpinCounter: Font "Verdana 12" -> "Verdana 12 bold"
--> SpinCounter: Font "Verdana 12" -> "Verdana 12 bold"
print(look.Font.Size, empty.ambient.Font.Size, saved.Font.Bold)
--> prints 10.0 10.0 false
full:save()
--> saves Height Single 300, CounterValue Integer 1200, AllowNegNumbers Boolean True, MaximumLimit Integer 5000, ControlHandedness Long 77, Font Font "Verdana 12 bold"
-- A setting that does not convert ends the loading; what was read before it stays.
for _, bad in ipairs {
  { CounterValue = 32768 }, { AllowNegNumbers = "many" }, { MaximumLimit = -32769 }, { Height = "tall" },
  { ControlHandedness = "9999999999" }, { Font = "Arial" },
} do
  pcall(zilvo.create, "SpinCounter", { bag = bad })
end
--> created SpinCounter 4
--> fails: overflow: SpinCounter.ReadProperties: CounterValue: 32768 (Long) is out of the range of Integer
--> created SpinCounter 5
--> fails: type mismatch: SpinCounter.ReadProperties: AllowNegNumbers: "many" (String) does not convert to Boolean
--> created SpinCounter 6
--> PropertyChanged AllowNegNumbers
--> fails: overflow: SpinCounter.ReadProperties: MaximumLimit: -32769 (Long) is out of the range of Integer
--> created SpinCounter 7
--> PropertyChanged AllowNegNumbers
--> SpinCounter: MaximumLimit 0 -> 999
--> fails: type mismatch: SpinCounter.ReadProperties: Height: "tall" (String) does not convert to Single
--> created SpinCounter 8
--> PropertyChanged AllowNegNumbers
--> surface: Height 720 -> 360, ScaleHeight 48 -> 24
--> SpinCounter: MaximumLimit 0 -> 999
--> size 1500 x 360
--> SpinButton: Height 23 -> 24
--> fails: overflow: SpinCounter.ReadProperties: ControlHandedness: "9999999999" (String) is out of the range of Long
--> created SpinCounter 9
--> PropertyChanged AllowNegNumbers
--> surface: Height 720 -> 360, ScaleHeight 48 -> 24
--> SpinCounter: MaximumLimit 0 -> 999
--> size 1500 x 360
--> SpinButton: Height 23 -> 24
--> SpinCounter: ControlHandedness 0 -> RighHandSpinCounter
--> fails: type mismatch: SpinCounter.ReadProperties: Font: "Arial" (String) does not convert to Font

-- A host lets its player choose between adding and subtracting.
local mode = zilvo.create("PlusMinusButton")
--> created PlusMinusButton
--> surface: BackColor 0x8000000F, ForeColor 0x80000008, Width 450, Height 450, ScaleWidth 30, ScaleHeight 30
--> ImagePlusMinus(2): Image, Width 30, Height 30, ToolTipText "Click here for SUBTRACT-mode"
--> ImagePlusMinus(3): Image, Width 30, Height 30, Visible False, ToolTipText "Click here for ADD-mode"
local connection = mode:on("WasClicked", function() return 7 end)
local plus, minus = mode:widget("ImagePlusMinus", 2), mode:widget("ImagePlusMinus", 3)
-- The picture that is shown is the mode; a click changes it, and what the host gives back does not.
print(minus:click(), plus:click(), plus:click())
--> ImagePlusMinus(2): Visible True -> False
--> ImagePlusMinus(3): Visible False -> True
--> PlusMinusButton: PlusMinusButtonIs 0 -> aMinusButton
--> WasClicked(aMinusButton)
-->   gives 7
--> prints false true false
print(mode:press(10, 10), mode:release(440, 440), mode:keydown("Tab"), mode:key(13), mode:key(" "))
--> ImagePlusMinus(2): Visible False -> True
--> ImagePlusMinus(3): Visible True -> False
--> PlusMinusButton: PlusMinusButtonIs aMinusButton -> aPlusButton
--> WasClicked(aPlusButton)
-->   gives 7
--> prints true true false false false
connection:disconnect()
-- A host that will not have it subtract, and fails.
mode:on("WasClicked", function(which)
  if which == aPlusButton then error("stop", 0) end
  mode:RestartYourself()
end)
print(pcall(function() plus:click() end))
--> ImagePlusMinus(2): Visible True -> False
--> ImagePlusMinus(3): Visible False -> True
--> PlusMinusButton: PlusMinusButtonIs aPlusButton -> aMinusButton
--> WasClicked(aMinusButton)
-->   ImagePlusMinus(2): Visible False -> True
-->   ImagePlusMinus(3): Visible True -> False
-->   PlusMinusButton: PlusMinusButtonIs aMinusButton -> aPlusButton
-->   WasClicked(aPlusButton)
-->   fails as the handler did
--> fails as the handler did
--> prints false stop
-- Nothing is saved, and the pictures stay where and as they are, whatever the size and the colours of the window.
mode:save(true)
--> saves nothing
local loaded = zilvo.create("PlusMinusButton",
  { bag = { PlusMinusButtonIs = 3 }, width = 900, ambient = { Font = zilvo.Font {} } })
--> created PlusMinusButton 2
--> surface: Width 450 -> 900, ScaleWidth 30 -> 60
--> size 900 x 450
for _, name in ipairs { "BackColor", "ForeColor", "UserMode" } do loaded.ambient[name] = 0 end
-- Back to adding, also when that is the mode.
loaded:RestartYourself()
--> PlusMinusButton: PlusMinusButtonIs 0 -> aPlusButton
--> WasClicked(aPlusButton)
loaded:invoke(0x60030002, "method")
--> WasClicked(aPlusButton)
print(loaded.PlusMinusButtonIs, loaded:invoke(0x68030000, "get"))
--> prints 2 2
pcall(loaded.invoke, loaded, 0x68030000, "put", aMinusButton)
--> fails: read-only property: PlusMinusButton.PlusMinusButtonIs: can only be read

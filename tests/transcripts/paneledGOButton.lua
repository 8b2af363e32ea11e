-- A host shows a GO sign on two panels; the sign is a control in the control.
local go = zilvo.create("paneledGOButton")
--> created paneledGOButton
--> paneledGOButton: GOButtonShape GOButtonIsAnOval
--> surface: BackColor 0x8000000F, ForeColor 0x80000008, Width 1500, Height 1005, ScaleWidth 1500, ScaleHeight 1005
--> panelGO(2): Threed.SSPanel, BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Width 1500, Height 1000
--> panelGO(1): Threed.SSPanel in panelGO(2), BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 120, Top 120, Width 1260, Height 780
--> GOButton: GOButton, Left 260, Top 135, Width 990, Height 735
--> GOButton: GOButtonShape GOButtonIsAnOval
--> GOButton.surface: BackColor 0x00FFFFFF, ForeColor 0x80000008, Width 990, Height 735, ScaleWidth 990, ScaleHeight 735
--> GOButton.labelGO: Label, Caption "&GO", BackColor 0x8000000F, ForeColor 0x80000012, Font "Comic Sans MS 18 bold", Left 240, Top 80, Width 1095, Height 495
--> GOButton.theGOButton: Shape, Shape 2, BorderWidth 3, BorderColor 0x80000008, FillColor 0x00008000, BackColor 0x00008000, Top 120, Width 960, Height 495
-- The six forms, and what is none: the sign's failure is the whole control's.
for shape = GOButtonIsARoundedSquare, GOButtonIsARectangle, -1 do go.GOButtonShape = shape end
--> GOButton.theGOButton: Shape 2 -> 5, Shape 5 -> 4, Shape 4 -> 3, Shape 3 -> 2, Shape 2 -> 1, Shape 1 -> 0
--> paneledGOButton: GOButtonShape GOButtonIsAnOval -> GOButtonIsARectangle
--> GOButton: GOButtonShape GOButtonIsAnOval -> GOButtonIsARectangle
local function put(shape) go:invoke(0x68030000, "put", shape) end
for _, shape in ipairs { "4", 6, -1, 32767, 32768, -32769, "oval" } do pcall(put, shape) end
--> GOButton.theGOButton: Shape 0 -> 4
--> paneledGOButton: GOButtonShape GOButtonIsARectangle -> GOButtonIsARoundedRectangle
--> GOButton: GOButtonShape GOButtonIsARectangle -> GOButtonIsARoundedRectangle
--> fails: invalid property value: paneledGOButton.GOButtonShape: GOButton.GOButtonShape: theGOButton.Shape cannot be 6 (Integer)
--> fails: invalid property value: paneledGOButton.GOButtonShape: GOButton.GOButtonShape: theGOButton.Shape cannot be -1 (Integer)
--> fails: invalid property value: paneledGOButton.GOButtonShape: GOButton.GOButtonShape: theGOButton.Shape cannot be 32767 (Integer)
--> fails: overflow: paneledGOButton.GOButtonShape: GOButton.GOButtonShape: 32768 (Long) is out of the range of Integer
--> fails: overflow: paneledGOButton.GOButtonShape: GOButton.GOButtonShape: -32769 (Long) is out of the range of Integer
--> fails: type mismatch: paneledGOButton.GOButtonShape: "oval" (String) does not convert to Long
-- A click says nothing, neither on the sign, which lies in front, nor on the panels.
print(go:widget("GOButton"):click(), go:widget("panelGO", 1):click(), go:widget("panelGO", 2):click())
--> prints false false false
print(go:press(180, 500), go:release(180, 500), go:press(700, 500), go:release(700, 500), go:keydown("Alt+g"))
--> prints true false true false false
-- Nothing is saved, and the sign stays where and as it is, whatever the size and the colours of the window.
go:save(true)
--> saves nothing
local loaded = zilvo.create("paneledGOButton",
  { bag = { GOButtonShape = 3 }, width = 2000, ambient = { Font = zilvo.Font {} } })
--> created paneledGOButton 2
--> surface: Width 1500 -> 2000, ScaleWidth 1500 -> 2000
--> size 2000 x 1005
for _, name in ipairs { "BackColor", "ForeColor", "UserMode" } do loaded.ambient[name] = 0 end

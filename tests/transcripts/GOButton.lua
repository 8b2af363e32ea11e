-- A host shows a GO sign and chooses its form.
local go = zilvo.create("GOButton")
--> created GOButton
--> GOButton: GOButtonShape GOButtonIsAnOval
--> surface: BackColor 0x00FFFFFF, ForeColor 0x80000008, Width 990, Height 705, ScaleWidth 990, ScaleHeight 705
--> labelGO: Label, Caption "&GO", BackColor 0x8000000F, ForeColor 0x80000012, Font "Comic Sans MS 18 bold", Left 240, Top 80, Width 1095, Height 495
--> theGOButton: Shape, Shape 2, BorderWidth 3, BorderColor 0x80000008, FillColor 0x00008000, BackColor 0x00008000, Top 120, Width 960, Height 495
-- The six forms, and what is none.
for shape = GOButtonIsARectangle, GOButtonIsARoundedSquare do go.GOButtonShape = shape end
--> theGOButton: Shape 2 -> 0, Shape 0 -> 1, Shape 1 -> 2, Shape 2 -> 3, Shape 3 -> 4, Shape 4 -> 5
--> GOButton: GOButtonShape GOButtonIsAnOval -> GOButtonIsARoundedSquare
local function put(shape) go:invoke(0x68030000, "put", shape) end
for _, shape in ipairs { "4", 6, -1, 32767, 32768, -32769, "oval" } do pcall(put, shape) end
--> theGOButton: Shape 5 -> 4
--> GOButton: GOButtonShape GOButtonIsARoundedSquare -> GOButtonIsARoundedRectangle
--> fails: invalid property value: GOButton.GOButtonShape: theGOButton.Shape cannot be 6 (Integer)
--> fails: invalid property value: GOButton.GOButtonShape: theGOButton.Shape cannot be -1 (Integer)
--> fails: invalid property value: GOButton.GOButtonShape: theGOButton.Shape cannot be 32767 (Integer)
--> fails: overflow: GOButton.GOButtonShape: 32768 (Long) is out of the range of Integer
--> fails: overflow: GOButton.GOButtonShape: -32769 (Long) is out of the range of Integer
--> fails: type mismatch: GOButton.GOButtonShape: "oval" (String) does not convert to Long
-- A click says nothing, neither on the letters nor beside them, nor does the access key.
print(go:widget("labelGO"):click(), go:widget("theGOButton"):click(), go:press(700, 300), go:release(700, 300))
--> prints false false true false
print(go:press(20, 100), go:release(20, 100), go:keydown("Alt+g"), go:keydown("Tab"), go:key(13), go:key(" "))
--> prints true false false false false false
-- Nothing is saved, and the sign stays where and as it is, whatever the size and the colours of the window.
go:save(true)
--> saves nothing
local loaded = zilvo.create("GOButton",
  { bag = { GOButtonShape = 3 }, width = 2000, ambient = { Font = zilvo.Font {} } })
--> created GOButton 2
--> surface: Width 990 -> 2000, ScaleWidth 990 -> 2000
--> size 2000 x 705
for _, name in ipairs { "BackColor", "ForeColor", "UserMode" } do loaded.ambient[name] = 0 end

-- A host marks a place with a letter in a ring.
local marker = zilvo.create("LetterButton")
--> created LetterButton
--> LetterButton: Letter "A", LetterLeft 6
--> surface: BackColor 0x8000000F, ForeColor 0x80000008, Width 495, Height 495, ScaleWidth 33, ScaleHeight 33
--> labelLetter: Label, Caption "A", BackColor 0x8000000F, ForeColor 0x000000FF, Font "Comic Sans MS 14.25 bold", Left 6, Width 14, Height 23
--> circleLetter: Shape, Shape 3, BorderWidth 5, BorderColor 0x80000008, FillColor 0x00000000, BackColor 0x80000005, Left 2, Top 2, Width 24, Height 23
-- Of a word only the first character is shown.
for _, letter in ipairs { "Queen", "B", "\u{E4}pfel", "\u{1F0A1}!", "&A", "", 42 } do marker.Letter = letter end
--> labelLetter: Caption "A" -> "Q", Caption "Q" -> "B", Caption "B" -> "ä", Caption "ä" -> "🂡", Caption "🂡" -> "&", Caption "&" -> "", Caption "" -> "4"
--> LetterButton: Letter "A" -> "4"
-- Its place, in pixels, may be anywhere.
for _, pixels in ipairs { 10, -500, 32767, -32768, 2.5 } do marker.LetterLeft = pixels end
--> labelLetter: Left 6 -> 10, Left 10 -> -500, Left -500 -> 32767, Left 32767 -> -32768, Left -32768 -> 2
--> LetterButton: LetterLeft 6 -> 2
for _, pixels in ipairs { 10, -500, 32767, -32768, "7" } do marker.LetterTop = pixels end
--> labelLetter: Top 0 -> 10, Top 10 -> -500, Top -500 -> 32767, Top 32767 -> -32768, Top -32768 -> 7
--> LetterButton: LetterTop 0 -> 7
print(marker:invoke(0x68030002, "get"), marker:invoke(0x68030001, "get"), marker:invoke(0x68030000, "get"))
--> prints 4 2 7
for id = 0x68030000, 0x68030001 do
  for _, pixels in ipairs { 32768, -32769 } do pcall(marker.invoke, marker, id, "put", pixels) end
end
--> fails: overflow: LetterButton.LetterTop: 32768 (Long) is out of the range of Integer
--> fails: overflow: LetterButton.LetterTop: -32769 (Long) is out of the range of Integer
--> fails: overflow: LetterButton.LetterLeft: 32768 (Long) is out of the range of Integer
--> fails: overflow: LetterButton.LetterLeft: -32769 (Long) is out of the range of Integer
-- Halves go to the even neighbour, and what is no Integer cannot be read.
local label = marker:widget("labelLetter")
for _, pixels in ipairs { 2.5, 3.5 } do label.Left = pixels; label.Top = -pixels end
--> labelLetter: Left 2 -> 2.5, Top 7 -> -2.5, Left 2.5 -> 3.5, Top -2.5 -> -3.5
--> LetterButton: LetterLeft 2 -> 4, LetterTop 7 -> -4
label.Left = 32767.5
--> labelLetter: Left 3.5 -> 32767.5
--> LetterButton: LetterLeft 4 -> fails: overflow
pcall(marker.invoke, marker, 0x68030001, "get")
--> fails: overflow: LetterButton.LetterLeft: 32767.5 (Single) is out of the range of Integer
-- It hears neither mouse nor keys.
print(label:click(), marker:widget("circleLetter"):click(), marker:press(240, 240), marker:release(240, 240))
--> prints false false true false
print(marker:keydown("Tab"), marker:key(13), marker:keydown("Alt+a"))
--> prints false false false
-- Nothing is saved, and the letter stays where and as it is, whatever the size and the colours of the window.
marker:save(true)
--> saves nothing
local loaded = zilvo.create("LetterButton",
  { bag = { Letter = "X", LetterLeft = 3 }, height = 900, ambient = { Font = zilvo.Font {} } })
--> created LetterButton 2
--> surface: Height 495 -> 900, ScaleHeight 33 -> 60
--> size 495 x 900
for _, name in ipairs { "BackColor", "ForeColor", "UserMode" } do loaded.ambient[name] = 0 end

-- A host puts a small OK button beside a list.
local button = zilvo.create("verticalOK")
--> created verticalOK
--> verticalOK: Caption "OK", Font "Arial Black 8.25 weight 900"
--> surface: BackColor 0x8000000F, ForeColor 0x80000008, Width 300, Height 420, ScaleWidth 300, ScaleHeight 420
--> commandVerticalOK: CommandButton, Caption "OK", BackColor 0x8000000F, ForeColor 0x80000012, Font "Arial Black 8.25 weight 900", Width 300, Height 420
-- Clicked by mouse and by keyboard; it is neither default nor cancel button.
print(button:key(13), button:key(27), button:widget("commandVerticalOK"):click(), button:key(13), button:key(" "))
--> focus none -> commandVerticalOK
--> OKWasClicked()
--> OKWasClicked()
--> OKWasClicked()
--> prints false false true true true
-- The caption, with an access key.
button.Caption = "&No"
--> commandVerticalOK: Caption "OK" -> "&No"
--> verticalOK: Caption "OK" -> "&No"
print(button:keydown("Alt+n"), button:keydown("Tab"), button:invoke(0x68030001, "get"))
--> OKWasClicked()
--> prints true true &No
-- The font is the button's own; one that is given is shared from then on.
button.Font.Bold = false
--> commandVerticalOK: Font "Arial Black 8.25 weight 900" -> "Arial Black 8.25"
--> verticalOK: Font "Arial Black 8.25 weight 900" -> "Arial Black 8.25"
local font = zilvo.Font { Name = "Arial", Size = 10 }
button.Font = font
--> commandVerticalOK: Font "Arial Black 8.25" -> "Arial 10"
--> verticalOK: Font "Arial Black 8.25" -> "Arial 10"
font.Size = 12
--> commandVerticalOK: Font "Arial 10" -> "Arial 12"
--> verticalOK: Font "Arial 10" -> "Arial 12"
print(button.Font == font, button:invoke(0x68030000, "get") == font)
--> prints true true
for id = 0x68030000, 0x68030001 do pcall(button.invoke, button, id, "put", id == 0x68030001 and font or "Arial") end
--> fails: type mismatch: verticalOK.Font: "Arial" (String) does not convert to Font
--> fails: type mismatch: verticalOK.Caption: the font Arial does not convert to String
-- Nothing is saved, and the button stays where and as it is, whatever the size and the colours of the window.
button:save(true)
--> saves nothing
local loaded = zilvo.create("verticalOK",
  { bag = { Caption = "&No", Font = font }, width = 600, ambient = { Font = font } })
--> created verticalOK 2
--> surface: Width 300 -> 600, ScaleWidth 300 -> 600
--> size 600 x 420
for _, name in ipairs { "BackColor", "ForeColor", "UserMode" } do loaded.ambient[name] = 0 end
-- A host that renames the button when it is clicked, and fails.
loaded:on("OKWasClicked", function()
  loaded.Caption = "OK?"
  error("stop", 0)
end)
print(loaded:keydown("Tab"), pcall(loaded.key, loaded, 13))
--> focus none -> commandVerticalOK
--> OKWasClicked()
-->   commandVerticalOK: Caption "OK" -> "OK?"
-->   verticalOK: Caption "OK" -> "OK?"
--> fails as the handler did
--> prints true false stop

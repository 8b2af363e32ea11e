-- A host asks its player to confirm: OK above Cancel, by mouse or by Enter and Escape.
local pair = zilvo.create("ssOKCancel")
--> created ssOKCancel
--> ssOKCancel: Cancel True, Default True, ItalicCancel True
--> surface: BackColor 0x8000000F, ForeColor 0x80000008, Width 1455, Height 1695, ScaleWidth 97, ScaleHeight 113
--> panelCmdOK: Threed.SSPanel, BackColor 0x00C0C0C0, ForeColor 0x80000008, Font "MS Sans Serif 8.25 bold", Width 97, Height 113, TabIndex 2
--> cmdOK: CommandButton in panelCmdOK, Default True, Caption "&OK", BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "Comic Sans MS 12", Left 240, Top 240, Width 975, Height 615, Enabled False
--> cmdCancel: CommandButton in panelCmdOK, Cancel True, Caption "&Cancel", BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "Comic Sans MS 12 italic", Left 240, Top 840, Width 975, Height 615, TabIndex 1
-- OK is disabled at first; Enter typed to the control says OK all the same.
local ok = pair:widget("cmdOK")
print(ok:click(), pair:keydown("Alt+o"), pair:key(13), pair:key(27))
--> OKWasClicked()
--> CancelWasClicked()
--> prints false false true true
print(pair:key(12), pair:key(14), pair:key(26), pair:key(28), pair:key("o"))
--> prints false false false false false
-- Every way to answer raises one event.
pair.OKEnabled = true
--> cmdOK: Enabled False -> True
--> ssOKCancel: OKEnabled False -> True
print(pair:key(13), pair:key(27))
--> OKWasClicked()
--> CancelWasClicked()
--> prints true true
print(ok:click(), pair:key(13), pair:keydown("Space"))
--> focus none -> cmdOK
--> OKWasClicked()
--> OKWasClicked()
--> OKWasClicked()
--> prints true true true
for _, key in ipairs { "Tab", "Enter", "Shift+Tab", "Escape", "Alt+c", "Alt+O" } do pair:keydown(key) end
--> focus cmdOK -> cmdCancel
--> CancelWasClicked()
--> focus cmdCancel -> cmdOK
--> CancelWasClicked()
--> focus cmdOK -> cmdCancel
--> CancelWasClicked()
--> focus cmdCancel -> cmdOK
--> OKWasClicked()
-- When Cancel is no cancel button, Escape answers as before.
for _, name in ipairs { "Default", "Cancel" } do pair[name] = false end
--> cmdOK: Default True -> False
--> ssOKCancel: Default True -> False
--> PropertyChanged Default
--> cmdCancel: Cancel True -> False
--> ssOKCancel: Cancel True -> False
--> PropertyChanged Cancel
print(pair:key(27))
--> CancelWasClicked()
--> prints true
pair:SetDefaultDefaults()
--> cmdOK: Default False -> True
--> cmdCancel: Cancel False -> True
--> ssOKCancel: Cancel False -> True, Default False -> True
for _, name in ipairs { "Default", "Cancel" } do pair[name] = true end
--> PropertyChanged Default
--> PropertyChanged Cancel
-- A tool tip and italics for each.
pair.OKToolTipText = "Deal"
--> cmdOK: ToolTipText "" -> "Deal"
--> ssOKCancel: OKToolTipText "" -> "Deal"
--> PropertyChanged OKToolTipText
pair.CancelToolTipText = "Wait"
--> cmdCancel: ToolTipText "" -> "Wait"
--> ssOKCancel: CancelToolTipText "" -> "Wait"
--> PropertyChanged CancelToolTipText
pair.ItalicOK = true
--> cmdOK: Font "Comic Sans MS 12" -> "Comic Sans MS 12 italic"
--> ssOKCancel: ItalicOK False -> True
--> PropertyChanged ItalicOK
pair.ItalicCancel = false
--> cmdCancel: Font "Comic Sans MS 12 italic" -> "Comic Sans MS 12"
--> ssOKCancel: ItalicCancel True -> False
--> PropertyChanged ItalicCancel
for id = 0x68030000, 0x68030001 do pcall(pair.invoke, pair, id, "put", zilvo.Font {}) end
--> fails: type mismatch: ssOKCancel.OKToolTipText: the font MS Sans Serif does not convert to String
--> fails: type mismatch: ssOKCancel.OKEnabled: the font MS Sans Serif does not convert to Boolean
-- A host that answers itself while it is asked, and then fails.
local strict = zilvo.create("ssOKCancel")
--> created ssOKCancel 2
strict:on("CancelWasClicked", function() strict.OKEnabled = true end)
strict:on("OKWasClicked", function()
  strict.Default = false
  strict:key(27)
  error("stop", 0)
end)
print(pcall(strict.key, strict, 13))
--> OKWasClicked()
-->   cmdOK: Default True -> False
-->   ssOKCancel: Default True -> False
-->   PropertyChanged Default
-->   CancelWasClicked()
-->     cmdOK: Enabled False -> True
-->     ssOKCancel: OKEnabled False -> True
--> fails as the handler did
--> prints false stop
-- Saved and loaded, with what equals a default left out or kept. That OK was enabled is forgotten.
local loaded = zilvo.create("ssOKCancel", { bag = strict:save() })
--> saves Default Boolean False, ItalicOK Boolean False, ItalicCancel Boolean True
--> created ssOKCancel 3
--> cmdOK: Default True -> False
--> ssOKCancel: Default True -> False
loaded = zilvo.create("ssOKCancel", { bag = strict:save(true) })
--> [ssOKCancel 2] saves Default Boolean False, Cancel Boolean True, ItalicOK Boolean False, ItalicCancel Boolean True, OKToolTipText String "", CancelToolTipText String ""
--> created ssOKCancel 4
--> cmdOK: Default True -> False
--> ssOKCancel: Default True -> False
-- Loaded from nothing. The buttons stay where they are, whatever the size and the colours of the window.
loaded = zilvo.create("ssOKCancel", { bag = {}, width = 3000, ambient = { Font = zilvo.Font { Size = 20 } } })
--> created ssOKCancel 5
--> cmdOK: Font "Comic Sans MS 12" -> "Comic Sans MS 12 italic"
--> surface: Width 1455 -> 3000, ScaleWidth 97 -> 200
--> ssOKCancel: ItalicOK False -> True
--> size 3000 x 1695
for _, name in ipairs { "BackColor", "ForeColor", "UserMode" } do loaded.ambient[name] = 0 end
-- Loaded from settings of other kinds, and from what does not convert: that ends it at its key.
local settings = { Default = 0, Cancel = "False", ItalicOK = 1, ItalicCancel = 0, OKToolTipText = 42 }
settings.CancelToolTipText = true
loaded = zilvo.create("ssOKCancel", { bag = settings })
--> created ssOKCancel 6
--> cmdOK: Default True -> False
--> cmdCancel: Cancel True -> False
--> cmdOK: Font "Comic Sans MS 12" -> "Comic Sans MS 12 italic"
--> cmdCancel: Font "Comic Sans MS 12 italic" -> "Comic Sans MS 12"
--> cmdOK: ToolTipText "" -> "42"
--> cmdCancel: ToolTipText "" -> "True"
--> ssOKCancel: CancelToolTipText "" -> "True", Cancel True -> False, Default True -> False, ItalicCancel True -> False, ItalicOK False -> True, OKToolTipText "" -> "42"
loaded:save()
--> saves Default Boolean False, Cancel Boolean False, ItalicOK Boolean True, ItalicCancel Boolean False, OKToolTipText String "42", CancelToolTipText String "True"
local bad = {}
for _, key in ipairs { "CancelToolTipText", "OKToolTipText", "ItalicCancel", "ItalicOK", "Cancel", "Default" } do
  bad[key] = zilvo.Font {}
  pcall(zilvo.create, "ssOKCancel", { bag = bad })
end
--> created ssOKCancel 7
--> cmdOK: Font "Comic Sans MS 12" -> "Comic Sans MS 12 italic"
--> ssOKCancel: ItalicOK False -> True
--> fails: type mismatch: ssOKCancel.ReadProperties: CancelToolTipText: the font MS Sans Serif does not convert to String
--> created ssOKCancel 8
--> cmdOK: Font "Comic Sans MS 12" -> "Comic Sans MS 12 italic"
--> ssOKCancel: ItalicOK False -> True
--> fails: type mismatch: ssOKCancel.ReadProperties: OKToolTipText: the font MS Sans Serif does not convert to String
--> created ssOKCancel 9
--> cmdOK: Font "Comic Sans MS 12" -> "Comic Sans MS 12 italic"
--> ssOKCancel: ItalicOK False -> True
--> fails: type mismatch: ssOKCancel.ReadProperties: ItalicCancel: the font MS Sans Serif does not convert to Boolean
--> created ssOKCancel 10
--> fails: type mismatch: ssOKCancel.ReadProperties: ItalicOK: the font MS Sans Serif does not convert to Boolean
--> created ssOKCancel 11
--> fails: type mismatch: ssOKCancel.ReadProperties: Cancel: the font MS Sans Serif does not convert to Boolean
--> created ssOKCancel 12
--> fails: type mismatch: ssOKCancel.ReadProperties: Default: the font MS Sans Serif does not convert to Boolean

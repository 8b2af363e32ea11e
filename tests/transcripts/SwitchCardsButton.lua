-- A host lets its player switch the second cards of two hands.
local switch = zilvo.create("SwitchCardsButton")
--> created SwitchCardsButton
--> surface: BackColor 0x8000000F, ForeColor 0x80000008, Width 1785, Height 720, ScaleWidth 1785, ScaleHeight 720
--> panelSwitch: Threed.SSPanel, Caption "Switch-Cards Button", BackColor 0x00A8B090, ForeColor 0x80000012, Font "Comic Sans MS 9.75", Width 1780, Height 700, ToolTipText "Use Alt-V+S to hide this button"
--> commandSwitch: CommandButton in panelSwitch, Caption "Switch Cards", BackColor 0x00C0E0FF, ForeColor 0x80000012, Font "Comic Sans MS 12", Left 60, Top 40, Width 1660, Height 600, ToolTipText "   Click here to switch your 2nd-Cards...", TabIndex 1
local button = switch:widget("commandSwitch")
-- Every click says so; one on the rim of the panel does not. The button is neither default nor cancel button.
print(switch:key(13), button:click(), button:click(), switch:press(70, 300), switch:release(1700, 300), switch:key(27))
--> focus none -> commandSwitch
--> SwitchCardsButtonWasPressed()
--> SwitchCardsButtonWasPressed()
--> SwitchCardsButtonWasPressed()
--> prints false true true true true false
print(switch:press(50, 300), switch:release(50, 300), switch:press(900, 660), switch:release(900, 660))
--> prints true false true false
print(switch:keydown("Enter"), switch:keydown("Tab"), switch:keydown("Space"), switch:keydown("Alt+s"))
--> SwitchCardsButtonWasPressed()
--> SwitchCardsButtonWasPressed()
--> prints true true true false
-- Nothing is saved, and the button stays where and as it is, whatever the size and the colours of the window.
switch:save(true)
--> saves nothing
local loaded = zilvo.create("SwitchCardsButton",
  { bag = { Caption = "Deal" }, width = 3000, ambient = { Font = zilvo.Font {} } })
--> created SwitchCardsButton 2
--> surface: Width 1785 -> 3000, ScaleWidth 1785 -> 3000
--> size 3000 x 720
for _, name in ipairs { "BackColor", "ForeColor", "UserMode" } do loaded.ambient[name] = 0 end
-- A host that fails.
loaded:on("SwitchCardsButtonWasPressed", function() error("stop", 0) end)
print(loaded:keydown("Tab"), pcall(loaded.key, loaded, 13))
--> focus none -> commandSwitch
--> SwitchCardsButtonWasPressed()
--> fails as the handler did
--> prints true false stop

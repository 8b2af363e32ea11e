-- A host lets its player start and stop a drill: a click on the one of two buttons hands over to the other.
local drill = zilvo.create("StartStopButtons")
--> created StartStopButtons
--> StartStopButtons: StartButtonToolTip "Click Start to Begin Operation", StopButtonToolTip "Click Stop to End Operation"
--> surface: BackColor 0x8000000F, ForeColor 0x80000008, Width 2730, Height 975, ScaleWidth 182, ScaleHeight 65
--> panelStartStop: Threed.SSPanel, BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Width 182, Height 65
--> panelStart: Threed.SSPanel in panelStartStop, BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 120, Top 120, Width 1240, Height 735, TabIndex 1
--> StartButton: CommandButton in panelStart, Default True, Caption "START", BackColor 0x00E0E0E0, ForeColor 0x80000012, Font "Comic Sans MS 12 bold", Left 120, Top 120, Width 1000, Height 495, ToolTipText "Click Start to Begin Operation", TabIndex 2
--> panelStop: Threed.SSPanel in panelStartStop, BackColor 0x00C0C0C0, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 1360, Top 120, Width 1240, Height 735, TabIndex 3
--> StopButton: CommandButton in panelStop, Caption "STOP", BackColor 0x00E0E0E0, ForeColor 0x80000012, Font "Comic Sans MS 12 bold", Left 120, Top 120, Width 1000, Height 495, ToolTipText "Click Stop to End Operation", TabIndex 4
local start, stop = drill:widget("StartButton"), drill:widget("StopButton")
-- New, both are enabled and START is the default button.
for _, key in ipairs { "Tab", "Tab", "Shift+Tab", "Alt+s", "Escape" } do drill:keydown(key) end
--> focus none -> StartButton, StartButton -> StopButton, StopButton -> StartButton
print(stop:click(), stop:click(), start:click(), start:click())
--> focus StartButton -> StopButton, StopButton -> none
--> StopButton: Enabled True -> False
--> StopButtonWasClicked()
--> focus none -> StartButton, StartButton -> none
--> StartButton: Enabled True -> False
--> StopButton: Enabled False -> True
--> StartButton: Default True -> False
--> StopButton: Default False -> True
--> StartButtonWasClicked()
--> focus none -> StopButton
--> prints true false true false
print(drill:press(740, 490), drill:press(60, 60), drill:press(180, 180), drill:release(180, 180))
--> prints false true true false
for _, key in ipairs { "Enter", "Tab", "Space" } do drill:keydown(key) end
--> focus StopButton -> none
--> StopButton: Enabled True -> False
--> StartButton: Enabled False -> True, Default False -> True
--> StopButton: Default True -> False
--> StopButtonWasClicked()
--> focus none -> StartButton, StartButton -> none
--> StartButton: Enabled True -> False
--> StopButton: Enabled False -> True
--> StartButton: Default True -> False
--> StopButton: Default False -> True
--> StartButtonWasClicked()
--> focus none -> StopButton
-- Made ready to start from any state, without an event.
drill:SetupForStarting()
--> focus StopButton -> none
--> StopButton: Enabled True -> False
--> StartButton: Enabled False -> True, Default False -> True
--> StopButton: Default True -> False
for id = 0x60030006, 0x60030007 do drill:invoke(id, "method") end
-- Tool tips.
drill.StartButtonToolTip = "Go"
--> StartButton: ToolTipText "Click Start to Begin Operation" -> "Go"
--> StartStopButtons: StartButtonToolTip "Click Start to Begin Operation" -> "Go"
--> PropertyChanged StartButtonToolTip
drill.StopButtonToolTip = "Halt"
--> StopButton: ToolTipText "Click Stop to End Operation" -> "Halt"
--> StartStopButtons: StopButtonToolTip "Click Stop to End Operation" -> "Halt"
--> PropertyChanged StopButtonToolTip
for id = 0x68030000, 0x68030001 do pcall(drill.invoke, drill, id, "put", zilvo.Font {}) end
--> fails: type mismatch: StartStopButtons.StopButtonToolTip: the font MS Sans Serif does not convert to String
--> fails: type mismatch: StartStopButtons.StartButtonToolTip: the font MS Sans Serif does not convert to String
-- A host that stops at once what was started, and fails.
local strict = zilvo.create("StartStopButtons")
--> created StartStopButtons 2
strict:on("StartButtonWasClicked", function() strict:widget("StopButton"):click() end)
strict:on("StopButtonWasClicked", function() error("stop", 0) end)
print(pcall(strict.key, strict, 13))
--> StartButton: Enabled True -> False, Default True -> False
--> StopButton: Default False -> True
--> StartButtonWasClicked()
-->   focus none -> StopButton, StopButton -> none
-->   StopButton: Enabled True -> False
-->   StartButton: Enabled False -> True, Default False -> True
-->   StopButton: Default True -> False
-->   StopButtonWasClicked()
-->   fails as the handler did
--> fails as the handler did
--> prints false stop
-- Saved are the tool tips that were given; the designed ones are gone when a pair is loaded.
strict:save()
--> saves StartButtonToolTip String "", StopButtonToolTip String ""
local loaded = zilvo.create("StartStopButtons", { bag = drill:save(true) })
--> [StartStopButtons] saves StartButtonToolTip String "Go", StopButtonToolTip String "Halt"
--> created StartStopButtons 3
--> StartButton: ToolTipText "Click Start to Begin Operation" -> "Go"
--> StopButton: ToolTipText "Click Stop to End Operation" -> "Halt", Enabled True -> False
--> StartStopButtons: StartButtonToolTip "Click Start to Begin Operation" -> "Go", StopButtonToolTip "Click Stop to End Operation" -> "Halt"
loaded:save()
--> saves StartButtonToolTip String "Go", StopButtonToolTip String "Halt"
-- Loaded from nothing. The buttons stay where they are, whatever the size and the colours of the window.
loaded = zilvo.create("StartStopButtons", { bag = {}, height = 1500, ambient = { Font = zilvo.Font { Size = 20 } } })
--> created StartStopButtons 4
--> StartButton: ToolTipText "Click Start to Begin Operation" -> ""
--> StopButton: ToolTipText "Click Stop to End Operation" -> "", Enabled True -> False
--> surface: Height 975 -> 1500, ScaleHeight 65 -> 100
--> StartStopButtons: StartButtonToolTip "Click Start to Begin Operation" -> "", StopButtonToolTip "Click Stop to End Operation" -> ""
--> size 2730 x 1500
for _, name in ipairs { "BackColor", "ForeColor", "UserMode" } do loaded.ambient[name] = 0 end
-- What does not convert ends the loading at its key; STOP's is the first.
local settings = { StartButtonToolTip = "Go", StopButtonToolTip = 42 }
for _, key in ipairs { "StartButtonToolTip", "StopButtonToolTip" } do
  settings[key] = zilvo.Font {}
  pcall(zilvo.create, "StartStopButtons", { bag = settings })
end
--> created StartStopButtons 5
--> fails: type mismatch: StartStopButtons.ReadProperties: StartButtonToolTip: the font MS Sans Serif does not convert to String
--> created StartStopButtons 6
--> fails: type mismatch: StartStopButtons.ReadProperties: StopButtonToolTip: the font MS Sans Serif does not convert to String

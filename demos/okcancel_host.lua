local pair = zilvo.create("ssOKCancel", { ambient = { UserMode = true } })
pair:on("OKWasClicked", function() print("OK was clicked") end)
pair:on("CancelWasClicked", function() print("Cancel was clicked") end)
pair.OKEnabled = true
pair.OKToolTipText = "Deal the next round"
pair:widget("cmdOK"):click()
pair:key(27)
local settings = pair:save()
print("OK's tool tip was saved: " .. settings.OKToolTipText)
pair:snapshot("okcancel.svg")

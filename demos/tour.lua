-- A walk through the OK/Cancel pair: created new and loaded, clicked, typed to, changed, saved, loaded again and
-- drawn. The name of the picture may be given: ./run demos/tour.lua FILE.svg
local picture = ... or "ssOKCancel.svg"

local function listen(control, who)
  control:on("OKWasClicked", function() print(who .. ": OKWasClicked") end)
  control:on("CancelWasClicked", function() print(who .. ": CancelWasClicked") end)
end

local function state(control)
  return string.format("OK enabled %s, default %s, italic %s; Cancel is cancel button %s, italic %s",
    control.OKEnabled, control.Default, control.ItalicOK, control.Cancel, control.ItalicCancel)
end

print("A new pair")
local new = zilvo.create("ssOKCancel")
listen(new, "new")
print("  " .. state(new))
print("  a click on the disabled OK button does anything: " .. tostring(new:widget("cmdOK"):click()))
print("  Enter and Escape do:")
new:key(13)
new:key(27)
new.OKEnabled = true
print("  enabled, a click on OK and one on Cancel:")
new:widget("cmdOK"):click()
new:widget("cmdCancel"):click()
print("  a real pointer, and the access key:")
new:press(700, 500)
new:release(700, 500)
new:keydown("Alt+C")

print("Changing its settings")
new.Default = false
new.ItalicOK = true
new.OKToolTipText = "Take it"
new.CancelToolTipText = "Leave it"
print("  reported as changed: " .. table.concat(new.changes, ", "))
local bag, kinds = new:save()
for _, key in ipairs { "Default", "Cancel", "ItalicOK", "ItalicCancel", "OKToolTipText", "CancelToolTipText" } do
  print(string.format("  saved %-18s %s", key, bag[key] == nil and "(left out, it is the default)"
    or kinds[key] .. " " .. tostring(bag[key])))
end

print("Loaded from what was saved")
local loaded = zilvo.create("ssOKCancel", { bag = bag })
listen(loaded, "loaded")
print("  " .. state(loaded))
assert(loaded.Default == false and loaded.ItalicOK == true and loaded.CancelToolTipText == "Leave it")
loaded:SetDefaultDefaults()
loaded:keydown("Enter")

print("Loaded from an empty bag")
print("  " .. state(zilvo.create("ssOKCancel", { bag = {} })))

print("What goes wrong is said")
local ok, failure = pcall(zilvo.create, "ssOKCancel", { bag = { Default = "perhaps" } })
print("  " .. failure.name .. ": " .. failure.message)
ok, failure = pcall(function() new.OKCaption = "Yes" end)
print("  " .. failure.name .. ": " .. failure.message)
assert(not ok)

loaded.OKEnabled = true
loaded:snapshot(picture)
print("The picture is in " .. picture)

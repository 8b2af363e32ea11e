-- Values of every kind on their way between a host and a control: properties, arguments, events, saved settings.
local small = zilvo.create("Small")
--> created Small
--> Small: IsReady True, Allowed 3, Breadth 1200, Mood CalmMood, Font "MS Sans Serif 8.25", Ground 0x8000000F, Shown True, RunsInUserMode True
--> surface: BackColor 0x8000000F, ForeColor 0x80000008, Width 1200, Height 1200, ScaleWidth 1200, ScaleHeight 1200
--> ssoPick(1): Threed.SSOption, Caption "Pick &1", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 60, Top 60, Width 900, Height 270
--> ssoPick(2): Threed.SSOption, Caption "Pick &2", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 60, Top 360, Width 900, Height 270, TabIndex 1
--> ssoPick(3): Threed.SSOption, Caption "Pick &3", BackColor 0x8000000F, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 60, Top 660, Width 900, Height 270, TabIndex 2
--> lblTitle: Label, BackColor 0x00FFFFFF, ForeColor 0x80000012, Font "MS Sans Serif 8.25", Left 60, Top 960, Width 1080, Height 210, TabIndex 3
--> mnuRoot: Menu, Visible False
--> mnuPick(11): Menu in mnuRoot, Caption "&Eleven"
--> mnuPick(12): Menu in mnuRoot, Caption "&Twelve"
local function put(name, ...)
    for _, value in ipairs { ... } do pcall(function() small[name] = value end) end
end
-- Properties take what converts to their kind; what does not is refused and changes nothing.
put("IsReady", 0, "no"); put("Count", "12", 32768); put("Mood", 77); put("Ground", 0x00FF00); put("RunsInUserMode", true)
--> Small: IsReady True -> False
--> PropertyChanged IsReady
--> fails: type mismatch: Small.IsReady: "no" (String) does not convert to Boolean
--> Small: Count 0 -> 12
--> PropertyChanged Count
--> fails: overflow: Small.Count: 32768 (Long) is out of the range of Integer
--> Small: Mood CalmMood -> 77
--> PropertyChanged Mood
--> surface: BackColor 0x8000000F -> 0x0000FF00
--> Small: Ground 0x8000000F -> 0x0000FF00
--> fails: read-only property: Small.RunsInUserMode: can only be read
put("Title", "K\u{f6}nig \u{2660} \u{1F0A1}", small); put("Breadth", "1400.5", -1); put("Allowed", 4, 2)
--> lblTitle: Caption "" -> "König ♠ 🂡"
--> Small: Title "" -> "König ♠ 🂡"
--> PropertyChanged Title
--> fails: type mismatch: Small.Title, newTitle: a zilvo control has no kind that a member could take
--> surface: Width 1200 -> 1400.5, ScaleWidth 1200 -> 1400.5
--> Small: Breadth 1200 -> 1400.5
--> size 1400.5 x 1200
--> lblTitle: Width 1080 -> 1280.5
--> PropertyChanged Breadth
--> fails: invalid property value: Small.Breadth: a width of -1 twips is not possible
--> Small: Allowed 3 -> 4
--> fails: missing element: Small.Allowed: ssoPick has no element 4
--> ssoPick(3): Enabled True -> False
--> Small: Allowed 4 -> 2
print(small.IsReady, small.Count, small.Allowed, small.Breadth, small.Title, small.Mood, small.Ground)
--> prints false 12 2 1400.5 König ♠ 🂡 77 65280
-- Fonts are shared objects; a property that takes one over has no ordinary put.
local font = zilvo.Font { name = "Arial", Size = 12, Bold = true }
small.Font = font; font.Weight = 400; print(small.Font == font, small:widget("lblTitle").Font == font, font.Bold)
--> lblTitle: Font "MS Sans Serif 8.25" -> "Arial 12 bold"
--> Small: Font "MS Sans Serif 8.25" -> "Arial 12 bold"
--> PropertyChanged Font
--> lblTitle: Font "Arial 12 bold" -> "Arial 12"
--> Small: Font "Arial 12 bold" -> "Arial 12"
--> prints true true false
put("Font", 12); pcall(small.invoke, small, 0x68030006, "put", font); print(small:invoke(0x68030001, "get"))
--> fails: type mismatch: Small.Font: 12 (Long) does not convert to Font
--> fails: unknown member: Small.Font: has no put
--> prints 12
-- By-reference arguments come behind the result, arrays as the caller's own from any lower bound.
print(small:Step(4), small:Step("4"), small:Divide(17, 5.0, zilvo.Single(1))); print(small:invoke(0x60030001, "method", 17, 5, 0)); print(small:Append("abc", 7))
--> prints 5 5 3 2
--> prints 3 2
--> prints abc7
pcall(small.Step, small, 32767); pcall(small.Divide, small, 1, 0, 0)
--> fails: overflow: Small.Step: Number: 32768 (Long) is out of the range of Integer
--> fails: overflow: Small.Divide: the divisor is 0
local flags, bound = { [0] = true, false, false }, zilvo.array(5, { false, true })
print(small:Flip(flags), flags[0], small:Flip(bound), bound[5], bound[6]); pcall(small.Flip, small, {})
--> prints 2 false 1 true false
--> fails: subscript out of range: Small.Flip: the array has no elements
-- What a handler gives is written into the control's variable, in the order of attaching.
local first, second = small:on("Picked", function() return "2", 5 end), small:on("Picked", function(which) return which + 1 end)
print(small:keydown("Escape"), small:key("1"))
--> Picked(0)
-->   gives "2"
-->   gives 3
--> prints true false
first:disconnect(); second:disconnect(); small:on("Picked", function() return "x" end)
pcall(small.key, small, "0")
--> Picked(0)
-->   gives "x"
-->   fails: type mismatch: Small.Picked, value 1 that the handler gives: "x" (String) does not convert to Long
--> fails as the handler did
-- Settings are stored with their kinds; what equals its default may be left out.
local bag = small:save()
--> saves IsReady Boolean False, Count Integer 12, Allowed Long 2, Breadth Single 1400.5, Title String "König ♠ 🂡", Mood Long 77, Font Font "Arial 12"
small = zilvo.create("Small", { bag = bag })
--> created Small 2
--> ssoPick(3): Enabled True -> False
--> surface: Width 1200 -> 1400.5, ScaleWidth 1200 -> 1400.5
--> Small: IsReady True -> False, Count 0 -> 12, Allowed 3 -> 2, Breadth 1200 -> 1400.5
--> size 1400.5 x 1200
--> lblTitle: Width 1080 -> 1280.5, Caption "" -> "König ♠ 🂡", Font "MS Sans Serif 8.25" -> "Arial 12"
--> Small: Title "" -> "König ♠ 🂡", Mood CalmMood -> 77, Font "MS Sans Serif 8.25" -> "Arial 12"
small = zilvo.create("Small", { bag = {}, ambient = { Font = zilvo.Font { Name = "Courier" } } })
--> created Small 3
--> surface: Width 1200 -> 1500, ScaleWidth 1200 -> 1500
--> Small: Breadth 1200 -> 1500
--> size 1500 x 1200
--> lblTitle: Width 1080 -> 1380, Font "MS Sans Serif 8.25" -> "Courier 8.25"
--> Small: Font "MS Sans Serif 8.25" -> "Courier 8.25"
small:save(); small:save(true)
--> saves Allowed Long 3
--> saves IsReady Boolean True, Count Integer 0, Allowed Long 3, Breadth Single 1500, Title String "", Mood Long 1, Font Font "Courier 8.25"
-- A setting that does not convert fails the loading; what was read before it stays.
pcall(zilvo.create, "Small", { bag = { title = zilvo.Long(8), Font = 3 } })
--> created Small 4
--> surface: Width 1200 -> 1500, ScaleWidth 1200 -> 1500
--> Small: Breadth 1200 -> 1500
--> size 1500 x 1200
--> lblTitle: Width 1080 -> 1380, Caption "" -> "8"
--> Small: Title "" -> "8"
--> fails: type mismatch: Small.ReadProperties: Font: 3 (Long) does not convert to Font
-- Each ambient change reaches it; a new one takes none over.
small = zilvo.create("Small", { ambient = { BackColor = 255 } })
--> created Small 5
small.ambient.UserMode = false; pcall(function() small.ambient.ForeColor = 0x100000000 end); small.Shown = false
--> surface: BackColor 0x8000000F -> 0x000000FF
--> Small: Ground 0x8000000F -> 0x000000FF, RunsInUserMode True -> False
--> fails: overflow: Small.ambient.ForeColor: 4294967296 is out of the range of Long
--> beep
--> extender: Visible True -> False
--> Small: Shown True -> False

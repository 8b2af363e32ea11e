-- Every kind of value, argument and event argument on its way between a script and a control.

local expect = dofile(arg[0]:match("^(.-)[^/]*$") .. "../support/expect.lua")
local equal, fails = expect.equal, expect.fails

local g = zilvo.create("WidgetGallery")

-- Properties of each kind come back as they are; other kinds are converted on the way in.
for _, case in ipairs {
    { "IsReady", true, true, "boolean" }, { "IsReady", 0, false, "boolean" }, { "IsReady", "True", true, "boolean" },
    { "Count", 32767, 32767, "integer" }, { "Count", 2.5, 2, "integer" }, { "Count", "12", 12, "integer" },
    { "Total", -2147483648, -2147483648, "integer" }, { "Total", true, -1, "integer" },
    { "Ratio", 0.25, 0.25, "float" }, { "Ratio", 3, 3, "float" },
    { "Title", "K\u{f6}nig \u{2660} \u{1F0A1}", "K\u{f6}nig \u{2660} \u{1F0A1}", "string" },
    { "Title", 17, "17", "string" }, { "Title", true, "True", "string" }, { "Title", "a\0b", "a\0b", "string" },
    { "Mood", LivelyMood, 2, "integer" }, { "Mood", 77, 77, "integer" },
} do
    local name, given, expected, kind = table.unpack(case)
    g[name] = given
    equal(g[name], expected, name)
    equal(math.type(g[name]) or type(g[name]), kind, "the type of " .. name)
end
equal(CalmMood, 1)
g.Title = "broken \xff text"
equal(g.Title, "broken \u{fffd} text")
fails("overflow", function() g.Count = 32768 end)
fails("overflow", function() g.Total = 2147483648 end)
fails("overflow", function() g.Ratio = 1e39 end)
fails("type mismatch", function() g.Count = "many" end)
fails("type mismatch", function() g.Font = 12 end)
fails("type mismatch", function() g.Font = nil end)
fails("read-only property", function() g.KeysSeen = "x" end)

-- Fonts are shared objects; a property that takes one over has no ordinary put.
local font = zilvo.Font { name = "Arial", Size = 12, Bold = true, Charset = 2 }
g.Font = font
assert(g.Font == font and g.Font ~= zilvo.Font { Name = "Arial", Size = 12 })
equal(font.Weight, 700)
font.Weight = 400
equal(g.Font.Bold, false)
equal(g:widget("lblTitle").Font.Charset, 2)
g:widget("lblTable").Font = font
g:widget("lblTable").Font.Underline = true
equal(font.Underline, true)
local fontId = 0x68030006
equal(g:invoke(fontId, "get"), font)
g:invoke(fontId, "putref", zilvo.Font())
equal(g.Font.Name, "MS Sans Serif")
fails("unknown member", function() g:invoke(fontId, "put", font) end)

-- By-reference arguments come behind the result, in order.
local function values(...) return select("#", ...) .. ":" .. table.concat({ ... }, ",") end
equal(values(g:Step(4)), "1:5")
equal(values(g:Step("4")), "1:5")
equal(values(g:divide(17, 5, 0)), "2:3,2")
equal(values(g:Append("abc", "def")), "1:abcdef")
equal(values(g:Divide(zilvo.Integer(17), 5.0, zilvo.Single(1))), "2:3,2")
equal(fails("overflow", function() g:Step(32767) end).message:match("^[%w.]*"), "WidgetGallery.Step")
fails("overflow", function() g:Divide(1, 0, 0) end)
equal(fails("argument count", function() g:Divide(1, 2) end).status, 0x8002000E)
fails("argument count", function() g:Divide(1, 2, 3, nil) end)
equal(values(g:invoke(0x60030001, "method", 17, 5, 0)), "2:3,2")
local other = zilvo.create("WidgetGallery")
equal(values(g.Step(other, 1)), "1:2")

-- Arrays: plain tables from 0 or 1 are written back, arrays with a bound are passed as they are.
for _, lower in ipairs { 0, 1 } do
    local flags = { [lower] = true, [lower + 1] = false, [lower + 2] = false }
    local set, same = g:Flip(flags)
    equal(set, 2)
    assert(rawequal(same, flags))
    equal(flags[lower], false)
    equal(flags[lower + 2], true)
    equal(flags[lower + 3], nil)
end
local array = zilvo.array(5, { false, false })
local set, same = g:Flip(array)
equal(set, 2)
assert(same == array and array[5] and array[6])
fails("subscript out of range", function() g:Flip({}) end)
fails("type mismatch", function() g:Flip(7) end)
fails("type mismatch", function() g:Flip({ true, 1 }) end)
fails("type mismatch", function() g:Flip({ true, nil, false }) end)

-- What a failing call did before it failed stays.
g.Total = 5
fails("missing element", function() g:FailHalfway() end)
equal(g.Total, 6)

-- What a handler gives is written into the variable of the control, converted to its kind.
local small = zilvo.create("Small")
local given
local connection = small:on("Picked", function(which) given = which return 3 end)
equal(small:widget("ssoPick", 1):click(), true)
equal(given, 1)
equal(small:widget("ssoPick", 3).Value, true, "the pick that the handler chose")
connection:disconnect()
connection = small:on("Picked", function() return nil, 5 end)
small:widget("ssoPick", 2):click()
equal(small:widget("ssoPick", 2).Value, true)
connection:disconnect()
for given, name in pairs { ["x"] = "type mismatch", [2 ^ 40] = "overflow" } do
    connection = small:on("Picked", function() return given end)
    local failure = fails(name, function() small:key("0") end)
    assert(failure.message:find("Small.Picked", 1, true), failure.message)
    connection:disconnect()
end
connection = small:on("Picked", function() return print end)
fails("type mismatch", function() small:key("0") end)
connection:disconnect()
equal(small:key("0"), true)

-- Two handlers see the same variable.
local second
small:on("Picked", function() return "2" end)
small:on("Picked", function(which) second = which end)
small:widget("ssoPick", 1):click()
equal(second, 2)

-- Settings with their kinds, and back.
local saved = zilvo.create("WidgetGallery")
saved.Count, saved.Ratio, saved.Mood, saved.Title = 3, 0.5, LivelyMood, "T"
saved.Font = zilvo.Font { Name = "Arial" }
local bag, kinds = saved:save()
local shown = {}
for key in pairs(bag) do shown[#shown + 1] = key .. "=" .. kinds[key] end
table.sort(shown)
equal(table.concat(shown, " "), "Count=Integer Font=Font Mood=Long Ratio=Single Title=String Total=Long")
local loaded = zilvo.create("WidgetGallery", { bag = bag })
equal(loaded.Count, 3)
equal(loaded.Mood, LivelyMood)
assert(loaded.Font ~= saved.Font and loaded.Font.Name == saved.Font.Name)
equal(zilvo.create("WidgetGallery", { bag = { Count = zilvo.String("8") } }).Count, 8)
fails("overflow", function() zilvo.create("WidgetGallery", { bag = { Count = 40000 } }) end)
local ambientFont = zilvo.Font { Name = "Courier" }
assert(zilvo.create("WidgetGallery", { bag = {}, ambient = { Font = ambientFont } }).Font.Name == "Courier")

-- Ambient changes are told.
equal(g.AmbientChanges, 0)
g.ambient.UserMode = false
g.ambient.ForeColor = 0x80000008
equal(g.AmbientChanges, 2)
fails("overflow", function() g.ambient.ForeColor = 0x100000000 end)
equal(g.AmbientChanges, 2)

-- Functions without an object.
equal(IsBitSet(6, 1), true)
equal(values(SetBit(1, 3)), "1:9")
fails("overflow", function() SetBit(1, 99) end)
fails("argument count", function() SetBit(1) end)
local functions = zilvo.create("GalleryFunctions")
equal(functions:IsBitSet(4, 2), true)
fails("no such interface", function() functions:key(13) end)
fails("no such interface", function() return functions.surface end)
fails("no such interface", function() zilvo.create("GalleryFunctions", { bag = {} }) end)

-- The description as a table: what is absent is not there.
local description = zilvo.describe()
equal(description.library.version, "1.2")
equal(#description.classes, 4)
equal(description.classes[4].name, "GalleryFunctions")
equal(description.classes[4].events, nil)
equal(description.classes[4].bitmap, nil)
local divide
for _, member in ipairs(description.classes[1].interface.members) do
    if member.name == "Divide" then divide = member end
end
equal(divide.id, 0x60030001)
equal(divide.kind, "method")
equal(divide.type, "Long")
equal(divide.arguments[3].byRef, true)
equal(description.classes[1].interface.members[6].type, "GalleryMood")
equal(table.concat(description.classes[1].interface.members[7].access, " "), "get putref")
equal(description.classes[1].events.members[4].arguments[2].byRef, true)

g, other, small, connection, saved, loaded, functions = nil, nil, nil, nil, nil, nil, nil
collectgarbage()
collectgarbage()
equal(zilvo.alive, 0, "living objects that scripts can let go of")

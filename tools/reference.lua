-- Writes the reference into a folder: a page for each class, a picture of each control, and a table of contents.
--
--     zilvo run tools/reference.lua SOURCE_FOLDER OUTPUT_FOLDER
--
-- What a class publishes comes from the component's description, what it is like when it is new from an instance, and
-- the sentences from the `///` comments of the headers.

local sources, output = ...
local component = zilvo.describe()

-- The headers

local commentsIn = dofile(sources .. "/tools/headers.lua").commentsIn

local function headerOf(class)
    for _, folder in ipairs { "buttons", "seats", "setup" } do
        local name = string.format("%s/zilvo/%s/%s.h", sources, folder, class)
        local file = io.open(name)
        if file then
            file:close()
            return name
        end
    end
    error("there is no header of " .. class)
end

local function readMiscStatusBits()
    local bits = {}
    for line in io.lines(sources .. "/zilvo/framework/Identity.h") do
        local name, value, meaning = line:match("^    (%w+) = (0x%x+), +///< (.*)$")
        if name then bits[#bits + 1] = { name = name, value = math.tointeger(value), meaning = meaning } end
    end
    return bits
end

-- What each class is for in the count drill, whose sources say it where they declare an instance.
local function readUses()
    local uses = {}
    for _, file in ipairs { "SetupPage.h", "TablePage.h", "ResultPage.h", "Felt.h", "SeatSets.cpp" } do
        for line in io.lines(sources .. "/demos/drill/" .. file) do
            local declared, use = line:match("^(.*); +///< (.*)$")
            for word in (declared or ""):gmatch("%w+") do uses[word] = { file = file, use = use } end
        end
    end
    return setmetatable(uses, { __index = function(_, name) error("the drill has no use for " .. name) end })
end

local uses = readUses()
local miscStatusBits = readMiscStatusBits()
local commentsOf, isEnumeration = {}, {}
for _, class in ipairs(component.classes) do commentsOf[class.name] = commentsIn(headerOf(class.name)) end
for _, enumeration in ipairs(component.enumerations) do isEnumeration[enumeration.name] = true end

-- Markdown

local function hex(number) return string.format("`0x%08x`", number & 0xffffffff) end

local function shownType(name)
    return isEnumeration[name] and string.format("[%s](README.md#%s)", name, name:lower()) or name
end

local function signature(arguments)
    local list = {}
    for _, argument in ipairs(arguments) do
        list[#list + 1] = (argument.byRef and "ByRef " or "") .. argument.name .. " As " .. shownType(argument.type)
    end
    return "(" .. table.concat(list, ", ") .. ")"
end

-- A file that is put together line by line.
local Page = {}
Page.__index = Page

local function newPage(title) return setmetatable({ "# " .. title }, Page) end

function Page:paragraph(...)
    self[#self + 1] = ""
    self[#self + 1] = string.format(...)
end

-- A comment, with links to the pages of the other classes that it names; `label` stands before it.
function Page:prose(lines, class, label)
    if #lines == 0 then return end
    local text = table.concat(lines, "\n"):gsub("[%w_]+", function(word)
        if commentsOf[word] and word ~= class then return string.format("[%s](%s.md)", word, word) end
    end)
    self:paragraph("%s%s", label or "", text)
end

function Page:row(...) self[#self + 1] = "| " .. table.concat({ ... }, " | ") .. " |" end

function Page:table(...)
    self[#self + 1] = ""
    self:row(...)
    self[#self + 1] = "|" .. ("---|"):rep(select("#", ...))
end

function Page:write(name)
    local file = assert(io.open(output .. "/" .. name, "w"))
    assert(file:write(table.concat(self, "\n"), "\n"))
    assert(file:close())
end

-- The page of a class

local function addOverview(page, class)
    local lines = {}
    for _, line in ipairs(commentsOf[class.name][class.name]) do
        if line:find("^The host ") then lines[#lines + 1] = "" end -- a paragraph of its own
        lines[#lines + 1] = line
    end
    page:prose(lines, class.name)
end

local function addIdentity(page, class)
    page:paragraph("## Identity")
    page:table("", "")
    page:row("ProgID", "`" .. class.progId .. "`")
    page:row("class id", "`" .. class.classId .. "`")
    page:row("interface", string.format("`%s` `%s`", class.interface.name, class.interface.id))
end

local function addIdentityOfControl(page, class)
    page:row("event interface", string.format("`%s` `%s`", class.events.name, class.events.id))
    page:row("toolbox bitmap", class.bitmap)
    local names = {}
    for _, bit in ipairs(miscStatusBits) do
        if class.miscStatus & bit.value ~= 0 then names[#names + 1] = bit.name end
    end
    page:row("[misc status](README.md#misc-status)", hex(class.miscStatus) .. " " .. table.concat(names, ", "))
    local surface = zilvo.create(class.name).surface
    page:row("size when new", string.format("%g by %g twips", surface.Width, surface.Height))
end

local function addProperty(page, property, class)
    page:paragraph("%s property %s As %s (%s)", hex(property.id), property.name, shownType(property.type),
        table.concat(property.access, ", "))
    for _, access in ipairs(property.access) do
        -- What is said of getting it is said of the property.
        local label = access == "get" and "" or "*" .. access:gsub("^p", "P") .. ":* "
        page:prose(commentsOf[class][access .. "_" .. property.name], class, label)
    end
end

local function addMethod(page, method, class)
    local result = method.type and " As " .. shownType(method.type) or ""
    page:paragraph("%s method %s%s%s", hex(method.id), method.name, signature(method.arguments), result)
    page:prose(commentsOf[class][method.name], class)
end

local function addMembers(page, class)
    page:paragraph("## Members")
    local members = class.interface.members
    if #members == 0 then page:paragraph("None.") end
    for _, member in ipairs(members) do
        page:paragraph("### %s", member.name)
        local add = member.kind == "property" and addProperty or addMethod
        add(page, member, class.name)
    end
end

local function addEvents(page, class)
    page:paragraph("## Events")
    local events = class.events.members
    if #events == 0 then page:paragraph("None.") end
    for _, event in ipairs(events) do
        page:paragraph("### %s", event.name)
        page:paragraph("`%d` event %s%s", event.id, event.name, signature(event.arguments))
        page:prose(commentsOf[class.name][event.name], class.name)
    end
end

local function shownFont(font)
    local style = (font.Bold and ", bold" or "") .. (font.Italic and ", italic" or "")
    return string.format("%s %g%s", font.Name, font.Size, style)
end

local function shownValue(value, kind)
    if kind == "Font" then return shownFont(value) end
    if kind == "String" then return '"' .. value .. '"' end
    if kind == "Boolean" then return value and "True" or "False" end
    return string.format("%g", value)
end

local function addSettings(page, class)
    page:paragraph("## Saved settings")
    local new, kinds = zilvo.create(class):save(true)
    local loaded = zilvo.create(class, { bag = {} }):save(true)
    local keys = {}
    for key in pairs(new) do keys[#keys + 1] = key end
    table.sort(keys)
    if #keys == 0 then return page:paragraph("None.") end
    page:table("key", "kind", "new", "loaded from an empty store, if different")
    for _, key in ipairs(keys) do
        local before, after = shownValue(new[key], kinds[key]), shownValue(loaded[key], kinds[key])
        page:row(key, kinds[key], before, after ~= before and after or "")
    end
end

-- Pictures of a class in use, besides the one of a fresh instance: what they show, and how it comes about.

local function mounted(handedness)
    return function(counter)
        counter.ControlHandedness = handedness
        counter.CounterValue = 7
    end
end

local scenes = {
    SitDownButton = { { "with its selector open", function(sit) sit:widget("cmdSitDown"):click() end, { bag = {} } } },
    DeckButtons = {
        { "narrow", function(decks) decks.ObjectWidth = NarrowObject end },
        { "with its menu", function(decks)
            decks:widget("menuCasinoDefaults", 10):click()
            decks:press(3900, 840, 2)
            for _, key in ipairs { "Down", "Right", "Down", "Down" } do decks:keydown(key) end
        end },
    },
    ssOKCancel = { { "in use", function(pair)
        pair.OKEnabled, pair.CancelToolTipText = true, "Leave"
        pair:keydown("Tab")
        pair:press(700, 1100)
    end } },
    verticalOK = { { "in use", function(ok) ok:widget("commandVerticalOK"):click() end } },
    StartStopButtons = { { "running", function(drill) drill:widget("StartButton"):click() end } },
    LetterButton = { { "in use", function(mark) mark.Letter = "Q" end } },
    GOButton = { { "in use", function(go) go.GOButtonShape = GOButtonIsARoundedSquare end } },
    PlusMinusButton = { { "subtracting", function(mode) mode:widget("ImagePlusMinus", 2):click() end } },
    GamingCardSelection = {
        { "in use", function(cards)
            cards:widget("GamingCardButtons", 2):click()
            cards:press(50, 50)
            cards:widget("chkXButton", 0).Value = true
            cards:widget("chkXButton", 0).Enabled = false
            cards:widget("GamingCardButtons", 1).Enabled = false
        end },
        { "with a focus", function(cards) for _ = 1, 5 do cards:keydown("Tab") end end },
    },
    PlayerButtons = { { "in use", function(seats)
        seats:SetupTheRadioButtons { true, false, true, false }
        seats:SelectButton(4)
        seats:widget("optPlayerSeatSelector", 6):click()
    end } },
    CardShufflingOptions = { { "in use", function(shuffle)
        shuffle.CardShuffleMethod = SMBoxShuffleGeneric
        shuffle:keydown("Tab")
    end } },
    SeatCheckBoxes = { { "in use", function(seats)
        seats:AvailableSeatsAre { true, true, false, true, true, true, true }
        for _, k in ipairs { 2, 5, 6 } do seats:widget("checkSeatSelected", k):click() end
        seats:widget("checkSeatSelected", 7).Value = 2
        seats:MySeatIS(4)
    end, { bag = {} } } },
    SpinCounter = {
        { "in use", function(counter)
            counter:keydown("Tab")
            counter:press(1300, 300)
        end, { height = 360 } },
        { "left-hand", mounted(LeftHandSpinCounter) },
        { "right-hand", mounted(RighHandSpinCounter) },
        { "top mount", mounted(TopMountSpinCounter) },
        { "bottom mount", mounted(BottomMountSpinCounter) },
    },
}

local function addScenes(page, className)
    for _, scene in ipairs(scenes[className] or {}) do
        local shows, happens, options = table.unpack(scene)
        local name = className .. "-" .. shows:gsub("with its ", ""):gsub(" ", "-")
        local control = zilvo.create(className, options)
        happens(control)
        control:snapshot(string.format("%s/%s.svg", output, name))
        page:paragraph("%s:", (shows:gsub("^%l", string.upper)))
        page:paragraph("![%s, %s](%s.svg)", className, shows, name)
    end
end

local function writeClass(class)
    local isControl = class.events ~= nil
    local page = newPage(class.name)
    page:paragraph("[All classes](README.md)")
    addOverview(page, class)
    if isControl then page:paragraph("![%s](%s.svg)", class.name, class.name) end
    addScenes(page, class.name)
    local drill = uses[class.name]
    page:paragraph("In [the count drill](../../demos/drill/%s): %s.", drill.file, drill.use)
    addIdentity(page, class)
    if isControl then addIdentityOfControl(page, class) end
    addMembers(page, class)
    if isControl then
        addEvents(page, class)
        addSettings(page, class.name)
        zilvo.create(class.name):snapshot(string.format("%s/%s.svg", output, class.name))
    end
    page:write(class.name .. ".md")
end

-- The table of contents, with what the classes have in common

-- The first sentence of the class's comment, from what the player sees on.
local function purposeOf(class)
    local sentence = (table.concat(commentsOf[class][class], " ") .. " "):match("^(.-%.) ")
    return (sentence:gsub("^The player sees (.)", string.upper))
end

local function addClasses(page)
    page:table("class", "ProgID", "what it is")
    for _, class in ipairs(component.classes) do
        local link = string.format("[%s](%s.md)", class.name, class.name)
        page:row(link, "`" .. class.progId .. "`", purposeOf(class.name))
    end
end

local function addEnumerations(page)
    local comments, preface = commentsIn(sources .. "/zilvo/framework/Enumerations.h")
    page:paragraph("## Enumerations")
    page:prose(preface)
    for _, enumeration in ipairs(component.enumerations) do
        page:paragraph("### %s", enumeration.name)
        page:paragraph("`%s`", enumeration.id)
        page:prose(comments[enumeration.name])
        page:table("member", "value")
        for _, member in ipairs(enumeration.members) do page:row(member.name, member.value) end
    end
end

local function addMiscStatus(page)
    page:paragraph("## Misc status")
    page:table("bit", "name", "the control")
    for _, bit in ipairs(miscStatusBits) do page:row(hex(bit.value), bit.name, bit.meaning) end
end

local function writeContents()
    local library = component.library
    local page = newPage("Reference")
    page:paragraph("Written by `tools/write-docs` from the component and the comments in its headers.")
    page:paragraph("The library is `%s`, version %s, `%s`: \"%s\".", library.name, library.version, library.id,
        library.helpString)
    addClasses(page)
    addEnumerations(page)
    addMiscStatus(page)
    page:write("README.md")
end

for _, class in ipairs(component.classes) do writeClass(class) end
writeContents()

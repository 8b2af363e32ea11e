-- Writes the manual page of a program, in roff, from what `PROGRAM --help` and the documentation say of it.
--
--     zilvo run tools/man-page.lua PROGRAM VERSION HEADING DOCUMENT...
--
-- The documents are Markdown; the section under HEADING, in the first that has it, is about the program. What stands
-- before its table becomes the description, the rows of the table tell of commands and options at greater length than
-- the help does, and what follows becomes notes. A paragraph that names files of the sources or leads to an example is left
-- out.

local program, version, heading = ...
local documents = { select(4, ...) }
local name = program:match("[^/]*$")

-- roff

local function escaped(text) return (text:gsub("\\", "\\e"):gsub("^[.']", "\\&%0")) end
local function literal(text) return (escaped(text):gsub("-", "\\-")) end
local function bold(text) return "\\fB" .. literal(text) .. "\\fR" end

-- Of Markdown: code, links.
local function prose(text)
    text = text:gsub("%[([^%]]*)%]%([^)]*%)", "%1")
    local parts, isCode = {}, false
    for part in (text .. "`"):gmatch("([^`]*)`") do
        parts[#parts + 1] = isCode and bold(part) or escaped(part)
        isCode = not isCode
    end
    return table.concat(parts)
end

-- The documentation

local function documentation()
    for _, document in ipairs(documents) do
        local isInside, isCode, lines = false, false, {}
        for line in io.lines(document) do
            if line:match("^```") then isCode = not isCode end
            local title = not isCode and line:match("^#+ (.*)")
            if isInside and title then break end
            if isInside then lines[#lines + 1] = line end
            isInside = isInside or title == heading
        end
        if isInside then return lines end
    end
    error("no document has a section " .. heading)
end

local before, after, rows = {}, {}, {}
do
    local paragraphs, pending = before, {}
    local function finish()
        local text = table.concat(pending, " ")
        pending = {}
        local isLink = text:match("^!?%[[^%]]*%]%([^)]*%)$")
        local isForOthers = isLink or text:match("%./") or text:match("demos/") or text:match(":$") or text:match("^```")
        if text ~= "" and not isForOthers then paragraphs[#paragraphs + 1] = prose(text) end
    end
    for _, line in ipairs(documentation()) do
        local what, does = line:gsub("\\|", "\0"):match("^| `([^`]*)` | (.*) |$")
        if what then rows[what:gsub("%z", "|")] = (does:gsub("%z", "|")) end
        if line:match("^|") then paragraphs = after
        elseif line == "" then finish()
        else pending[#pending + 1] = line end
    end
    finish()
end

-- What the documentation calls it, and says of it.
local function rowOf(begin)
    for what, does in pairs(rows) do
        if what == begin or what:sub(1, #begin + 1) == begin .. " " then return what, does end
    end
end

-- The help

-- Usage, what comes before and behind it, and the entries of each group ("Options"): what is given, and its text.
local function helpOf(command)
    local pipe <close> = assert(io.popen(command .. " --help 2>/dev/null"))
    local text = pipe:read("a")
    local column = #(text:match("\n(  %-h,.-  +)") or "") + 1 -- where the texts begin
    local help, group = { description = {}, groups = {} }, nil
    for line in text:gmatch("[^\n]*") do
        if line:match("^Usage: ") then help.usage = line:match("^Usage: %S*%s*(.*)")
        elseif line:match("^%u%l+:$") then
            group = {}
            help.groups[line:sub(1, -2)] = group
        elseif not group and line ~= "" then table.insert(help.description, line)
        elseif line:match("^  %S") then
            local isApart = #line < column or line:sub(column - 1, column - 1) ~= " "
            local given = isApart and line or line:sub(1, column - 1)
            table.insert(group, { given = given:match("^%s*(.-)%s*$"), text = isApart and "" or line:sub(column) })
        elseif group and line ~= "" then
            local entry = group[#group]
            entry.text = (entry.text .. " " .. line:match("^%s*(.*)")):match("^%s*(.*)")
        end
    end
    assert(help.usage and #help.description > 0, command .. " --help does not tell its usage")
    help.description = table.concat(help.description, " ")
    return help
end

-- "-o,--output DIR REQUIRED", "--timeout SECONDS:UINT in [1 - 86400]", "--seed <N>": without what is checked.
local function option(given)
    given = given:gsub(" REQUIRED", ""):gsub(" %u%l+: .*", ""):gsub(":%u+ in .*", ""):gsub(", ?", ", ")
    local options, value = given:match("^(.-) <?(%u[%u.]*)>?$")
    return bold(options or given) .. (value and " \\fI" .. value .. "\\fR" or "")
end

-- The page

local lines = {}
local function add(...) for _, line in ipairs { ... } do lines[#lines + 1] = line end end
local function addParagraphs(paragraphs) for _, text in ipairs(paragraphs) do add(".PP", text) end end
local function addOptions(options)
    for _, each in ipairs(options) do
        local _, told = rowOf(each.given:match("%-%-[%w-]+"))
        add(".TP", option(each.given), prose(told and #told > #each.text and told or each.text))
    end
end
local function sentence(text)
    text = text:gsub("^%l", string.upper)
    return text:match("%.$") and text or text .. "."
end

local help = helpOf(program)
add(string.format('.TH %s 1 "" "%s %s" "User Commands"', literal(name:upper()), literal(name), version), ".nh", ".ad l")
add(".SH NAME", literal(name) .. " \\- " .. escaped(help.description:gsub("^%u", string.lower):gsub("%.$", "")))
add(".SH SYNOPSIS", bold(name) .. " " .. literal(help.usage))
add(".SH DESCRIPTION", escaped(sentence(help.description)))
addParagraphs(before)
if help.groups.Options then add(".SH OPTIONS") addOptions(help.groups.Options) end
if help.groups.Subcommands then add(".SH COMMANDS") end
for _, each in ipairs(help.groups.Subcommands or {}) do
    local command = name .. " " .. each.given
    local synopsis, told = rowOf(command)
    local own = helpOf(program .. " " .. each.given)
    local description = own.description:gsub(": " .. each.given .. " .*", "") -- its synopsis once more
    add(".SS " .. bold(synopsis or command), escaped(sentence(description)))
    if told then add(".PP", prose(sentence(told))) end
    local options = {}
    for _, entry in ipairs(own.groups.Options) do
        local isShared = false
        for _, shared in ipairs(help.groups.Options) do isShared = isShared or shared.given == entry.given end
        if not isShared then options[#options + 1] = entry end
    end
    addOptions(options)
end
if #after > 0 then add(".SH NOTES") addParagraphs(after) end
print(table.concat(lines, "\n"))

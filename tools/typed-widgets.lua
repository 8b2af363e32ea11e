-- Writes the typed classes of a component for Qt: Enumerations.h, Controls.h with the classes, Controls.cpp, and for each
-- class a header of its name that leads there. A file that would not change is not written.
--
--     zilvo --component FILE run tools/typed-widgets.lua OUTPUT_FOLDER INCLUDE_FOLDER NAMESPACE [HEADER...]
--
-- The files go into INCLUDE_FOLDER within OUTPUT_FOLDER. Members, events and enumerations come from the component's
-- description, and the sentences from the `///` comments of the headers given. Which properties are saved and of which
-- the control tells a change is not described, so instances are made and tried.

local output, folder, namespace = ...
local component = zilvo.describe()

-- Comments

local here = debug.getinfo(1, "S").source:match("^@(.*)/") or "."
local commentsIn = dofile(here .. "/headers.lua").commentsIn

-- By the name of what is declared; of a header that is not given there are none.
local commentsOf = setmetatable({}, { __index = function() return {} end })
for _, header in ipairs { select(4, ...) } do
    commentsOf[header:match("([^/]+)%.h$")] = commentsIn(header)
end

-- C++

local types = {
    Boolean = "bool", Integer = "int", Long = "int", Single = "double", String = "QString", Colour = "QColor",
    Font = "QFont", ["Boolean()"] = "QList<bool>",
}
local isObject = { QString = true, QColor = true, QFont = true, ["QList<bool>"] = true }
local valuesOf = {}
for _, enumeration in ipairs(component.enumerations) do
    -- In full, as the meta-object compiler wants it.
    types[enumeration.name] = namespace .. "::" .. enumeration.name
    valuesOf[enumeration.name] = enumeration.members
end

local function typeOf(name) return types[name] or error("there is no type of Qt for " .. name) end

local function parameter(argument)
    local type = typeOf(argument.type)
    return (isObject[type] and "const " .. type .. "& " or type .. " ") .. argument.name
end

local function parameters(arguments)
    local list = {}
    for i, argument in ipairs(arguments) do list[i] = parameter(argument) end
    return table.concat(list, ", ")
end

local File = {}
File.__index = File

local function newFile(...)
    local library = component.library
    local file = setmetatable({}, File)
    file:add("// Generated from %s %s; changes made here are lost.", library.name, library.version)
    for _, line in ipairs { ... } do file:add("%s", line) end
    return file
end

function File:add(...) self[#self + 1] = string.format(...) end

function File:comment(lines, indentation)
    for _, line in ipairs(lines or {}) do self:add("%s/// %s", indentation or "    ", line) end
end

function File:write(name)
    local path = string.format("%s/%s/%s", output, folder, name)
    local content = table.concat(self, "\n") .. "\n"
    local before = io.open(path)
    if before then
        local same = before:read("a") == content
        before:close()
        if same then return end
    end
    local file = assert(io.open(path, "w"))
    assert(file:write(content))
    assert(file:close())
end

-- What the description does not say of a property

local function triesFor(type, value)
    if type == "Boolean" then return { not value } end
    if type == "String" then return { value .. "x", "x" } end
    if type == "Font" then return { zilvo.Font { Name = "x", Size = 20 } } end
    if type == "Boolean()" then return { { true }, { false } } end
    local tries = { value + 1, value - 1 }
    for _, member in ipairs(valuesOf[type] or {}) do tries[#tries + 1] = member.value end
    return tries
end

-- The names, in lower case as names compare, of the properties that are saved and of those that are told of when set.
local function try(class)
    local saved, told = {}, {}
    for key in pairs(zilvo.create(class.name):save(true)) do saved[key:lower()] = true end
    for _, property in ipairs(class.interface.members) do
        if property.kind == "property" and #property.access > 1 then
            local isRead, value = pcall(function() return zilvo.create(class.name)[property.name] end)
            for _, new in ipairs(isRead and triesFor(property.type, value) or {}) do
                local control = zilvo.create(class.name)
                local before = #control.changes
                pcall(function() control[property.name] = new end) -- one that is refused tells nothing
                for i = before + 1, #control.changes do
                    if control.changes[i]:lower() == property.name:lower() then told[property.name:lower()] = true end
                end
            end
        end
    end
    return saved, told
end

local function propertiesOf(class)
    local saved, told, events, list = {}, {}, {}, {}
    if class.events then
        saved, told = try(class)
        for _, event in ipairs(class.events.members) do events[event.name] = true end
    end
    for _, member in ipairs(class.interface.members) do
        if member.kind == "property" then
            local can = {}
            for _, access in ipairs(member.access) do can[access] = true end
            local changed = member.name .. "Changed"
            list[#list + 1] = {
                name = member.name, type = typeOf(member.type), reads = can.get,
                put = can.put and "put" or can.putref and "putref" or nil,
                argument = { name = "new" .. member.name, type = member.type },
                isSaved = saved[member.name:lower()] == true,
                -- An event of that name tells the same.
                changed = told[member.name:lower()] and not events[changed] and changed or nil,
                resets = can.get and #member.access > 1 and class.events ~= nil,
            }
        end
    end
    return list
end

-- Classes

local function addProperty(file, property)
    local parts = { property.type .. " " .. property.name, "READ " .. property.name }
    local function part(condition, text)
        if condition then parts[#parts + 1] = text .. property.name end
    end
    part(property.put, "WRITE set")
    part(property.resets, "RESET reset")
    if property.changed then parts[#parts + 1] = "NOTIFY " .. property.changed end
    if not property.put then parts[#parts + 1] = "DESIGNABLE false" end
    if not property.isSaved then parts[#parts + 1] = "STORED false" end
    local line = "    Q_PROPERTY("
    for i, each in ipairs(parts) do
        if #line + #each > 118 then
            file:add("%s", line)
            line = (" "):rep(14)
        end
        line = line .. (i > 1 and " " or "") .. each
    end
    file:add("%s)", line)
end

local function declare(file, class, properties)
    local comments, isControl = commentsOf[class.name], class.events ~= nil
    local function commentOn(property, access)
        -- What is said of a font object is not true of the copies that are given here.
        if property.type ~= "QFont" then file:comment(comments[access .. "_" .. property.name]) end
    end
    file:add("")
    file:comment(comments[class.name], "")
    file:add("class %s : public zilvo::qt::%s {", class.name, isControl and "ControlWidget" or "ComponentObject")
    file:add("    Q_OBJECT")
    for _, property in ipairs(properties) do
        if property.reads then addProperty(file, property) end
    end

    file:add("\npublic:")
    local parent = isControl and "QWidget" or "QObject"
    file:add("    explicit %s(%s* parent = nullptr);", class.name, parent)
    if isControl then
        file:add("    explicit %s(const QVariantMap& settings, QWidget* parent = nullptr);", class.name)
    end
    for _, property in ipairs(properties) do
        if property.reads then
            file:add("")
            commentOn(property, "get")
            file:add("    %s %s() const;", property.type, property.name)
        end
    end

    file:add("\npublic slots:")
    for _, property in ipairs(properties) do
        if property.put then
            commentOn(property, property.put)
            file:add("    void set%s(%s);", property.name, parameter(property.argument))
        end
        if property.resets then file:add("    void reset%s();", property.name) end
    end
    for _, method in ipairs(class.interface.members) do
        if method.kind == "method" then
            file:comment(comments[method.name])
            file:add("    %s %s(%s);", method.type and typeOf(method.type) or "void", method.name,
                parameters(method.arguments))
        end
    end

    if isControl then
        file:add("\nsignals:")
        for _, event in ipairs(class.events.members) do
            file:comment(comments[event.name])
            file:add("    void %s(%s);", event.name, parameters(event.arguments))
        end
        for _, property in ipairs(properties) do
            if property.changed then file:add("    void %s();", property.changed) end
        end
        if #class.events.members > 0 then
            file:add("\nprotected:")
            file:add("    void raise(zilvo::platform::Long event, const QVariantList& arguments) override;")
        end
    end
    file:add("};")
end

local function defineEvents(file, class)
    file:add("\nvoid %s::raise(zilvo::platform::Long event, [[maybe_unused]] const QVariantList& arguments) {",
        class.name)
    file:add("    switch (event) {")
    for _, event in ipairs(class.events.members) do
        local values = {}
        for i, argument in ipairs(event.arguments) do
            values[i] = string.format("arguments[%d].value<%s>()", i - 1, typeOf(argument.type))
        end
        file:add("    case %d:", event.id)
        file:add("        return emit %s(%s);", event.name, table.concat(values, ", "))
    end
    file:add("    default:\n        break;\n    }\n}")
end

local function define(file, class, properties)
    local name, isControl = class.name, class.events ~= nil
    local base = "zilvo::qt::" .. (isControl and "ControlWidget" or "ComponentObject")
    local id = string.format("QStringLiteral(\"%s\")", class.progId)
    file:add("\n%s::%s(%s* parent) : %s(%s, parent) {}", name, name, isControl and "QWidget" or "QObject", base, id)
    if isControl then
        file:add("%s::%s(const QVariantMap& settings, QWidget* parent) : %s(%s, settings, parent) {}", name, name, base,
            id)
    end
    for _, property in ipairs(properties) do
        if property.reads then
            file:add("%s %s::%s() const { return read(u\"%s\").value<%s>(); }", property.type, name, property.name,
                property.name, property.type)
        end
        if property.put then
            file:add("void %s::set%s(%s) { write(u\"%s\", QVariant::fromValue(%s)); }", name, property.name,
                parameter(property.argument), property.name, property.argument.name)
        end
        if property.resets then
            file:add("void %s::reset%s() { reset(u\"%s\"); }", name, property.name, property.name)
        end
    end
    for _, method in ipairs(class.interface.members) do
        if method.kind == "method" then
            local values = {}
            for i, argument in ipairs(method.arguments) do
                values[i] = string.format("QVariant::fromValue(%s)", argument.name)
            end
            local given = #values > 0 and string.format(", {%s}", table.concat(values, ", ")) or ""
            local call = string.format("run(u\"%s\"%s)", method.name, given)
            local type = method.type and typeOf(method.type)
            file:add("%s %s::%s(%s) { %s; }", type or "void", name, method.name, parameters(method.arguments),
                type and string.format("return %s.value<%s>()", call, type) or call)
        end
    end
    if isControl and #class.events.members > 0 then defineEvents(file, class) end
end

-- Files

local function writeEnumerations()
    local file = newFile("#pragma once", "", "#include <QObject>", "", "namespace " .. namespace .. " {", "Q_NAMESPACE")
    for _, enumeration in ipairs(component.enumerations) do
        file:add("")
        file:comment(commentsOf.Enumerations[enumeration.name], "")
        file:add("enum class %s : int {", enumeration.name)
        for _, member in ipairs(enumeration.members) do file:add("    %s = %d,", member.name, member.value) end
        file:add("};\nQ_ENUM_NS(%s)", enumeration.name)
    end
    file:add("\n} // namespace %s", namespace)
    file:write("Enumerations.h")
end

local function writeClasses()
    local header = newFile("#pragma once", "", '#include "zilvo-qt/ComponentObject.h"',
        '#include "zilvo-qt/ControlWidget.h"', string.format('#include "%s/Enumerations.h"', folder), "",
        "#include <QColor>", "#include <QFont>", "", "namespace " .. namespace .. " {")
    local source = newFile(string.format('#include "%s/Controls.h"', folder), "", "namespace " .. namespace .. " {")
    for _, class in ipairs(component.classes) do
        local properties = propertiesOf(class)
        declare(header, class, properties)
        define(source, class, properties)
        newFile("#pragma once", string.format('#include "%s/Controls.h"', folder)):write(class.name .. ".h")
    end
    header:add("\n} // namespace %s", namespace)
    header:write("Controls.h")
    source:add("\n} // namespace %s", namespace)
    source:add('\n#include "moc_Controls.cpp"\n#include "moc_Enumerations.cpp"') -- one translation unit for all
    source:write("Controls.cpp")
end

writeEnumerations()
writeClasses()

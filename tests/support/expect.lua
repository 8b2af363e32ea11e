-- What the host scripts that test have alike: dofile gives a table of functions.

local here = arg[0]:match("[^/]*$")
local expect = {}

function expect.equal(got, expected, what)
    if got ~= expected then
        error(string.format("%s: expected %s, got %s", what or "value", tostring(expected), tostring(got)), 2)
    end
end

-- Runs `body`, which must fail in the script with a failure of that name whose message has all the parts.
function expect.fails(name, body, ...)
    local done, failure = pcall(body)
    if done then error("no failure, but " .. name .. " was expected", 2) end
    if type(failure) ~= "table" then error("not a failure: " .. tostring(failure), 2) end
    if failure.name ~= name then
        error("expected " .. name .. ", got " .. tostring(failure.name) .. ": " .. failure.message, 2)
    end
    assert(math.type(failure.status) == "integer" and failure.status >= 0x80000000 and failure.status < 0x100000000)
    for _, part in ipairs { ... } do
        if not failure.message:find(part, 1, true) then
            error("no " .. part .. " in the message: " .. failure.message, 2)
        end
    end
    assert(failure.where:find(here .. ":%d+$"), failure.where)
    expect.equal(tostring(failure), failure.where .. ": " .. failure.message)
    return failure
end

-- Attaches to every event of the class. Calling what it gives tells what was heard since the last time.
function expect.logged(control, class)
    local log = {}
    for _, each in ipairs(zilvo.describe().classes) do
        for _, event in ipairs(each.name == class and each.events.members or {}) do
            control:on(event.name, function(...)
                log[#log + 1] = event.name .. "(" .. table.concat({ ... }, ",") .. ")"
            end)
        end
    end
    return function()
        local text = table.concat(log, " ")
        log = {}
        return text
    end
end

return expect

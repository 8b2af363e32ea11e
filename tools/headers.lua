-- What the `///` comments of headers say, for scripts that write of a component's classes.

local function declaredIn(line)
    return line:match("^class ([%w_]+)") or line:match("^enum class ([%w_]+)")
        or line:match("^%s+Event<.*> ([%w_]+){") or line:match("([%w_]+)%(")
end

local headers = {}

-- The comment lines of everything public, by its name, with none where there is no comment; then those of the comment
-- that belongs to the header as a whole.
function headers.commentsIn(header)
    local comments, preface, pending = {}, {}, {}
    for line in io.lines(header) do
        if line == "private:" then break end
        local text = line:match("^%s*/// (.*)")
        local name = not text and declaredIn(line)
        if name then comments[name] = comments[name] or pending end
        if line == "" and #pending > 0 then preface = pending end
        if text then pending[#pending + 1] = text else pending = {} end
    end
    local function fail(_, name) error(header .. " does not declare " .. name) end
    return setmetatable(comments, { __index = fail }), preface
end

return headers

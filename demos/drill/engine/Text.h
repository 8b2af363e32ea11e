#pragma once

#include "demos/drill/engine/Drill.h"

#include <stdexcept>
#include <string_view>

namespace drill {

/// A line that was not written by text, or not to its end.
class DamagedLine : public std::runtime_error {
public:
    /// Lines are numbered from 1.
    DamagedLine(std::size_t line, const std::string& damage)
        : std::runtime_error("line " + std::to_string(line) + ": " + damage), number(line) {}

    const std::size_t number;
};

/// Each is one line, its end included, and throws std::out_of_range for a value that is no member of its enumeration.
/// The first is for the end of a results file:
/// "when=1262304000 decks=6 shuffle=random cards=104 answer=-3 count=-4".
std::string text(const Result& result);

/// "decks=6 shuffle=random seats=1,3,7 each=2 played=tray cut=52 seed=42".
std::string text(const Settings& settings);

/// Both throw DamagedLine for the first line that differs by so much as a letter from what text makes of the values
/// read from it, or whose values cannot be: a line without its end is half a line, and an unknown field is not passed
/// over, since whoever writes the file again would lose it.
std::vector<Result> readResults(std::string_view file);
Settings readSettings(std::string_view file);

} // namespace drill

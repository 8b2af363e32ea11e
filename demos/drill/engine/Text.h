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

/// Each is one line, its end included, and throws std::out_of_range for a value that is no member of its enumeration:
/// "decks=6 shuffle=random seat=4 spread=40 others=2 played=tray pace=steady".
std::string text(const Settings& settings);

/// For the end of a results file: the same between "when=1262304000" and "seed=42 cards=104 answer=-3 count=-4".
std::string text(const Result& result);

/// Both throw DamagedLine for the first line that differs by so much as a letter from what text makes of the values
/// read from it, or whose values cannot be: a line without its end is half a line, and an unknown field is not passed
/// over, since whoever writes the file again would lose it.
std::vector<Result> readResults(std::string_view file);
Settings readSettings(std::string_view file);

} // namespace drill

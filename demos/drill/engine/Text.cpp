#include "demos/drill/engine/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <concepts>

namespace drill {

namespace {

/// The names of an enumeration's values, from that of 0 on.
const auto& names(ShuffleMethod) {
    static constexpr std::array<std::string_view, 5> all{"none", "strip", "straight-through", "machine-box", "random"};
    return all;
}

const auto& names(PlayedCards) {
    static constexpr std::array<std::string_view, 4> all{"", "tray", "table", "shoe"};
    return all;
}

const auto& names(Pace) {
    static constexpr std::array<std::string_view, 6> all{"slow", "easy", "fast", "fastest", "steady", "brisk"};
    return all;
}

/// The fields of a line in their order, for writing and reading alike.
void eachField(Settings& settings, auto& visit) {
    visit("decks", settings.decks);
    visit("shuffle", settings.shuffle);
    visit("seat", settings.seat);
    visit("spread", settings.spread);
    visit("others", settings.others);
    visit("played", settings.played);
    visit("pace", settings.pace);
}

void eachField(Result& result, auto& visit) {
    visit("when", result.when);
    eachField(result.settings, visit);
    visit("seed", result.seed);
    visit("cards", result.cards);
    visit("answer", result.answer);
    visit("count", result.count);
}

struct Writer {
    void operator()(std::string_view name, const auto& value) {
        if (!line.empty()) line += ' ';
        line += name;
        line += '=';
        write(value);
    }

    void write(std::integral auto number) { line += std::to_string(number); }
    void write(auto member) { line += names(member).at(static_cast<std::size_t>(member)); }

    std::string line;
};

std::string_view take(std::string_view& text, char separator) {
    const std::string_view taken = text.substr(0, text.find(separator));
    text.remove_prefix(std::min(text.size(), taken.size() + 1));
    return taken;
}

/// Takes what it can from the line; a value that is not there stays as it is.
struct Reader {
    void operator()(std::string_view, auto& value) {
        take(line, '=');
        read(take(line, ' '), value);
    }

    static void read(std::string_view text, std::integral auto& number) {
        std::from_chars(text.data(), text.data() + text.size(), number);
    }
    template <typename Member>
    static void read(std::string_view text, Member& member) {
        const auto found = std::ranges::find(names(member), text);
        if (found != names(member).end()) member = static_cast<Member>(found - names(member).begin());
    }

    std::string_view line;
};

void check(const Result& result) {
    check(result.settings);
    if (result.cards < 0) throw std::invalid_argument("fewer than no cards");
}

template <typename Record>
std::string write(Record record) {
    Writer writer;
    eachField(record, writer);
    return writer.line + '\n';
}

template <typename Record>
std::vector<Record> readLines(std::string_view file) {
    std::vector<Record> records;
    for (std::size_t number = 1; !file.empty(); ++number) {
        const std::string_view line = file.substr(0, std::min(file.find('\n'), file.size() - 1) + 1);
        file.remove_prefix(line.size());
        Reader reader{line.substr(0, line.find('\n'))};
        eachField(records.emplace_back(), reader);
        if (write(records.back()) != line) throw DamagedLine(number, "damaged");
        try {
            check(records.back());
        } catch (const std::invalid_argument& damage) {
            throw DamagedLine(number, damage.what());
        }
    }
    return records;
}

} // namespace

std::string text(const Result& result) {
    return write(result);
}

std::string text(const Settings& settings) {
    return write(settings);
}

std::vector<Result> readResults(std::string_view file) {
    return readLines<Result>(file);
}

Settings readSettings(std::string_view file) {
    const auto lines = readLines<Settings>(file);
    if (lines.size() != 1) throw DamagedLine(std::min<std::size_t>(lines.size(), 1) + 1, "settings are one line");
    return lines.front();
}

} // namespace drill

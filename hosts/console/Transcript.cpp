#include "hosts/console/Transcript.h"

#include "zilvo/platform/values/Status.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <sstream>

namespace zilvo::console {

using namespace platform;

namespace {

constexpr std::string_view Mark = "-->";

std::string_view withoutIndent(std::string_view line) {
    const auto first = line.find_first_not_of(" \t");
    return first == std::string_view::npos ? std::string_view() : line.substr(first);
}

bool isObservation(std::string_view line) {
    return withoutIndent(line).starts_with(Mark);
}

/// Empty, or a comment that ends with its line.
bool saysNothing(std::string_view line) {
    const auto text = withoutIndent(line);
    if (!text.starts_with("--")) return text.empty();
    return !text.starts_with("--[[") && !text.starts_with("--[=");
}

std::string observationOf(std::string_view line) {
    auto text = withoutIndent(line).substr(Mark.size());
    if (text.starts_with(' ')) text.remove_prefix(1);
    return std::string(text);
}

void writeObservation(std::ostream& out, const std::string& text) {
    out << Mark << (text.empty() ? "" : " ") << text << '\n';
}

/// How long the longest sequence is that the lines from `one` and `other` on have in common.
std::vector<std::vector<std::size_t>> commonLengths(const std::vector<std::string>& one,
                                                    const std::vector<std::string>& other) {
    std::vector lengths(one.size() + 1, std::vector<std::size_t>(other.size() + 1));
    for (std::size_t i = one.size(); i-- > 0;)
        for (std::size_t j = other.size(); j-- > 0;)
            lengths[i][j] =
                one[i] == other[j] ? lengths[i + 1][j + 1] + 1 : std::max(lengths[i + 1][j], lengths[i][j + 1]);
    return lengths;
}

/// All lines in order: as written and observed, only written ("-"), only observed ("+").
void writeDifference(std::ostream& out, const std::vector<std::string>& written,
                     const std::vector<std::string>& observed) {
    const auto lengths = commonLengths(written, observed);
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < written.size() || j < observed.size()) {
        const bool both = i < written.size() && j < observed.size() && written[i] == observed[j];
        const bool gone =
            !both && i < written.size() && (j == observed.size() || lengths[i + 1][j] >= lengths[i][j + 1]);
        out << (both ? "    " : gone ? "  - " : "  + ");
        writeObservation(out, both || gone ? written[i] : observed[j]);
        i += both || gone ? 1 : 0;
        j += gone ? 0 : 1;
    }
}

} // namespace

Transcript::Transcript(const std::filesystem::path& file, const std::function<bool(const std::string&)>& isWhole) {
    std::error_code unreadable; // is told by opening the file
    if (std::filesystem::is_directory(file, unreadable))
        throw Failure(Status::FileNotFound, file.string() + " is a directory");
    std::ifstream in(file, std::ios::binary);
    if (!in) throw Failure(Status::FileNotFound, file.string() + " cannot be read: " + std::strerror(errno));
    for (std::string line; std::getline(in, line);)
        lines_.push_back(line);

    for (std::size_t at = 0; at < lines_.size();) {
        if (isObservation(lines_[at]))
            throw Failure(Status::Failed, file.string() + ":" + std::to_string(at + 1) +
                                              ": what is observed here stands under no statement");
        if (saysNothing(lines_[at])) {
            ++at;
            continue;
        }
        Statement statement{at + 1, 0, {}, {}};
        for (std::string text; at < lines_.size();) {
            text += lines_[at++] + '\n';
            if (isWhole(text)) break;
        }
        statement.last = at;
        for (; at < lines_.size() && isObservation(lines_[at]); ++at)
            statement.written.push_back(observationOf(lines_[at]));
        statements_.push_back(std::move(statement));
    }
}

std::string Transcript::script() const {
    std::string text;
    for (const std::string& line : lines_)
        text += line + '\n';
    return text;
}

Transcript::Statement* Transcript::at(std::size_t line) noexcept {
    const auto found =
        std::lower_bound(statements_.begin(), statements_.end(), line,
                         [](const Statement& statement, std::size_t number) { return statement.last < number; });
    return found == statements_.end() || found->first > line ? nullptr : &*found;
}

std::string Transcript::rewritten() const {
    std::ostringstream out;
    std::size_t line = 1;
    for (const Statement& statement : statements_) {
        for (; line <= statement.last; ++line)
            out << lines_[line - 1] << '\n';
        for (const std::string& observed : statement.observed)
            writeObservation(out, observed);
        line += statement.written.size();
    }
    for (; line <= lines_.size(); ++line)
        out << lines_[line - 1] << '\n';
    return out.str();
}

std::string Transcript::differences(const std::string& file) const {
    std::ostringstream out;
    for (const Statement& statement : statements_) {
        if (statement.observed == statement.written) continue;
        out << file << ':' << statement.first << ": "
            << (statement.hasRun ? "what happens is not what is written (- written, + observed)" : "did not run")
            << '\n';
        for (std::size_t line = statement.first; line <= statement.last; ++line)
            out << "    " << lines_[line - 1] << '\n';
        writeDifference(out, statement.written, statement.observed);
    }
    return out.str();
}

std::size_t Transcript::countOfDifferences() const {
    return static_cast<std::size_t>(
        std::count_if(statements_.begin(), statements_.end(),
                      [](const Statement& statement) { return statement.observed != statement.written; }));
}

} // namespace zilvo::console

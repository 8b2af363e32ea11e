#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace zilvo::console {

/// A host script with what is observed written under each statement, as comment lines that begin with "-->".
class Transcript {
public:
    struct Statement {
        std::size_t first; ///< its lines, counted from 1
        std::size_t last;
        std::vector<std::string> written;  ///< what is observed, without the mark
        std::vector<std::string> observed; ///< now
        bool hasRun = false;
    };

    /// Reads the file; `isWhole` tells of some lines whether they are one or more whole statements. Fails with
    /// FileNotFound or Failed.
    Transcript(const std::filesystem::path& file, const std::function<bool(const std::string&)>& isWhole);

    /// What the script says, line for line as in the file.
    std::string script() const;
    /// The statement of which that line is a part; null for none.
    Statement* at(std::size_t line) noexcept;
    const std::vector<Statement>& statements() const noexcept { return statements_; }

    /// The file with what was observed now.
    std::string rewritten() const;
    /// The statements of which something else was observed than is written, as text for people; empty for none.
    std::string differences(const std::string& file) const;
    std::size_t countOfDifferences() const;

private:
    std::vector<std::string> lines_;
    std::vector<Statement> statements_;
};

} // namespace zilvo::console

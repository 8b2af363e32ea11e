#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace zilvo::console {

/// What was typed at earlier prompts, a line each, the newest last. Prompts that run at once share it. Fails with
/// Failed.
class HistoryFile {
public:
    static constexpr int MostLines = 1000; ///< older ones go

    explicit HistoryFile(std::filesystem::path file) : file_(std::move(file)) {}
    /// $XDG_STATE_HOME/zilvo/history, else $HOME/.local/state/zilvo/history; null when neither is absolute.
    static std::optional<HistoryFile> usual();

    std::vector<std::string> lines() const;
    /// Leaves out a line that is the newest already.
    void add(const std::string& line) const;

private:
    std::filesystem::path file_;
};

} // namespace zilvo::console

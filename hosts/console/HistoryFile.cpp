#include "hosts/console/HistoryFile.h"

#include "zilvo/platform/component/SharedFile.h"
#include "zilvo/platform/values/Text.h"

#include <sstream>

namespace zilvo::console {

using namespace platform;

std::optional<HistoryFile> HistoryFile::usual() {
    constexpr const char* BelowState = "zilvo/history";
    if (const auto state = folderIn("XDG_STATE_HOME")) return HistoryFile(*state / BelowState);
    if (const auto home = folderIn("HOME")) return HistoryFile(*home / ".local/state" / BelowState);
    return std::nullopt;
}

std::vector<std::string> HistoryFile::lines() const {
    std::istringstream text(readSharedFile(file_, "history", Status::Failed).value_or(""));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);)
        lines.push_back(toUtf8(toUtf16(line))); // whatever else wrote the file
    if (lines.size() > MostLines) lines.erase(lines.begin(), lines.end() - MostLines);
    return lines;
}

void HistoryFile::add(const std::string& line) const {
    const SharedFileLock lock(file_, Status::Failed);
    auto all = lines();
    if (!all.empty() && all.back() == line) return;
    if (all.size() == MostLines) all.erase(all.begin());
    all.push_back(line);
    std::string text;
    for (const std::string& each : all)
        text += each + "\n";
    lock.replace(text);
}

} // namespace zilvo::console

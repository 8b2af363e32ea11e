#pragma once

#include "hosts/console/HistoryFile.h"
#include "hosts/console/Interrupts.h"
#include "hosts/console/LineReader.h"

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

struct editline;
struct history;

namespace zilvo::console {

/// What can stand at the end of a text.
struct Completion {
    std::size_t begun = 0;          ///< bytes at the end that each of the words begins with
    std::vector<std::string> words; ///< in order
    std::string ending;             ///< what follows the word when it is the only one
};

/// Lines typed at the terminal that is the standard input and output: edited, completed with Tab, recalled from the
/// history. Ctrl-C drops the line.
class LineEditor final : public LineReader {
public:
    /// `complete` is asked for the text before the cursor. Fails with OutOfMemory.
    explicit LineEditor(std::function<Completion(std::string_view before)> complete);

    Typed read(const std::string& prompt) override;
    const Interrupts* interrupts() const noexcept override { return &interrupts_; }

private:
    struct End {
        void operator()(editline* editor) const noexcept;
        void operator()(struct history* lines) const noexcept;
    };

    static LineEditor& of(editline* editor);
    static char* promptOf(editline* editor);
    static unsigned char completeIn(editline* editor, int key);
    static unsigned char dropIn(editline* editor, int key);

    unsigned char complete();
    void list(const std::vector<std::string>& words);
    void recall(const std::string& line);
    void remember(const std::string& line);
    template <class Use>
    void useFile(const Use& use);

    std::function<Completion(std::string_view before)> complete_;
    std::string prompt_;
    bool dropped_ = false;
    Interrupts interrupts_;
    std::optional<HistoryFile> file_ = HistoryFile::usual();
    std::unique_ptr<struct history, End> history_;
    std::unique_ptr<editline, End> editor_;
};

} // namespace zilvo::console

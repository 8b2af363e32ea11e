#include "hosts/console/LineEditor.h"

#include "zilvo/platform/values/Status.h"

#include <algorithm>
#include <cerrno>
#include <clocale>
#include <cstdio>
#include <histedit.h>
#include <iomanip>
#include <iostream>
#include <termios.h>
#include <unistd.h>

namespace zilvo::console {

using namespace platform;

namespace {

/// What all of the words begin with.
std::string_view commonBeginning(const std::vector<std::string>& words) {
    std::string_view common = words.front();
    for (const std::string& word : words)
        common = common.substr(
            0, static_cast<std::size_t>(std::mismatch(common.begin(), common.end(), word.begin(), word.end()).first -
                                        common.begin()));
    return common;
}

/// While it lives, Ctrl-C is a key of the terminal like any other: a signal could come between two of the editor's
/// steps and go unheard.
class InterruptKeyOff {
public:
    InterruptKeyOff() {
        if (!isTerminal_) return;
        termios without = before_;
        without.c_cc[VINTR] = _POSIX_VDISABLE;
        tcsetattr(STDIN_FILENO, TCSANOW, &without);
    }
    InterruptKeyOff(const InterruptKeyOff&) = delete;
    InterruptKeyOff& operator=(const InterruptKeyOff&) = delete;
    ~InterruptKeyOff() {
        if (isTerminal_) tcsetattr(STDIN_FILENO, TCSANOW, &before_);
    }

private:
    termios before_{};
    bool isTerminal_ = tcgetattr(STDIN_FILENO, &before_) == 0; ///< no more, once it is hung up
};

} // namespace

void LineEditor::End::operator()(EditLine* editor) const noexcept {
    el_end(editor);
}

void LineEditor::End::operator()(History* lines) const noexcept {
    history_end(lines);
}

LineEditor::LineEditor(std::function<Completion(std::string_view)> complete)
    : complete_(std::move(complete)), history_(history_init()) {
    std::setlocale(LC_CTYPE, "C.UTF-8"); // as scripts are written, whatever the user's language
    editor_.reset(el_init("zilvo", stdin, stdout, stderr));
    EditLine* editor = editor_.get();
    if (!history_ || !editor) throw Failure(Status::OutOfMemory, "there is no memory for the prompt");
    HistEvent event{};
    ::history(history_.get(), &event, H_SETSIZE, HistoryFile::MostLines);
    ::history(history_.get(), &event, H_SETUNIQUE, 1);
    el_set(editor, EL_CLIENTDATA, this);
    el_set(editor, EL_PROMPT, promptOf);
    el_set(editor, EL_SIGNAL, 1);
    el_set(editor, EL_EDITOR, "emacs");
    el_set(editor, EL_HIST, ::history, history_.get());
    el_source(editor, nullptr); // the user's own keys
    // Wide, since of narrow ones the editor makes copies that it never frees.
    el_wset(editor, EL_ADDFN, L"zilvo-complete", L"Completes the name before the cursor", completeIn);
    el_set(editor, EL_BIND, "^I", "zilvo-complete", nullptr);
    el_wset(editor, EL_ADDFN, L"zilvo-drop", L"Drops the line", dropIn);
    el_set(editor, EL_BIND, "^C", "zilvo-drop", nullptr);
    el_set(editor, EL_BIND, "^R", "em-inc-search-prev", nullptr);
    useFile([this](const HistoryFile& file) {
        for (const std::string& line : file.lines())
            recall(line);
    });
}

Typed LineEditor::read(const std::string& prompt) {
    std::cout.flush();
    interrupts_.forget();
    prompt_ = prompt;
    dropped_ = false;
    int count = 0;
    const auto edited = [&] {
        const InterruptKeyOff off;
        return el_gets(editor_.get(), &count);
    };
    if (const char* text = edited()) {
        std::string line(text, static_cast<std::size_t>(count));
        if (line.ends_with('\n')) line.pop_back();
        if (dropped_) return {Typed::How::Dropped, {}};
        remember(line);
        return {Typed::How::Line, line};
    }
    const bool isSignalled = count < 0 && errno == EINTR;
    std::cout << '\n';
    return {isSignalled ? Typed::How::Dropped : Typed::How::End, {}};
}

LineEditor& LineEditor::of(EditLine* editor) {
    LineEditor* self = nullptr;
    el_get(editor, EL_CLIENTDATA, &self);
    return *self;
}

char* LineEditor::promptOf(EditLine* editor) {
    return of(editor).prompt_.data();
}

/// Nothing is thrown through the editor, which is C.
unsigned char LineEditor::completeIn(EditLine* editor, int /*key*/) {
    try {
        return of(editor).complete();
    } catch (...) {
        return CC_ERROR;
    }
}

unsigned char LineEditor::dropIn(EditLine* editor, int /*key*/) {
    of(editor).dropped_ = true;
    const LineInfo* line = el_line(editor);
    el_cursor(editor, static_cast<int>(line->lastchar - line->cursor));
    el_push(editor, "\n"); // as if it were entered, so that the next one is below it
    return CC_REFRESH;
}

unsigned char LineEditor::complete() {
    const LineInfo* line = el_line(editor_.get());
    const Completion found = complete_({line->buffer, static_cast<std::size_t>(line->cursor - line->buffer)});
    if (found.words.empty()) return CC_REFRESH_BEEP;
    std::string missing(commonBeginning(found.words).substr(found.begun));
    if (found.words.size() == 1) missing += found.ending;
    if (!missing.empty()) return el_insertstr(editor_.get(), missing.c_str()) == 0 ? CC_REFRESH : CC_ERROR;
    if (found.words.size() == 1) return CC_REFRESH;
    list(found.words);
    return CC_REDISPLAY;
}

/// In columns as wide as the longest word.
void LineEditor::list(const std::vector<std::string>& words) {
    int width = 0;
    el_get(editor_.get(), EL_GETTC, "co", &width);
    const auto isShorter = [](const std::string& one, const std::string& other) { return one.size() < other.size(); };
    const auto longest = static_cast<int>(std::max_element(words.begin(), words.end(), isShorter)->size()) + 2;
    const int columns = std::max(1, width / longest);
    int column = 0;
    for (const std::string& word : words) {
        std::cout << (column == 0 ? "\n" : "") << std::left << std::setw(longest) << word;
        column = (column + 1) % columns;
    }
    std::cout << std::endl;
}

void LineEditor::recall(const std::string& line) {
    HistEvent event{};
    ::history(history_.get(), &event, H_ENTER, line.c_str());
}

void LineEditor::remember(const std::string& line) {
    if (line.find_first_not_of(" \t") == std::string::npos) return;
    recall(line);
    useFile([&](const HistoryFile& file) { file.add(line); });
}

/// The prompt goes on without a history that cannot be kept.
template <class Use>
void LineEditor::useFile(const Use& use) {
    if (!file_) return;
    try {
        use(*file_);
    } catch (const Failure& failure) {
        std::cerr << "zilvo: no history is kept: " << failure.what() << '\n';
        file_.reset();
    }
}

} // namespace zilvo::console

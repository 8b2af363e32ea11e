#pragma once

#include <csignal>

namespace zilvo::console {

/// While it lives, Ctrl-C does not end the program: it is noted, for what runs to end itself. One at a time.
class Interrupts {
public:
    Interrupts();
    Interrupts(const Interrupts&) = delete;
    Interrupts& operator=(const Interrupts&) = delete;
    ~Interrupts();

    bool wanted() const noexcept;
    void forget() noexcept;

private:
    struct sigaction before_ {};
};

} // namespace zilvo::console

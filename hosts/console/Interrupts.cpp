#include "hosts/console/Interrupts.h"

namespace zilvo::console {

namespace {

/// All that a signal's handler can reach.
volatile std::sig_atomic_t noted = 0;

} // namespace

Interrupts::Interrupts() {
    struct sigaction noting {};
    noting.sa_handler = [](int) { noted = 1; }; // what waits for input or output does not go on waiting
    sigaction(SIGINT, &noting, &before_);
}

Interrupts::~Interrupts() {
    sigaction(SIGINT, &before_, nullptr);
}

bool Interrupts::wanted() const noexcept {
    return noted != 0;
}

void Interrupts::forget() noexcept {
    noted = 0;
}

} // namespace zilvo::console

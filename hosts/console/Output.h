#pragma once

namespace zilvo::console {

/// For the start of the program: where standard input, output or error is closed, reads find the end and writes fail,
/// rather than reach a file that is opened later.
void fillClosedStreams();

/// Writes what is left of the standard output, be it C++'s, C's or Lua's. Gives the exit status: 1, with a message,
/// when any of the output is lost.
int flushed(int status);

} // namespace zilvo::console

#include "hosts/console/Output.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <iostream>
#include <unistd.h>

namespace zilvo::console {

void fillClosedStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (fcntl(stream, F_GETFD) < 0) (void)open("/dev/null", O_RDONLY); // which takes the lowest number that is free
}

int flushed(int status) {
    errno = 0;
    std::cout.flush();
    if (std::fflush(stdout) == 0 && !std::ferror(stdout)) return status;
    std::cerr << "zilvo: the standard output cannot be written: " << (errno ? std::strerror(errno) : "writing failed")
              << '\n';
    return EXIT_FAILURE;
}

} // namespace zilvo::console

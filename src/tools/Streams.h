#pragma once

#include <csignal>
#include <iostream>

#include <fcntl.h>

// The streams of a program of the command line that somebody closed, or that lead to where nothing can be written.

namespace plandesk::tools {

/// Status of a tool that could not read or write something, beside one line on the error stream.
constexpr int cannot = 2;

/// To be called first. A file that is opened must not take the place of a stream that the program was started without:
/// what is printed would end up in it. Such a stream is one that refuses what is to be written. A file that becomes
/// too large is an error of its write and does not end the program.
inline void keepStreams() {
    for (const int stream : {0, 1, 2})
        if (fcntl(stream, F_GETFD) < 0)
            open("/dev/null", stream == 0 ? O_WRONLY : O_RDONLY);
    std::signal(SIGXFSZ, SIG_IGN);
}

/// The status to end with: the given one, when all that was printed has been written.
inline int ended(int status) {
    if (std::cout.flush())
        return status;
    std::cerr << "the output cannot be written\n";
    return cannot;
}

}  // namespace plandesk::tools

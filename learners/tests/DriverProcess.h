#pragma once

// Starting a program that records into a store until it is killed, for the reliability tests:
// its standard output on a pipe, read as it announces what it has done.

#include <string>
#include <sys/wait.h>
#include <unistd.h>

/// Starts `program` with one argument, its output on a pipe; its process id, and the pipe's
/// read end in `output`.
inline pid_t StartDriver(const char* program, const std::string& argument, int& output)
{
    int pipeEnds[2];
    if (::pipe(pipeEnds) != 0)
        return -1;
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(pipeEnds[1], STDOUT_FILENO);
        ::close(pipeEnds[0]);
        ::close(pipeEnds[1]);
        ::execl(program, program, argument.c_str(), static_cast<char*>(nullptr));
        ::_exit(127);
    }
    ::close(pipeEnds[1]);
    output = pipeEnds[0];
    return child;
}

/// Everything left to read on `fd`, then closes it.
inline std::string ReadAll(int fd)
{
    std::string text;
    char buffer[4096];
    for (;;) {
        const ssize_t n = ::read(fd, buffer, sizeof buffer);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        text.append(buffer, static_cast<std::size_t>(n));
    }
    ::close(fd);
    return text;
}

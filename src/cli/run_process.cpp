// SPDX-License-Identifier: GPL-3.0-or-later
#include "run_process.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace tq::cli {

std::optional<ProcessResult> RunProcess(std::string_view program, const std::vector<std::string>& args, int timeoutMs)
{
    int pipeFds[2];
    if (::pipe2(pipeFds, O_CLOEXEC) != 0)
        return std::nullopt;
    // a failed exec must be told apart from a program that ran: the child
    // writes errno to this pipe, which closes unread when the exec succeeds
    int execFds[2];
    if (::pipe2(execFds, O_CLOEXEC) != 0) {
        ::close(pipeFds[0]);
        ::close(pipeFds[1]);
        return std::nullopt;
    }
    std::string prog(program);
    std::vector<std::string> argv{prog};
    argv.insert(argv.end(), args.begin(), args.end());
    std::vector<char*> cargv;
    for (auto& a : argv)
        cargv.push_back(a.data());
    cargv.push_back(nullptr);

    const pid_t child = ::fork();
    if (child < 0) {
        for (int fd : {pipeFds[0], pipeFds[1], execFds[0], execFds[1]})
            ::close(fd);
        return std::nullopt;
    }
    if (child == 0) {
        ::dup2(pipeFds[1], STDOUT_FILENO);
        ::dup2(pipeFds[1], STDERR_FILENO);
        int devnull = ::open("/dev/null", O_RDONLY);
        if (devnull >= 0)
            ::dup2(devnull, STDIN_FILENO);
        ::execvp(prog.c_str(), cargv.data());
        int e = errno;
        [[maybe_unused]] auto n = ::write(execFds[1], &e, sizeof e);
        ::_exit(127);
    }
    ::close(pipeFds[1]);
    ::close(execFds[1]);
    int execErrno = 0;
    const bool execFailed = ::read(execFds[0], &execErrno, sizeof execErrno) == static_cast<ssize_t>(sizeof execErrno);
    ::close(execFds[0]);

    ProcessResult result;
    bool timedOut = false;
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeoutMs);
    char buf[4096];
    for (;;) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now()).count();
        if (left <= 0) {
            timedOut = true;
            break;
        }
        pollfd p{pipeFds[0], POLLIN, 0};
        int ready = ::poll(&p, 1, static_cast<int>(left));
        if (ready < 0 && errno == EINTR)
            continue;
        if (ready <= 0) {
            timedOut = ready == 0;
            break;
        }
        ssize_t n = ::read(pipeFds[0], buf, sizeof buf);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        result.output.append(buf, static_cast<size_t>(n));
    }
    ::close(pipeFds[0]);
    if (timedOut)
        ::kill(child, SIGKILL);
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    if (execFailed || timedOut)
        return std::nullopt;
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return result;
}

} // namespace tq::cli

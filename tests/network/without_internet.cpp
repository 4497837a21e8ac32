// without_internet PROGRAM [ARGUMENT...]: runs a program where nothing gets an internet socket,
// neither the program nor what it starts, and names whoever asked for one. Ends as the program
// does, or with 99 if anything asked; with 77 where the system does not let programs be watched.

#include <fcntl.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <future>
#include <string>
#include <thread>

namespace {

constexpr int cannotWatch = 77;
constexpr int somethingAsked = 99;

#if defined(__x86_64__)
constexpr unsigned architecture = AUDIT_ARCH_X86_64;
#elif defined(__aarch64__)
constexpr unsigned architecture = AUDIT_ARCH_AARCH64;
#endif

constexpr unsigned offsetOfFamily = offsetof(seccomp_data, args);

/// Calls that make an internet socket, or that could do so unseen, are put before the watcher. A
/// program for another architecture does not run at all.
sock_filter filter[] = {
    BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, arch)),
    BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, architecture, 1, 0),
    BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_KILL_PROCESS),
    BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
    BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_io_uring_setup, 4, 0),
    BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_socket, 0, 4),
    BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetOfFamily),
    BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, AF_INET, 1, 0),
    BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, AF_INET6, 0, 1),
    BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_USER_NOTIF),
    BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
};

/// From here on this thread, and every process that it starts, is watched. The descriptor hears of
/// each call; -1 where that is not allowed.
int beWatched() {
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) return -1;
    sock_fprog program = {.len = sizeof filter / sizeof filter[0], .filter = filter};
    return static_cast<int>(::syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER,
                                      SECCOMP_FILTER_FLAG_NEW_LISTENER, &program));
}

std::string nameOf(unsigned processId) {
    std::string name;
    std::getline(std::ifstream("/proc/" + std::to_string(processId) + "/comm"), name);
    return name;
}

/// Refuses the call that the listener has heard of. False if its program is gone already.
bool refuseCall(int listener) {
    seccomp_notif call = {};
    if (::ioctl(listener, SECCOMP_IOCTL_NOTIF_RECV, &call) != 0) return false;
    std::fprintf(stderr, "without_internet: %s asked for an internet socket\n",
                 nameOf(call.pid).c_str());
    seccomp_notif_resp answer = {.id = call.id, .val = 0, .error = -EACCES, .flags = 0};
    ::ioctl(listener, SECCOMP_IOCTL_NOTIF_SEND, &answer);
    return true;
}

/// How many calls were refused until the other descriptor is at its end.
int refuseCalls(int listener, int end) {
    int refused = 0;
    pollfd sources[] = {{listener, POLLIN, 0}, {end, POLLIN, 0}};
    while (::poll(sources, 2, -1) >= 0 || errno == EINTR) {
        if (sources[0].revents & POLLIN)
            refused += refuseCall(listener);
        else if (sources[1].revents)
            return refused;
    }
    return refused;
}

int statusOf(int ended) {
    return WIFEXITED(ended) ? WEXITSTATUS(ended) : 128 + WTERMSIG(ended);
}

int runToEnd(char** words) {
    const auto program = ::fork();
    if (program == 0) {
        ::execvp(words[0], words);
        std::perror(words[0]);
        ::_exit(127);
    }
    int ended = 0;
    return ::waitpid(program, &ended, 0) == program ? statusOf(ended) : EXIT_FAILURE;
}

int runWatched(char** words) {
    int end[2];
    if (::pipe2(end, O_CLOEXEC) != 0) return cannotWatch;
    std::promise<int> promise;
    int status = EXIT_FAILURE;
    // A thread of its own is watched, so that this one is free to answer.
    std::thread watched([&] {
        const int listener = beWatched();
        promise.set_value(listener);
        if (listener >= 0) status = runToEnd(words);
        ::close(end[1]);
    });
    const int listener = promise.get_future().get();
    const int refused = listener < 0 ? 0 : refuseCalls(listener, end[0]);
    watched.join();
    if (listener >= 0) return refused > 0 ? somethingAsked : status;
    std::fprintf(stderr, "without_internet: this system does not let programs be watched\n");
    return cannotWatch;
}

}  // namespace

int main(int count, char** words) {
    if (count > 1) return runWatched(words + 1);
    std::fprintf(stderr, "Usage: without_internet PROGRAM [ARGUMENT...]\n");
    return 2;
}

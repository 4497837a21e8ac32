#include "platform/process.h"

#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>

#include <algorithm>

#include "platform/posix/pipe.h"

extern char** environ;

namespace tidewell {

namespace {

constexpr auto nullDevice = "/dev/null";

/// What the new program finds at its three standard descriptors.
class StandardStreams {
 public:
    /// The pipe's end is put in its place first: in a program that was started without standard
    /// streams it may itself be 0 or 2.
    explicit StandardStreams(const posix::Descriptor& output) {
        ::posix_spawn_file_actions_init(&actions_);
        if (output)
            ::posix_spawn_file_actions_adddup2(&actions_, output.get(), STDOUT_FILENO);
        else
            open(STDOUT_FILENO, O_WRONLY);
        open(STDIN_FILENO, O_RDONLY);
        open(STDERR_FILENO, O_WRONLY);
    }
    StandardStreams(const StandardStreams&) = delete;
    StandardStreams& operator=(const StandardStreams&) = delete;
    ~StandardStreams() { ::posix_spawn_file_actions_destroy(&actions_); }

    const posix_spawn_file_actions_t* actions() const { return &actions_; }

 private:
    void open(int descriptor, int flags) {
        ::posix_spawn_file_actions_addopen(&actions_, descriptor, nullDevice, flags, 0);
    }

    posix_spawn_file_actions_t actions_;
};

enum class Group { ofThisProgram, itsOwn };

/// The signals as a program expects them at its start, whatever this thread blocks and whatever
/// this program ignores. In a group of its own it can be ended with all that it started; in this
/// program's, Ctrl-C reaches it too.
class PlainStart {
 public:
    explicit PlainStart(Group group) {
        ::posix_spawnattr_init(&attributes_);
        sigset_t signals;
        sigemptyset(&signals);
        ::posix_spawnattr_setsigmask(&attributes_, &signals);
        for (const int signal : {SIGPIPE, SIGCHLD, SIGXFSZ}) sigaddset(&signals, signal);
        ::posix_spawnattr_setsigdefault(&attributes_, &signals);
        int flags = POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF;
        if (group == Group::itsOwn) flags |= POSIX_SPAWN_SETPGROUP;
#ifdef POSIX_SPAWN_CLOEXEC_DEFAULT
        // Where no pipe is made and withheld from other programs in one step.
        flags |= POSIX_SPAWN_CLOEXEC_DEFAULT;
#endif
        ::posix_spawnattr_setflags(&attributes_, static_cast<short>(flags));
    }
    PlainStart(const PlainStart&) = delete;
    PlainStart& operator=(const PlainStart&) = delete;
    ~PlainStart() {
        ::posix_spawnattr_destroy(&attributes_);
    }

    const posix_spawnattr_t* attributes() const {
        return &attributes_;
    }

 private:
    posix_spawnattr_t attributes_;
};

std::optional<pid_t> start(const std::string& path, const std::vector<std::string>& arguments,
                           const posix::Descriptor& output, Group group) {
    // The called program owns its arguments; the interface dates from before const.
    std::vector<char*> vector = {const_cast<char*>(path.c_str())};
    for (const auto& argument : arguments) vector.push_back(const_cast<char*>(argument.c_str()));
    vector.push_back(nullptr);

    const StandardStreams streams(output);
    const PlainStart plain(group);
    pid_t process = -1;
    const auto error = ::posix_spawn(&process, path.c_str(), streams.actions(), plain.attributes(),
                                     vector.data(), environ);
    return error == 0 ? std::optional(process) : std::nullopt;
}

using Clock = std::chrono::steady_clock;

/// How soon the end of a tool is noticed whose output something else still holds.
constexpr int lookingInterval = 20;  // milliseconds

/// A parent that ignores SIGCHLD hands that on, and how a tool ended would be lost.
void keepHowChildrenEnd() {
    struct sigaction action {};
    const bool isLost = ::sigaction(SIGCHLD, nullptr, &action) == 0 &&
                        (action.sa_handler == SIG_IGN || (action.sa_flags & SA_NOCLDWAIT) != 0);
    if (isLost) ::signal(SIGCHLD, SIG_DFL);
}

/// It stays to be waited for.
bool hasEnded(pid_t process) {
    siginfo_t info{};
    const auto looked = posix::retrying([&] {
        return ::waitid(P_PID, static_cast<id_t>(process), &info, WEXITED | WNOHANG | WNOWAIT);
    });
    return looked != 0 || info.si_pid == process;
}

enum class Source { open, ended };

/// Takes what is there now.
Source takeOutput(const posix::Descriptor& source, std::string& taken) {
    char buffer[64 * 1024];
    while (taken.size() < longestToolOutput) {
        const auto room = std::min(sizeof buffer, longestToolOutput - taken.size());
        const auto count = posix::retrying([&] { return ::read(source.get(), buffer, room); });
        if (count < 0 && errno == EAGAIN) return Source::open;
        if (count <= 0) break;
        taken.append(buffer, static_cast<std::size_t>(count));
    }
    return Source::ended;
}

void waitForOutput(const posix::Descriptor& source) {
    pollfd waiting{source.get(), POLLIN, 0};  // a negative descriptor is passed over
    ::poll(&waiting, 1, lookingInterval);
}

std::optional<int> waitForExit(pid_t process) {
    int status = 0;
    const auto ended = posix::retrying([&] { return ::waitpid(process, &status, 0); });
    return ended == process && WIFEXITED(status) ? std::optional(WEXITSTATUS(status))
                                                 : std::nullopt;
}

}  // namespace

std::optional<ToolRun> runTool(const std::string& path, const std::vector<std::string>& arguments,
                               ToolOutput output, std::optional<std::chrono::milliseconds> limit) {
    posix::Pipe pipe;
    if (output == ToolOutput::keep) {
        auto opened = posix::closeOnExecPipe();
        if (!opened || ::fcntl(opened->reading.get(), F_SETFL, O_NONBLOCK) != 0)
            return std::nullopt;
        pipe = std::move(*opened);
    }
    keepHowChildrenEnd();
    const auto process =
        start(path, arguments, pipe.writing, limit ? Group::itsOwn : Group::ofThisProgram);
    if (!process) return std::nullopt;
    const auto end = limit ? Clock::now() + *limit : Clock::time_point::max();

    pipe.writing = posix::Descriptor();
    ToolRun run;
    while (!hasEnded(*process)) {
        if (pipe.reading && takeOutput(pipe.reading, run.output) == Source::ended)
            pipe.reading = posix::Descriptor();
        if (!pipe.reading && !limit) break;
        waitForOutput(pipe.reading);
        if (Clock::now() >= end) ::kill(-*process, SIGKILL);
    }
    if (pipe.reading) takeOutput(pipe.reading, run.output);
    run.exitStatus = waitForExit(*process);
    return run;
}

}  // namespace tidewell

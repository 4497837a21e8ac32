#include "platform/process.h"

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>

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

/// The signals as a program expects them at its start, whatever this thread blocks and whatever
/// this program ignores.
class PlainSignals {
 public:
    PlainSignals() {
        ::posix_spawnattr_init(&attributes_);
        sigset_t signals;
        sigemptyset(&signals);
        ::posix_spawnattr_setsigmask(&attributes_, &signals);
        sigaddset(&signals, SIGPIPE);
        ::posix_spawnattr_setsigdefault(&attributes_, &signals);
        ::posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    PlainSignals(const PlainSignals&) = delete;
    PlainSignals& operator=(const PlainSignals&) = delete;
    ~PlainSignals() { ::posix_spawnattr_destroy(&attributes_); }

    const posix_spawnattr_t* attributes() const { return &attributes_; }

 private:
    posix_spawnattr_t attributes_;
};

std::optional<pid_t> start(const std::string& path, const std::vector<std::string>& arguments,
                           const posix::Descriptor& output) {
    // The called program owns its arguments; the interface dates from before const.
    std::vector<char*> vector = {const_cast<char*>(path.c_str())};
    for (const auto& argument : arguments) vector.push_back(const_cast<char*>(argument.c_str()));
    vector.push_back(nullptr);

    const StandardStreams streams(output);
    const PlainSignals signals;
    pid_t process = -1;
    const auto error = ::posix_spawn(&process, path.c_str(), streams.actions(),
                                     signals.attributes(), vector.data(), environ);
    return error == 0 ? std::optional(process) : std::nullopt;
}

std::string readToEnd(const posix::Descriptor& source) {
    std::string bytes;
    char buffer[64 * 1024];
    for (;;) {
        const auto count =
            posix::retrying([&] { return ::read(source.get(), buffer, sizeof buffer); });
        if (count <= 0) return bytes;
        bytes.append(buffer, static_cast<std::size_t>(count));
    }
}

std::optional<int> waitForExit(pid_t process) {
    int status = 0;
    const auto ended = posix::retrying([&] { return ::waitpid(process, &status, 0); });
    return ended == process && WIFEXITED(status) ? std::optional(WEXITSTATUS(status))
                                                 : std::nullopt;
}

}  // namespace

std::optional<ToolRun> runTool(const std::string& path, const std::vector<std::string>& arguments,
                               ToolOutput output) {
    posix::Pipe pipe;
    if (output == ToolOutput::keep) {
        auto opened = posix::closeOnExecPipe();
        if (!opened) return std::nullopt;
        pipe = std::move(*opened);
    }
    const auto process = start(path, arguments, pipe.writing);
    if (!process) return std::nullopt;

    pipe.writing = posix::Descriptor();
    ToolRun run;
    if (pipe.reading) run.output = readToEnd(pipe.reading);
    run.exitStatus = waitForExit(*process);
    return run;
}

}  // namespace tidewell

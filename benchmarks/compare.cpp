#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

struct Run {
    double wall;       ///< seconds
    double processor;  ///< seconds, of user and system together
    double memory;     ///< MB, the most at a time
};

double seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

[[noreturn]] void become(const std::string& command) {
    const int nowhere = ::open("/dev/null", O_RDWR);
    ::dup2(nowhere, STDOUT_FILENO);
    ::execl("/bin/sh", "sh", "-c", ("exec " + command).c_str(), nullptr);
    ::_exit(127);
}

Run timed(const std::string& command) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    const pid_t child = ::fork();
    if (child == 0) become(command);
    int status = 0;
    struct rusage usage {};
    ::wait4(child, &status, 0, &usage);
    const std::chrono::duration<double> wall = Clock::now() - start;
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::fprintf(stderr, "failed: %s\n", command.c_str());
        std::exit(1);
    }
    return {.wall = wall.count(),
            .processor = seconds(usage.ru_utime) + seconds(usage.ru_stime),
            .memory = static_cast<double>(usage.ru_maxrss) / 1e3};
}

double median(std::vector<double> values) {
    std::ranges::sort(values);
    const auto middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

/// A command and its runs, one a round.
struct Entrant {
    std::string name;
    std::string prepare;  ///< run before each round, and not timed; may be empty
    std::string command;
    std::vector<Run> runs = {};

    double medianOf(double Run::*figure) const {
        std::vector<double> values;
        for (const auto& run : runs) values.push_back(run.*figure);
        return median(values);
    }
};

/// How the first one does beside another in the same rounds, so that a machine that is busy for a
/// while is busy for both.
double ratioOfRounds(const Entrant& first, const Entrant& other) {
    std::vector<double> ratios;
    for (std::size_t round = 0; round < first.runs.size(); ++round)
        ratios.push_back(first.runs[round].wall / other.runs[round].wall);
    return median(ratios);
}

void print(const std::vector<Entrant>& entrants) {
    std::printf("| | wall s | CPU s | peak MB | first / this |\n|---|---|---|---|---|\n");
    for (const auto& entrant : entrants)
        std::printf("| %s | %.4f | %.4f | %.1f | %.2f |\n", entrant.name.c_str(),
                    entrant.medianOf(&Run::wall), entrant.medianOf(&Run::processor),
                    entrant.medianOf(&Run::memory), ratioOfRounds(entrants.front(), entrant));
}

}  // namespace

/// Runs commands in turn, round by round, and prints the medians as a table.
int main(int count, char** arguments) {
    if (count < 5 || count % 3 != 2) {
        std::fprintf(stderr, "Usage: compare ROUNDS (NAME PREPARATION COMMAND)...\n");
        return 2;
    }
    std::vector<Entrant> entrants;
    for (int i = 2; i < count; i += 3)
        entrants.push_back(
            {.name = arguments[i], .prepare = arguments[i + 1], .command = arguments[i + 2]});
    for (int round = std::atoi(arguments[1]); round > 0; --round)
        for (auto& entrant : entrants) {
            if (!entrant.prepare.empty()) timed(entrant.prepare);
            entrant.runs.push_back(timed(entrant.command));
        }
    print(entrants);
    return 0;
}

#include "platform/trial_ground.h"

#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <utility>

#include "platform/files.h"
#include "platform/path_text.h"
#include "platform/posix/descriptor.h"

namespace tidewell {

namespace {

using posix::Descriptor;

constexpr std::string_view namePrefix = "tidewell-selfcheck-";
constexpr auto markName = ".made-for-a-check";
constexpr std::size_t longestMark = 64;
constexpr mode_t ownFolder = 0700;
constexpr mode_t ownFile = 0600;

std::string freshName() {
    std::random_device random;
    std::array<char, 24> digits{};
    std::snprintf(digits.data(), digits.size(), "%08x%08x", random(), random());
    return std::string(namePrefix) + digits.data();
}

/// Which folder a mark was made for: a copy of it, or what was put in its place, is another one.
std::string markOf(int folder) {
    struct stat status;
    if (::fstat(folder, &status) != 0) return {};
    return std::to_string(status.st_dev) + " " + std::to_string(status.st_ino) + "\n";
}

bool isOwn(int folder) {
    struct stat status;
    return ::fstat(folder, &status) == 0 && status.st_uid == ::geteuid();
}

bool isMarked(const std::string& path, int folder) {
    const auto mark = markOf(folder);
    return !mark.empty() && isOwn(folder) &&
           readFile(joinPath(path, markName), longestMark) == mark;
}

bool writeAll(const Descriptor& file, std::string_view content) {
    while (!content.empty()) {
        const auto written =
            posix::retrying([&] { return ::write(file.get(), content.data(), content.size()); });
        if (written <= 0) return false;
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool makeFile(int folder, const std::string& name, std::string_view content) {
    const Descriptor file(::openat(folder, name.c_str(),
                                   O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, ownFile));
    return file && writeAll(file, content);
}

Descriptor openSub(int folder, const std::string& name) {
    return Descriptor(::openat(folder, name.c_str(), posix::openFolderFlags));
}

enum class Missing { made, failure };

/// The folder at a path below `top`; without a number where there is none.
Descriptor openBelow(int top, std::string_view path, Missing missing) {
    auto folder = openSub(top, ".");
    for (const auto piece : pathPieces(path)) {
        const std::string name(piece);
        if (name == "." || name == ".." || !folder) return Descriptor();
        if (missing == Missing::made) ::mkdirat(folder.get(), name.c_str(), ownFolder);
        folder = openSub(folder.get(), name);
    }
    return folder;
}

std::string nameIn(std::string_view path) {
    std::string name(lastPathComponent(path));
    return name == ".." || name == "." ? std::string() : name;
}

bool isMissing(int folder, const std::string& name) {
    struct stat status;
    return ::fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0 && errno == ENOENT;
}

TrialGroundResult failure(const std::string& what, const std::string& folder) {
    return {.ground = {}, .problem = what + " " + folder + ": " + std::strerror(errno)};
}

}  // namespace

struct TrialGround::Held {
    Descriptor folder;
};

TrialGround::TrialGround(std::string path, std::unique_ptr<Held> held)
    : path_(std::move(path)), held_(std::move(held)) {}
TrialGround::TrialGround(TrialGround&& other) noexcept = default;
TrialGround::~TrialGround() = default;

TrialGroundResult TrialGround::makeIn(const std::string& folder) {
    const Descriptor place(::open(folder.c_str(), posix::openFolderFlags));
    if (!place) return failure("Nothing can be tried in", folder);
    const auto name = freshName();
    if (::mkdirat(place.get(), name.c_str(), ownFolder) != 0)
        return failure("No folder can be made in", folder);
    auto held = std::make_unique<Held>(openSub(place.get(), name));
    const int made = held->folder.get();
    // The mark comes behind the lock: what is marked and not held was left behind.
    if (held->folder) ::flock(made, LOCK_EX | LOCK_NB);
    TrialGround ground(joinPath(folder, name), std::move(held));
    if (made < 0 || !makeFile(made, markName, markOf(made))) {
        auto failed = failure("Nothing can be written in", ground.path());
        if (made >= 0) ::unlinkat(made, markName, 0);
        ::unlinkat(place.get(), name.c_str(), AT_REMOVEDIR);
        return failed;
    }
    return {.ground = std::move(ground), .problem = {}};
}

TrialGroundResult TrialGround::openAt(const std::string& path) {
    auto held = std::make_unique<Held>(Descriptor(::open(path.c_str(), posix::openFolderFlags)));
    if (!held->folder) return failure("Nothing can be tried in", path);
    if (!isMarked(path, held->folder.get()))
        return {.ground = {}, .problem = path + " was not made for a check"};
    return {.ground = TrialGround(path, std::move(held)), .problem = {}};
}

std::vector<std::string> TrialGround::leftIn(const std::string& folder) {
    std::vector<std::string> left;
    for (const auto& name : folderNames(folder).value_or(std::vector<std::string>())) {
        if (!name.starts_with(namePrefix)) continue;
        const auto path = joinPath(folder, name);
        const Descriptor opened(::open(path.c_str(), posix::openFolderFlags));
        if (opened && isMarked(path, opened.get()) && ::flock(opened.get(), LOCK_EX | LOCK_NB) == 0)
            left.push_back(path);
    }
    return left;
}

bool TrialGround::folder(std::string_view path) const {
    return static_cast<bool>(openBelow(held_->folder.get(), path, Missing::made));
}

bool TrialGround::file(std::string_view path, std::string_view content) const {
    const auto place = openBelow(held_->folder.get(), parentPath(path), Missing::made);
    return place && makeFile(place.get(), nameIn(path), content);
}

bool TrialGround::link(std::string_view path, const std::string& target) const {
    const auto place = openBelow(held_->folder.get(), parentPath(path), Missing::made);
    return place && ::symlinkat(target.c_str(), place.get(), nameIn(path).c_str()) == 0;
}

bool TrialGround::move(std::string_view from, std::string_view to) const {
    const auto source = openBelow(held_->folder.get(), parentPath(from), Missing::failure);
    const auto place = openBelow(held_->folder.get(), parentPath(to), Missing::made);
    return source && place && isMissing(place.get(), nameIn(to)) &&
           ::renameat(source.get(), nameIn(from).c_str(), place.get(), nameIn(to).c_str()) == 0;
}

bool TrialGround::setAccess(std::string_view folder, Access access) const {
    const auto place = openBelow(held_->folder.get(), parentPath(folder), Missing::failure);
    const mode_t mode = access == Access::all       ? S_IRWXU
                        : access == Access::reading ? S_IRUSR | S_IXUSR
                                                    : 0;
    return place && ::fchmodat(place.get(), nameIn(folder).c_str(), mode, AT_SYMLINK_NOFOLLOW) == 0;
}

void dieAtNextWrite() {
    const rlimit nothing{.rlim_cur = 0, .rlim_max = 0};
    std::signal(SIGXFSZ, SIG_DFL);
    ::setrlimit(RLIMIT_CORE, &nothing);
    ::setrlimit(RLIMIT_FSIZE, &nothing);
}

void dieNow() {
    std::raise(SIGKILL);
    std::abort();
}

}  // namespace tidewell

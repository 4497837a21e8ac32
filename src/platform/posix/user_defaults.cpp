#include "platform/user_defaults.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <optional>
#include <thread>

#include "platform/byte_count.h"
#include "platform/files.h"
#include "platform/json.h"
#include "platform/path_text.h"
#include "platform/posix/descriptor.h"
#include "platform/value.h"

namespace tidewell {

namespace {

constexpr std::size_t longestFile = 1024 * 1024;

enum class Condition { missing, readable, damaged, unreadable };

struct Stored {
    Condition condition;
    Value values = Value(Value::Object{});
};

std::string valuesFile(const std::string& folder) {
    return joinPath(folder, "defaults.json");
}

Stored readStored(const std::string& folder) {
    const auto path = valuesFile(folder);
    if (fileKind(path) == FileKind::missing) return {.condition = Condition::missing};
    if (!canOpenForReading(path)) return {.condition = Condition::unreadable};
    const auto bytes = readFile(path, longestFile);
    auto values = bytes ? parseJson(*bytes) : std::nullopt;
    if (!values || !values->object()) return {.condition = Condition::damaged};
    return {.condition = Condition::readable, .values = std::move(*values)};
}

using Clock = std::chrono::steady_clock;

/// A writer needs the lock for as long as one small file takes. One that keeps it longer was
/// stopped in the middle, and may be so for good.
constexpr std::chrono::seconds patience(2);
constexpr std::chrono::milliseconds attemptInterval(2);

bool lockBefore(Clock::time_point end, const posix::Descriptor& file) {
    for (;;) {
        const auto lock = [&] { return ::flock(file.get(), LOCK_EX | LOCK_NB); };
        if (posix::retrying(lock) == 0) return true;
        if (errno != EWOULDBLOCK || Clock::now() >= end) return false;
        std::this_thread::sleep_for(attemptInterval);
    }
}

/// Holds off every other writer, of this process and of others, as long as it lives; false if the
/// lock could not be had in time. The lock file itself stays empty and is never removed: whoever
/// waits for it has it open.
posix::Descriptor lockFolder(const std::string& folder, std::chrono::seconds wait) {
    const auto path = joinPath(folder, "defaults.lock");
    posix::Descriptor file(
        ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600));
    if (!file || !lockBefore(Clock::now() + wait, file)) return posix::Descriptor();
    return file;
}

/// A file in a folder of somebody else's would be one that its owner cannot use.
bool isOwnPlace(const std::string& path) {
    struct stat status;
    if (::stat(path.c_str(), &status) == 0) return status.st_uid == ::geteuid();
    return errno == ENOENT && path != "/" && isOwnPlace(std::string(parentPath(path)));
}

void makeFolders(const std::string& path) {
    if (path.empty() || fileExists(path)) return;
    makeFolders(std::string(parentPath(path)));
    ::mkdir(path.c_str(), 0700);
}

/// With the lock held. What is set aside is kept for the user to look at; nothing reads it again.
bool setAside(const std::string& folder) {
    const auto path = valuesFile(folder);
    return std::rename(path.c_str(), (path + ".damaged").c_str()) == 0;
}

bool writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto count =
            posix::retrying([&] { return ::write(file, bytes.data(), bytes.size()); });
        if (count <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return ::fsync(file) == 0;
}

/// With the lock held, so that one name is enough for the new file. What a failed or killed write
/// leaves there is overwritten by the next.
bool replaceFile(const std::string& folder, std::string_view bytes) {
    const auto path = valuesFile(folder);
    const auto newPath = path + ".new";
    const posix::Descriptor file(::open(
        newPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600));
    if (!file || !writeAll(file.get(), bytes)) return false;
    if (std::rename(newPath.c_str(), path.c_str()) != 0) return false;
    // The new file is in place, whether or not its folder can be synced on this file system.
    const posix::Descriptor parent(::open(folder.c_str(), posix::openFolderFlags));
    if (parent) ::fsync(parent.get());
    return true;
}

/// The values as they stand. Damage is looked at again under the lock before anything is renamed:
/// another program may have mended it meanwhile. Whoever holds the lock mends it himself: nobody
/// waits to look.
Value readValues(const std::string& folder) {
    auto stored = readStored(folder);
    if (stored.condition != Condition::damaged) return std::move(stored.values);
    const auto lock = lockFolder(folder, std::chrono::seconds::zero());
    if (!lock) return std::move(stored.values);
    stored = readStored(folder);
    if (stored.condition == Condition::damaged) setAside(folder);
    return std::move(stored.values);
}

using NewValue = Value (*)(const Value* old, const Value& given);

/// What cannot be read is never overwritten: it may hold sums.
UserDefaults::Written change(const std::string& folder, std::string_view key, const Value& given,
                             NewValue newValue) {
    using Written = UserDefaults::Written;
    if (!isOwnPlace(folder)) return Written::no;
    makeFolders(folder);
    const auto lock = lockFolder(folder, patience);
    if (!lock) return Written::no;
    const auto stored = readStored(folder);
    if (stored.condition == Condition::unreadable) return Written::no;
    if (stored.condition == Condition::damaged && !setAside(folder)) return Written::no;
    auto members = *stored.values.object();
    const auto value = newValue(stored.values.find(key), given);
    std::erase_if(members, [key](const auto& member) { return member.first == key; });
    members.emplace_back(key, value);
    const auto text = writeJson(Value(std::move(members)), JsonLayout::indented) + '\n';
    return replaceFile(folder, text) ? Written::yes : Written::no;
}

Value replaced(const Value*, const Value& given) {
    return given;
}

Value sum(const Value* old, const Value& given) {
    const auto* left = old ? old->integer() : nullptr;
    return addSaturating(left ? *left : 0, *given.integer());
}

}  // namespace

UserDefaults::UserDefaults(std::string folder) : folder_(std::move(folder)) {}

std::int64_t UserDefaults::integer(std::string_view key) const {
    const auto values = readValues(folder_);
    const auto* value = values.find(key);
    return value && value->integer() ? *value->integer() : 0;
}

double UserDefaults::real(std::string_view key) const {
    const auto values = readValues(folder_);
    const auto* value = values.find(key);
    if (value && value->integer()) return static_cast<double>(*value->integer());
    return value && value->real() ? *value->real() : 0.0;
}

bool UserDefaults::boolean(std::string_view key) const {
    const auto values = readValues(folder_);
    const auto* value = values.find(key);
    return value && value->boolean() && *value->boolean();
}

UserDefaults::Written UserDefaults::add(std::string_view key, std::int64_t amount) {
    return change(folder_, key, amount, sum);
}

UserDefaults::Written UserDefaults::setReal(std::string_view key, double value) {
    return change(folder_, key, value, replaced);
}

UserDefaults::Written UserDefaults::setBoolean(std::string_view key, bool value) {
    return change(folder_, key, value, replaced);
}

}  // namespace tidewell

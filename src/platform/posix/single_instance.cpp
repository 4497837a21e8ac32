#include "platform/single_instance.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <optional>
#include <system_error>
#include <thread>

#include "platform/path_text.h"
#include "platform/posix/local_socket.h"
#include "platform/posix/pipe.h"

namespace tidewell {

namespace {

using posix::Descriptor;

constexpr std::size_t longestMessage = 4096;
constexpr timeval patience{.tv_sec = 2, .tv_usec = 0};
/// The first start may hold the lock and not listen yet.
constexpr int connectionAttempts = 60;
constexpr std::chrono::milliseconds attemptInterval(50);
constexpr int pauseWithoutDescriptors = 200;  // milliseconds
constexpr char taken = '+';

/// The user's own folder for what lives as long as the session; empty if there is none that nobody
/// else can write to.
std::string runtimeFolder() {
    auto folder = posix::sessionFolder();
    struct stat status;
    if (!folder.starts_with('/') || ::stat(folder.c_str(), &status) != 0) return {};
    const bool isOwn = S_ISDIR(status.st_mode) && status.st_uid == ::getuid() &&
                       (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
    return isOwn ? folder : std::string();
}

/// One name for each machine that the program is run for (FNV-1a of its two folders).
std::string machineName(const Host& host) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char byte : host.root + '\n' + host.home)
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
    std::array<char, 32> name{};
    std::snprintf(name.data(), name.size(), "tidewell-%016llx",
                  static_cast<unsigned long long>(hash));
    return name.data();
}

Descriptor openLockFile(const std::string& path) {
    return Descriptor(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
}

bool isHeldByAnother(const Descriptor& file) {
    return ::flock(file.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

std::optional<sockaddr_un> socketAddress(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof(address.sun_path)) return std::nullopt;
    path.copy(address.sun_path, path.size());
    return address;
}

/// For the holder of the lock alone: what stands there was left behind by one that is gone.
Descriptor listeningSocket(const std::string& path) {
    const auto address = socketAddress(path);
    auto socket = posix::localSocket(posix::Waiting::yes);
    if (!address || !socket) return Descriptor();
    ::unlink(path.c_str());
    const auto* generic = reinterpret_cast<const sockaddr*>(&*address);
    if (!posix::withholdFromOthers(socket) ||
        ::bind(socket.get(), generic, sizeof(*address)) != 0 || ::listen(socket.get(), 8) != 0)
        return Descriptor();
    return socket;
}

void limitWaiting(const Descriptor& connection) {
    for (const int direction : {SO_RCVTIMEO, SO_SNDTIMEO})
        ::setsockopt(connection.get(), SOL_SOCKET, direction, &patience, sizeof(patience));
}

/// All up to the sender's end; absent if it did not come to it, or sent too much.
std::optional<std::string> readMessage(const Descriptor& connection) {
    std::string message;
    std::array<char, 512> part;
    while (message.size() <= longestMessage) {
        const auto count =
            posix::retrying([&] { return ::recv(connection.get(), part.data(), part.size(), 0); });
        if (count < 0) return std::nullopt;
        if (count == 0) return message;
        message.append(part.data(), static_cast<std::size_t>(count));
    }
    return std::nullopt;
}

std::optional<std::string> receive(const Descriptor& connection) {
    if (!connection || !posix::isOwnProcess(connection)) return std::nullopt;
    limitWaiting(connection);
    return readMessage(connection);
}

bool sendAll(const Descriptor& connection, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto count = posix::retrying(
            [&] { return ::send(connection.get(), bytes.data(), bytes.size(), posix::sendFlags); });
        if (count <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return ::shutdown(connection.get(), SHUT_WR) == 0;
}

/// A first start that does not get to its messages (it was stopped) has a full queue, and a call
/// that waits for room there would wait for good: it is tried again like one that does not listen
/// yet.
Descriptor connectTo(const std::string& path) {
    const auto address = socketAddress(path);
    if (!address) return Descriptor();
    const auto* generic = reinterpret_cast<const sockaddr*>(&*address);
    for (int attempt = 0; attempt < connectionAttempts; ++attempt) {
        auto socket = posix::localSocket(posix::Waiting::no);
        if (socket && ::connect(socket.get(), generic, sizeof(*address)) == 0 &&
            ::fcntl(socket.get(), F_SETFL, 0) == 0)
            return socket;
        std::this_thread::sleep_for(attemptInterval);
    }
    return Descriptor();
}

}  // namespace

struct SingleInstance::Link {
    std::string socketPath;
    Descriptor lock;
    bool isFirst = true;
    Descriptor listening;
    std::array<Descriptor, 2> end;  ///< a pipe whose closing ends the thread
    std::thread thread;

    void run(const std::function<void(std::string)>& received) const;
};

void SingleInstance::Link::run(const std::function<void(std::string)>& received) const {
    std::array<pollfd, 2> waiting{{{listening.get(), POLLIN, 0}, {end[0].get(), POLLIN, 0}}};
    while (true) {
        if (posix::retrying([&] { return ::poll(waiting.data(), waiting.size(), -1); }) < 0) return;
        if (waiting[1].revents != 0) return;
        const auto connection = posix::acceptFrom(listening);
        // Without a descriptor for it the caller stays in the queue, ready at once every time.
        if (!connection) ::poll(&waiting[1], 1, pauseWithoutDescriptors);
        if (auto message = receive(connection)) {
            ::send(connection.get(), &taken, 1, posix::sendFlags);
            received(std::move(*message));
        }
    }
}

SingleInstance::SingleInstance(const Host& host) : link_(std::make_unique<Link>()) {
    const auto folder = runtimeFolder();
    if (folder.empty()) return;
    const auto name = joinPath(folder, machineName(host));
    link_->socketPath = name + ".socket";
    link_->lock = openLockFile(name + ".lock");
    link_->isFirst = !link_->lock || !isHeldByAnother(link_->lock);
}

SingleInstance::~SingleInstance() {
    link_->end[1] = Descriptor();
    if (link_->thread.joinable()) link_->thread.join();
}

SingleInstance::Role SingleInstance::role() const {
    return link_->isFirst ? Role::first : Role::later;
}

SingleInstance::Reach SingleInstance::listen(std::function<void(std::string)> received) {
    if (!link_->lock || !link_->isFirst) return Reach::none;
    link_->listening = listeningSocket(link_->socketPath);
    auto pipe = posix::closeOnExecPipe();
    if (!link_->listening || !pipe) return Reach::none;
    link_->end = {std::move(pipe->reading), std::move(pipe->writing)};
    try {
        link_->thread = std::thread(
            [link = link_.get(), received = std::move(received)] { link->run(received); });
        return Reach::open;
    } catch (const std::system_error&) {
        link_->listening = Descriptor();  // so that no later start waits for an answer
        return Reach::none;
    }
}

SingleInstance::Delivery SingleInstance::send(const std::string& message) const {
    const auto connection = connectTo(link_->socketPath);
    if (!connection || !posix::isOwnProcess(connection)) return Delivery::failed;
    limitWaiting(connection);
    if (!sendAll(connection, message)) return Delivery::failed;
    char answer = 0;
    const auto count = posix::retrying([&] { return ::recv(connection.get(), &answer, 1, 0); });
    return count == 1 && answer == taken ? Delivery::taken : Delivery::failed;
}

}  // namespace tidewell

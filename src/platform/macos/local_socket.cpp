#include "platform/posix/local_socket.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>

namespace tidewell::posix {

namespace {

/// Another thread that starts a program at this very moment may hand it on: there is no call that
/// makes both at once.
Descriptor keptToItself(int socket) {
    Descriptor own(socket);
    const int on = 1;
    if (own) {
        ::fcntl(own.get(), F_SETFD, FD_CLOEXEC);
        ::setsockopt(own.get(), SOL_SOCKET, SO_NOSIGPIPE, &on, sizeof on);
    }
    return own;
}

}  // namespace

const int sendFlags = 0;

std::string sessionFolder() {
    std::array<char, 1024> folder{};
    const auto length = ::confstr(_CS_DARWIN_USER_TEMP_DIR, folder.data(), folder.size());
    return length > 0 && length <= folder.size() ? std::string(folder.data()) : std::string();
}

Descriptor localSocket(Waiting waiting) {
    auto socket = keptToItself(::socket(AF_UNIX, SOCK_STREAM, 0));
    if (socket && waiting == Waiting::no) ::fcntl(socket.get(), F_SETFL, O_NONBLOCK);
    return socket;
}

Descriptor acceptFrom(const Descriptor& listening) {
    auto socket = keptToItself(::accept(listening.get(), nullptr, nullptr));
    // It takes over from the other that it does not wait.
    if (socket) ::fcntl(socket.get(), F_SETFL, 0);
    return socket;
}

/// Sockets have no rights of their own before they have an address; the session's folder is the
/// user's alone.
bool withholdFromOthers(const Descriptor&) {
    return true;
}

bool isOwnProcess(const Descriptor& connection) {
    uid_t user = 0;
    gid_t group = 0;
    return ::getpeereid(connection.get(), &user, &group) == 0 && user == ::getuid();
}

}  // namespace tidewell::posix

#include "platform/posix/local_socket.h"

#include <sys/socket.h>
#include <sys/stat.h>

#include "platform/environment.h"

namespace tidewell::posix {

const int sendFlags = MSG_NOSIGNAL;

std::string sessionFolder() {
    return environmentValue("XDG_RUNTIME_DIR");
}

Descriptor localSocket(Waiting waiting) {
    const int flags = SOCK_STREAM | SOCK_CLOEXEC | (waiting == Waiting::no ? SOCK_NONBLOCK : 0);
    return Descriptor(::socket(AF_UNIX, flags, 0));
}

Descriptor acceptFrom(const Descriptor& listening) {
    return Descriptor(::accept4(listening.get(), nullptr, nullptr, SOCK_CLOEXEC));
}

/// Its address gets the mode of the descriptor.
bool withholdFromOthers(const Descriptor& socket) {
    return ::fchmod(socket.get(), S_IRUSR | S_IWUSR) == 0;
}

bool isOwnProcess(const Descriptor& connection) {
    ucred peer{};
    socklen_t size = sizeof(peer);
    return ::getsockopt(connection.get(), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == ::getuid();
}

}  // namespace tidewell::posix

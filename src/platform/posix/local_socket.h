#pragma once

#include <string>

#include "platform/posix/descriptor.h"

namespace tidewell::posix {

// Sockets by which processes of one user talk to each other on the machine.

/// The folder for what lives as long as the user's session; empty if there is none. Whether nobody
/// else can write to it is not yet asked.
std::string sessionFolder();

enum class Waiting { yes, no };

/// Never handed on to other programs; a write into one whose other end is gone ends no process.
Descriptor localSocket(Waiting waiting);
Descriptor acceptFrom(const Descriptor& listening);

/// Before it is bound to an address, so that what stands there is never open to other users. Where
/// sockets have no rights of their own, those of the session's folder have to do.
bool withholdFromOthers(const Descriptor& socket);

/// For what is written to one.
extern const int sendFlags;

/// Whether the process at the other end is the user's own.
bool isOwnProcess(const Descriptor& connection);

}  // namespace tidewell::posix

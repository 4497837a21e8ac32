#pragma once

#include <string>

#include "platform/posix/descriptor.h"

namespace tidewell::link_free {

// Ways to a folder that no link can bend, also one that is put in place at that very moment. Where
// the kernel has no call for it, each component is opened by itself and looked at. A descriptor
// that converts to false leaves the reason in errno.

/// The folder at an absolute path, as a place to work from: not for reading. Mounted file systems
/// on the way are entered.
posix::Descriptor openPlace(const std::string& absolutePath);

/// The folder of this name directly in `parent`, as such a place.
posix::Descriptor openPlaceIn(int parent, const std::string& name);

/// An entry, by the open folder that holds it.
struct Place {
    posix::Descriptor folder;
    std::string name;
};

/// The place of the entry at an absolute path; the entry itself need not be there.
Place openPlaceOf(const std::string& absolutePath);

/// The folder of this name directly in `parent`, for reading. EXDEV if another file system is
/// mounted there, also one that is a part of the same disk; ELOOP or ENOTDIR if it is no folder.
posix::Descriptor openSubfolder(int parent, const std::string& name);

/// The mount that an open folder belongs to. A disk's number does not tell two mounts apart.
bool isOnSameMount(int folder, int other);

}  // namespace tidewell::link_free

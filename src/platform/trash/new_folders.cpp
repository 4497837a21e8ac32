#include "platform/trash/new_folders.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ranges>

#include "platform/posix/link_free.h"

namespace tidewell::trash {

using posix::Descriptor;

NewFolders::~NewFolders() {
    for (const auto& made : made_ | std::views::reverse)
        ::unlinkat(made.parent.get(), made.name.c_str(), AT_REMOVEDIR);
}

OrProblem<Descriptor> NewFolders::open(int parent, const std::string& name, mode_t mode) {
    return open(parent, name, mode, [](int folder, const std::string& entry) {
        return Descriptor(::openat(folder, entry.c_str(), posix::openFolderFlags));
    });
}

OrProblem<Descriptor> NewFolders::openPlace(int parent, const std::string& name, mode_t mode) {
    return open(parent, name, mode, link_free::openPlaceIn);
}

OrProblem<Descriptor> NewFolders::open(int parent, const std::string& name, mode_t mode,
                                       Opener opener) {
    auto folder = opener(parent, name);
    if (folder) return folder;
    if (errno != ENOENT || making_ == Making::never) return problemOf(errno);
    if (::mkdirat(parent, name.c_str(), mode) == 0)
        made_.push_back({Descriptor(::fcntl(parent, F_DUPFD_CLOEXEC, 0)), name});
    else if (errno != EEXIST)
        return problemOf(errno);
    folder = opener(parent, name);
    if (!folder) return problemOf(errno);
    return folder;
}

OrProblem<Descriptor> NewFolders::openOwn(int parent, const std::string& name) {
    constexpr mode_t privateFolder = 0700;
    auto folder = open(parent, name, privateFolder);
    if (const auto* problem = std::get_if<Problem>(&folder)) {
        if (problem->error == ELOOP || problem->error == ENOTDIR)
            return refusal("The Trash is a link or no folder.");
        if (problem->error == EACCES || problem->error == EPERM)
            return refusal("The Trash cannot be made or opened.");
        return *problem;
    }
    struct stat status;
    if (::fstat(std::get<Descriptor>(folder).get(), &status) != 0) return problemOf(errno);
    if (status.st_uid != ::geteuid()) return refusal("The Trash belongs to somebody else.");
    return folder;
}

}  // namespace tidewell::trash

#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "platform/posix/descriptor.h"
#include "platform/trash/problem.h"

namespace tidewell::trash {

/// Whether folders that are missing may be made on the way.
enum class Making { whereMissing, never };

/// The folders that a move makes on its way. They go again, as far as they are empty, unless it
/// succeeds: a failure leaves nothing behind.
class NewFolders {
 public:
    explicit NewFolders(Making making) : making_(making) {}
    NewFolders(const NewFolders&) = delete;
    NewFolders& operator=(const NewFolders&) = delete;
    ~NewFolders();

    /// The folder of this name directly in `parent`, never one behind a link: for reading, or as a
    /// place to work from, which needs no right to read.
    OrProblem<posix::Descriptor> open(int parent, const std::string& name, mode_t mode);
    OrProblem<posix::Descriptor> openPlace(int parent, const std::string& name, mode_t mode);
    /// The same for one that is refused if it is somebody else's.
    OrProblem<posix::Descriptor> openOwn(int parent, const std::string& name);

    /// Whether this is the folder that was made last.
    bool madeLast(const std::string& name) const {
        return !made_.empty() && made_.back().name == name;
    }
    void keep() { made_.clear(); }

 private:
    struct Made {
        posix::Descriptor parent;
        std::string name;
    };

    using Opener = posix::Descriptor (*)(int parent, const std::string& name);
    OrProblem<posix::Descriptor> open(int parent, const std::string& name, mode_t mode,
                                      Opener opener);

    Making making_;
    std::vector<Made> made_;
};

}  // namespace tidewell::trash

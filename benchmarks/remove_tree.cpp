#include <cstdio>
#include <string>

#include "cleanup/deletion_guard.h"
#include "platform/host.h"
#include "platform/removal.h"

/// Removes a folder of a machine that lies in a folder, by the way that all of the program's
/// removals go: guard first.
int main(int count, char** arguments) {
    using namespace tidewell;
    if (count != 3) {
        std::fprintf(stderr, "Usage: remove_tree ROOT FOLDER\n");
        return 2;
    }
    const auto found = findHost({.root = arguments[1]});
    if (!found.host) {
        std::fprintf(stderr, "%s\n", found.problem.c_str());
        return 1;
    }
    const auto item = DeletionGuard(*found.host).approve(arguments[2]);
    if (!item) {
        std::fprintf(stderr, "refused: %s\n", arguments[2]);
        return 1;
    }
    return removeItem(*item) == Removal::complete ? 0 : 1;
}

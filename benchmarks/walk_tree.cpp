#include <cstdio>

#include "platform/folder_walk.h"

/// Prints how many entries a walk meets below a folder.
int main(int count, char** arguments) {
    using namespace tidewell;
    if (count != 2) {
        std::fprintf(stderr, "Usage: walk_tree FOLDER\n");
        return 2;
    }
    std::size_t entries = 0;
    walkFolder(arguments[1], HiddenEntries::visit, [&](const WalkEntry&) {
        ++entries;
        return Descent::enter;
    });
    std::printf("%zu\n", entries);
    return 0;
}

#include <cstdio>
#include <string>

#include "cleanup/project_artifacts.h"
#include "platform/host.h"

/// Prints how many rebuildable folders of projects lie in a home folder.
int main(int count, char** arguments) {
    using namespace tidewell;
    if (count != 2) {
        std::fprintf(stderr, "Usage: find_artifacts ROOT\n");
        return 2;
    }
    const auto found = findHost({.root = arguments[1]});
    if (!found.host) {
        std::fprintf(stderr, "%s\n", found.problem.c_str());
        return 1;
    }
    std::printf("%zu\n", findProjectArtifacts(*found.host).size());
    return 0;
}

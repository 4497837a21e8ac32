#include "platform/folder_sizes.h"

#include "platform/posix/folder_measurer.h"
#include "platform/posix/reach.h"
#include "platform/posix/work_pool.h"

namespace tidewell {
namespace {

using posix::Helpers;
using posix::SharedFiles;
using posix::SizedFolder;

FolderSizes sized(const posix::Descriptor& folder, const FolderSizing& how, Helpers helpers) {
    SizedFolder::Sizing sizing{.tree = posix::SizeTree(how.progress)};
    bool isWhole = false;
    {
        SharedFiles shared;
        if (how.system == System::linux) sizing.shared = &shared;
        isWhole = posix::sizeBelow(posix::measuringPool(), folder,
                                   {.helpers = helpers, .stop = how.stop}, sizing);
    }
    return isWhole ? sizing.tree.told(sizing.top) : FolderSizes();
}

}  // namespace

FolderSizes folderSizes(const std::string& folder, const FolderSizing& how) {
    const auto open = posix::openFolder(folder);
    if (!open) return {};
    return posix::withHelpersOrWithout([&](Helpers helpers) { return sized(open, how, helpers); });
}

}  // namespace tidewell

#pragma once

#include "deepscan/disk_map.h"
#include "platform/system.h"

namespace tidewell::gallery {

// What walks of home folders could have found.

DiskMap busyHome(System system);
DiskMap emptyHome();
DiskMap homeOfOneFile();
/// As many parts as a map has at most.
DiskMap crowdedHome();
/// Folders in folders, each with a file beside the next.
DiskMap deepHome();
/// One whose folders are each made of parts like this.
DiskMap homeThatCannotBeRead();

}  // namespace tidewell::gallery

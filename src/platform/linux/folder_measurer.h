#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/disk_usage.h"
#include "platform/measured_folders.h"
#include "platform/posix/folder_reader.h"
#include "platform/posix/folder_work.h"
#include "platform/posix/link_table.h"
#include "platform/posix/way_down.h"
#include "platform/posix/work_pool.h"

namespace tidewell::posix {

/// Adds a file, if it is a regular one. With a table, one with several names counts when all of
/// them were met, and its `linkedBytes` are what is shared.
void addFile(const struct stat& status, LinkTable* links, DiskUsage& usage);

/// Whether what errno says means that nothing stands there, or nothing that a measure enters.
bool isGone();

/// How a measure is made.
struct Measuring {
    Helpers helpers;
    MeasuredFolders* known = nullptr;  ///< asked for folders, and filled, if given
    LinkTable* links = nullptr;        ///< of the files with several names, if they count truly
};

/// Measures all regular files below an open folder. Blocks until the end.
DiskUsage usageBelow(WorkPool& pool, const Descriptor& folder, const Measuring& how);

/// What the threads that work on one measure have in common.
struct Measure {
    Job job;
    std::size_t foldersHeldByThread;
    Measuring how;
    std::mutex mutex = {};
    DiskUsage found = {};
};

/// One thread's part in a measure: goes down into folders, the one met last first, and leaves the
/// one met first, which is near the top and thus likely to be large, to others who want work.
/// Helpers step back when further callers come.
class FolderMeasurer : public Share {
 public:
    FolderMeasurer(Measure& measure, WayDown<FolderWork> works)
        : measure_(measure), works_(std::move(works)) {}
    FolderMeasurer(Measure& measure, FolderWork first);

    void work(Role role) override;

 private:
    void step();
    void share();
    void stepBack();
    void measureFile(int folder, const char* name);
    void missed(int folder, std::string_view name);
    void measureFilesOf(FolderWork& work);
    void enterSubfolder();
    bool takeOver(const MountedFolder& folder);
    std::optional<FolderWork> entered(const FolderWork& parent, std::string name);
    void read(FolderWork& work);
    void sortPortion(FolderWork& work);
    void addUntold(FolderWork& work, const char* name);
    void measurePortion(const FolderWork& work);
    void shareRestOfPortion(const FolderWork& work, std::size_t next);

    Measure& measure_;
    DiskUsage found_;
    int steps_ = 0;
    WayDown<FolderWork> works_;
    FolderReader reader_;
    std::vector<const char*> portion_;  ///< the regular files among the entries just read
};

}  // namespace tidewell::posix

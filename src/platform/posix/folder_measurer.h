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
#include "platform/posix/sized_folder.h"
#include "platform/posix/way_down.h"
#include "platform/posix/work_pool.h"
#include "platform/stop.h"

namespace tidewell::posix {

/// Adds a file, if it is a regular one. With a table, one with several names counts when all of
/// them were met, and its `linkedBytes` are what is shared.
void addFile(const struct stat& status, LinkTable* links, DiskUsage& usage);

/// Whether what errno says means that nothing stands there, or nothing that a measure enters.
bool isGone();

/// The threads of all measures, whoever asks for them.
WorkPool& measuringPool();

/// How a measure is made.
struct Measuring {
    Helpers helpers;
    MeasuredFolders* known = nullptr;  ///< asked for folders, and filled, if given
    LinkTable* links = nullptr;        ///< of the files with several names, if they count truly
    StopToken stop = {};
};

/// Measures all regular files below an open folder. Blocks until the end.
DiskUsage usageBelow(WorkPool& pool, const Descriptor& folder, const Measuring& how);

/// The same, and each folder learns what it holds. The sizing knows the top when this is over and
/// the files that are shared are forgotten. False if it was stopped.
bool sizeBelow(WorkPool& pool, const Descriptor& folder, const Measuring& how,
               SizedFolder::Sizing& sizing);

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
template <class Folder>
class FolderMeasurer : public Share {
 public:
    using Work = FolderWork<Folder>;

    FolderMeasurer(Measure& measure, WayDown<Work> works)
        : measure_(measure), works_(std::move(works)) {}
    FolderMeasurer(Measure& measure, Work first);

    void work(Role role) override;

 private:
    void step();
    void share();
    void stepBack();
    void measureFile(const Work& work, const char* name);
    void missed(const Work& work, std::string_view name);
    void missedUnknown(const Work& work);
    void measureFilesOf(Work& work);
    void enterSubfolder();
    bool takeOver(const MountedFolder& folder);
    std::optional<Work> entered(const Work& parent, std::string name);
    void read(Work& work);
    void sortPortion(Work& work);
    void addUntold(Work& work, const char* name);
    void measurePortion(const Work& work);
    void tellGrowth(const Work& work);
    void shareRestOfPortion(const Work& work, std::size_t next);

    Measure& measure_;
    DiskUsage found_;
    ByteCount told_ = 0;  ///< of the bytes found, those that all know of
    int steps_ = 0;
    WayDown<Work> works_;
    FolderReader reader_;
    std::vector<const char*> portion_;  ///< the regular files among the entries just read
};

}  // namespace tidewell::posix

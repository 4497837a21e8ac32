#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/byte_count.h"
#include "platform/disk_usage.h"
#include "platform/linux/folder_reader.h"
#include "platform/linux/folder_work.h"
#include "platform/linux/measuring_pool.h"

namespace tidewell::linux_system {

/// The bytes allocated for an entry, if it is a regular file; else 0. Absent, with the reason in
/// errno, if the system does not tell.
std::optional<ByteCount> sizeOfRegularFile(int folder, const char* name);

/// Whether what errno says means that nothing stands there, or nothing that a measure enters.
bool isGone();

enum class StepBack { whenCrowded, never };

/// One thread's part in a measure: goes down into folders, the one met last first, and leaves the
/// one met first, which is near the top and thus likely to be large, to others who want work.
class FolderMeasurer {
 public:
    FolderMeasurer(MeasuringPool& pool, Measure& measure, StepBack stepBack)
        : pool_(pool), measure_(measure), stepBack_(stepBack) {}

    /// What this thread measured itself.
    DiskUsage run(FolderWork work);

 private:
    void share();
    void stepBack();
    bool isOpen(FolderWork& work);
    void measureFile(int folder, const char* name);
    void measureFilesOf(FolderWork& work);
    void enterSubfolder();
    std::optional<FolderWork> entered(const FolderWork& parent, std::string name);
    void letGoOfFoldersAbove();
    void read(FolderWork& work);
    void sortPortion(FolderWork& work);
    void missed(int folder, std::string_view name);
    void addUntold(FolderWork& work, const char* name);
    void measurePortion(const FolderWork& work);
    void shareRestOfPortion(const FolderWork& work, std::size_t next);

    MeasuringPool& pool_;
    Measure& measure_;
    const StepBack stepBack_;
    DiskUsage found_;
    int steps_ = 0;
    std::vector<FolderWork> works_;  ///< the folder at work on is the last
    FolderReader reader_;
    std::vector<const char*> portion_;  ///< the regular files among the entries just read
};

}  // namespace tidewell::linux_system

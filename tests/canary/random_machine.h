#pragma once

#include <random>
#include <string>
#include <utility>
#include <vector>

#include "ground.h"
#include "support/sample_machine.h"

namespace tidewell::test {

/// Random choices of one machine, all from one seed.
class Chance {
 public:
    explicit Chance(unsigned seed) : engine_(seed) {}

    /// 0 to below `bound`.
    std::size_t below(std::size_t bound) {
        return std::uniform_int_distribution<std::size_t>(0, bound - 1)(engine_);
    }
    bool percent(std::size_t share) { return below(100) < share; }
    template <typename List>
    const auto& oneOf(const List& list) {
        return list[below(std::size(list))];
    }

 private:
    std::mt19937 engine_;
};

/// Who the program runs as.
enum class User {
    ordinary,   ///< what is forbidden is forbidden
    superuser,  ///< and folders are mounted inside others
};

/// A machine that nobody would lay out on purpose: things to clean beside, below, and linked with
/// what must stay.
struct RandomMachine {
    /// `cataloguePaths` are places that the program cleans, as its catalogue has them.
    RandomMachine(unsigned seed, System system, User wantedUser,
                  const std::vector<std::string>& cataloguePaths);
    RandomMachine(const RandomMachine&) = delete;
    RandomMachine& operator=(const RandomMachine&) = delete;
    /// Takes the mounts away.
    ~RandomMachine();

    /// Lays out a folder in a cache with preySize files and nothing else, large enough that
    /// somebody can take it away while it is emptied, and says where.
    std::string layOutPrey() const;
    static constexpr std::size_t preySize = 2000;

    const Ground& ground;
    User user;
    Chance chance;
    SampleMachine machine;
    /// Paths on this disk, real ones: whatever the program is asked to do, they and all below them
    /// stay as they are.
    std::vector<std::string> treasures;
    std::vector<std::string> mounts;
    /// Places at which a folder is mounted that has another name on this disk as well.
    std::vector<std::pair<std::string, std::string>> otherNames;
    /// Outside the machine, where nothing changes at all.
    std::string elsewhere() const { return elsewhere_.path(); }
    /// How many descriptors the program may have open.
    int descriptors = 1024;

 private:
    void keepDocumentsElsewhere();
    void layOutTreasures();
    void layOutKeys();
    void layOutTrash();
    void leadScratchElsewhere() const;
    void layOutCaches(const std::vector<std::string>& cataloguePaths);
    void layOutProjects();
    void layOutBigItems();
    void layOutApplications();
    void mountSome();
    bool mountDocuments(const std::string& where);
    void fillDiskOfSettings();
    bool mountVolume(const std::string& where);
    void giveToUser(const std::string& folder) const;

    void keep(std::string_view machinePath, std::string_view content);
    void layOutCache(const std::string& place);
    std::string placeOf(std::string cataloguePath);
    /// Fills a folder of the disk with so many levels of what folders hold, and worse.
    void fill(const std::string& folder, int levels);
    void addEntry(const std::string& path, int levels);
    void linkToSomewhere(const std::string& path);
    std::string oddName();

    const TemporaryFolder elsewhere_;
};

}  // namespace tidewell::test

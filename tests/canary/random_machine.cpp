#include "random_machine.h"

#include <fcntl.h>
#include <linux/btrfs.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace tidewell::test {

namespace fs = std::filesystem;

namespace {

constexpr unsigned nobody = 65534;

/// Nothing happens on a disk that has no such.
void makeSubvolume(const std::string& path) {
    const int parent = ::open(fs::path(path).parent_path().c_str(), O_RDONLY | O_CLOEXEC);
    btrfs_ioctl_vol_args call = {};
    fs::path(path).filename().string().copy(call.name, sizeof call.name - 1);
    if (::ioctl(parent, BTRFS_IOC_SUBVOL_CREATE, &call) == 0)
        std::ofstream(path + "/in a subvolume") << "made again";
    ::close(parent);
}

/// What a link may lead to, as it is written into the link. "%" stands for the home folder.
constexpr std::array<const char*, 12> linkTargets = {
    "%/Documents",
    "%/Documents/Thesis",
    "%/Documents/Thesis/thesis.tex",
    "%/.ssh",
    "%/Pictures",
    "%",
    "/",
    "..",
    ".",
    "../../../Documents",
    "nowhere",
    "%/Desktop/notes.txt",
};

constexpr std::array<const char*, 10> oddNames = {
    "with\nnewline", "\xff\xfe bytes", "-rf",  " ", "...", "tab\there", "*",
    "caf\xc3\xa9",   "cafe\xcc\x81",   "%s%n",
};

constexpr std::array<const char*, 5> projectHomes = {"~/Code", "~/Documents/work", "~/Desktop",
                                                     "~/src/deep/er", "~/Sites"};
constexpr std::array<const char*, 6> artifactNames = {"node_modules", "build", "target",
                                                      ".venv",        "Pods",  "__pycache__"};
constexpr std::array<const char*, 3> projectMarkers = {"package.json", "Makefile", "Cargo.toml"};

}  // namespace

RandomMachine::RandomMachine(unsigned seed, System system, User wantedUser,
                             const std::vector<std::string>& cataloguePaths)
    : ground(groundOf(system)), user(wantedUser), chance(seed), machine(system) {
    if (chance.percent(25)) keepDocumentsElsewhere();
    if (system == System::linux)
        machine.text("~/.config/user-dirs.dirs", "XDG_PICTURES_DIR=\"$HOME/Bilder\"\n");
    layOutTreasures();
    layOutKeys();
    layOutProjects();
    layOutBigItems();
    layOutApplications();
    layOutCaches(cataloguePaths);
    if (chance.percent(10)) leadScratchElsewhere();
    if (user == User::ordinary) giveToUser(machine.root());
    if (user == User::ordinary) giveToUser(elsewhere_.path());
    if (user == User::ordinary && chance.percent(5))
        fs::permissions(machine.home(), fs::perms(0555));
    if (user == User::superuser) mountSome();
    if (user == User::superuser && chance.percent(20)) fillDiskOfSettings();
    if (chance.percent(15)) descriptors = 64;
}

RandomMachine::~RandomMachine() {
    for (const auto& place : mounts) ::umount2(place.c_str(), MNT_DETACH);
}

/// As people do whose folders are kept in step with another machine's.
void RandomMachine::keepDocumentsElsewhere() {
    machine.folder("~/Sync/Documents");
    machine.link("~/Documents", "Sync/Documents");
}

void RandomMachine::layOutTreasures() {
    for (const char* path : ground.treasures) keep(path, std::string("only copy of ") + path);
}

/// Some where they belong, some links to where people really keep them: beside caches too.
void RandomMachine::layOutKeys() {
    constexpr std::array<const char*, 4> places = {"~/Documents/Vault/", "~/Vault/",
                                                   "~/.npm/vault/", "~/.gradle/caches/vault/"};
    for (const auto& [name, file] : ground.keys) {
        const auto path = std::string("~/") + name;
        if (chance.percent(30)) continue;
        const bool isFolder = *file != '\0';
        if (isFolder && chance.percent(20)) {
            // The folder stays, and what it holds is a link to a place among the caches.
            const auto place = chance.oneOf(places) + std::to_string(treasures.size()) + file;
            keep(place, "secret of " + path);
            machine.link(path + file, machine.path(place));
            treasures.push_back(machine.path(path + file));
            continue;
        }
        if (chance.percent(60)) {
            keep(path + file, "secret of " + path);
            continue;
        }
        const auto place = chance.oneOf(places) + std::to_string(treasures.size());
        keep(place + file, "secret of " + path);
        machine.link(path, machine.path(place));
        treasures.push_back(machine.path(path));
    }
}

void RandomMachine::layOutCaches(const std::vector<std::string>& cataloguePaths) {
    // A cache that is there on every machine, so that each has something to clean.
    machine.file("~/.npm/_cacache/one", 64 * kilobyte);
    fill(machine.path("~/.npm/_cacache"), 3);
    for (std::size_t i = 0; i < 14; ++i) layOutCache(placeOf(chance.oneOf(cataloguePaths)));
    for (const char* swept : ground.sweptFolders)
        for (std::size_t i = chance.below(4); i > 0; --i)
            layOutCache(swept + std::string("/com.example.") + std::to_string(chance.below(99)));
    fill(machine.path(ground.scratch), 2);
    // A volume of its own that no table of mounts tells of, where the disk has such.
    makeSubvolume(machine.path("~/.npm/_cacache/subvolume"));
}

std::string RandomMachine::layOutPrey() const {
    const auto prey = machine.path("~/.npm/_cacache/prey");
    fs::create_directories(prey);
    for (std::size_t i = 0; i < preySize; ++i) std::ofstream(prey + "/" + std::to_string(i)) << i;
    if (user == User::ordinary) giveToUser(prey);
    return prey;
}

/// Where another machine's scratch folder lies, or somebody's work.
void RandomMachine::leadScratchElsewhere() const {
    const auto scratch = fs::path(machine.path(ground.scratch));
    const auto other = fs::path(elsewhere_.path()) / scratch.lexically_relative(machine.root());
    fs::create_directories(other);
    std::ofstream(other / "somebody's") << "work";
    const auto top = fs::path(machine.root()) / *scratch.lexically_relative(machine.root()).begin();
    fs::remove_all(top);
    fs::create_symlink(fs::path(elsewhere_.path()) / top.filename(), top);
}

/// With the base folders' usual places for their names, and names for what stands for any.
std::string RandomMachine::placeOf(std::string cataloguePath) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 4> places = {{
        {"{cache}", "~/.cache"},
        {"{config}", "~/.config"},
        {"{data}", "~/.local/share"},
        {"{state}", "~/.local/state"},
    }};
    for (const auto& [token, place] : places)
        if (cataloguePath.starts_with(token)) cataloguePath.replace(0, token.size(), place);
    for (auto star = cataloguePath.find('*'); star != std::string::npos;
         star = cataloguePath.find('*', star))
        cataloguePath.replace(star, 1, chance.percent(50) ? "Default" : "one");
    return cataloguePath;
}

void RandomMachine::layOutCache(const std::string& place) {
    const auto path = machine.path(place);
    std::error_code ignored;
    if (fs::exists(fs::symlink_status(path, ignored))) return;
    const auto parent = fs::path(path).parent_path();
    // The disk was full, and somebody moved the folder away and left a link.
    if (chance.percent(12) && !fs::exists(fs::symlink_status(parent, ignored))) {
        if (chance.percent(30)) {
            fs::create_directories(parent.parent_path(), ignored);
            fs::create_symlink(machine.path("~/Documents"), parent, ignored);
            return;
        }
        constexpr std::array<const char*, 3> others = {"~/Documents/Moved/", "~/Moved/",
                                                       "~/.config/chromium/Default/"};
        const auto moved = chance.oneOf(others) + std::to_string(chance.below(1000));
        const auto inside = machine.path(moved) + "/" + fs::path(path).filename().string();
        fs::create_directories(inside);
        fill(inside, 2);
        fs::create_directories(parent.parent_path(), ignored);
        fs::create_symlink(machine.path(moved), parent, ignored);
        return;
    }
    if (fs::create_directories(parent, ignored); !fs::is_directory(parent, ignored)) return;
    if (chance.percent(8)) return linkToSomewhere(path);
    if (chance.percent(8)) {
        std::ofstream(path) << "a file where a folder is expected";
        return;
    }
    fs::create_directory(path, ignored);
    fill(path, 3);
}

void RandomMachine::layOutProjects() {
    for (int i = 0; i < 4; ++i) {
        const auto project =
            std::string(chance.oneOf(projectHomes)) + "/project " + std::to_string(i);
        keep(project + "/src/main.c", "years of work");
        if (chance.percent(70))
            keep(project + "/" + chance.oneOf(projectMarkers), "of the project's own");
        const auto artifact = machine.path(project + "/" + chance.oneOf(artifactNames));
        if (chance.percent(15)) {
            linkToSomewhere(artifact);
            continue;
        }
        fs::create_directories(artifact);
        std::ofstream(artifact + "/output") << "made from the source";
        fill(artifact, 3);
    }
}

void RandomMachine::layOutBigItems() {
    machine.file("~/Games/Tetris/assets.pak", 90 * megabyte);
    fill(machine.path("~/Games/Tetris"), 2);
    machine.file("~/Downloads/Paint 3.dmg", 12 * megabyte);
    layOutTrash();
}

/// With names that are taken already; or as somebody has it who keeps what he throws away.
void RandomMachine::layOutTrash() {
    if (chance.percent(25)) {
        const auto trash = machine.path(ground.trash);
        fs::create_directories(fs::path(trash).parent_path());
        return fs::create_symlink(machine.path("~/Documents"), trash);
    }
    for (const char* taken : {"Tetris", "Paint 3.dmg", "Notes.app", "com.example.notes.plist"})
        if (chance.percent(50))
            machine.text(ground.trash + std::string("/") + taken, "thrown away earlier");
}

void RandomMachine::layOutApplications() {
    machine.folder("~/Applications");
    if (ground.system != System::macOS) return;
    machine.application("/Applications/Notes.app",
                        {{"CFBundleName", "Notes"}, {"CFBundleIdentifier", "com.example.notes"}});
    machine.application(
        "/Applications/Notes Pro.app",
        {{"CFBundleName", "Notes Pro"}, {"CFBundleIdentifier", "com.example.notespro"}});
    treasures.push_back(machine.path("/Applications/Notes Pro.app"));
    machine.file("~/Library/Application Support/com.example.notes/themes");
    if (chance.percent(50)) machine.file("~/Library/Containers/com.example.notes/Data/notes.db");
    machine.text("~/Library/Preferences/com.example.notes.plist", "settings");
    keep("~/Library/Preferences/com.example.notespro.plist", "settings of another");
    keep("~/Library/Application Support/com.example.notespro/themes", "of another");
    if (chance.percent(30))
        machine.link("~/Library/Logs/com.example.notes", machine.path("~/Documents"));
    fill(machine.path("~/Library/Application Support/com.example.notes"), 2);
}

/// What is mounted inside a cache, or where one is expected, is another disk, or another place of
/// this one.
void RandomMachine::mountSome() {
    constexpr std::array<const char*, 6> places = {"~/.npm/_cacache/disk",
                                                   "~/Library/Caches/com.example.disk/files",
                                                   "~/.gradle",
                                                   "~/.bundle",
                                                   "~/.ivy2",
                                                   "~/.konan"};
    for (const char* place : places) {
        // What a mount hides nobody can know of, keys that lead elsewhere among it.
        if (chance.percent(50) || machine.has(place)) continue;
        machine.folder(place);
        const auto where = machine.path(place);
        if (!(chance.percent(60) ? mountDocuments(where) : mountVolume(where))) continue;
        mounts.push_back(where);
        std::ofstream(where + "/on the other disk") << "kept there";
        treasures.push_back(where + "/on the other disk");
    }
}

bool RandomMachine::mountVolume(const std::string& where) {
    return ::mount("none", where.c_str(), "tmpfs", 0, "size=1m") == 0;
}

/// All of them, or a part that no other name tells apart from what is expected there. The projects
/// among them may lose what they have built, by whatever name.
bool RandomMachine::mountDocuments(const std::string& where) {
    const std::string source = chance.percent(50) ? "~/Documents/Thesis" : "~/Documents";
    const auto real = machine.path(source);
    if (::mount(real.c_str(), where.c_str(), nullptr, MS_BIND, nullptr) != 0) return false;
    otherNames.emplace_back(where, fs::canonical(real).string());
    for (const std::string path : ground.treasures)
        if (path.starts_with(source + "/")) treasures.push_back(where + path.substr(source.size()));
    return true;
}

void RandomMachine::fillDiskOfSettings() {
    const auto& folder = machine.host().configurationDirectory;
    fs::create_directories(folder);
    if (::mount("none", folder.c_str(), "tmpfs", 0, "size=4k") != 0) return;
    mounts.push_back(folder);
    std::ofstream(folder + "/somebody's") << std::string(8192, 'x');
}

void RandomMachine::giveToUser(const std::string& folder) const {
    if (::geteuid() != 0) return;
    const auto give = [](const fs::path& path) { ::lchown(path.c_str(), nobody, nobody); };
    give(folder);
    for (const auto& entry : fs::recursive_directory_iterator(folder)) give(entry.path());
}

void RandomMachine::keep(std::string_view machinePath, std::string_view content) {
    machine.text(machinePath, content);
    treasures.push_back(fs::canonical(machine.path(machinePath)).string());
}

void RandomMachine::fill(const std::string& folder, int levels) {
    fs::create_directories(folder);
    for (std::size_t i = 1 + chance.below(6); i > 0; --i)
        addEntry(folder + "/" + oddName() + std::to_string(i), levels);
}

void RandomMachine::addEntry(const std::string& path, int levels) {
    const auto kind = chance.below(100);
    if (kind < 35 && levels > 0) {
        fill(path, levels - 1);
        if (chance.percent(6)) fs::permissions(path, fs::perms(chance.percent(50) ? 0 : 0555));
    } else if (kind < 55) {
        linkToSomewhere(path);
    } else if (kind < 63) {
        std::error_code ignored;
        fs::create_hard_link(machine.path(chance.oneOf(ground.treasures)), path, ignored);
    } else if (kind < 68) {
        ::mkfifo(path.c_str(), 0644);
    } else {
        std::ofstream(path) << std::string(chance.below(30000), 'x');
        if (chance.percent(10)) fs::permissions(path, fs::perms(0));
    }
}

void RandomMachine::linkToSomewhere(const std::string& path) {
    std::string target = chance.oneOf(linkTargets);
    if (target.front() == '%') target = machine.home() + target.substr(1);
    // A link outside the machine would show faults that are not of the machine's making.
    if (target == "/") target = machine.root();
    std::error_code ignored;
    fs::create_symlink(target, path, ignored);
}

std::string RandomMachine::oddName() {
    return chance.percent(30)
               ? chance.oneOf(oddNames)
               : std::string(1 + chance.below(3), static_cast<char>('a' + chance.below(26)));
}

}  // namespace tidewell::test

#include "support/disk_picture.h"

#include <sys/stat.h>

#include <filesystem>
#include <sstream>

#include "platform/files.h"

namespace tidewell::test {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t comparedBytes = 64 * 1024;

std::string describe(const fs::path& path) {
    struct stat status;
    if (::lstat(path.c_str(), &status) != 0) return "gone";
    std::ostringstream text;
    text << status.st_mode << ' ' << status.st_uid << ' ' << status.st_nlink << ' '
         << status.st_size << ' ' << status.st_mtim.tv_sec << '.' << status.st_mtim.tv_nsec << ' ';
    if (S_ISLNK(status.st_mode)) text << fs::read_symlink(path).string();
    if (S_ISREG(status.st_mode)) text << readFile(path.string(), comparedBytes).value_or("long");
    return text.str();
}

}  // namespace

std::map<std::string, std::string> diskPicture(const std::string& folder) {
    std::map<std::string, std::string> picture = {{folder, describe(folder)}};
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        picture[entry.path().string()] = describe(entry.path());
    return picture;
}

}  // namespace tidewell::test

#include "support/temporary_folder.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace tidewell::test {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
    auto pattern = (fs::canonical(fs::temp_directory_path()) / "tidewell-test-XXXXXX").string();
    if (!::mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder: " + pattern);
    path_ = pattern;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    // A test may have taken rights away from its own folders.
    for (auto entry = fs::recursive_directory_iterator(
             path_, fs::directory_options::skip_permission_denied, ignored);
         !ignored && entry != fs::recursive_directory_iterator(); entry.increment(ignored))
        if (entry->symlink_status(ignored).type() == fs::file_type::directory)
            fs::permissions(entry->path(), fs::perms::owner_all, fs::perm_options::add, ignored);
    fs::remove_all(path_, ignored);
}

}  // namespace tidewell::test

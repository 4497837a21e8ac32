#pragma once

#include <string>

namespace tidewell::test {

/// A new folder of the test's own, removed with all in it at the end. Tests write nowhere else.
class TemporaryFolder {
 public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    /// Its real location.
    const std::string& path() const { return path_; }

 private:
    std::string path_;
};

}  // namespace tidewell::test

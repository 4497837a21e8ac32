#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/byte_count.h"
#include "platform/host.h"
#include "support/temporary_folder.h"

namespace tidewell::test {

inline constexpr ByteCount kilobyte = 1024;
inline constexpr ByteCount megabyte = 1024 * kilobyte;

/// A machine of the kind that the program cleans, laid out in a temporary folder: a home folder,
/// the system's own folders, and a temporary folder of the user's. A path that begins with "~" lies
/// in the home folder, an absolute one below the machine's root. Parents are made as they are
/// needed.
class SampleMachine {
 public:
    /// In a temporary folder, gone with the object.
    explicit SampleMachine(System system = System::macOS);
    /// In a folder that is made for it and stays. Throws if the folder is there already.
    explicit SampleMachine(const std::string& root, System system = System::macOS);

    const Host& host() const { return host_; }
    const std::string& root() const { return host_.root; }
    const std::string& home() const { return host_.home; }
    /// Where on this disk a path of the machine lies.
    std::string path(std::string_view machinePath) const { return host_.locate(machinePath); }

    void folder(std::string_view machinePath) const;
    /// A file that occupies `allocated` bytes, rounded up to whole blocks of 4096.
    void file(std::string_view machinePath, ByteCount allocated = 4096) const;
    void text(std::string_view machinePath, std::string_view content) const;
    /// A link; its target is taken as it stands.
    void link(std::string_view machinePath, const std::string& target) const;
    /// An executable script, run by /bin/sh.
    void tool(std::string_view machinePath, std::string_view script) const;
    /// A bundle with an XML Info dictionary of the given texts and an executable of the given size.
    void application(std::string_view machinePath,
                     const std::vector<std::pair<std::string, std::string>>& info,
                     ByteCount allocated = 4096) const;
    /// Sets when the entry was last changed, in days before now.
    void age(std::string_view machinePath, int days) const;
    /// Sets when a bundle was last opened, in days before now.
    void lastUsed(std::string_view machinePath, int days) const;
    /// Takes an entry away, with all in it; of a link, the link alone.
    void remove(std::string_view machinePath) const;

    /// Whether an entry stands there, links not followed.
    bool has(std::string_view machinePath) const;
    std::string contentOf(std::string_view machinePath) const;

 private:
    void layOut(const std::string& root, System system);

    std::optional<TemporaryFolder> folder_;
    Host host_;
};

}  // namespace tidewell::test

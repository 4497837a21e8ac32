#include "apps/linux/debian_packages.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "platform/files.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

constexpr std::string_view statusFile = "/var/lib/dpkg/status";
constexpr std::string_view listFolder = "/var/lib/dpkg/info";
constexpr std::size_t longestStatus = std::size_t{64} * 1024 * 1024;
constexpr std::size_t longestList = std::size_t{16} * 1024 * 1024;

std::string_view takeLine(std::string_view& text) {
    const auto line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    return line;
}

/// The value of a record's field; empty for another line.
std::string_view valueOf(std::string_view line, std::string_view field) {
    if (!line.starts_with(field)) return {};
    line.remove_prefix(field.size());
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    return line;
}

ByteCount bytesOfKilobytes(std::string_view digits) {
    ByteCount kilobytes = 0;
    const auto end = digits.data() + digits.size();
    const auto read = std::from_chars(digits.data(), end, kilobytes);
    const bool isSensible = read.ec == std::errc() && read.ptr == end && kilobytes >= 0 &&
                            kilobytes <= std::numeric_limits<ByteCount>::max() / 1024;
    return isSensible ? kilobytes * 1024 : 0;
}

}  // namespace

bool isDebianPackageName(std::string_view name) {
    constexpr std::string_view allowed = "abcdefghijklmnopqrstuvwxyz0123456789+-.";
    const bool beginsWell =
        !name.empty() && std::string_view("+-.").find(name.front()) == name.npos;
    return beginsWell && name.find_first_not_of(allowed) == name.npos;
}

DebianPackages parsePackages(std::string_view status) {
    DebianPackages packages;
    while (!status.empty()) {
        std::string_view name;
        bool isInstalled = false;
        DebianPackage package;
        for (auto line = takeLine(status); !line.empty(); line = takeLine(status)) {
            if (const auto value = valueOf(line, "Package:"); !value.empty()) name = value;
            if (const auto value = valueOf(line, "Status:"); !value.empty())
                isInstalled = value.ends_with(" installed");
            if (const auto value = valueOf(line, "Version:"); !value.empty())
                package.version = value;
            if (const auto value = valueOf(line, "Installed-Size:"); !value.empty())
                package.sizeBytes = bytesOfKilobytes(value);
        }
        if (isInstalled && isDebianPackageName(name))
            packages.insert_or_assign(std::string(name), std::move(package));
    }
    return packages;
}

DebianPackages installedPackages(const Host& host) {
    const auto text = readFile(host.systemPath(statusFile), longestStatus);
    return text ? parsePackages(*text) : DebianPackages();
}

std::map<std::string, std::string> packagesOfFiles(
    const Host& host, const std::set<std::string, std::less<>>& files) {
    std::map<std::string, std::string> owners;
    if (files.empty()) return owners;
    const auto folder = host.systemPath(listFolder);
    for (const auto& name : folderNames(folder).value_or(std::vector<std::string>{})) {
        if (pathExtension(name) != "list") continue;
        // "libc6:amd64.list" lists the files of the package "libc6".
        const auto package = name.substr(0, name.find_first_of(":", 0));
        const auto owner = package == name ? std::string(nameWithoutExtension(name)) : package;
        const auto text = readFile(joinPath(folder, name), longestList);
        if (!text || !isDebianPackageName(owner)) continue;
        for (std::string_view rest = *text; !rest.empty();)
            if (const auto found = files.find(takeLine(rest)); found != files.end())
                owners.emplace(*found, owner);
    }
    return owners;
}

}  // namespace tidewell

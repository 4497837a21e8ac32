#include "platform/icon_theme.h"

#include <array>

#include "platform/desktop_entry.h"
#include "platform/files.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

/// In the order in which they suit.
constexpr std::array<std::string_view, 10> sizes = {
    "128x128", "scalable", "256x256", "96x96", "64x64", "512x512", "48x48", "72x72", "32x32", "",
};
constexpr std::array<std::string_view, 2> extensions = {".png", ".svg"};

bool isPicture(std::string_view path) {
    return path.ends_with(".png") || path.ends_with(".svg");
}

/// One that is there and lies on the machine.
std::optional<std::string> realPicture(const Host& host, const std::string& path) {
    if (!fileExists(path)) return std::nullopt;
    auto real = resolvedPath(path);
    const bool isInside = real && (host.root == "/" || isBelow(*real, host.root));
    return isInside && isPicture(*real) ? real : std::nullopt;
}

bool canBeAName(std::string_view name) {
    constexpr std::string_view neverInAName("/\0", 2);
    return !name.empty() && name.size() < 200 && name.front() != '.' &&
           name.find_first_of(neverInAName) == name.npos;
}

/// Where a picture of that name may lie in a folder of themes, best first; last without a theme.
std::vector<std::string> placesIn(const std::string& folder, std::string_view name) {
    std::vector<std::string> places;
    for (const auto size : sizes) {
        const auto home =
            size.empty() ? folder : folder + "/hicolor/" + std::string(size) + "/apps";
        for (const auto extension : extensions)
            places.push_back(joinPath(home, name) + std::string(extension));
    }
    return places;
}

}  // namespace

std::vector<std::string> iconFolders(const Host& host) {
    std::vector<std::string> folders;
    for (const auto& data : dataFolders(host)) folders.push_back(joinPath(data, "icons"));
    folders.insert(folders.begin() + 1, joinPath(host.home, ".icons"));
    folders.push_back(host.systemPath("/usr/share/pixmaps"));
    return folders;
}

std::optional<std::string> iconFile(const Host& host, std::string_view icon,
                                    const std::vector<std::string>& folders) {
    if (icon.starts_with('/')) return realPicture(host, host.pathNamedInside(icon));
    if (isPicture(icon)) icon.remove_suffix(4);
    if (!canBeAName(icon)) return std::nullopt;
    for (const auto& folder : folders)
        for (const auto& place : placesIn(folder, icon))
            if (auto picture = realPicture(host, place)) return picture;
    return std::nullopt;
}

std::vector<std::string> iconFilesIn(const std::string& folder, std::string_view name) {
    std::vector<std::string> found;
    if (!canBeAName(name)) return found;
    for (auto& place : placesIn(folder, name))
        if (fileExists(place)) found.push_back(std::move(place));
    return found;
}

}  // namespace tidewell

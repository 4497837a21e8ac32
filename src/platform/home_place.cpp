#include "platform/home_place.h"

#include <algorithm>
#include <array>

#include "platform/path_text.h"

namespace tidewell {

namespace {

/// No home, nor anything below, of any system that the program knows.
constexpr std::array<std::string_view, 20> systemFolders = {
    "/bin",   "/boot",   "/cores", "/dev",     "/etc",          "/lib",    "/lib32",
    "/lib64", "/libx32", "/nix",   "/private", "/proc",         "/run",    "/sbin",
    "/snap",  "/sys",    "/usr",   "/var",     "/Applications", "/System",
};

/// No home themselves, but homes may lie below, also where a system folder is above.
constexpr std::array<std::string_view, 20> holdersOfHomes = {
    "/home",
    "/media",
    "/mnt",
    "/opt",
    "/srv",
    "/tmp",
    "/Library",
    "/Network",
    "/Users",
    "/Volumes",
    "/dev/shm",
    "/run/media",
    "/run/user",
    "/usr/home",
    "/var/home",
    "/var/folders",
    "/var/tmp",
    "/private/tmp",
    "/private/var/folders",
    "/private/var/tmp",
};

/// Homes of administrators, where a system has them among its own folders.
constexpr std::array<std::string_view, 3> administratorHomes = {"/var/root", "/private/var/root",
                                                                "/var/roothome"};

}  // namespace

bool canBeHome(std::string_view place) {
    if (place == "/") return false;
    const auto isPlace = [&](std::string_view other) { return place == other; };
    const auto isAbove = [&](std::string_view folder) { return isBelow(place, folder); };
    if (std::ranges::any_of(administratorHomes, isPlace)) return true;
    if (std::ranges::any_of(holdersOfHomes, isPlace)) return false;
    if (std::ranges::any_of(systemFolders, isPlace)) return false;
    if (std::ranges::any_of(holdersOfHomes, isAbove)) return true;
    return std::ranges::none_of(systemFolders, isAbove);
}

}  // namespace tidewell

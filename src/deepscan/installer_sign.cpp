#include "deepscan/installer_sign.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/file_start.h"

namespace tidewell {

namespace {

using namespace std::string_view_literals;

/// A mark that stands at one place of a file.
struct Mark {
    std::size_t offset;
    std::string_view bytes;
};

constexpr auto diskMarks = std::to_array<Mark>({
    {510, "\x55\xAA"sv},  // a partition table
    {512, "EFI PART"sv},
    {0x438, "\x53\xEF"sv},  // ext2 and its successors
    {32769, "CD001"sv},
    {0, "hsqs"sv},
    {0, "QFI\xFB"sv},
});

constexpr std::size_t longestLook = 32769 + 5;
constexpr std::size_t scriptLook = 8192;

std::size_t bytesFor(InstallerSign sign) {
    if (sign == InstallerSign::file) return 0;
    return sign == InstallerSign::appImage ? 11 : longestLook;
}

bool hasMark(std::string_view start, const Mark& mark) {
    return start.size() >= mark.offset + mark.bytes.size() &&
           start.substr(mark.offset, mark.bytes.size()) == mark.bytes;
}

bool holdsAny(std::string_view start, std::initializer_list<std::string_view> words) {
    return std::ranges::any_of(words, [start](std::string_view word) {
        return start.find(word) != std::string_view::npos;
    });
}

bool isShellArchive(std::string_view start) {
    return start.starts_with("#!") &&
           holdsAny(start.substr(0, scriptLook), {"makeself", "Makeself", "MAKESELF", "ARCHIVE",
                                                  "PAYLOAD", "SHELL_ARCHIVE", "tail -n +"});
}

bool isSetupProgram(std::string_view start) {
    return start.starts_with("MZ") &&
           holdsAny(start, {".ndata", "Nullsoft", "Inno Setup", ".wixburn", "InstallShield"});
}

bool isDiskImage(std::string_view start) {
    return std::ranges::any_of(diskMarks,
                               [start](const Mark& mark) { return hasMark(start, mark); });
}

bool isAppImage(std::string_view start) {
    return start.starts_with(
               "\x7F"
               "ELF"sv) &&
           (hasMark(start, {8, "AI\x01"sv}) || hasMark(start, {8, "AI\x02"sv}));
}

}  // namespace

bool hasSign(const std::string& path, InstallerSign sign) {
    if (sign == InstallerSign::none) return true;
    const auto start = fileStart(path, bytesFor(sign));
    if (!start) return false;
    switch (sign) {
        case InstallerSign::none:
        case InstallerSign::file:
            return true;
        case InstallerSign::shellArchive:
            return isShellArchive(start->bytes);
        case InstallerSign::setupProgram:
            return isSetupProgram(start->bytes);
        case InstallerSign::diskImage:
            return isDiskImage(start->bytes);
        case InstallerSign::appImage:
            return isAppImage(start->bytes);
    }
    return false;
}

}  // namespace tidewell

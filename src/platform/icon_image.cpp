#include "platform/icon_image.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "platform/bundle.h"
#include "platform/files.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

constexpr std::string_view fileMark = "icns";
constexpr std::string_view pngMark = "\x89PNG\r\n\x1a\n";
constexpr std::size_t headerLength = 8;  // of the file and of each picture: a mark and a length

struct PictureKind {
    std::string_view mark;
    int side;  ///< in pixels
};

/// The pictures that may be PNG.
constexpr std::array pictureKinds = {
    PictureKind{"icp4", 16},  PictureKind{"icp5", 32},   PictureKind{"ic11", 32},
    PictureKind{"icp6", 64},  PictureKind{"ic12", 64},   PictureKind{"ic07", 128},
    PictureKind{"ic08", 256}, PictureKind{"ic13", 256},  PictureKind{"ic09", 512},
    PictureKind{"ic14", 512}, PictureKind{"ic10", 1024},
};

int sideOf(std::string_view mark) {
    const auto kind = std::ranges::find(pictureKinds, mark, &PictureKind::mark);
    return kind == pictureKinds.end() ? 0 : kind->side;
}

/// The length that stands behind a mark, its header included.
std::size_t lengthAt(std::string_view header) {
    std::uint32_t length = 0;
    for (const char byte : header.substr(fileMark.size(), 4))
        length = length << 8 | static_cast<unsigned char>(byte);
    return length;
}

bool suitsBetter(int candidate, int current, int wanted) {
    if (current >= wanted) return candidate >= wanted && candidate < current;
    return candidate > current;
}

/// "AppIcon" and "AppIcon.icns" both mean the latter.
std::optional<std::string> iconFileName(const Bundle& bundle) {
    auto name = bundle.info.textAt("CFBundleIconFile");
    if (!name || name->empty() || name->find('/') != std::string::npos) return std::nullopt;
    if (!name->ends_with(".icns")) *name += ".icns";
    return name;
}

}  // namespace

std::optional<std::string_view> pngOfIconFile(std::string_view bytes, int side) {
    if (!bytes.starts_with(fileMark) || bytes.size() < headerLength) return std::nullopt;
    auto rest = bytes.substr(headerLength);
    std::optional<std::string_view> best;
    int bestSide = 0;
    while (rest.size() >= headerLength) {
        const auto length = lengthAt(rest);
        if (length < headerLength || length > rest.size()) break;
        const auto picture = rest.substr(headerLength, length - headerLength);
        const auto pictureSide = sideOf(rest.substr(0, fileMark.size()));
        if (picture.starts_with(pngMark) && suitsBetter(pictureSide, bestSide, side)) {
            best = picture;
            bestSide = pictureSide;
        }
        rest.remove_prefix(length);
    }
    return best;
}

std::optional<std::string> bundleIcon(const std::string& path, int side) {
    const auto bundle = readBundle(path);
    const auto name = bundle ? iconFileName(*bundle) : std::nullopt;
    if (!name) return std::nullopt;
    const auto file =
        readFile(joinPath(joinPath(path, "Contents/Resources"), *name), iconFileLimit);
    const auto png = file ? pngOfIconFile(*file, side) : std::nullopt;
    return png ? std::optional<std::string>(*png) : std::nullopt;
}

}  // namespace tidewell

#include "platform/bundle.h"

#include <bit>

#include "platform/path_text.h"
#include "platform/property_list.h"

namespace tidewell {

namespace {

constexpr auto lastUsedAttribute = "com.apple.lastuseddate#PS";

Value infoDictionary(const std::string& bundle) {
    auto path = joinPath(bundle, "Contents/Info.plist");
    if (!fileExists(path)) path = joinPath(bundle, "Info.plist");
    auto info = readPropertyList(path);
    return info && info->object() ? std::move(*info) : Value();
}

std::int64_t littleEndian(std::string_view bytes) {
    std::uint64_t value = 0;
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte)
        value = value << 8 | static_cast<unsigned char>(*byte);
    return std::bit_cast<std::int64_t>(value);
}

}  // namespace

std::optional<Bundle> readBundle(const std::string& path) {
    if (fileKind(path) != FileKind::folder) return std::nullopt;
    auto info = infoDictionary(path);
    auto identifier = info.textAt("CFBundleIdentifier");
    return Bundle{.info = std::move(info), .identifier = std::move(identifier)};
}

std::optional<Date> lastUsedDate(const std::string& path) {
    constexpr std::size_t half = sizeof(std::int64_t);
    constexpr std::int64_t nanosecondsInSecond =
        std::chrono::nanoseconds(std::chrono::seconds(1)).count();
    constexpr std::int64_t furthest =
        std::chrono::floor<std::chrono::seconds>(std::chrono::nanoseconds::max()).count() - 1;

    const auto bytes = extendedAttribute(path, lastUsedAttribute);
    if (!bytes || bytes->size() != 2 * half) return std::nullopt;
    const auto seconds = littleEndian(std::string_view(*bytes).substr(0, half));
    const auto nanoseconds = littleEndian(std::string_view(*bytes).substr(half));
    if (nanoseconds < 0 || nanoseconds >= nanosecondsInSecond) return std::nullopt;
    if (seconds < -furthest || seconds > furthest) return std::nullopt;
    return Date(std::chrono::seconds(seconds) + std::chrono::nanoseconds(nanoseconds));
}

}  // namespace tidewell

#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "async/observable.h"
#include "platform/byte_count.h"
#include "platform/host.h"
#include "shell/section_palette.h"

namespace tidewell {

/// How the disk's free space is told to the user.
struct ThemePalette {
    std::string_view label;
    std::string_view message;
    Color healthRGB;

    bool operator==(const ThemePalette&) const = default;
};

/// The level of a share of free space; a share that is not a number is critical.
ThemePalette themePalette(double freeFraction, System system);

/// The free space of the home folder's volume and its level of health. It is read at the start,
/// whenever the program comes to the front, and on request; what cannot be read leaves all as it
/// was. Main thread only.
class ThemeEngine : public std::enable_shared_from_this<ThemeEngine> {
 public:
    ThemeEngine(const Host& host, Signal& didBecomeActive);

    /// Fired before each change of what follows.
    Signal willChange;

    Published<ByteCount> freeBytes{willChange, 0};
    Published<ByteCount> totalBytes{willChange, 1};
    Published<ThemePalette> palette{willChange, themePalette(1.0, System::macOS)};

    double freeFraction() const;
    void refresh();

 private:
    std::string home_;
    System system_;
    Subscription activationObserver_;
};

}  // namespace tidewell

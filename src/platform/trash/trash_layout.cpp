#include "platform/trash/trash_layout.h"

#include "platform/trash/desktop_trash.h"
#include "platform/trash/macos_trash.h"

namespace tidewell::trash {

std::unique_ptr<TrashLayout> layoutOf(const Host& host) {
    switch (host.system) {
        case System::macOS:
            return std::make_unique<MacosTrashLayout>(host.home);
        case System::linux:
            return std::make_unique<DesktopTrashLayout>(host);
    }
    return {};
}

}  // namespace tidewell::trash

#include "platform/trash/trash_layout.h"

#include "platform/trash/macos_trash.h"

namespace tidewell::trash {

std::unique_ptr<TrashLayout> layoutOf(const Host& host) {
    return std::make_unique<MacosTrashLayout>(host.home);
}

}  // namespace tidewell::trash

#include "cleanup/deletion_guard.h"
#include "platform/removal.h"

void removeApproved(const tidewell::DeletablePath& path) {
    tidewell::removeItem(path);
}

#ifdef WRONG
void removeAnything() {
    removeApproved(tidewell::DeletablePath("/a", "/a"));
}
#endif

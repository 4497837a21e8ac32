#include "platform/removal.h"

void trashApproved(const tidewell::TrashablePath& path) {
    tidewell::moveToTrash(path, "/home");
}

#ifdef WRONG
void trashAnything() {
    trashApproved(tidewell::TrashablePath("/a", "/a"));
}
#endif

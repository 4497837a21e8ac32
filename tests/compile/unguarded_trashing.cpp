#include "platform/removal.h"

void trashApproved(const tidewell::TrashablePath& path) {
    (void)tidewell::moveToTrash(path, tidewell::Host());
}

#ifdef WRONG
void trashAnything() {
    trashApproved(tidewell::TrashablePath("/a", "/a"));
}
#endif

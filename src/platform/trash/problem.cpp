#include "platform/trash/problem.h"

#include <cerrno>
#include <system_error>

namespace tidewell::trash {

Problem problemOf(int error) {
    const auto saying = [error](const char* sentence) {
        return Problem{.error = error, .sentence = sentence};
    };
    switch (error) {
        case ENOENT:
            return saying("It is not there any more.");
        case EACCES:
        case EPERM:
            return saying("You lack the rights for it.");
        case ENOSPC:
        case EDQUOT:
            return saying("The disk is full.");
        case EROFS:
            return saying("The disk can only be read.");
        case ELOOP:
        case ENOTDIR:
            return saying("A link or a file stands on the way to it.");
        case EXDEV:
        case EBUSY:
            return saying("Another disk begins there.");
        case EEXIST:
            return saying("Something stands there already.");
        case ESTALE:
            return saying("Its folder was moved meanwhile.");
        case EINVAL:
            return saying("The disk's file system cannot move it without overwriting.");
        default:
            return {
                .error = error,
                .sentence = "The system refused: " + std::generic_category().message(error) + "."};
    }
}

}  // namespace tidewell::trash

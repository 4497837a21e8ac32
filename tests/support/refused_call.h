#pragma once

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>

#include <cstddef>

namespace tidewell::test {

/// From here on the kernel answers a system call of the calling process with this action. Never
/// undone. False where that is not allowed.
inline bool answerCall(unsigned number, unsigned action) {
    sock_filter filter[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, number, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, action),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    sock_fprog program = {.len = sizeof filter / sizeof filter[0], .filter = filter};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

/// It fails with this error, as it does on a system that lacks it.
inline bool refuseCall(unsigned number, unsigned error) {
    return answerCall(number, SECCOMP_RET_ERRNO | error);
}

/// It ends the process there and then, as a kill does: nothing of it runs any more.
inline bool dieAtCall(unsigned number) {
    return answerCall(number, SECCOMP_RET_KILL_PROCESS);
}

}  // namespace tidewell::test

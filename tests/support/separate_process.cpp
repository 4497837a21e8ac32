#include "support/separate_process.h"

#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace tidewell::test {

namespace {

constexpr int skipped = 77;

/// Without what an ordinary end does: a body may have left the leak checker no means to look.
[[noreturn]] void end(int status) {
    std::fflush(nullptr);
    std::_Exit(status);
}

}  // namespace

void expectInSeparateProcess(const std::function<void()>& body) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto run = [&body] {
        body();
        end(::testing::Test::HasFailure() ? 1 : 0);
    };
    bool isSkipped = false;
    const auto hasEndedWell = [&](int status) {
        isSkipped = WIFEXITED(status) && WEXITSTATUS(status) == skipped;
        return isSkipped || (WIFEXITED(status) && WEXITSTATUS(status) == 0);
    };
    EXPECT_EXIT(run(), hasEndedWell, "");
    if (isSkipped) GTEST_SKIP() << "the machine does not allow it";
}

void skipSeparateProcess() {
    end(skipped);
}

void becomeOrdinaryUser() {
    constexpr unsigned nobody = 65534;
    if (::geteuid() != 0) return;
    ASSERT_EQ(::setgid(nobody), 0);
    ASSERT_EQ(::setuid(nobody), 0);
}

bool enterOwnMountSpace() {
    const int spaces = ::geteuid() == 0 ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER;
    return ::unshare(spaces) == 0 &&
           ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

void limitDescriptors(unsigned limit) {
    struct rlimit limits;
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &limits), 0);
    limits.rlim_cur = limit;
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &limits), 0);
}

}  // namespace tidewell::test

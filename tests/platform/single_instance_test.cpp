#include "platform/single_instance.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <future>

#include "support/child_process.h"
#include "support/no_more_threads.h"
#include "support/temporary_folder.h"

namespace tidewell {
namespace {

using Role = SingleInstance::Role;
using Delivery = SingleInstance::Delivery;
using Reach = SingleInstance::Reach;

class SingleInstanceTest : public testing::Test {
 protected:
    SingleInstanceTest() {
        ::chmod(folder.path().c_str(), 0700);
        ::setenv("XDG_RUNTIME_DIR", folder.path().c_str(), 1);
    }
    ~SingleInstanceTest() override { ::unsetenv("XDG_RUNTIME_DIR"); }

    std::vector<std::filesystem::path> sockets() const {
        std::vector<std::filesystem::path> found;
        for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
            if (entry.is_socket()) found.push_back(entry.path());
        return found;
    }

    const test::TemporaryFolder folder;
    static Host machineAt(const char* root) {
        Host machine;
        machine.root = root;
        machine.home = "/Users/ada";
        return machine;
    }

    const Host host = machineAt("/");
};

TEST_F(SingleInstanceTest, ALaterStartHandsItsMessagesToTheFirst) {
    SingleInstance first(host);
    ASSERT_EQ(first.role(), Role::first);
    std::promise<std::string> heard[2];
    int count = 0;
    ASSERT_EQ(first.listen([&](const std::string& message) { heard[count++].set_value(message); }),
              Reach::open);

    const SingleInstance later(host);
    EXPECT_EQ(later.role(), Role::later);
    EXPECT_EQ(later.send("tidewell://scan"), Delivery::taken);
    EXPECT_EQ(later.send(""), Delivery::taken);
    EXPECT_EQ(heard[0].get_future().get(), "tidewell://scan");
    EXPECT_EQ(heard[1].get_future().get(), "");

    ASSERT_EQ(sockets().size(), 1);
    struct stat status;
    ASSERT_EQ(::stat(sockets().front().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600);
    EXPECT_EQ(SingleInstance(machineAt("/other")).role(), Role::first)
        << "another machine is another program";
}

TEST_F(SingleInstanceTest, WhatAFirstStartLeavesBehindStandsInNobodysWay) {
    test::ChildProcess first([this] {
        auto* instance = new SingleInstance(host);
        instance->listen([](const std::string&) {});
        return instance->role() == Role::first;
    });
    ASSERT_TRUE(first.succeeded());
    ASSERT_EQ(sockets().size(), 1) << "it ended without tidying up";

    SingleInstance second(host);
    EXPECT_EQ(second.role(), Role::first);
    second.listen([](const std::string&) {});
    EXPECT_EQ(SingleInstance(host).send("x"), Delivery::taken);
}

TEST_F(SingleInstanceTest, AFirstStartThatWasStoppedKeepsNoLaterOneWaiting) {
    test::ChildProcess first([this] {
        SingleInstance instance(host);
        instance.listen([](const std::string&) {});
        ::raise(SIGSTOP);
        return true;
    });
    ::waitpid(-1, nullptr, WUNTRACED);
    ASSERT_EQ(sockets().size(), 1);
    std::vector<std::future<Delivery>> later;
    for (int start = 0; start < 12; ++start)
        later.push_back(
            std::async(std::launch::async, [this] { return SingleInstance(host).send("x"); }));
    for (auto& start : later) {
        ASSERT_EQ(start.wait_for(std::chrono::seconds(20)), std::future_status::ready);
        EXPECT_EQ(start.get(), Delivery::failed);
    }
    first.kill();
}

TEST_F(SingleInstanceTest, WithoutDescriptorsTheFirstRestsAndHearsTheMessageLater) {
    SingleInstance first(host);
    std::promise<std::string> heard;
    first.listen([&](const std::string& message) { heard.set_value(message); });
    rlimit usual{};
    ::getrlimit(RLIMIT_NOFILE, &usual);
    const int next = ::dup(0);
    ::close(next);
    test::ChildProcess later([this] {
        ::usleep(100'000);
        return SingleInstance(host).send("x") == Delivery::taken;
    });
    const rlimit none{.rlim_cur = static_cast<rlim_t>(next), .rlim_max = usual.rlim_max};
    ::setrlimit(RLIMIT_NOFILE, &none);
    const auto before = std::clock();
    ::usleep(600'000);
    const auto spent = std::clock() - before;
    ::setrlimit(RLIMIT_NOFILE, &usual);
    EXPECT_EQ(heard.get_future().get(), "x");
    EXPECT_TRUE(later.succeeded());
    EXPECT_LT(spent, CLOCKS_PER_SEC / 100) << "it went round and round";
}

TEST_F(SingleInstanceTest, AMessageThatIsTooLongIsNotTaken) {
    SingleInstance first(host);
    first.listen([](const std::string& message) { EXPECT_EQ(message, "short"); });
    const SingleInstance later(host);
    EXPECT_EQ(later.send(std::string(100'000, 'x')), Delivery::failed);
    EXPECT_EQ(later.send("short"), Delivery::taken) << "and the first goes on listening";
}

TEST_F(SingleInstanceTest, WithoutAFolderOfTheUsersOwnEveryStartIsTheFirst) {
    ::chmod(folder.path().c_str(), 0777);
    const SingleInstance one(host);
    EXPECT_EQ(SingleInstance(host).role(), Role::first);
    ::unsetenv("XDG_RUNTIME_DIR");
    SingleInstance other(host);
    EXPECT_EQ(other.role(), Role::first);
    EXPECT_EQ(other.listen([](const std::string&) {}), Reach::none);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_F(SingleInstanceTest, WithoutAThreadNothingIsHeardAndNothingEnds) {
    const test::NoMoreThreads none;
    SingleInstance deaf(host);
    EXPECT_EQ(deaf.listen([](const std::string&) {}), Reach::none);
}

}  // namespace
}  // namespace tidewell

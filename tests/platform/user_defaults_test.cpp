#include "platform/user_defaults.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <limits>
#include <memory>
#include <sstream>
#include <thread>
#include <vector>

#include "support/child_process.h"
#include "support/temporary_folder.h"

namespace tidewell {
namespace {

namespace fs = std::filesystem;
using test::ChildProcess;
using Written = UserDefaults::Written;

class UserDefaultsTest : public testing::Test {
 protected:
    void write(const std::string& text) {
        fs::create_directories(folder);
        std::ofstream(file) << text;
    }
    std::string content(const std::string& path) const {
        std::ostringstream bytes;
        bytes << std::ifstream(path).rdbuf();
        return bytes.str();
    }

    const test::TemporaryFolder temporary;
    const std::string folder = temporary.path() + "/home/.config/tidewell";
    const std::string file = folder + "/defaults.json";
    UserDefaults defaults{folder};
};

TEST_F(UserDefaultsTest, MakesItsFolderOnlyWhenSomethingIsStoredAndKeepsItToTheUser) {
    EXPECT_EQ(defaults.integer("freed"), 0);
    EXPECT_FALSE(fs::exists(temporary.path() + "/home"));
    EXPECT_EQ(defaults.add("freed", 5), Written::yes);
    EXPECT_EQ(fs::status(folder).permissions(), fs::perms::owner_all);
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(UserDefaultsTest, KeepsValuesOfEveryTypeAndThoseItDoesNotKnow) {
    write(R"({"theme": {"accent": ["green"]}, "freed": "many", "since": 1700000000, "seen": 1})");
    EXPECT_EQ(defaults.integer("freed"), 0);
    EXPECT_EQ(defaults.real("since"), 1'700'000'000.0);
    EXPECT_FALSE(defaults.boolean("seen"));
    ASSERT_EQ(defaults.add("freed", 7), Written::yes);
    ASSERT_EQ(defaults.add("freed", 8), Written::yes);
    ASSERT_EQ(defaults.setReal("since", 1'700'000'000.25), Written::yes);
    ASSERT_EQ(defaults.setBoolean("seen", true), Written::yes);

    const UserDefaults anew(folder);
    EXPECT_EQ(anew.integer("freed"), 15);
    EXPECT_EQ(anew.real("since"), 1'700'000'000.25);
    EXPECT_TRUE(anew.boolean("seen"));
    EXPECT_NE(content(file).find("accent"), std::string::npos);
}

TEST_F(UserDefaultsTest, StaysAtTheLargestSum) {
    constexpr auto largest = std::numeric_limits<std::int64_t>::max();
    defaults.add("freed", largest - 1);
    defaults.add("freed", 2);
    EXPECT_EQ(defaults.integer("freed"), largest);
    defaults.add("freed", 1);
    EXPECT_EQ(defaults.integer("freed"), largest);
}

TEST_F(UserDefaultsTest, SetsADamagedFileAsideAndGoesOn) {
    for (const auto* damage : {"{\"freed\": 12", "[1, 2]", "", "\xff\xfe{"}) {
        write(damage);
        EXPECT_EQ(defaults.integer("freed"), 0);
        EXPECT_EQ(content(file + ".damaged"), damage);
        EXPECT_FALSE(fs::exists(file));

        write("again " + std::string(damage));
        EXPECT_EQ(defaults.add("freed", 3), Written::yes);
        EXPECT_EQ(content(file + ".damaged"), "again " + std::string(damage));
        EXPECT_EQ(defaults.integer("freed"), 3);
    }
}

TEST_F(UserDefaultsTest, LosesNoSumToOtherProcessesAndThreads) {
    constexpr int turns = 25;
    const auto addAll = [this] {
        bool allWritten = true;
        for (int turn = 0; turn < turns; ++turn)
            allWritten = defaults.add("freed", 1) == Written::yes && allWritten;
        return allWritten;
    };
    ChildProcess first(addAll);
    ChildProcess second(addAll);
    std::thread other(addAll);
    EXPECT_TRUE(addAll());
    other.join();
    EXPECT_TRUE(first.succeeded());
    EXPECT_TRUE(second.succeeded());
    EXPECT_EQ(defaults.integer("freed"), 4 * turns);
}

TEST_F(UserDefaultsTest, IsReadableAfterAWriterWasKilledAtAnyMoment) {
    std::int64_t seen = 0;
    for (int round = 0; round < 20; ++round) {
        ChildProcess writer([this] {
            while (defaults.add("freed", 1) == Written::yes) continue;
            return false;
        });
        const auto goal = seen + 2;
        while (seen < goal) {
            const auto value = defaults.integer("freed");
            ASSERT_GE(value, seen);
            seen = value;
        }
        writer.kill();
        ASSERT_GE(defaults.integer("freed"), seen);
    }
    EXPECT_EQ(defaults.add("freed", 1), Written::yes);
    EXPECT_FALSE(fs::exists(file + ".damaged"));
}

TEST_F(UserDefaultsTest, KeepsTheOldValuesWhenTheDiskIsFull) {
    ASSERT_EQ(defaults.add("freed", 40), Written::yes);
    for (const rlim_t room : {0, 10}) {
        ChildProcess writer([this, room] {
            const rlimit limit{.rlim_cur = room, .rlim_max = room};
            ::signal(SIGXFSZ, SIG_IGN);
            ::setrlimit(RLIMIT_FSIZE, &limit);
            return defaults.add("freed", 2) == Written::no && defaults.integer("freed") == 40;
        });
        EXPECT_TRUE(writer.succeeded()) << room;
        EXPECT_EQ(defaults.integer("freed"), 40);
    }
    EXPECT_EQ(defaults.add("freed", 2), Written::yes);
    EXPECT_EQ(defaults.integer("freed"), 42);
}

TEST_F(UserDefaultsTest, KeepsTheOldValuesWhereItMayNotWriteOrRead) {
    ASSERT_EQ(defaults.add("freed", 40), Written::yes);
    for (const auto& step :
         {temporary.path(), temporary.path() + "/home", temporary.path() + "/home/.config", folder})
        fs::permissions(step, fs::perms(0755));
    fs::permissions(file, fs::perms(0644));
    // Rights do not hold an administrator off, so that a plain user has to try.
    const auto asPlainUser = [](const auto& work) {
        ChildProcess child(
            [&work] { return (::geteuid() != 0 || ::setuid(65534) == 0) && work(); });
        return child.succeeded();
    };
    const bool isAdministrator = ::geteuid() == 0;
    if (!isAdministrator) fs::permissions(folder, fs::perms(0555));
    EXPECT_TRUE(asPlainUser([this] {
        return defaults.add("freed", 2) == Written::no && defaults.integer("freed") == 40;
    }));

    fs::permissions(folder, fs::perms(0777));
    fs::permissions(folder + "/defaults.lock", fs::perms(0666));
    fs::permissions(file, fs::perms(isAdministrator ? 0600 : 0000));
    EXPECT_TRUE(asPlainUser([this] {
        return defaults.integer("freed") == 0 && defaults.add("freed", 2) == Written::no;
    }));
    fs::permissions(file, fs::perms(0600));
    EXPECT_EQ(defaults.integer("freed"), 40);
}

TEST_F(UserDefaultsTest, DoesNotWriteThroughALinkInThePlaceOfItsNewFile) {
    ASSERT_EQ(defaults.add("freed", 1), Written::yes);
    const auto thesis = temporary.path() + "/thesis";
    std::ofstream(thesis) << "years of work";
    fs::create_symlink(thesis, file + ".new");
    EXPECT_EQ(defaults.add("freed", 1), Written::no);
    EXPECT_EQ(content(thesis), "years of work");
    EXPECT_EQ(defaults.integer("freed"), 1);
}

}  // namespace
}  // namespace tidewell

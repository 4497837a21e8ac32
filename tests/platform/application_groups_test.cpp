#include "platform/linux/application_groups.h"

#include <gtest/gtest.h>

namespace tidewell::linux_system {
namespace {

GroupedApplication in(Packaging packaging, const char* id) {
    return {.packaging = packaging, .id = id};
}

ProcessFacts process(std::int32_t id, std::int32_t parent, const char* executable,
                     std::optional<GroupedApplication> group = std::nullopt) {
    return {.identity = {.id = id, .startTime = 0},
            .parent = parent,
            .executable = executable,
            .group = std::move(group)};
}

std::vector<std::int32_t> idsOf(const RunningApplication& application) {
    std::vector<std::int32_t> ids;
    for (const auto& each : application.processes) ids.push_back(each.id);
    return ids;
}

using Ids = std::vector<std::int32_t>;

const std::vector<KnownApplication> known = {
    {.id = "org.example.Terminal", .name = "Terminal", .executable = "/usr/libexec/terminal"},
    {.id = "web", .name = "Web", .executable = "/usr/lib/web/web"},
    {.id = "org.example.Paint", .name = "Paint", .executable = ""},
    {.id = "notes_notes", .name = "Notes", .executable = ""},
    {.id = "indexer",
     .name = "Indexer",
     .executable = "",
     .activationPolicy = ActivationPolicy::background},
};

TEST(ApplicationGroups, HoldAllProcessesOfAnApplicationAndNoOthers) {
    const auto terminal = in(Packaging::desktopEntry, "org.example.Terminal");
    const auto paint = in(Packaging::flatpak, "org.example.Paint");
    const auto found = groupedApplications(
        {
            process(10, 1, "/usr/libexec/terminal", terminal),
            process(11, 10, "/bin/bash", terminal),
            process(12, 11, "/usr/lib/web/web", terminal),  // the desktop's word counts
            process(20, 1, "/usr/lib/web/web"),
            process(21, 20, "/usr/lib/web/helper"),
            process(22, 21, "/usr/lib/web/helper"),
            process(23, 22, "/usr/bin/bwrap", paint),  // another's, whoever started it
            process(24, 23, "/app/bin/paint"),
            process(30, 1, "/snap/notes/3/bin/notes", in(Packaging::snap, "notes")),
            process(31, 1, "/snap/odd/1/bin/odd", in(Packaging::snap, "odd")),
            process(40, 1, "/usr/libexec/indexer", in(Packaging::desktopEntry, "indexer")),
            process(41, 1, "/usr/libexec/unknown", in(Packaging::desktopEntry, "unknown")),
            process(50, 1, "/usr/bin/nobodys"),
            process(60, 61, "/usr/bin/circle"),
            process(61, 60, "/usr/bin/circle"),
            process(70, 70, "/usr/bin/own-parent"),
        },
        known);
    ASSERT_EQ(found.size(), 7U);
    const std::pair<const char*, Ids> expected[] = {
        {"Terminal", {10, 11, 12}},
        {"Web", {20, 21, 22}},
        {"Paint", {23, 24}},
        {"Notes", {30}},
        {"odd", {31}},
        {"Indexer", {40}},
        {"unknown", {41}},
    };
    for (std::size_t i = 0; i < found.size(); ++i) {
        EXPECT_EQ(found[i].name, expected[i].first);
        EXPECT_EQ(idsOf(found[i]), expected[i].second) << expected[i].first;
        EXPECT_EQ(found[i].process.id, expected[i].second.front());
        EXPECT_EQ(found[i].activationPolicy, found[i].process.id < 40
                                                 ? ActivationPolicy::regular
                                                 : ActivationPolicy::background);
    }
}

TEST(LauncherScripts, EndInTheProgramOfTheirLastExec) {
    struct Row {
        const char* text;
        std::optional<std::string> program;
    };
    const Row rows[] = {
        {"#!/bin/sh\nexec /usr/lib/web/web \"$@\"\n", "/usr/lib/web/web"},
        {"#!/bin/sh\nDIR=/usr/lib/web\nNAME='we b'\n# exec /no\nexec $DIR/${NAME} \"$@\"",
         "/usr/lib/web/we b"},
        {"#!/bin/bash\nHERE=\"`dirname \"$0\"`\"\nexec -a \"$0\" \"$HERE/chrome\" \"$@\"",
         "/opt/web/chrome"},
        {"#!/bin/bash\nexport D=$(readlink x)\n  if x; then exec /a/b; fi\n  exec \"$D/../lib/c\"",
         "/opt/lib/c"},
        {"#!/bin/sh\n[ -x \"$W.real\" ] && exec \"$W.real\" \"$@\"\n\nexec web \"$@\"\n", "web"},
        {"#!/bin/sh\nexec lib/web", std::nullopt},
        {"#!/bin/sh\nexec", std::nullopt},
        {"#!/bin/sh\nexec \"$", "/opt/web"},
        {"exec /usr/bin/web", std::nullopt},
        {"#!/bin/sh\nexec 3>&1\n", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& [text, program] : rows)
        EXPECT_EQ(programStartedBy("/opt/web/start", text), program) << text;

    std::string doubling = "#!/bin/sh\nA=aaaaaaaa\n";
    for (int line = 0; line < 64; ++line) doubling += "A=$A$A\n";
    EXPECT_TRUE(programStartedBy("/opt/web/start", doubling + "exec /$A"));
}

}  // namespace
}  // namespace tidewell::linux_system

// catalogue-page: prints docs/catalogue.md, the page for people of all that Clean can remove and of
// what no rule may remove.

#include <cstddef>
#include <iostream>
#include <span>
#include <string>
#include <string_view>

#include "cleanup/kept_entries.h"
#include "cleanup/target_catalogue.h"
#include "platform/user_folders.h"

namespace {

using namespace tidewell;

constexpr std::string_view introduction = R"(# What Clean can remove

`catalogue-page` makes this page from the program's own tables; a test holds one against the other.

Clean knows the places below, by the system that the machine is of, and the build folders of your
projects. "Safe" is ticked after a scan, for it comes back by itself; "review" can cost you something,
and is never ticked for you. Of a folder that is said to be swept, each entry goes that no other row
names.
)";

constexpr std::string_view linuxIntroduction = R"(
## On Linux machines

{rows} places. `{cache}`, `{config}`, `{data}` and `{state}` are your base folders: `~/.cache`,
`~/.config`, `~/.local/share` and `~/.local/state`, unless you have moved them. A `*` stands for any name,
or for any rest of one. A row that names a program is not ticked while that program runs.
)";

constexpr std::string_view neverSweptIntroduction = R"(
No sweep takes any of these, nor a folder that holds a virtual environment:

)";

constexpr std::string_view macOSIntroduction = R"(
## On Macs

{rows} places.
)";

constexpr std::string_view tableHead = "\n| | where | what it is |\n|---|---|---|\n";

constexpr std::string_view keysIntroduction = R"(
## What is never removed

Keys and credentials, in your home folder, with all that lies in them, and wherever links of that name
lead:

)";

constexpr std::string_view personalIntroduction = R"(
In these folders of your own, Clean removes nothing but the build folders of projects:

)";

constexpr std::string_view linuxKeysIntroduction = R"(
On Linux machines the keys and credentials are:

)";

constexpr std::string_view profilesIntroduction = R"(
and, but for the caches that a row names, the profiles:

)";

constexpr std::string_view linuxPersonalIntroduction = R"(
The folders of your own there are those that your desktop names, in any language, and:

)";

std::string codeText(std::string_view text) {
    return "`" + std::string(text) + "`";
}

std::string listed(const ConstantTexts& texts, std::string_view separator = "<br>") {
    std::string list;
    for (const auto text : texts) {
        if (!list.empty()) list += separator;
        list += codeText(text);
    }
    return list;
}

std::string placesOf(const CatalogueRow& row) {
    if (row.source == PathSource::deletableRoots) return "your own scratch folders";
    std::string places = listed(row.paths);
    if (isSweep(row.kind)) places = "swept: " + places;
    for (const auto& product : row.products) {
        if (!places.empty()) places += "<br>";
        places += listed(product.parts, ", ") + "<br>in " + listed(product.homes);
    }
    if (!row.programs.empty()) places += "<br>used by";
    for (const auto& program : row.programs) {
        places += &program == &row.programs.front() ? " " : ", ";
        places += program.name;
    }
    return places;
}

std::string_view safetyWord(SafetyLevel safety) {
    switch (safety) {
        case SafetyLevel::safe:
            return "safe";
        case SafetyLevel::caution:
            return "**review**";
    }
    return {};
}

void printRow(const CatalogueRow& row) {
    std::cout << "| **" << row.title << "**<br>" << codeText(row.id) << "<br>"
              << safetyWord(row.safety) << " | " << placesOf(row) << " | " << row.detail << " |\n";
}

void printCategory(std::span<const CatalogueRow> rows, CleanupCategory category) {
    bool isFirst = true;
    for (const auto& row : rows) {
        if (row.category != category) continue;
        if (isFirst) std::cout << "\n### " << title(category) << '\n' << tableHead;
        isFirst = false;
        printRow(row);
    }
}

void printSystem(std::string_view text, System system) {
    constexpr std::string_view mark = "{rows}";
    const auto rows = catalogueOf(system).rows;
    std::cout << std::string(text).replace(text.find(mark), mark.size(),
                                           std::to_string(rows.size()));
    for (const auto category : allCleanupCategories) printCategory(rows, category);
}

void printList(std::span<const std::string_view> names) {
    for (const auto name : names) std::cout << "- " << codeText("~/" + std::string(name)) << '\n';
}

}  // namespace

int main() {
    std::cout << introduction;
    printSystem(linuxIntroduction, System::linux);
    std::cout << neverSweptIntroduction;
    for (const auto names :
         {keptKnowledge(System::linux).neverSwept, catalogueOf(System::linux).neverSwept})
        for (const auto name : names) std::cout << "- " << codeText(name) << '\n';
    printSystem(macOSIntroduction, System::macOS);
    std::cout << keysIntroduction;
    printList(keptKnowledge(System::macOS).keys);
    std::cout << personalIntroduction;
    printList(userFolderNames(System::macOS));
    std::cout << linuxKeysIntroduction;
    printList(keptKnowledge(System::linux).keys);
    std::cout << profilesIntroduction;
    printList(keptKnowledge(System::linux).profiles);
    std::cout << linuxPersonalIntroduction;
    printList(userFolderNames(System::linux));
}

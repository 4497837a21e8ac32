// catalogue-page: prints docs/catalogue.md, the page for people of all that Clean can remove and of
// what no rule may remove.

#include <cstddef>
#include <iostream>
#include <span>
#include <string>
#include <string_view>

#include "cleanup/deletion_guard.h"
#include "cleanup/target_catalogue.h"

namespace {

using namespace tidewell;

constexpr std::string_view introduction = R"(# What Clean can remove

`catalogue-page` makes this page from the program's own table; a test holds one against the other.

Clean knows {rows} places, and the build folders of your projects. "Safe" is ticked after a scan, for it
comes back by itself; "review" can cost you something, and is never ticked for you. A path that ends in
`/*` stands for each entry of the folder that no other row names.
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

std::string codeText(std::string_view text) {
    return "`" + std::string(text) + "`";
}

std::string placesOf(const CatalogueRow& row) {
    if (row.source == PathSource::deletableRoots) return "your own scratch folders";
    std::string places;
    for (const auto path : row.paths) {
        if (!places.empty()) places += "<br>";
        places += codeText(std::string(path) + (row.kind == TargetKind::sweep ? "/*" : ""));
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

void printCategory(CleanupCategory category) {
    bool isFirst = true;
    for (const auto& row : catalogueRows()) {
        if (row.category != category) continue;
        if (isFirst) std::cout << "\n## " << title(category) << '\n' << tableHead;
        isFirst = false;
        printRow(row);
    }
}

void printList(std::span<const std::string_view> names) {
    for (const auto name : names) std::cout << "- " << codeText("~/" + std::string(name)) << '\n';
}

}  // namespace

int main() {
    constexpr std::string_view mark = "{rows}";
    std::string text(introduction);
    text.replace(text.find(mark), mark.size(), std::to_string(catalogueRows().size()));
    std::cout << text;
    for (const auto category : allCleanupCategories) printCategory(category);
    std::cout << keysIntroduction;
    printList(protectedHomePaths);
    std::cout << personalIntroduction;
    printList(personalFolders);
}

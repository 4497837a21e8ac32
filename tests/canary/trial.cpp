#include "trial.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <utility>

#include "adversary.h"
#include "kidnapper.h"
#include "platform/json.h"
#include "platform/path_text.h"
#include "rules.h"
#include "snapshot.h"
#include "support/program_run.h"

namespace tidewell::test {

namespace fs = std::filesystem;

namespace {

using Words = std::vector<std::string>;
using Predicate = std::function<bool(const std::string& path)>;

struct Answer {
    Value document;
    Findings findings;  ///< a crash, or an answer that is none
    bool wasKilled = false;
};

/// The words that start the program as its user would, and with what the user may.
Words startWords(const std::string& program, const RandomMachine& random) {
    Words words = {"/usr/bin/prlimit", "--nofile=" + std::to_string(random.descriptors)};
    if (random.user == User::ordinary && ::geteuid() == 0)
        for (const char* word : {"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"})
            words.push_back(word);
    words.push_back(program);
    return words;
}

constexpr int killed = 128 + 9;

/// What is said before and behind the orders about where the machine lies.
struct Place {
    Words before;
    Words after;
};

Place inFolder(const RandomMachine& random) {
    return {{}, {"--root", random.machine.root(), "--home", random.machine.home()}};
}

/// As the user's own machine, started in a folder of his work, with a scratch folder and base
/// folders that may be set to anything.
Place atHome(RandomMachine& random) {
    const auto work =
        random.machine.path(random.chance.percent(50) ? "~/Documents/Thesis" : "~/Novel");
    const std::vector<std::string> anything = {".",
                                               "..",
                                               "",
                                               "/",
                                               "Documents",
                                               random.machine.home(),
                                               random.machine.path("~/Documents/Thesis"),
                                               random.machine.path("~/.ssh")};
    auto scratch = anything;
    // One that leads out of the machine is the user's as well, where that machine is this one.
    const auto own = random.machine.path(random.ground.scratch);
    if (isBelow(fs::weakly_canonical(own).string(), random.machine.root())) scratch.push_back(own);
    Place place = {{"env", "--chdir=" + work, "HOME=" + random.machine.home(),
                    "TMPDIR=" + random.chance.oneOf(scratch)},
                   {}};
    for (const char* variable : {"XDG_CACHE_HOME", "XDG_DATA_HOME"})
        if (random.chance.percent(30))
            place.before.push_back(variable + ("=" + random.chance.oneOf(anything)));
    return place;
}

/// Only somebody who may not touch this machine's own files works without a root.
bool canBeAtHome(const RandomMachine& random) {
    return random.user == User::ordinary && ::geteuid() == 0;
}

/// `orders` are the words for the program, `place` those that say where the machine lies; it is
/// killed after so many milliseconds, if that is said.
Answer ask(const std::string& program, const RandomMachine& random, const Words& orders,
           const Place& place, std::optional<std::size_t> killAfter = {}) {
    auto words = startWords(program, random);
    words.insert(words.end() - 1, place.before.begin(), place.before.end());
    words.insert(words.end(), orders.begin(), orders.end());
    words.push_back("--json");
    words.insert(words.end(), place.after.begin(), place.after.end());
    if (killAfter) {
        const auto seconds = std::to_string(static_cast<double>(*killAfter) / 1000);
        words.insert(words.begin(), {"/usr/bin/timeout", "--signal=KILL", seconds});
    }
    const auto ended = runProgram(words.front(), {words.begin() + 1, words.end()});
    if (killAfter && (!ended.status || ended.status == killed)) return {{}, {}, true};
    if (!ended.status || *ended.status > 1) {
        const auto status = ended.status ? std::to_string(*ended.status) : "a signal";
        return {{}, {"`" + orders.front() + "` ended with " + status + ": " + ended.errors}};
    }
    auto document = parseJson(ended.output);
    if (!document) return {{}, {"`" + orders.front() + "` printed no JSON"}};
    return {std::move(*document), {}};
}

const Value::List& listAt(const Value& value, std::string_view key) {
    static const Value::List none;
    const auto* member = value.find(key);
    return member && member->list() ? *member->list() : none;
}

std::int64_t integerAt(const Value& value, std::string_view key) {
    const auto* member = value.find(key);
    return member && member->integer() ? *member->integer() : -1;
}

std::vector<std::string> textsOf(const Value::List& list) {
    std::vector<std::string> texts;
    for (const auto& value : list)
        if (value.text()) texts.push_back(*value.text());
    return texts;
}

/// The paths of each item, as they are shown.
std::vector<std::vector<std::string>> itemsOf(const Value& document) {
    std::vector<std::vector<std::string>> items;
    for (const auto& item : listAt(document, "items"))
        items.push_back(textsOf(listAt(item, "paths")));
    return items;
}

/// Folders that gained or lost an entry: their date may change, and nothing else of them.
std::set<std::string> touchedFolders(const Snapshot& before, const Snapshot& after) {
    std::set<std::string> folders;
    const auto note = [&folders](const Snapshot& from, const Snapshot& in) {
        for (const auto& [path, entry] : from)
            if (!in.contains(path)) folders.insert(fs::path(path).parent_path().string());
    };
    note(before, after);
    note(after, before);
    return folders;
}

bool isSame(const Entry& before, Entry after, bool isTouched) {
    if (isTouched && before.isFolder()) after.changed = before.changed;
    return before == after;
}

/// Of the machine, and of what lies outside it.
Snapshot snapshotOf(const RandomMachine& random) {
    auto all = takeSnapshot(random.machine.root());
    all.merge(takeSnapshot(random.elsewhere()));
    return all;
}

/// All that is neither as it was nor, by `mayChange`, free to go and to come. `touchedBetween` are
/// folders in which something came and went.
Findings losses(const Snapshot& before, const Snapshot& after, const Predicate& mayChange,
                const std::set<std::string>& touchedBetween = {}) {
    Findings found;
    auto touched = touchedFolders(before, after);
    touched.insert(touchedBetween.begin(), touchedBetween.end());
    for (const auto& [path, entry] : before) {
        const auto now = after.find(path);
        if (now == after.end()) {
            if (!mayChange(path)) found.push_back("lost: " + path);
        } else if (!isSame(entry, now->second, touched.contains(path)) && !mayChange(path)) {
            found.push_back("changed: " + path);
        }
    }
    for (const auto& [path, entry] : after)
        if (!before.contains(path) && !mayChange(path)) found.push_back("new: " + path);
    return found;
}

/// The program's own settings, which it writes after a clean.
bool isOwnSettings(const RandomMachine& random, const std::string& path) {
    const auto& folder = random.machine.host().configurationDirectory;
    return isAtOrBelow(path, folder) || isAtOrBelow(folder, path);
}

/// What an entry is called where its folder is not mounted a second time.
std::string otherNameOf(const RandomMachine& random, const std::string& path) {
    for (const auto& [place, name] : random.otherNames)
        if (isAtOrBelow(path, place)) return name + path.substr(place.size());
    return path;
}

bool isTreasure(const RandomMachine& random, const std::string& path) {
    return std::ranges::any_of(random.treasures,
                               [&](const auto& treasure) { return isAtOrBelow(path, treasure); });
}

bool holdsTreasure(const RandomMachine& random, const std::string& path) {
    return std::ranges::any_of(random.treasures,
                               [&](const auto& treasure) { return isBelow(treasure, path); });
}

/// Of a Linux machine, a file counts where all of its names are meant, and once.
std::int64_t allocatedBytes(const Ground& ground, const Snapshot& machine,
                            const std::vector<std::string>& folders) {
    std::map<std::pair<dev_t, ino_t>, nlink_t> namesSeen;
    std::int64_t bytes = 0;
    for (const auto& folder : folders)
        for (const auto& [path, entry] : below(machine, folder))
            if (ground.system == System::macOS || ++namesSeen[entry.file] == entry.names)
                bytes += entry.allocated;
    return bytes;
}

/// What two measures of each item show to be gone. Items that links make overlap count twice, as
/// each of them was shown.
std::int64_t freedBytes(const Ground& ground, const Snapshot& before, const Snapshot& after,
                        const Rules& rules) {
    std::int64_t freed = 0;
    for (const auto& item : rules.items())
        freed += std::max<std::int64_t>(
            allocatedBytes(ground, before, item) - allocatedBytes(ground, after, item), 0);
    return freed;
}

bool isMounted(const RandomMachine& random, const std::string& path) {
    return std::ranges::any_of(random.mounts,
                               [&](const auto& place) { return isAtOrBelow(path, place); });
}

/// Folders in which others may do as they like without being to blame for a loss.
std::vector<std::string> openGround(const RandomMachine& random, const Snapshot& machine,
                                    const Rules& rules) {
    std::vector<std::string> folders;
    for (const auto& [path, entry] : machine)
        if (entry.isFolder() && rules.mayGo(path) && !isTreasure(random, path) &&
            !holdsTreasure(random, path) && !isMounted(random, path))
            folders.push_back(path);
    return folders;
}

/// Where below the Trash something of these contents has come to lie, and was not before.
bool isInTrash(const Snapshot& before, const Snapshot& after, const std::string& trash,
               const Snapshot& moved, const std::string& from) {
    return std::ranges::any_of(after, [&](const auto& candidate) {
        const auto& to = candidate.first;
        if (fs::path(to).parent_path() != trash || before.contains(to)) return false;
        return std::ranges::all_of(moved, [&](const auto& entry) {
            const auto now = after.find(to + entry.first.substr(from.size()));
            return now != after.end() && now->second == entry.second;
        });
    });
}

/// Whether others work on the machine at the same time, so that figures cannot be foretold.
bool hasCompany(Verb verb) {
    return verb == Verb::cleanAmongOthers || verb == Verb::cleanStolenFrom;
}

std::unique_ptr<Kidnapper> kidnapperOf(const std::string& prey, RandomMachine& random) {
    constexpr Kidnapper::Deed deeds[] = {Kidnapper::Deed::takeAway, Kidnapper::Deed::takeAway,
                                         Kidnapper::Deed::takeAwayAndBack, Kidnapper::Deed::lock};
    const char* refuge = random.chance.percent(50) ? "~/Documents" : "~/Applications";
    return std::make_unique<Kidnapper>(prey, fs::canonical(random.machine.path(refuge)),
                                       random.chance.oneOf(deeds));
}

/// Milliseconds; a whole run takes some tens of them.
std::optional<std::size_t> momentOfKill(RandomMachine& random, Verb verb) {
    if (verb != Verb::cleanKilled && verb != Verb::uninstallKilled) return std::nullopt;
    return 1 + random.chance.below(60);
}

/// With what a Trash says of its things beside them.
bool isInATrash(const RandomMachine& random, const std::string& path) {
    const auto trash = random.machine.path(random.ground.trash);
    return isAtOrBelow(path, random.ground.system == System::linux
                                 ? fs::path(trash).parent_path().string()
                                 : trash);
}

/// A move to the Trash loses nothing: whatever left its place lies there as it was.
Findings checkMoves(const RandomMachine& random, const Snapshot& before, const Snapshot& after,
                    const std::vector<std::string>& wanted) {
    const auto trash = random.machine.path(random.ground.trash);
    auto findings = losses(before, after, [&](const std::string& path) {
        const bool isWanted =
            std::ranges::any_of(wanted, [&](const auto& item) { return isAtOrBelow(path, item); });
        const bool isNewInTrash = isInATrash(random, path) && !before.contains(path);
        return !isTreasure(random, path) &&
               (isWanted || isNewInTrash || isOwnSettings(random, path));
    });
    for (const auto& item : wanted) {
        const auto moved = below(before, item);
        if (!after.contains(item) && !isInTrash(before, after, trash, moved, item))
            findings.push_back("not in the Trash as it was: " + item);
    }
    return findings;
}

}  // namespace

std::vector<std::string> Trial::cataloguePaths(System system) const {
    const auto ended = runProgram(
        program_, {"catalogue", "--json", "--system", system == System::linux ? "linux" : "macos"});
    const auto document = parseJson(ended.output).value_or(Value());
    std::vector<std::string> paths;
    for (const auto& target : listAt(document, "targets"))
        for (auto& path : textsOf(listAt(target, "paths"))) paths.push_back(std::move(path));
    return paths;
}

Findings Trial::look(const RandomMachine& random) const {
    const auto before = snapshotOf(random);
    Findings findings;
    std::vector<Words> calls = {
        {"scan"}, {"clean", "--select", "all"}, {"dev"}, {"deep-scan"}, {"apps"}, {"status"}};
    if (random.ground.system == System::macOS) calls.push_back({"uninstall", "com.example.notes"});
    for (const auto& words : calls) {
        const auto answer = ask(program_, random, words, inFolder(random));
        findings.insert(findings.end(), answer.findings.begin(), answer.findings.end());
    }
    const auto changes =
        losses(before, snapshotOf(random), [](const std::string&) { return false; });
    findings.insert(findings.end(), changes.begin(), changes.end());
    return findings;
}

Findings Trial::run(Verb verb, RandomMachine& random) {
    switch (verb) {
        case Verb::clean:
        case Verb::cleanAmongOthers:
        case Verb::cleanStolenFrom:
        case Verb::cleanKilled:
        case Verb::cleanAtHome:
        case Verb::dev:
            return clean(random, verb);
        case Verb::trash:
            return trash(random);
        case Verb::uninstall:
        case Verb::uninstallKilled:
            return uninstall(random, verb);
    }
    return {};
}

Findings Trial::clean(RandomMachine& random, Verb verb) {
    const auto& root = random.machine.root();
    const Words words = {verb == Verb::dev ? "dev" : "clean", "--select", "all"};
    const bool isAtHome = verb == Verb::cleanAtHome && canBeAtHome(random);
    const auto place = isAtHome ? atHome(random) : inFolder(random);
    const auto prey = verb == Verb::cleanStolenFrom ? random.layOutPrey() : std::string();
    const auto shown = ask(program_, random, words, place);
    if (!shown.findings.empty()) return shown.findings;
    const auto before = snapshotOf(random);
    const Rules rules(random.ground, before, root, random.machine.home(), itemsOf(shown.document));

    auto orders = words;
    orders.push_back("--yes");
    std::unique_ptr<Adversary> others;
    std::unique_ptr<Kidnapper> kidnapper;
    if (verb == Verb::cleanStolenFrom) kidnapper = kidnapperOf(prey, random);
    if (verb == Verb::cleanAmongOthers)
        others = std::make_unique<Adversary>(static_cast<unsigned>(random.chance.below(1 << 30)),
                                             openGround(random, before, rules),
                                             random.machine.path("~/Documents"));
    const auto done = ask(program_, random, orders, place, momentOfKill(random, verb));
    tally_.kills += done.wasKilled;
    if (others) tally_.swaps += others->swaps();
    others.reset();
    if (kidnapper) kidnapper->stop();
    if (!done.findings.empty()) return done.findings;

    const auto after = snapshotOf(random);
    const auto isOthersGround = [&](const std::string& path) {
        return hasCompany(verb) &&
               (rules.isInArea(path) || rules.isInArea(otherNameOf(random, path)));
    };
    auto findings = losses(before, after, [&](const std::string& path) {
        if (kidnapper &&
            (kidnapper->changes(path) || kidnapper->changes(otherNameOf(random, path))))
            return true;
        return !isTreasure(random, path) &&
               (rules.mayGo(path) || rules.mayGo(otherNameOf(random, path)) ||
                isOwnSettings(random, path) || isOthersGround(path));
    });
    if (kidnapper && kidnapper->losses() > 0)
        findings.push_back(
            "emptied after it was taken away: " + std::to_string(kidnapper->losses()) + " files");
    if (kidnapper) tally_.thefts += kidnapper->hasStruck();
    const auto said = integerAt(done.document, "freedBytes");
    const auto freed = freedBytes(random.ground, before, after, rules);
    // What goes by one of two names is missing by the other as well.
    const bool isForeseeable = !done.wasKilled && !hasCompany(verb) && random.otherNames.empty();
    if (isForeseeable && said != freed)
        findings.push_back("said to be freed: " + std::to_string(said) + ", but measured are " +
                           std::to_string(freed));
    if (kidnapper && kidnapper->hasLocked() && random.user == User::ordinary && said > freed)
        findings.push_back("said to be freed: " + std::to_string(said) + ", and no more than " +
                           std::to_string(freed) + " are gone");
    tally_.freedBytes += freed;
    for (const auto& [path, entry] : before) tally_.removedEntries += !after.contains(path);
    return done.wasKilled && findings.empty() ? clean(random, Verb::clean) : findings;
}

Findings Trial::trash(RandomMachine& random) {
    const auto listed = ask(program_, random, {"deep-scan"}, inFolder(random));
    if (!listed.findings.empty()) return listed.findings;
    Words ids;
    for (const auto& item : listAt(listed.document, "items"))
        if (auto id = item.textAt("id")) ids.push_back(*id);
    if (ids.empty()) return {"the deep scan found nothing"};
    const auto id = random.chance.oneOf(ids);
    const auto before = snapshotOf(random);
    const auto done = ask(program_, random, {"trash", id, "--yes"}, inFolder(random));
    if (!done.findings.empty()) return done.findings;
    const auto after = snapshotOf(random);
    const bool isGone = before.contains(id) && !after.contains(id);
    tally_.trashed += isGone;
    auto findings = checkMoves(random, before, after, {id});
    if (isGone && findings.empty() && random.ground.system == System::linux)
        return putBack(random, before, id);
    return findings;
}

/// All is as it was before the move to the Trash.
Findings Trial::putBack(const RandomMachine& random, const Snapshot& before,
                        const std::string& origin) {
    const auto done = ask(program_, random, {"put-back", origin, "--yes"}, inFolder(random));
    if (!done.findings.empty()) return done.findings;
    const auto after = snapshotOf(random);
    tally_.putBack += after.contains(origin);
    const auto mayChange = [&](const std::string& path) {
        return (isInATrash(random, path) && !before.contains(path)) || isOwnSettings(random, path);
    };
    const auto trash = fs::path(random.machine.path(random.ground.trash));
    return losses(before, after, mayChange,
                  {fs::path(origin).parent_path(), trash, trash.parent_path() / "info"});
}

Findings Trial::uninstall(RandomMachine& random, Verb verb) {
    const Words words = {"uninstall", "com.example.notes"};
    if (!random.machine.has("/Applications/Notes.app")) return {};
    const auto plan = ask(program_, random, words, inFolder(random));
    if (!plan.findings.empty()) return plan.findings;
    std::vector<std::string> wanted = {random.machine.path("/Applications/Notes.app")};
    for (const auto& leftover : listAt(plan.document, "leftovers"))
        if (auto path = leftover.textAt("path")) wanted.push_back(*path);
    const auto before = snapshotOf(random);
    const auto done = ask(program_, random, {words[0], words[1], "--yes"}, inFolder(random),
                          momentOfKill(random, verb));
    tally_.kills += done.wasKilled;
    if (!done.findings.empty()) return done.findings;
    const auto after = snapshotOf(random);
    tally_.uninstalled += !after.contains(wanted.front());
    auto findings = checkMoves(random, before, after, wanted);
    return done.wasKilled && findings.empty() ? uninstall(random, Verb::uninstall) : findings;
}

}  // namespace tidewell::test

#include "platform/posix/bundle_applications.h"

#include <map>
#include <set>

#include "platform/bundle.h"
#include "platform/path_text.h"
#include "platform/posix/menu_entries.h"
#include "platform/posix/process_table.h"

namespace tidewell::posix {

namespace {

/// The innermost bundle whose "Contents/MacOS" holds the executable; empty if there is none.
std::string bundleHolding(std::string_view executable) {
    constexpr std::string_view extension = ".app";
    constexpr std::string_view inside = ".app/Contents/MacOS/";
    const auto at = executable.rfind(inside);
    return std::string(at == std::string_view::npos ? std::string_view{}
                                                    : executable.substr(0, at + extension.size()));
}

/// Info dictionaries hold their flags as booleans, numbers and texts alike.
bool isSet(const Value* flag) {
    if (!flag) return false;
    if (flag->boolean()) return *flag->boolean();
    if (flag->integer()) return *flag->integer() != 0;
    constexpr std::string_view yes = "1yYtT";
    return flag->text() && !flag->text()->empty() && yes.find(flag->text()->front()) != yes.npos;
}

std::optional<std::string> bundleName(const Bundle& bundle, std::string_view path) {
    for (const auto* key : {"CFBundleDisplayName", "CFBundleName"})
        if (auto name = bundle.info.textAt(key); name && !name->empty()) return name;
    auto name = lastPathComponent(path);
    name.remove_suffix(std::string_view(".app").size());
    return name.empty() ? std::nullopt : std::optional(std::string(name));
}

RunningApplication bundleApplication(const ProcessIdentity& process, const std::string& path) {
    auto bundle = readBundle(path).value_or(Bundle{});
    const bool isBackground =
        isSet(bundle.info.find("LSUIElement")) || isSet(bundle.info.find("LSBackgroundOnly"));
    return {.process = process,
            .name = bundleName(bundle, path),
            .bundleIdentifier = std::move(bundle.identifier),
            .bundlePath = path,
            .activationPolicy =
                isBackground ? ActivationPolicy::background : ActivationPolicy::regular};
}

RunningApplication entryApplication(const ProcessIdentity& process, const MenuEntry& entry) {
    return {.process = process,
            .name = entry.name,
            .bundleIdentifier = entry.id,
            .bundlePath = std::nullopt,
            .activationPolicy = ActivationPolicy::regular};
}

/// What runs on a machine, sorted out by what each process is a part of.
class ApplicationList {
 public:
    explicit ApplicationList(const Host& host) : root_(host.root) {
        if (host.root != "/") return;
        for (auto& entry : menuEntries(host)) entries_.emplace(entry.executable, entry);
    }

    /// What a bundle starts itself is started later, so that of its processes the first counts.
    std::vector<RunningApplication> applications() const {
        std::vector<RunningApplication> result;
        std::set<std::string> seen;
        for (const auto& process : ownProcesses()) {
            const auto owner = ownerOf(process);
            if (!owner.empty() && seen.insert(owner).second)
                result.push_back(application(process, owner));
        }
        return result;
    }

 private:
    /// The bundle or the executable of the entry that a process belongs to, empty if to none.
    std::string ownerOf(const Process& process) const {
        if (!isBelow(process.executable, root_)) return {};
        auto bundle = bundleHolding(process.executable);
        if (!bundle.empty()) return bundle;
        return entries_.contains(process.executable) ? process.executable : std::string();
    }
    RunningApplication application(const Process& process, const std::string& owner) const {
        const auto entry = entries_.find(owner);
        return entry != entries_.end() ? entryApplication(process.identity, entry->second)
                                       : bundleApplication(process.identity, owner);
    }

    std::string root_;
    std::map<std::string, MenuEntry> entries_;  ///< by executable; of several, the first
};

}  // namespace

std::vector<RunningApplication> bundleApplications(const Host& host) {
    return ApplicationList(host).applications();
}

}  // namespace tidewell::posix

#include "platform/removal_lock.h"

#include "platform/path_text.h"

namespace tidewell {

namespace {

UserDefaults passesOf(const Host& host) {
    return UserDefaults(joinPath(host.configurationDirectory, "selfcheck"));
}

std::string passOf(const Host& host) {
    return "passed by " + host.ownBundle.version + " on " + systemRelease();
}

}  // namespace

Removals removalsOn(const Host& host, MakersTrial trial) {
    const bool isTried = trial == MakersTrial::done || passesOf(host).boolean(passOf(host));
    return isTried ? Removals::free : Removals::locked;
}

UserDefaults::Written unlockRemovals(const Host& host) {
    return passesOf(host).setBoolean(passOf(host), true);
}

}  // namespace tidewell

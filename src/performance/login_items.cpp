#include "performance/login_items.h"

#include <algorithm>

#include "platform/collation.h"

namespace tidewell {

namespace {

std::vector<LoginItem> foundOn(const Host& host) {
    switch (host.system) {
        case System::macOS:
            return macOSLoginItems(host);
        case System::linux:
            return linuxLoginItems(host);
    }
    return {};
}

}  // namespace

std::vector<LoginItem> loginItems(const Host& host) {
    auto items = foundOn(host);
    std::ranges::stable_sort(items, [](const LoginItem& left, const LoginItem& right) {
        return compareForPeople(left.label, right.label) < 0;
    });
    return items;
}

}  // namespace tidewell

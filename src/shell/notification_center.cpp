#include "shell/notification_center.h"

#include <utility>

namespace tidewell {

NotificationCenter::Registration NotificationCenter::observe(std::string_view name,
                                                             Observer observer) {
    auto registration = std::make_shared<const Observer>(std::move(observer));
    observers_[std::string(name)].push_back(registration);
    return registration;
}

void NotificationCenter::post(std::string_view name, const std::optional<std::string>& object) {
    const auto found = observers_.find(name);
    if (found == observers_.end()) return;
    std::erase_if(found->second, [](const auto& observer) { return observer.expired(); });
    const auto observers = found->second;  // an observer may register another
    for (const auto& observer : observers)
        if (const auto call = observer.lock()) (*call)(object);
}

}  // namespace tidewell

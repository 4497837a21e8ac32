#include "devmode/developer_machine.h"

#include <algorithm>
#include <string_view>

#include "devmode/knowledge/knowledge.h"
#include "platform/files.h"

namespace tidewell {

bool isDeveloperMachine(const Host& host) {
    return std::ranges::any_of(devKnowledge(host.system).signs, [&host](std::string_view place) {
        return fileExists(host.locate(place));
    });
}

}  // namespace tidewell

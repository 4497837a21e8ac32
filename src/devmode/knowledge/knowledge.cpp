#include "devmode/knowledge/knowledge.h"

namespace tidewell {

DevKnowledge devKnowledge(System system) {
    switch (system) {
        case System::macOS:
            return macOSDevKnowledge();
        case System::linux:
            return linuxDevKnowledge();
    }
    return {};
}

}  // namespace tidewell

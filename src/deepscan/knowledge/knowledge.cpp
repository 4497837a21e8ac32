#include "deepscan/knowledge/knowledge.h"

namespace tidewell {

DeepScanKnowledge deepScanKnowledge(System system) {
    switch (system) {
        case System::macOS:
            return macOSDeepScanKnowledge();
        case System::linux:
            return linuxDeepScanKnowledge();
    }
    return macOSDeepScanKnowledge();
}

}  // namespace tidewell

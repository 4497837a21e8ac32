#include "platform/system.h"

namespace tidewell {

System ownSystem() {
    return System::linux;
}

}  // namespace tidewell

#include "platform/removal_lock.h"

namespace tidewell {

MakersTrial makersTrial() {
    return MakersTrial::done;
}

}  // namespace tidewell

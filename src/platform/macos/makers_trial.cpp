#include "platform/removal_lock.h"

namespace tidewell {

MakersTrial makersTrial() {
    return MakersTrial::outstanding;
}

}  // namespace tidewell

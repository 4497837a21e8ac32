#pragma once

#include "async/executor.h"
#include "async/observable.h"

namespace tidewell {

/// Calls `operation` of `object` in a turn of its own each time the program has come to the front.
/// The subscription is a member of the object; the object, held by a shared_ptr, may be gone by
/// that turn.
template <class Object>
[[nodiscard]] Subscription onActivation(Signal& didBecomeActive, Object& object,
                                        void (Object::*operation)()) {
    return didBecomeActive.subscribe([&object, operation] {
        Executor::main().post([weak = object.weak_from_this(), operation] {
            if (const auto kept = weak.lock()) (kept.get()->*operation)();
        });
    });
}

}  // namespace tidewell

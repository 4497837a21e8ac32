#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/host.h"

namespace tidewell {

/// Lets one user run the program's window once for each machine: a later start hands what it was
/// told to the first, and ends. Only the user's own processes are heard. Where the system has no
/// place for this, every start is the first.
class SingleInstance {
 public:
    enum class Role { first, later };
    enum class Delivery { taken, failed };
    enum class Reach { open, none };

    explicit SingleInstance(const Host& host);
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;
    /// The next start is the first again.
    ~SingleInstance();

    Role role() const;
    /// For the first start: from now on `received` gets each message, on a thread of its own. Tells
    /// whether any can come.
    Reach listen(std::function<void(std::string message)> received);
    /// For a later start: blocks until the first has the message, a few seconds at most.
    Delivery send(const std::string& message) const;

 private:
    struct Link;
    std::unique_ptr<Link> link_;
};

}  // namespace tidewell

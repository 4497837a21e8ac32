#pragma once

#include <string>
#include <vector>

#include "platform/byte_count.h"
#include "platform/host.h"

namespace tidewell {

/// The model folder of a local AI tool. It may hold what the user built or trained, so it is shown
/// and never touched: nothing that removes accepts one.
struct AIModelStore {
    std::string id;    ///< its path
    std::string tool;  ///< "Ollama models"
    ByteCount sizeBytes = 0;
    std::string note;  ///< what it may hold

    const std::string& path() const { return id; }
    bool operator==(const AIModelStore&) const = default;
};

/// The sizes of all stores together.
ByteCount totalBytes(const std::vector<AIModelStore>& stores);

/// What a store must occupy to be shown.
inline constexpr ByteCount aiModelMinimumSize = ByteCount{500} * 1024 * 1024;

constexpr bool isWorthShowing(ByteCount storeSize) {
    return storeSize >= aiModelMinimumSize;
}

/// Finds the model stores of local AI tools, largest first, one at most for each tool: the first of
/// its places that exists, whatever the others hold. Blocks; any thread but the main one. What is
/// missing or unreadable is passed over.
class AIModelScanner {
 public:
    explicit AIModelScanner(Host host);
    std::vector<AIModelStore> scan() const;

 private:
    Host host_;
};

}  // namespace tidewell

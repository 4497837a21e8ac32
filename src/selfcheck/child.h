#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/trial_ground.h"

namespace tidewell::selfcheck {

// What another process does on the ground, since it is to be killed, or to mount something.

enum class ChildEnd {
    done,
    killed,
    notTried,  ///< with the reason
};

struct ChildRun {
    ChildEnd end = ChildEnd::notTried;
    std::string why;
};

/// Parts that a child may play, each on the machine of its name.
inline constexpr std::string_view removalPart = "removal";  ///< dies at an entry, by its number
inline constexpr std::string_view writePart = "write";      ///< dies while it moves one item
inline constexpr std::string_view movesPart = "moves";      ///< dies after so many microseconds
inline constexpr std::string_view returnsPart = "returns";  ///< the same when putting back
inline constexpr std::string_view mountsPart = "mounts";

// What these machines have, by paths in the home folder.

inline constexpr auto trialCache = ".cache/trial";
inline constexpr auto mountedFolder = "Other/Work";
inline constexpr const char* mountPlaces[] = {".cache/whole", ".cache/trial/mounted",
                                              ".cache/trial/in/it/mounted"};
inline constexpr auto personalPlace = ".cache/personal";
inline constexpr std::size_t itemsMoved = 60;
std::string itemNumber(std::size_t number);

/// Starts this program once more for one part, on `machine` of the ground, and waits for its end.
ChildRun playInChild(const TrialGround& ground, std::string_view machine, std::string_view part,
                     std::int64_t moment = 0);

/// What that process does; `word` is what it was given. Says why it could not, or nothing.
std::string play(const std::string& groundPath, std::string_view word);

}  // namespace tidewell::selfcheck

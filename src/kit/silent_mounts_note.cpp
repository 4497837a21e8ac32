#include "kit/silent_mounts_note.h"

namespace tidewell {

std::optional<std::string> silentMountsNote(const std::vector<std::string>& places) {
    if (places.empty()) return std::nullopt;
    std::string note;
    for (const auto& place : places) note += (note.empty() ? "" : ", ") + place;
    return note + (places.size() == 1 ? " does not answer and was left out."
                                      : " do not answer and were left out.");
}

}  // namespace tidewell

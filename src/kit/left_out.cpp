#include "kit/left_out.h"

#include "kit/count_text.h"
#include "kit/words.h"
#include "platform/unread_things.h"

namespace tidewell {

std::optional<std::string> silentMountsNote(const std::vector<std::string>& places) {
    if (places.empty()) return std::nullopt;
    std::string note;
    for (const auto& place : places) note += (note.empty() ? "" : ", ") + place;
    return note + (places.size() == 1 ? " does not answer and was left out."
                                      : " do not answer and were left out.");
}

std::optional<std::string> unreadNote(const LeftOut& leftOut, System system) {
    const auto count = leftOut.unreadFolders;
    const auto ending = wordsOf(system).couldNotBeRead;
    if (count == 0 || ending.empty()) return std::nullopt;
    const auto folders = count < UnreadThings::most
                             ? countText(static_cast<std::int64_t>(count), "folder")
                             : std::string("Thousands of folders");
    return folders + " " + std::string(ending);
}

std::optional<std::string> leftOutNote(const LeftOut& leftOut, System system) {
    const auto silent = silentMountsNote(leftOut.silentMounts);
    const auto unread = unreadNote(leftOut, system);
    if (silent && unread) return *silent + " " + *unread;
    return silent ? silent : unread;
}

}  // namespace tidewell

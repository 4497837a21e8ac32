#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cleanup/deletion_guard.h"
#include "deepscan/big_item.h"
#include "deepscan/folder_knowledge.h"
#include "platform/host.h"

namespace tidewell {

/// What a thing is to the user, by all that the program knows.
enum class MapVerdict {
    ticked,       ///< a row of Clean or Dev Mode takes it, and the row is ticked by itself
    review,       ///< a row takes it, once the user has looked
    rebuildable,  ///< made or loaded again by the program it belongs to
    appData,      ///< may hold sign-ins and settings
    personal,     ///< the user's own
    other,
};

inline constexpr std::size_t mapVerdictCount = 6;

/// The tool that has a row for a thing.
enum class RowTool { none, clean, devMode };

/// A verdict, and the sentence about the thing itself: a row's, a fact's or a rule's.
struct PlaceVerdict {
    MapVerdict verdict = MapVerdict::other;
    std::string sentence = {};  ///< may be empty
    std::string row = {};       ///< the title of the row that takes it; empty if there is none
    RowTool tool = RowTool::none;
    BigItem::Kind kind = BigItem::Kind::other;  ///< what may be done with it, as with a big item
};

/// All that the program knows of a path, whether something stands there or not.
struct PlaceKnowledge {
    BigItem::Kind kind = BigItem::Kind::other;
    std::optional<FolderKnowledge::Fact> fact;
    std::vector<std::string> claimedBy;  ///< ids of the rows whose paths cover it
    DeletionRule rule = DeletionRule::outsideHome;
    PlaceVerdict verdict;
};

/// Why the guard decides so: a sentence about the thing.
std::string_view reason(DeletionRule rule);

/// Answers for one machine at one moment: what the rows would work on, and what must stay, is
/// looked up on the disk when it is made. What it has looked up of a folder it keeps: one thread at
/// a time, and not the main one.
class PlaceJudge {
 public:
    explicit PlaceJudge(const Host& host);
    ~PlaceJudge();

    PlaceKnowledge know(const std::string& path);
    /// That part of it alone, which costs less; `real` is where it lies, by no link.
    PlaceVerdict verdict(const std::string& path, const std::string& real);

 private:
    struct Rows;

    /// The fact about a path, or about the innermost folder around it of which one is known.
    struct Nearest {
        FolderKnowledge::Fact fact;
        bool isOfTool = false;  ///< about a tool's own disks or models
    };

    PlaceKnowledge judged(const std::string& path, const std::optional<std::string>& real);
    PlaceVerdict judge(const std::string& path, const PlaceKnowledge& known);
    std::optional<Nearest> nearestFact(std::string_view path);
    std::optional<Nearest> factAbout(std::string_view path) const;

    Host host_;
    std::unique_ptr<const Rows> rows_;
    DeletionGuard guard_;
    std::unique_ptr<const KeptPlaces> kept_;
    std::map<std::string, std::vector<std::string>, std::less<>> folderNames_;
    std::map<std::string, std::optional<Nearest>, std::less<>> nearest_;  ///< of folders
};

}  // namespace tidewell

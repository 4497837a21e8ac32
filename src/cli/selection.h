#pragma once

#include <set>
#include <string>
#include <variant>
#include <vector>

#include "cleanup/item_selection.h"
#include "cli/context.h"

namespace tidewell::cli {

enum class Preselection { safe, all, none };

/// Which items of a scan a call wants ticked.
struct SelectionWish {
    Preselection preselection = Preselection::safe;
    std::vector<std::string> only;  ///< exactly these, whatever `preselection` says
    std::vector<std::string> also;  ///< these too
};

/// The place of the one entry that an id names: by its bytes, else as JSON shows it if that is
/// unambiguous. A wrong call otherwise. `what` is the word for an entry in the sentence.
std::variant<std::size_t, WrongCall> findById(const std::vector<std::string>& ids,
                                              const std::string& wanted, std::string_view what);

/// The path that a word of a call names: absolute, standardised, through the home folder.
std::string namedPath(const std::string& word, const Host& host);

/// The ids to tick. Unknown ids are a wrong call.
std::variant<std::set<std::string>, WrongCall> selectedIds(const CleanupItems& items,
                                                           const SelectionWish& wish);

}  // namespace tidewell::cli

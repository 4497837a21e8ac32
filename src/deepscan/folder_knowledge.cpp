#include "deepscan/folder_knowledge.h"

#include "cleanup/table_paths.h"
#include "deepscan/knowledge/knowledge.h"
#include "platform/path_text.h"

namespace tidewell {

std::optional<FolderKnowledge::Fact> FolderKnowledge::fact(std::string_view path,
                                                           const Host& host) {
    const auto known = deepScanKnowledge(host.system);
    const auto name = lastPathComponent(path);
    for (const auto& folder : known.names)
        if (name == folder.name) return folder.fact;
    for (const auto& folder : known.parts)
        if (name.find(folder.name) != std::string_view::npos) return folder.fact;
    for (const auto& folder : known.places)
        if (covers(folder.name, host, path)) return folder.fact;
    return std::nullopt;
}

}  // namespace tidewell

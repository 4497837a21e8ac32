#include "platform/path_text.h"

#include <algorithm>

namespace tidewell {

std::string standardizedPath(std::string_view path) {
    if (path.empty()) return {};
    const bool isAbsolute = path.front() == '/';
    std::vector<std::string_view> kept;
    for (const auto piece : pathPieces(path)) {
        if (piece == ".") continue;
        if (piece != "..") {
            kept.push_back(piece);
        } else if (!kept.empty() && kept.back() != "..") {
            kept.pop_back();
        } else if (!isAbsolute) {
            kept.push_back(piece);
        }
    }
    std::string result;
    for (const auto piece : kept) {
        if (isAbsolute || !result.empty()) result += '/';
        result += piece;
    }
    if (result.empty()) return isAbsolute ? "/" : ".";
    return result;
}

std::vector<std::string_view> pathPieces(std::string_view path) {
    std::vector<std::string_view> pieces;
    while (!path.empty()) {
        const auto end = std::min(path.find('/'), path.size());
        if (end > 0) pieces.push_back(path.substr(0, end));
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return pieces;
}

std::string_view lastPathComponent(std::string_view path) {
    const auto slash = path.rfind('/');
    return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

std::string_view parentPath(std::string_view path) {
    const auto slash = path.rfind('/');
    if (slash == std::string_view::npos) return {};
    return path.substr(0, slash == 0 ? 1 : slash);
}

std::string joinPath(std::string_view folder, std::string_view name) {
    std::string result(folder);
    if (!result.ends_with('/')) result += '/';
    return result += name;
}

bool isBelow(std::string_view path, std::string_view folder) {
    if (folder == "/") return path.size() > 1 && path.front() == '/';
    return path.size() > folder.size() && path.starts_with(folder) && path[folder.size()] == '/';
}

bool isAtOrBelow(std::string_view path, std::string_view folder) {
    return path == folder || isBelow(path, folder);
}

std::string_view pathRelativeTo(std::string_view path, std::string_view folder) {
    if (!isBelow(path, folder)) return path;
    return path.substr(folder == "/" ? 1 : folder.size() + 1);
}

std::size_t extensionPosition(std::string_view name) {
    const auto dot = name.rfind('.');
    return dot == std::string_view::npos || dot == 0 ? name.size() : dot;
}

std::string_view pathExtension(std::string_view path) {
    const auto name = lastPathComponent(path);
    const auto position = extensionPosition(name);
    return position == name.size() ? std::string_view{} : name.substr(position + 1);
}

std::string_view nameWithoutExtension(std::string_view path) {
    const auto name = lastPathComponent(path);
    return name.substr(0, extensionPosition(name));
}

std::string lowerCased(std::string_view text) {
    std::string result(text);
    for (char& character : result)
        if (character >= 'A' && character <= 'Z') character = static_cast<char>(character + 32);
    return result;
}

}  // namespace tidewell

#include "support/sample_machine.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <bit>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "platform/path_text.h"

namespace tidewell::test {

namespace fs = std::filesystem;

namespace {

void makeParent(const std::string& path) {
    fs::create_directories(fs::path(path).parent_path());
}

void writeText(const std::string& path, std::string_view content) {
    makeParent(path);
    std::ofstream(path, std::ios::binary) << content;
}

std::vector<const char*> foldersOf(System system) {
    switch (system) {
        case System::macOS:
            return {"/Users/ada", "/Users/Shared",         "/Applications",
                    "/Library",   "/var/folders/zz/ada/T", "/var/folders/zz/ada/C"};
        case System::linux:
            return {"/home/ada/.cache", "/home/ada/.config", "/home/ada/.local/share", "/usr"};
    }
    return {};
}

std::string infoDictionary(const std::vector<std::pair<std::string, std::string>>& info) {
    std::string text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n";
    for (const auto& [key, value] : info)
        text += "<key>" + key + "</key><string>" + value + "</string>\n";
    return text + "</dict>\n</plist>\n";
}

}  // namespace

SampleMachine::SampleMachine(System system) {
    folder_.emplace();
    layOut(folder_->path(), system);
}

SampleMachine::SampleMachine(const std::string& root, System system) {
    if (!fs::create_directory(root)) throw std::runtime_error(root + " is there already");
    layOut(root, system);
}

void SampleMachine::layOut(const std::string& root, System system) {
    for (const auto* folder : foldersOf(system)) fs::create_directories(root + folder);
    auto found = findHost({.root = root});
    if (!found.host) throw std::runtime_error(found.problem);
    host_ = std::move(*found.host);
    host_.ownBundle.website = "https://tidewell.example/";
}

void SampleMachine::folder(std::string_view machinePath) const {
    fs::create_directories(path(machinePath));
}

void SampleMachine::file(std::string_view machinePath, ByteCount allocated) const {
    const auto where = path(machinePath);
    makeParent(where);
    const int file = ::open(where.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (file < 0 || (allocated > 0 && ::posix_fallocate(file, 0, allocated) != 0))
        throw std::runtime_error("cannot make " + where);
    ::close(file);
}

void SampleMachine::text(std::string_view machinePath, std::string_view content) const {
    writeText(path(machinePath), content);
}

void SampleMachine::link(std::string_view machinePath, const std::string& target) const {
    const auto where = path(machinePath);
    makeParent(where);
    fs::create_symlink(target, where);
}

void SampleMachine::tool(std::string_view machinePath, std::string_view script) const {
    const auto where = path(machinePath);
    writeText(where, "#!/bin/sh\n" + std::string(script));
    fs::permissions(where, fs::perms(0755));
}

void SampleMachine::application(std::string_view machinePath,
                                const std::vector<std::pair<std::string, std::string>>& info,
                                ByteCount allocated) const {
    const auto contents = std::string(machinePath) + "/Contents/";
    text(contents + "Info.plist", infoDictionary(info));
    const auto name = nameWithoutExtension(machinePath);
    file(contents + "MacOS/" + std::string(name), allocated);
}

void SampleMachine::age(std::string_view machinePath, int days) const {
    const auto then = fs::file_time_type::clock::now() - std::chrono::hours(24) * days;
    fs::last_write_time(path(machinePath), then);
}

void SampleMachine::lastUsed(std::string_view machinePath, int days) const {
    const auto then = std::chrono::system_clock::now() - std::chrono::hours(24) * days;
    const std::int64_t stamp[2] = {std::chrono::system_clock::to_time_t(then), 0};
    static_assert(std::endian::native == std::endian::little);
    if (::lsetxattr(path(machinePath).c_str(), "user.com.apple.lastuseddate#PS", stamp,
                    sizeof stamp, 0) != 0)
        throw std::runtime_error("this file system keeps no extended attributes");
}

void SampleMachine::remove(std::string_view machinePath) const {
    const auto where = path(machinePath);
    if (!isBelow(where, root())) throw std::runtime_error("not of this machine: " + where);
    fs::remove_all(where);
}

bool SampleMachine::has(std::string_view machinePath) const {
    return fs::exists(fs::symlink_status(path(machinePath)));
}

std::string SampleMachine::contentOf(std::string_view machinePath) const {
    std::ostringstream content;
    content << std::ifstream(path(machinePath), std::ios::binary).rdbuf();
    return content.str();
}

}  // namespace tidewell::test

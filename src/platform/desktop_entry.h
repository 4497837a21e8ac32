#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/host.h"

namespace tidewell {

// What programs tell a desktop of themselves, by the freedesktop.org Desktop Entry rules. The files
// are anybody's: whatever they name is looked up on the machine and never obeyed. Any thread.

/// The group "[Desktop Entry]" of a file; what it does not say is absent or as the rules have it.
/// Names are the ones without a language.
struct DesktopEntry {
    std::string type;
    std::optional<std::string> name;
    std::string exec;  ///< a command line, unescaped but not taken apart
    std::string tryExec;
    std::string icon;
    std::string startupWMClass;
    std::vector<std::string> onlyShowIn;
    std::vector<std::string> notShowIn;
    bool isHidden = false;          ///< counts as if there were no such entry
    bool isShownInMenus = true;     ///< what "NoDisplay" says the other way round
    bool startsWithSession = true;  ///< what "X-GNOME-Autostart-enabled" says
};

DesktopEntry parseDesktopEntry(std::string_view text);

/// Reads the entry in a file; absent if that is missing, unreadable or longer than a megabyte.
std::optional<DesktopEntry> readDesktopEntry(const std::string& path);

/// The words of a command line, quotes taken off, without field codes such as "%U".
std::vector<std::string> commandWords(std::string_view exec);

/// Where a program lies that a file of the machine names, with links resolved: an absolute path on
/// that machine, or a bare name looked up in the folders of programs. Absent if there is none that
/// can be started, or if it really lies outside the machine.
std::optional<std::string> namedProgram(const Host& host, std::string_view word);

/// "python3.11" is "python": whether a program's work is to run another, so that it says nothing
/// about what such a process is.
bool isLauncher(std::string_view program);

/// The folders of the user and of the machine in which programs put their data, the user's first.
/// On the user's own machine the environment is asked for the others.
std::vector<std::string> dataFolders(const Host& host);

/// The same for settings: {config} and then what the system has.
std::vector<std::string> settingFolders(const Host& host);

/// What the desktop of this session goes by, such as "ubuntu" and "GNOME"; none where nobody knows,
/// as on a machine that lies in a folder.
std::vector<std::string> sessionDesktops(const Host& host);

/// An entry where it stands.
struct EntryFile {
    std::string id;    ///< "org.example.Paint", without the file's extension
    std::string path;  ///< on this disk
    DesktopEntry entry;
};

/// The entries of applications, hidden ones too, in ascending order of their files, folder by
/// folder. An entry of the user's own stands for the system's of its name.
std::vector<EntryFile> applicationEntries(const Host& host);

}  // namespace tidewell

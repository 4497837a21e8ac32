#include "support/linux_desktop.h"

#include <string>

namespace tidewell::test {

namespace {

struct SampleFile {
    const char* path;
    ByteCount size;
};

/// Caches with a row of their own.
constexpr SampleFile caches[] = {
    {"~/.npm/_cacache/content-v2/sha512/aa/one", 60 * megabyte},
    {"~/.cache/yarn/v6/one", 38 * megabyte},
    {"~/.cache/pip/http-v2/one", 53 * megabyte},
    {"~/.cache/uv/archive-v0/one", 46 * megabyte},
    {"~/.cache/pypoetry/cache/repositories/one", 18 * megabyte},
    {"~/.cache/go-build/00/one", 52 * megabyte},
    {"~/.cache/ccache/0/one", 43 * megabyte},
    {"~/.cargo/registry/cache/index/serde.crate", 49 * megabyte},
    {"~/.gradle/caches/modules-2/files/kotlin.jar", 47 * megabyte},
    {"~/.m2/repository/org/example/1.0/one.jar", 40 * megabyte},
    {"~/.cache/ms-playwright/chromium-1100/chrome", 49 * megabyte},
    {"~/.cache/JetBrains/IdeaIC2026.1/caches/content.dat", 54 * megabyte},
    {"~/.cache/google-chrome/Default/Cache/Cache_Data/data_0", 54 * megabyte},
    {"~/.config/google-chrome/Default/Code Cache/js/one", 31 * megabyte},
    {"~/.config/google-chrome/Profile 1/Service Worker/CacheStorage/one", 24 * megabyte},
    {"~/.config/google-chrome/OptGuideOnDeviceModel/weights.bin", 55 * megabyte},
    {"~/.cache/mozilla/firefox/ab12.default/cache2/entries/one", 47 * megabyte},
    {"~/snap/chromium/common/.cache/chromium/Default/Cache/one", 20 * megabyte},
    {"~/.var/app/org.mozilla.firefox/cache/mozilla/firefox/cd34.default/one", 30 * megabyte},
    {"~/.config/Slack/Cache/Cache_Data/data_1", 25 * megabyte},
    {"~/.config/discord/Cache/Cache_Data/data_1", 22 * megabyte},
    {"~/.config/Code/CachedData/1a2b/one", 33 * megabyte},
    {"~/.cache/spotify/Data/00/one.file", 41 * megabyte},
    {"~/.local/share/Steam/steamapps/shadercache/440/fozpipelinesv6/one", 58 * megabyte},
    {"~/.local/share/TelegramDesktop/tdata/user_data/media_cache/0/one", 38 * megabyte},
    {"~/.cache/thumbnails/large/one.png", 27 * megabyte},
    {"~/.cache/mesa_shader_cache_db/one", 33 * megabyte},
    {"~/.cache/yay/tides/src/one", 23 * megabyte},
    {"~/.local/share/Trash/files/old film.mkv", 46 * megabyte},
};

/// What the sweeps find, what they leave, and what only looks like a cache.
constexpr SampleFile sweptFolders[] = {
    {"~/.cache/fontconfig/one", 2 * megabyte},
    {"~/.cache/some-tool/index", 44 * megabyte},
    {"~/.cache/marked-tool/objects", 29 * megabyte},
    {"~/.var/app/org.example.Maps/cache/tiles/one", 26 * megabyte},
    {"~/.var/app/org.example.Maps/cache/tmp/work", 1 * megabyte},
    {"~/.cache/rclone/vfs/remote/still to upload.doc", 43 * megabyte},
    {"~/.cache/pypoetry/virtualenvs/app-py3.12/lib/one", 47 * megabyte},
    {"~/.cache/JetBrains/IdeaIC2026.1/LocalHistory/changes.storage", 9 * megabyte},
    {"~/.cache/spotify/Storage/download", 7 * megabyte},
    {"~/.cache/huggingface/hub/models--tiny/blob", 52 * megabyte},
    {"~/.cache/huggingface/token", 4 * kilobyte},
    {"~/.cache/keepassxc/keepassxc.ini", 4 * kilobyte},
};

/// Programs with their data.
constexpr SampleFile programs[] = {
    {"~/.config/google-chrome/Default/History", 96 * megabyte},
    {"~/.mozilla/firefox/ab12.default/places.sqlite", 91 * megabyte},
    {"~/.thunderbird/ef56.default/Mail/Local Folders/Inbox", 128 * megabyte},
    {"~/.config/Signal/attachments.noindex/00/one", 88 * megabyte},
    {"~/.config/Code/User/workspaceStorage/one/state.vscdb", 84 * megabyte},
    {"~/.vscode/extensions/one/bundle.js", 112 * megabyte},
    {"~/.local/share/Steam/steamapps/common/Tides/tides.pak", 292 * megabyte},
    {"~/.local/share/Steam/steamapps/compatdata/440/pfx/drive_c/save.dat", 108 * megabyte},
    {"~/.local/share/Steam/ubuntu12_32/steam-runtime.tar", 120 * megabyte},
    {"~/.wine/drive_c/Program Files/Ledger/ledger.exe", 105 * megabyte},
    {"~/.local/share/flatpak/app/org.example.Maps/x86_64/stable/one", 110 * megabyte},
    {"~/.local/share/flatpak/runtime/org.example.Platform/one", 145 * megabyte},
    {"~/.local/share/flatpak/repo/objects/00/one", 130 * megabyte},
    {"~/.var/app/org.example.Maps/data/maps/europe", 120 * megabyte},
    {"~/snap/chromium/common/chromium/Default/History", 85 * megabyte},
    {"~/.local/share/JetBrains/Toolbox/apps/idea/one", 172 * megabyte},
    {"~/.rustup/toolchains/stable/lib/one", 148 * megabyte},
    {"~/.pyenv/versions/3.12.1/lib/one", 110 * megabyte},
    {"~/go/pkg/mod/example.org/tides@v1.0.0/tides.go", 90 * megabyte},
    {"~/.local/share/containers/storage/overlay/0a/diff/one", 138 * megabyte},
    {"~/.local/share/gnome-boxes/images/machine", 150 * megabyte},
    {"~/.ollama/models/blobs/sha256-tiny", 510 * megabyte},
    {"~/.local/state/some-tool/log", 2 * megabyte},
    {"~/.local/bin/helper", 3 * megabyte},
};

constexpr SampleFile projects[] = {
    {"~/Code/webapp/package.json", 4 * kilobyte},
    {"~/Code/webapp/src/index.ts", 12 * kilobyte},
    {"~/Code/webapp/node_modules/left-pad/index.js", 104 * megabyte},
    {"~/Code/engine/Cargo.toml", 4 * kilobyte},
    {"~/Code/engine/target/debug/engine", 114 * megabyte},
    {"~/Code/game/project.godot", 4 * kilobyte},
    {"~/Code/game/.godot/imported/one", 22 * megabyte},
    {"~/Code/tool/CMakeLists.txt", 4 * kilobyte},
    {"~/Code/tool/cmake-build-debug/tool", 41 * megabyte},
    {"~/Documents/x/venv/notes.txt", 1 * megabyte},
    {"~/Documents/build/my only novel.txt", 1 * megabyte},
};

/// The user's own, which no tool may lose.
constexpr SampleFile personal[] = {
    {"~/Documents/Thesis/thesis.tex", 2 * megabyte},
    {"~/Videos/summer.mkv", 158 * megabyte},
    {"~/Pictures/2026/one.raw", 96 * megabyte},
    {"~/Music/Albums/one.flac", 120 * megabyte},
    {"~/backup.img", 120 * megabyte},
    {"~/.ssh/id_ed25519", 4 * kilobyte},
    {"~/.gnupg/private-keys-v1.d/one.key", 4 * kilobyte},
    {"~/.local/share/keyrings/login.keyring", 4 * kilobyte},
    {"~/.cargo/credentials.toml", 4 * kilobyte},
    {"~/.password-store/mail.gpg", 4 * kilobyte},
    {"~/.mozilla/firefox/ab12.default/logins.json", 2 * megabyte},
    {"~/Templates/letter.odt", 100 * kilobyte},
    {"~/.cargo/bin/ripgrep", 5 * megabyte},
};

struct SampleInstaller {
    const char* path;
    ByteCount size;
    int days;
};

constexpr SampleInstaller installers[] = {
    {"~/Downloads/debian.iso", 108 * megabyte, 3},
    {"~/Downloads/editor_1.2_amd64.deb", 90 * megabyte, 45},
    {"~/Downloads/Sketch.AppImage", 112 * megabyte, 400},
    {"~/Downloads/tiny.deb", 2 * megabyte, 10},
};

/// In the order of their names in German, as the desktop wrote them when the account was made.
constexpr const char* userFolders =
    "XDG_DESKTOP_DIR=\"$HOME/Desktop\"\nXDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n"
    "XDG_DOWNLOAD_DIR=\"$HOME/Downloads\"\nXDG_VIDEOS_DIR=\"$HOME/Videos\"\n";

template <std::size_t count>
void addFiles(const SampleMachine& machine, const SampleFile (&files)[count]) {
    for (const auto& file : files) machine.file(file.path, file.size);
}

void addApplications(const SampleMachine& machine) {
    machine.text("/usr/share/applications/tides.desktop",
                 "[Desktop Entry]\nType=Application\nName=Tides\nExec=/usr/bin/tides\n");
    machine.tool("/usr/bin/tides", "exec sleep 600\n");
    machine.text("/var/lib/dpkg/status",
                 "Package: tides\nStatus: install ok installed\nVersion: 2.4-1\n"
                 "Installed-Size: 48211\n");
    machine.text("/var/lib/dpkg/info/tides.list", "/usr/share/applications/tides.desktop\n");
    machine.tool("/usr/bin/apt-get",
                 "[ \"$3\" = remove ] || exit 0\necho 'Remv tides [2.4-1]'; echo 'Remv tides-data "
                 "[2.4-1]'\n");
    machine.file("/var/cache/apt/archives/tides_2.4-1_amd64.deb", 41 * megabyte);
    machine.tool("/usr/bin/podman", "echo '[{\"Size\":412000000}]'\n");
    machine.file("~/.cache/tides/charts", 11 * megabyte);
    machine.file("~/.config/tides/harbours", 1 * megabyte);
    constexpr auto atlas = "~/.local/share/flatpak/app/org.example.Atlas";
    machine.file(atlas + std::string("/x86_64/stable/1f2e/files/atlas"), 96 * megabyte);
    machine.text(atlas + std::string("/x86_64/stable/1f2e/export/share/applications/"
                                     "org.example.Atlas.desktop"),
                 "[Desktop Entry]\nType=Application\nName=Atlas\n");
    machine.link(atlas + std::string("/x86_64/stable/active"), "1f2e");
    machine.link(atlas + std::string("/current"), "x86_64/stable");
    machine.tool("/usr/bin/flatpak", "exit 0\n");
    machine.file("~/.var/app/org.example.Atlas/data/maps", 37 * megabyte);
    machine.text("~/Downloads/Sketch-2.1.AppImage", std::string("\x7F"
                                                                "ELF\2\1\1\0AI\2",
                                                                11));
    machine.text("~/.local/share/applications/painter.desktop",
                 "[Desktop Entry]\nType=Application\nName=Painter\n"
                 "Exec=/home/ada/.local/opt/painter/painter\n");
    machine.tool("~/.local/opt/painter/painter", "exec sleep 600\n");
    machine.file("~/.config/painter/brushes", 2 * megabyte);
    machine.file("~/.cache/painter/tiles", 7 * megabyte);
    machine.text("~/.config/autostart/painter.desktop",
                 "[Desktop Entry]\nType=Application\nName=Painter's helper\n"
                 "Exec=/home/ada/.local/opt/painter/painter --tray\n");
}

/// Links where following one would lose something, and names that are no text.
void addTraps(const SampleMachine& machine) {
    machine.link("~/Dokumente", "Documents");
    machine.link("~/.yarn", machine.path("~/Documents/Thesis"));
    machine.link("~/.cache/home", machine.home());
    machine.link("~/Code/shortcut", machine.path("~/Documents/Thesis"));
    machine.link("~/Code/webapp/node_modules/.bin", machine.path("~/Documents"));
    machine.link("~/.cache/linked", machine.path("~/Pictures"));
    machine.link("~/.cache/nowhere", "/does/not/exist");
    machine.link("~/.config/google-chrome/Profile 2", machine.path("~/Documents"));
    machine.link("~/snap/chromium/current", "2890");
    machine.link("~/.config/Slack/SingletonLock", "elsewhere-4242");
    machine.file("~/.cache/odd\nname/data", 2 * megabyte);
    machine.file("~/.cache/\xff\xfe/data", 1 * megabyte);
    machine.folder("~/.cache/empty/only/folders");
}

}  // namespace

void furnishLinuxDesktop(const SampleMachine& machine) {
    addFiles(machine, caches);
    addFiles(machine, sweptFolders);
    addFiles(machine, programs);
    addFiles(machine, projects);
    addFiles(machine, personal);
    for (const auto& installer : installers) {
        machine.file(installer.path, installer.size);
        machine.age(installer.path, installer.days);
    }
    machine.text("~/.cache/marked-tool/CACHEDIR.TAG",
                 "Signature: 8a477f597d28d172789f06886806bc55\n");
    machine.text("~/.local/share/Trash/info/old film.mkv.trashinfo",
                 "[Trash Info]\nPath=/home/ada/Videos/old%20film.mkv\n"
                 "DeletionDate=2026-10-01T12:00:00\n");
    machine.text("~/.config/user-dirs.dirs", userFolders);
    machine.text("~/.cache/pypoetry/virtualenvs/app-py3.12/pyvenv.cfg", "home = /usr/bin\n");
    addApplications(machine);
    addTraps(machine);
}

}  // namespace tidewell::test

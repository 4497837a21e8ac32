#include "linux_sample_machine.h"

namespace {

using tidewell::ByteCount;
using tidewell::test::kilobyte;
using tidewell::test::megabyte;
using tidewell::test::SampleMachine;

struct SampleFile {
    const char* path;
    ByteCount size;
};

/// What programs make again by themselves, natively, as a snap and as a flatpak.
constexpr SampleFile caches[] = {
    {"~/.npm/_cacache/content-v2/sha512/aa/one", 61 * megabyte},
    {"~/.cargo/registry/cache/index/serde.crate", 9 * megabyte},
    {"~/.gradle/caches/modules-2/files/kotlin.jar", 44 * megabyte},
    {"~/.cache/pip/http/one", 27 * megabyte},
    {"~/.cache/go-build/aa/object", 38 * megabyte},
    {"~/.cache/ccache/0/object", 24 * megabyte},
    {"~/.cache/google-chrome/Default/Cache/Cache_Data/data_0", 120 * megabyte},
    {"~/.cache/mozilla/firefox/ab12.default/cache2/entries/one", 74 * megabyte},
    {"~/.cache/thumbnails/large/one.png", 12 * megabyte},
    {"~/.cache/mesa_shader_cache/aa/one", 8 * megabyte},
    {"~/.cache/spotify/Data/one", 33 * megabyte},
    {"~/.cache/JetBrains/IdeaIC2024.1/caches/content", 55 * megabyte},
    {"~/.config/Code/CachedData/one", 33 * megabyte},
    {"~/.config/Slack/Cache/data_1", 26 * megabyte},
    {"~/.var/app/org.videolan.VLC/cache/art/one", 6 * megabyte},
    {"~/snap/firefox/common/.cache/mozilla/firefox/cd34/cache2/one", 19 * megabyte},
    {"~/.local/share/Steam/appcache/httpcache/one", 15 * megabyte},
    {"~/.local/share/Trash/files/old-movie.mkv", 52 * megabyte},
};

/// What lies among the caches and cannot be had again.
constexpr SampleFile keptCaches[] = {
    {"~/.cache/rclone/vfs/drive/not-uploaded-yet.odt", 3 * megabyte},
    {"~/.cache/keepassxc/keepassxc.ini", 4 * kilobyte},
    {"~/.cache/pypoetry/virtualenvs/app-py3/bin/python", 14 * megabyte},
    {"~/.cache/spotify/Storage/offline-album", 40 * megabyte},
    {"~/.cache/JetBrains/IdeaIC2024.1/LocalHistory/changes.storageData", 5 * megabyte},
    {"~/.cache/huggingface/token", 4 * kilobyte},
};

constexpr SampleFile projects[] = {
    {"~/src/webapp/package.json", 4 * kilobyte},
    {"~/src/webapp/node_modules/left-pad/index.js", 48 * megabyte},
    {"~/src/engine/Cargo.toml", 4 * kilobyte},
    {"~/src/engine/target/debug/engine", 85 * megabyte},
    {"~/src/lab/pyproject.toml", 4 * kilobyte},
    {"~/src/lab/.venv/bin/python", 16 * megabyte},
    {"~/Documents/build/my only novel.txt", 1 * megabyte},
};

/// The user's own and what unlocks it, which no tool may lose.
constexpr SampleFile personal[] = {
    {"~/Documents/Thesis/thesis.tex", 2 * megabyte},
    {"~/Videos/summer/summer.mkv", 260 * megabyte},
    {"~/Pictures/2026/1.heic", 96 * megabyte},
    {"~/Templates/letter.odt", 100 * kilobyte},
    {"~/.ssh/id_ed25519", 4 * kilobyte},
    {"~/.gnupg/private-keys-v1.d/one.key", 4 * kilobyte},
    {"~/.local/share/keyrings/login.keyring", 4 * kilobyte},
    {"~/.mozilla/firefox/ab12.default/logins.json", 2 * megabyte},
    {"~/.config/google-chrome/Default/History", 18 * megabyte},
    {"~/.password-store/mail.gpg", 4 * kilobyte},
};

/// Big things that no cleaning rule knows about.
constexpr SampleFile bigThings[] = {
    {"~/.local/share/Steam/steamapps/common/Tides/data.pak", 310 * megabyte},
    {"~/.local/share/Steam/steamapps/compatdata/42/pfx/save.dat", 90 * megabyte},
    {"~/.local/share/containers/storage/overlay/one/diff/layer", 130 * megabyte},
    {"~/.local/share/gnome-boxes/images/debian", 240 * megabyte},
    {"~/.wine/drive_c/Program Files/Game/game.exe", 95 * megabyte},
    {"~/.ollama/models/blobs/sha256-tiny", 510 * megabyte},
    {"~/Downloads/debian-12.iso", 101 * megabyte},
    {"~/Downloads/editor_amd64.deb", 84 * megabyte},
    {"~/backup-of-everything.tar", 150 * megabyte},
};

constexpr const char* trashInfo =
    "[Trash Info]\nPath=/home/ada/Videos/old-movie.mkv\nDeletionDate=2026-10-01T10:20:30\n";

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

/// Links in all the places where following one would lose something, and names that are no text.
void addTraps(const SampleMachine& machine) {
    machine.link("~/Dokumente", "Documents");
    machine.link("~/src/shortcut", machine.path("~/Documents/Thesis"));
    machine.link("~/.cache/home", machine.home());
    machine.link("~/.cache/nowhere", "/does/not/exist");
    machine.link("~/.yarn", machine.path("~/Documents/Thesis"));
    machine.file("~/.cache/odd\nname/data", 2 * megabyte);
    machine.file("~/.cache/\xff\xfe/data", 1 * megabyte);
}

}  // namespace

void furnishLinuxDesktop(const SampleMachine& machine) {
    addFiles(machine, caches);
    addFiles(machine, keptCaches);
    addFiles(machine, projects);
    addFiles(machine, personal);
    addFiles(machine, bigThings);
    machine.text("~/.local/share/Trash/info/old-movie.mkv.trashinfo", trashInfo);
    machine.text("~/.config/user-dirs.dirs", userFolders);
    addApplications(machine);
    addTraps(machine);
}

#include <array>

#include "cleanup/cleanup_model.h"
#include "cleanup/target_catalogue.h"
#include "deepscan/knowledge/knowledge.h"
#include "platform/files.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

using Verdict = FolderKnowledge::Verdict;

constexpr auto places = std::to_array<KnownFolder>({
    {"{data}/Steam/steamapps/common",
     {Verdict::mixed,
      "An installed game. Steam can download it again; remove it from within Steam."}},
    {"{data}/Steam/steamapps/compatdata",
     {Verdict::keepUserData,
      "What a Windows game keeps on its own disk. Save games live here, and not all of them are in "
      "the cloud."}},
    {"{data}/Steam/userdata",
     {Verdict::keepUserData, "Steam's own save games, screenshots and controller settings."}},
    {"{data}/Steam",
     {Verdict::mixed,
      "Steam itself, its games and your sign-in. Its caches are cleared from the Caches tab "
      "instead."}},
    {"~/.var/app/com.valvesoftware.Steam",
     {Verdict::mixed, "Steam as a flatpak: its games, save games and your sign-in."}},
    {"~/.wine",
     {Verdict::keepUserData,
      "Windows programs that run under Wine, with their documents and save games."}},
    {"{data}/bottles",
     {Verdict::keepUserData, "Windows programs that Bottles runs, with what they have saved."}},
    {"~/.var/app/com.usebottles.bottles",
     {Verdict::keepUserData, "Windows programs that Bottles runs, with what they have saved."}},
    {"{data}/lutris",
     {Verdict::mixed, "Lutris with its runners. Games it installed may keep their saves here."}},
    {"~/Games",
     {Verdict::mixed, "Games, often with their saves inside. Remove them from their launcher."}},
    {"~/.mozilla",
     {Verdict::keepUserData,
      "Firefox's profiles: logins, bookmarks, history. Don't delete; the Caches tab clears its "
      "cache instead."}},
    {"~/.var/app/org.mozilla.firefox",
     {Verdict::keepUserData,
      "Firefox's profiles: logins, bookmarks, history. Don't delete; the Caches tab clears its "
      "cache instead."}},
    {"~/snap/firefox",
     {Verdict::keepUserData,
      "Firefox's profiles: logins, bookmarks, history. Don't delete; the Caches tab clears its "
      "cache instead."}},
    {"~/.thunderbird",
     {Verdict::keepUserData,
      "Thunderbird's mail, address books and accounts. Mail in local folders is nowhere else."}},
    {"~/.var/app/org.mozilla.Thunderbird",
     {Verdict::keepUserData,
      "Thunderbird's mail, address books and accounts. Mail in local folders is nowhere else."}},
    {"~/snap/thunderbird",
     {Verdict::keepUserData,
      "Thunderbird's mail, address books and accounts. Mail in local folders is nowhere else."}},
    {"{config}/google-chrome*",
     {Verdict::keepUserData,
      "Chrome's profiles: logins, saved passwords, bookmarks, extensions. Don't delete; the Caches "
      "tab clears its caches instead."}},
    {"{config}/chromium",
     {Verdict::keepUserData,
      "Chromium's profiles: logins, saved passwords, bookmarks, extensions. Don't delete."}},
    {"~/snap/chromium",
     {Verdict::keepUserData,
      "Chromium's profiles: logins, saved passwords, bookmarks, extensions. Don't delete."}},
    {"{config}/BraveSoftware",
     {Verdict::keepUserData,
      "Brave's profiles: logins, saved passwords, bookmarks, wallets. Don't delete."}},
    {"{config}/microsoft-edge*",
     {Verdict::keepUserData,
      "Edge's profiles: logins, saved passwords, bookmarks, extensions. Don't delete."}},
    {"{config}/vivaldi*",
     {Verdict::keepUserData,
      "Vivaldi's profiles: logins, bookmarks, notes and mail. Don't delete."}},
    {"{config}/opera*",
     {Verdict::keepUserData, "Opera's profile: logins, bookmarks, history. Don't delete."}},
    {"{config}/Code*",
     {Verdict::mixed,
      "VS Code settings, unsaved files and sign-in. Its caches are cleared from the Caches tab "
      "instead."}},
    {"~/.vscode",
     {Verdict::mixed, "Extensions of VS Code. They can be installed again, with their settings."}},
    {"{config}/discord",
     {Verdict::mixed,
      "Discord's sign-in and settings. Its cache is cleared from the Caches tab instead."}},
    {"{config}/Signal",
     {Verdict::keepUserData,
      "Signal's messages and keys. Messages are on this computer and your phone only."}},
    {"{data}/TelegramDesktop",
     {Verdict::mixed, "Telegram's sign-in and settings; secret chats are nowhere else."}},
    {"~/.android/avd",
     {Verdict::mixed,
      "Android emulators with all that is installed on them. Remove one in Android Studio's device "
      "manager."}},
    {"~/.android",
     {Verdict::mixed,
      "Android emulators, and the keys that sign your apps. Manage them in Android Studio."}},
    {"~/Android/Sdk",
     {Verdict::mixed,
      "The Android SDK. It can be downloaded again with Android Studio and holds nothing of "
      "yours."}},
    {"~/.minecraft",
     {Verdict::keepUserData, "Minecraft with its worlds. Worlds are nowhere else."}},
    {"~/.rustup",
     {Verdict::mixed,
      "Rust toolchains. `rustup toolchain list` names them; `rustup toolchain uninstall` removes "
      "one."}},
    {"~/.cargo",
     {Verdict::mixed,
      "Rust programs that you installed, credentials, and downloads that the Caches tab clears."}},
    {"~/.pyenv",
     {Verdict::mixed,
      "Python versions with the packages installed in them. `pyenv uninstall` removes one."}},
    {"~/.nvm",
     {Verdict::mixed, "Node.js versions with their global packages. `nvm uninstall` removes one."}},
    {"~/.sdkman", {Verdict::mixed, "Java versions and build tools. `sdk uninstall` removes one."}},
    {"{data}/JetBrains/Toolbox",
     {Verdict::mixed, "IDEs that JetBrains Toolbox installed. Remove one from within Toolbox."}},
    {"{data}/JetBrains",
     {Verdict::mixed,
      "Plugins and IDEs of JetBrains. Remove them from within Toolbox or the IDE."}},
    {"{config}/JetBrains",
     {Verdict::keepUserData, "Settings, scratch files and keymaps of JetBrains IDEs."}},
    {"{cache}/JetBrains",
     {Verdict::mixed,
      "Indexes of JetBrains IDEs, and the local history of your files, which is nowhere else. The "
      "Caches tab clears the indexes alone."}},
    {"{data}/flatpak",
     {Verdict::mixed,
      "Applications and runtimes that flatpak installed for you. `flatpak uninstall` removes "
      "them."}},
    {"{data}/Nextcloud",
     {Verdict::mixed, "Nextcloud's state. Synced files may wait here to be uploaded."}},
    {"~/Nextcloud",
     {Verdict::keepUserData,
      "Files that Nextcloud syncs. What is deleted here is deleted on the server as well."}},
    {"~/Dropbox",
     {Verdict::keepUserData,
      "Files that Dropbox syncs. What is deleted here is deleted on all your devices."}},
    {"~/.dropbox-dist",
     {Verdict::systemRecreated, "The Dropbox program itself. It downloads itself again."}},
    {"{config}/rclone",
     {Verdict::keepUserData, "rclone's remotes with their passwords. Don't delete."}},
    {"{cache}/rclone",
     {Verdict::keepUserData,
      "Files that rclone mounts have taken in. Some may still wait to be uploaded."}},
    {"~/Zotero", {Verdict::keepUserData, "Your Zotero library with its attachments and notes."}},
    {"{data}/evolution",
     {Verdict::keepUserData,
      "Evolution's mail, calendars and contacts. Mail in local folders is nowhere else."}},
    {"{cache}/evolution",
     {Verdict::mixed, "Mail that Evolution has fetched. What waits to be sent may be here too."}},
    {"{data}/akonadi", {Verdict::keepUserData, "Mail, calendars and contacts of KDE's programs."}},
    {"{data}/local-mail",
     {Verdict::keepUserData, "KMail's local folders. This mail is nowhere else."}},
    {"{data}/baloo",
     {Verdict::systemRecreated,
      "The index of KDE's file search. It is made again, which takes a while."}},
    {"{cache}/tracker3",
     {Verdict::systemRecreated,
      "The index of GNOME's file search. It is made again, which takes a while."}},
    {"{cache}/thumbnails",
     {Verdict::safeToClear, "Small previews that the file manager draws again."}},
    {"{cache}/huggingface",
     {Verdict::mixed,
      "Downloaded model weights, and your login token. Dev Mode clears the weights alone."}},
    {"{cache}/torch",
     {Verdict::mixed, "Pretrained weights. Downloaded again when a model needs them."}},
    {"{cache}/pypoetry",
     {Verdict::mixed,
      "Poetry's downloads and the virtual environments of your projects. The Caches tab clears the "
      "downloads alone."}},
    {"{cache}/borg",
     {Verdict::mixed,
      "What Borg knows of your backups. Without it the next backup reads everything again."}},
    {"~/.ollama",
     {Verdict::mixed,
      "Models of Ollama, pulled or built by you, and its key. `ollama rm` removes one."}},
    {"~/go",
     {Verdict::mixed,
      "Go programs that you installed, and downloaded modules, which `go clean -modcache` "
      "removes."}},
    {"~/.m2",
     {Verdict::mixed, "Maven's settings and its repository, which the Caches tab can clear."}},
    {"~/.gradle", {Verdict::mixed, "Gradle's settings, and caches that the Caches tab clears."}},
    {"~/.npm", {Verdict::mixed, "npm's cache, which the Caches tab clears."}},
    {"~/.local/lib",
     {Verdict::mixed, "Python packages that you installed with pip. Programs may need them."}},
    {"{data}/gnome-shell", {Verdict::mixed, "Extensions of your desktop."}},
    {"{data}/kwalletd", {Verdict::keepUserData, "Passwords. Don't delete."}},
    {"{data}/keyrings", {Verdict::keepUserData, "Passwords. Don't delete."}},
});

constexpr auto roots = std::to_array<std::string_view>({
    "{cache}",
    "{config}",
    "{data}",
    "{state}",
    "~/.var/app",
    "{data}/flatpak/app",
    "{data}/Steam/steamapps/common",
    "{data}/Steam/steamapps/compatdata",
});

constexpr std::array<std::string_view, 1> homeRootExclusions = {"Applications"};

constexpr std::string_view programAdvice =
    "It is the program itself: keep it while you still use it.";

constexpr auto installerTypes = std::to_array<InstallerType>({
    {"iso", "Disc image", InstallerSign::file},
    {"deb", "Installer package", InstallerSign::file},
    {"rpm", "Installer package", InstallerSign::file},
    {"flatpak", "Installer package", InstallerSign::file},
    {"snap", "Installer package", InstallerSign::file},
    {"msi", "Windows installer", InstallerSign::file},
    {"run", "Self-extracting installer", InstallerSign::shellArchive},
    {"exe", "Windows installer", InstallerSign::setupProgram},
    {"img", "Disk image", InstallerSign::diskImage,
     "Safe to trash once you've written it where it belongs."},
    {"appimage", "AppImage", InstallerSign::file, programAdvice},
    {"", "AppImage", InstallerSign::appImage, programAdvice},
});

constexpr auto engines = std::to_array<ContainerEngine>({
    {
        .name = "Podman",
        .detect = {"{data}/containers/storage"},
        .measure = {"{data}/containers/storage"},
        .reveal = {"{data}/containers/storage"},
        .note = "Images, containers and volumes of Podman. Free room from inside Podman; deleting "
                "this folder breaks it and loses your volumes.",
        .command = "podman system prune",
    },
    {
        .name = "Podman machine",
        .detect = {"{data}/containers/podman/machine"},
        .measure = {"{data}/containers/podman/machine"},
        .reveal = {"{data}/containers/podman/machine"},
        .note = "The disk of Podman's virtual machine, with all its images and containers. Free "
                "room from inside Podman.",
        .command = "podman system prune",
    },
    {
        .name = "Docker",
        .detect = {"{data}/docker"},
        .measure = {"{data}/docker"},
        .reveal = {"{data}/docker"},
        .note = "Images, containers and volumes of your own Docker. Free room from inside Docker; "
                "deleting this folder loses your volumes.",
        .command = "docker system prune",
    },
    {
        .name = "Docker Desktop",
        .detect = {"~/.docker/desktop"},
        .measure = {"~/.docker/desktop"},
        .reveal = {"~/.docker/desktop/vms/0/data", "~/.docker/desktop"},
        .note = "The disk of Docker Desktop's virtual machine: every image, container and volume. "
                "Free room from inside Docker, don't delete this file.",
        .command = "docker system prune",
    },
    {
        .name = "minikube",
        .detect = {"~/.minikube"},
        .measure = {"~/.minikube"},
        .reveal = {"~/.minikube/machines", "~/.minikube"},
        .note = "minikube's clusters and downloads. Free room from inside the cluster; deleting a "
                "machine loses what runs in it.",
        .command = "minikube ssh -- docker system prune",
    },
    {
        .name = "Vagrant",
        .detect = {"~/.vagrant.d/boxes"},
        .measure = {"~/.vagrant.d/boxes"},
        .reveal = {"~/.vagrant.d/boxes"},
        .note = "Boxes that Vagrant makes machines from. Old versions can go from inside Vagrant; "
                "running machines may be built on them.",
        .command = "vagrant box prune",
    },
    {
        .name = "libvirt",
        .detect = {"{data}/libvirt/images"},
        .measure = {"{data}/libvirt/images"},
        .reveal = {"{data}/libvirt/images"},
        .note = "Disks of virtual machines. Remove a machine in the virtual machine manager; "
                "deleting a disk loses everything in it.",
        .command = std::nullopt,
    },
    {
        .name = "GNOME Boxes",
        .detect = {"{data}/gnome-boxes"},
        .measure = {"{data}/gnome-boxes"},
        .reveal = {"{data}/gnome-boxes/images", "{data}/gnome-boxes"},
        .note = "Disks of virtual machines. Remove a machine from within Boxes; deleting a disk "
                "loses everything in it.",
        .command = std::nullopt,
    },
    {
        .name = "GNOME Boxes (flatpak)",
        .detect = {"~/.var/app/org.gnome.Boxes"},
        .measure = {"~/.var/app/org.gnome.Boxes"},
        .reveal = {"~/.var/app/org.gnome.Boxes/data/gnome-boxes/images",
                   "~/.var/app/org.gnome.Boxes"},
        .note = "Disks of virtual machines. Remove a machine from within Boxes; deleting a disk "
                "loses everything in it.",
        .command = std::nullopt,
    },
    {
        .name = "VirtualBox",
        .detect = {"~/VirtualBox VMs"},
        .measure = {"~/VirtualBox VMs"},
        .reveal = {"~/VirtualBox VMs"},
        .note = "VirtualBox's machines with their disks and snapshots. Remove one from within "
                "VirtualBox; deleting a disk loses everything in it.",
        .command = std::nullopt,
    },
    {
        .name = "Lima",
        .detect = {"~/.lima"},
        .measure = {"~/.lima"},
        .reveal = {"~/.lima"},
        .note = "Lima's virtual machines. Free room from inside the machine; deleting a disk loses "
                "everything in it.",
        .command = std::nullopt,
    },
    {
        .name = "Colima",
        .detect = {"~/.colima"},
        .measure = {"~/.colima"},
        .reveal = {"~/.colima"},
        .note = "The disk of Colima's virtual machine. Free room from inside; deleting it loses "
                "your Docker images and containers.",
        .command = "docker system prune",
    },
});

/// The engines' places, and the Trash, which Clean shows.
constexpr auto walkExclusions = std::to_array<std::string_view>({
    "{data}/containers/storage",
    "{data}/containers/podman/machine",
    "{data}/docker",
    "~/.docker/desktop",
    "~/.minikube",
    "~/.vagrant.d/boxes",
    "{data}/libvirt/images",
    "{data}/gnome-boxes",
    "~/.var/app/org.gnome.Boxes",
    "~/VirtualBox VMs",
    "~/.lima",
    "~/.colima",
    "{data}/Trash",
    "~/.Trash",
});

/// Whether a row that is ticked by itself names the path or something above it.
bool isRebuiltCache(std::string_view path, const Host& host) {
    for (const auto& row : catalogueOf(host.system).rows) {
        if (row.kind != TargetKind::plain || row.safety != SafetyLevel::safe) continue;
        if (claims(row, path, host)) return true;
    }
    return false;
}

bool isApplicationData(std::string_view path, const Host& host) {
    const auto& bases = host.baseFolders;
    for (const auto* base : {&bases.cache, &bases.config, &bases.data, &bases.state})
        if (isBelow(path, *base)) return true;
    const auto top = pathPieces(host.relativeToHome(path)).front();
    return top.starts_with('.') || top == "snap";
}

BigItem::Kind classify(std::string_view path, const Host& host, const KeptEntries& kept) {
    if (!isBelow(path, host.home)) return BigItem::Kind::other;
    if (personalFolderOf(path, kept)) return BigItem::Kind::personal;
    if (isRebuiltCache(path, host)) return BigItem::Kind::cache;
    const bool liesInHome = parentPath(path) == host.home;
    if (liesInHome && fileKind(std::string(path)) == FileKind::other)
        return BigItem::Kind::personal;
    if (isApplicationData(path, host)) return BigItem::Kind::appData;
    const auto name = lastPathComponent(path);
    if (isArtifactFolderName(name) || isBuildFolderName(name)) return BigItem::Kind::rebuildable;
    return BigItem::Kind::other;
}

}  // namespace

DeepScanKnowledge linuxDeepScanKnowledge() {
    return {.names = {},
            .parts = {},
            .places = places,
            .roots = roots,
            .homeRootExclusions = homeRootExclusions,
            .homeEntries = HomeEntries::listed,
            .topEntries = TopEntries::goUnlessRoots,
            .trash = TrashInList::listed,
            .classify = classify,
            .installers = installerTypes,
            .nested = NestedInstallers::partOfTheirFolder,
            .engines = engines,
            .walkExclusions = walkExclusions,
            .unreadNote = "Some of it could not be read and is missing from the figure."};
}

}  // namespace tidewell

#!/bin/bash
# contents.sh SOURCES BUILD: the Debian package made of a build holds what it should and no more, its
# parts name each other rightly, and it asks for all that the window loads. Prints what is off.
set -euo pipefail

sources=$1
build=$2
work=$(mktemp -d)
trap 'rm -rf -- "$work"' EXIT
desktop=$sources/packaging/io.tidewell.Tidewell.desktop
metainfo=$sources/packaging/io.tidewell.Tidewell.metainfo.xml

complain() {
    [ -z "$*" ] || printf '%s\n' "$*" | tee -a "$work/complaints"
}

field() {
    dpkg-deb --field "$work"/*.deb "$1"
}

(cd "$build" && cpack -B "$work" >"$work/log" 2>&1) || {
    cat "$work/log"
    exit 1
}

cat >"$work/expected" <<END
-rw-r--r-- root/root usr/share/applications/io.tidewell.Tidewell.desktop
-rw-r--r-- root/root usr/share/bash-completion/completions/tidewell
-rw-r--r-- root/root usr/share/bash-completion/completions/tidewell-cli
-rw-r--r-- root/root usr/share/doc/tidewell/changelog.gz
-rw-r--r-- root/root usr/share/doc/tidewell/copyright
-rw-r--r-- root/root usr/share/icons/hicolor/scalable/apps/io.tidewell.Tidewell.svg
-rw-r--r-- root/root usr/share/lintian/overrides/tidewell
-rw-r--r-- root/root usr/share/man/man1/tidewell-cli.1.gz
-rw-r--r-- root/root usr/share/man/man1/tidewell.1.gz
-rw-r--r-- root/root usr/share/metainfo/io.tidewell.Tidewell.metainfo.xml
-rw-r--r-- root/root usr/share/zsh/vendor-completions/_tidewell
-rw-r--r-- root/root usr/share/zsh/vendor-completions/_tidewell-cli
-rwxr-xr-x root/root usr/bin/tidewell
-rwxr-xr-x root/root usr/bin/tidewell-cli
END
dpkg-deb --contents "$work"/*.deb | awk '!/^d/ { sub("^\\./", "", $6); print $1, $2, $6 }' |
    LC_ALL=C sort >"$work/contents"
complain "$(diff "$work/expected" "$work/contents")"

complain "$(desktop-file-validate "$desktop")"
appstreamcli validate --no-net "$metainfo" >"$work/log" || complain "$(cat "$work/log")"
grep -q "<release version=\"$(field Version)\"" "$metainfo" ||
    complain "the metainfo tells nothing of release $(field Version)"
# The desktop tells whose window it is by this name.
grep -qF "setDesktopFileName(\"$(basename "$desktop" .desktop)\")" \
    "$sources/src/shell/qt/main.cpp" || complain "the window names another desktop file"
scheme=$(sed -n 's/.*urlScheme = "\(.*\)";/\1/p' "$sources/src/shell/opened_url.h")
grep -qx "MimeType=x-scheme-handler/$scheme;" "$desktop" ||
    complain "the desktop file does not take the program's URLs"

# Modules are loaded while the window runs: no tool finds them in the program.
depends=", $(field Depends), "
modules=$(grep -rhE '^import Qt' "$sources/src" --include='*.qml' | awk '{ print $2 }' | sort -u)
for module in $modules; do
    package=qml6-module-$(tr . - <<<"${module,,}")
    [[ $depends == *", $package, "* ]] || complain "$module is imported, and $package not asked for"
done

[ ! -e "$work/complaints" ]

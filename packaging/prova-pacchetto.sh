#!/bin/bash
# Tries the Debian package on a Debian 12 with nothing on it, in a folder of its own: prova-pacchetto.sh PACKAGE.deb
# Installs it, starts the editor from its desktop entry, opens a template by its file type, edits and saves it, upgrades,
# purges, and looks for what stays behind. Needs root and the network. docs/installare.md has the table of what it saw.
# shellcheck disable=SC2016 # the formats of apt-get and dpkg-query look like variables
set -euo pipefail
package=$(realpath "$1")
[ "$(id -u)" -eq 0 ] || { echo "prova-pacchetto.sh: only root can set up a system in a folder" >&2; exit 2; }
cd "$(dirname "$0")/.."
passed=0
failed=0

base=$(mktemp -d)
root=$base/radice
# What still runs in the folder: killing what started it would leave it behind.
end_all() {
  local place
  for place in /proc/[0-9]*; do
    [ "$(readlink "$place/root")" != "$root" ] || kill "${place#/proc/}" 2>/dev/null || true
  done
}
clean() {
  end_all
  for place in proc dev/pts; do
    ! mountpoint -q "$root/$place" || umount -l "$root/$place"
  done
  rm -rf --one-file-system "$base"
}
trap clean EXIT

# expect WHAT EXPECTED ACTUAL
expect() {
  if [ "$2" = "$3" ]; then
    passed=$((passed + 1))
    echo "seen: $1"
  else
    failed=$((failed + 1))
    echo "FAILED: $1: \"$3\", and not \"$2\"" >&2
  fi
}
inside() {
  chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"
}
apt() {
  inside apt-get -qq -y --no-install-recommends "$@" >>"$base/apt.log" 2>&1 || { tail -n 20 "$base/apt.log" >&2; exit 1; }
}
# as_user COMMAND...: at the display, as a person who is not root.
as_user() {
  inside setpriv --reuid=prova --regid=prova --init-groups env HOME=/home/prova USER=prova DISPLAY=":${display:-0}" \
    XDG_RUNTIME_DIR=/tmp/prova bash -c 'cd && "$@"' bash "$@"
}
# window TITLE: waits for a window with that title (a pattern).
window() {
  local waited
  for ((waited = 0; waited < 120; waited++)); do
    if as_user xdotool search --onlyvisible --name "$1" >"$base/finestra" 2>&1; then
      echo there
      return
    fi
    sleep 0.5
  done
  { echo "No window \"$1\" but:"; as_user xdotool search --onlyvisible --name . getwindowname %@ || true
    cat "$base/editore.log"; } >&2
  echo "not there"
}
keys() {
  as_user xdotool key --clearmodifiers --delay 60 "$@"
}
gone() {
  local waited
  for ((waited = 0; waited < 300; waited++)); do
    pgrep -x parvik32 >/dev/null || { echo gone; return; }
    sleep 0.1
  done
  echo "still there"
}
# All files, less what the package manager and the system's own caches write down.
files() {
  (cd "$root" && find . -xdev \( -path ./proc -o -path ./var/lib/dpkg -o -path ./var/lib/apt -o -path ./var/log -o -path ./var/cache \
    -o -path ./tmp -o -path ./home -o -path ./root \) -prune -o -print | sort)
}

echo "Setting up a Debian 12 ..."
mirror=$(apt-get indextargets --format '$(REPO_URI) $(CODENAME)' 'Created-By: Packages' | sed -n 's/ bookworm$//p' | head -n 1)
debootstrap --variant=minbase bookworm "$root" "$mirror" >"$base/debootstrap.log" ||
  { tail -n 5 "$base/debootstrap.log" >&2; exit 1; }
apt-config dump --format '%F "%v";%n' Acquire | grep -E '^Acquire::(Check|http|https)' >"$root/etc/apt/apt.conf.d/99host" || true
cp /etc/resolv.conf "$root/etc/resolv.conf"
mount -t proc proc "$root/proc"
apt update
# What a desktop has: a display, a window manager, the handlers of types and menus.
apt install xvfb openbox xdotool libglib2.0-bin shared-mime-info desktop-file-utils hicolor-icon-theme util-linux
inside useradd -m prova
mkdir -m 700 "$root/tmp/prova"
inside chown prova: /tmp/prova
files >"$base/prima"

cp "$package" "$root/tmp/ordavia.deb"
apt install /tmp/ordavia.deb
expect "installed" "install ok installed" "$(inside dpkg-query -W -f '${Status}' ordavia)"
expect "the batch program without a display" 22 \
  "$(as_user parvik32-batch --velkor /usr/share/doc/ordavia/examples/velkor tipi | wc -l)"
expect "manual page" there "$([ -e "$root/usr/share/man/it/man1/parvik32.1.gz" ] && echo there)"

inside Xvfb -displayfd 1 -noreset -screen 0 1280x1024x24 -nolisten tcp >"$base/schermo" 2>"$base/xvfb.log" &
while [ ! -s "$base/schermo" ]; do sleep 0.1; kill -0 $!; done
display=$(cat "$base/schermo")
as_user openbox >"$base/openbox.log" 2>&1 &
# A window that comes while the window manager starts may stay unmapped.
while ! as_user xdotool get_desktop >"$base/finestra" 2>&1; do sleep 0.1; kill -0 $!; done

as_user parvik32 --esempio velkor >"$base/editore.log" 2>&1 &
expect "started with a copy of the example" there "$(window '^Ordavia$')"
keys ctrl+q
expect "closed" gone "$(gone)"
expect "the example's copy" "12 files" "$(as_user find velkor -type f | grep -c 'D_IMG/') files"

as_user mkdir -p .config
printf '[AMBIENTE]\r\nDir velkor=/home/prova/velkor\r\n' | as_user tee .config/VELKOR.INI >"$base/ini"
entry=/usr/share/applications/org.ordavia.parvik32.desktop
command=$(sed -n 's/^Exec=\([^%]*\).*/\1/p' "$root$entry")
as_user sh -c "$command" >>"$base/editore.log" 2>&1 &
expect "started from its desktop entry's command" there "$(window '^Ordavia$')"
keys ctrl+q
expect "closed" gone "$(gone)"

template=velkor/D_IMG/FATT01.IMG
expect "type of a template" text/x-velkor-template \
  "$(as_user gio info -a standard::content-type $template | sed -n 's/.*content-type: //p')"
as_user gio open $template >>"$base/editore.log" 2>&1 &
expect "opened by its file type's command: the type is asked for" there "$(window '^Tipo Stampa$')"
keys Return
expect "the template in the window" there "$(window '^Ordavia - G/FATT01.IMG$')"
before=$(as_user sha256sum <"$root/home/prova/$template")
as_user xdotool type --delay 60 Prova
keys ctrl+s
for ((waited = 0; waited < 100; waited++)); do
  [ "$(head -c 5 "$root/home/prova/$template")" != Prova ] || break
  sleep 0.1
done
expect "edited and saved" "Prova" "$(head -c 5 "$root/home/prova/$template")"
expect "saved over what was there" other \
  "$([ "$before" = "$(as_user sha256sum <"$root/home/prova/$template")" ] && echo same || echo other)"
keys ctrl+q
expect "closed" gone "$(gone)"
expect "files of its own" "" "$(as_user find . -newer .config/VELKOR.INI -type f ! -path './velkor/*' ! -path './.cache/*')"

# The same, of a later version.
dpkg-deb -R "$package" "$base/nuovo"
sed -i 's/^Version: .*/&+1/' "$base/nuovo/DEBIAN/control"
dpkg-deb --root-owner-group -b "$base/nuovo" "$root/tmp/ordavia-nuova.deb" >"$base/log"
apt install /tmp/ordavia-nuova.deb
expect "upgraded" "$(sed -n 's/^Version: //p' "$base/nuovo/DEBIAN/control")" "$(inside dpkg-query -W -f '${Version}' ordavia)"

apt purge --autoremove ordavia
expect "purged" "" "$(inside dpkg-query -W -f '${Status}' ordavia 2>/dev/null || true)"
files >"$base/dopo"
expect "left behind" "" "$(comm -13 "$base/prima" "$base/dopo")"

echo "$passed passed, $failed failed"
[ $failed -eq 0 ]

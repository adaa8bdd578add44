#!/bin/bash
# SPDX-License-Identifier: Apache-2.0
# Installs a Debian package of the program with dpkg into a fresh Debian, uses it there as an ordinary user, and removes it.
# It needs root, debootstrap and a mirror, and takes some minutes: for the hand that makes a release, not part of the tests.
#
#     tests/system/dist/try_package.sh PACKAGE.deb [SUITE [FOLDER]]
#
# FOLDER holds the fresh Debian and stays, so that the next try is quick; without it a new one is made and removed.
set -eu -o pipefail

package=$(realpath "$1")
suite=${2:-bookworm}
root=${3:-}
mirror=${DEBIAN_MIRROR:-http://deb.debian.org/debian}

keep=true
if [ -z "$root" ]; then
    root=$(mktemp -d /var/tmp/lumen-desk-try.XXXXXX)
    keep=false
fi

end() {
    for mounted in dev proc; do
        if mountpoint -q "$root/$mounted"; then umount "$root/$mounted"; fi
    done
    if ! $keep; then rm -rf --one-file-system "$root"; fi
}
trap end EXIT

inside() {
    chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"
}

if [ ! -e "$root/etc/debian_version" ]; then
    debootstrap --variant=minbase "$suite" "$root" "$mirror" > /dev/null
fi
cp /etc/resolv.conf "$root/etc/resolv.conf"
printf '#!/bin/sh\nexit 101\n' > "$root/usr/sbin/policy-rc.d"
chmod +x "$root/usr/sbin/policy-rc.d"
mount -t proc proc "$root/proc"
mount --bind /dev "$root/dev"
cp "$package" "$root/tmp/package.deb"

inside apt-get -qq update
# dpkg installs it without what it needs and says so; apt then brings that.
inside dpkg -i /tmp/package.deb > /dev/null 2>&1 || true
inside apt-get -y -qq --no-install-recommends -f install > /dev/null
inside dpkg -s lumen-desk | grep -x 'Status: install ok installed'
inside getent group i2c
inside id person > /dev/null 2>&1 || inside useradd -m person

cat > "$root/tmp/use.sh" <<'USE'
set -eu
export XDG_RUNTIME_DIR=$HOME/run QT_QPA_PLATFORM=offscreen
mkdir -p -m 700 "$XDG_RUNTIME_DIR"
lumen-desk --version
lumen-desk --headless --simulate TK30Z --services simulated 2> "$HOME/log" &
desk=$!
until lumen-deskctl monitors > /dev/null 2>&1; do
    kill -0 $desk
    sleep 0.2
done
lumen-deskctl idle
lumen-deskctl monitors
lumen-deskctl set brightness.displayBrightness 33
lumen-deskctl idle
test "$(lumen-deskctl get brightness.displayBrightness)" = 33
lumen-deskctl quit
wait $desk
lumen-desk --simulate TK30Z --services simulated --screenshot "$HOME/window.png" 2>> "$HOME/log"
test -s "$HOME/window.png"
USE
inside su person -c 'sh /tmp/use.sh'

inside dpkg -r lumen-desk > /dev/null
left=$(inside find /usr /etc /var/lib -name '*lumen*' -not -path '/var/lib/dpkg/*')
if [ -n "$left" ]; then
    printf 'left behind:\n%s\n' "$left" >&2
    exit 1
fi
inside dpkg -P lumen-desk > /dev/null
test -e "$root/home/person/.config/lumen-desk" # what is the person's stays
echo "$(basename "$package"): installed, used and removed on $(inside cat /etc/debian_version)"

#!/usr/bin/env bash
# test_packages.sh FOLDER: tries the packages that lie in the folder in a fresh Debian 12, which is made
# for the purpose: they install by apt with what they depend on, work, and leave nothing when they are
# purged. Needs root.
set -euo pipefail

readonly packages=$1
root=$(mktemp -d)
readonly root
trap 'rm -rf "$root"' EXIT

say() {
    printf '==> %s\n' "$*"
}

# Runs a command in the fresh system, whose processes and mounts end with it.
inside() {
    # shellcheck disable=SC2016 # the inner shell expands them
    unshare --mount --pid --fork /bin/sh -c '
        root=$1; shift
        mount -t proc proc "$root/proc"
        exec chroot "$root" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 \
            DEBIAN_FRONTEND=noninteractive QT_QPA_PLATFORM=offscreen "$@"' inside "$root" "$@"
}

installed_files() {
    inside find /usr /etc -xdev -path '*kirto*' | sort
}

say "a fresh Debian 12"
mmdebstrap --quiet --variant=apt bookworm "$root" http://deb.debian.org/debian
mkdir "$root/packages"
cp "$packages"/kirto-cli_*.deb "$root/packages/kirto-cli.deb"
cp "$packages"/kirto_*.deb "$root/packages/kirto.deb"

inside apt-get update -qq

say "the command line alone"
inside apt-get install -qq -y --no-install-recommends /packages/kirto-cli.deb >/dev/null
inside kirto-cli --version
cp "$packages/walk.gif" "$root/tmp/walk.gif"
inside kirto-cli --quiet --open /tmp/walk.gif --reverse --save /tmp/back.gif
inside kirto-cli --quiet --open /tmp/back.gif --export /tmp/back.webp
inside kirto-cli --quiet --open /tmp/back.gif --select 0 --save-frame /tmp/frame.png
inside test -s /tmp/frame.png
inside kirto-cli --quiet --insert /tmp/frame.png --save /tmp/still.gif

say "the editor"
inside apt-get install -qq -y /packages/kirto.deb >/dev/null
inside kirto --screenshot /tmp/window.png /tmp/back.gif
inside test -s /tmp/window.png
inside test -s /usr/share/man/man1/kirto.1.gz || say "this system keeps no manual pages"
inside dpkg --audit

say "purging both"
inside apt-get purge -qq -y kirto kirto-cli >/dev/null
left=$(installed_files)
if [[ -n $left ]]; then
    printf 'left behind:\n%s\n' "$left" >&2
    exit 1
fi
say "nothing is left"

# shellcheck shell=bash
# SPDX-FileCopyrightText: Norvane contributors
# SPDX-License-Identifier: MIT
#
# The private Debian 13 root of systems whose own Qt is too old.

suite=trixie
cache=${XDG_CACHE_HOME:-$HOME/.cache}/norvane
keyring=/usr/share/keyrings/debian-archive-keyring.gpg

# One root for what everybody runs, one that also has the heavy tools, and a small one for the
# documentation, which needs neither Qt nor a compiler.
packages_of() {
    case " $* " in
    " docs ") needs docs ;;
    *" lint "* | *" bench "* | *" package "*) needs qt build desktop lint bench docs package && echo qt6-wayland ;;
    *) needs qt build desktop && echo qt6-wayland ;;
    esac | awk '{ print $1 }'
}

# The name tells the content, so a changed list of packages asks for another root.
root_of() {
    local name
    name=$( (uname -m; echo "$suite"; packages_of "$@") | sha256sum | cut -c 1-12)
    echo "$cache/$suite-$name"
}

debian_mirror() {
    # shellcheck disable=SC2016 # expanded by apt-get
    apt-get indextargets --format '$(REPO_URI)' \
        'Created-By: Packages' 'Origin: Debian' 'Label: Debian' 'Component: main' | awk 'NR == 1'
}

# What makes a Debian, and the `mirror` it is made from.
ready_to_bootstrap() {
    local tools=()
    command -v bwrap >/dev/null || tools+=(bubblewrap)
    command -v mmdebstrap >/dev/null || tools+=(mmdebstrap)
    [ -e "$keyring" ] || tools+=(debian-archive-keyring)
    [ "$(id -u)" = 0 ] || command -v newuidmap >/dev/null || tools+=(uidmap)
    [ ${#tools[@]} -eq 0 ] || apt_install "${tools[@]}"
    # Without ids of its own a user cannot own the files of a Debian.
    if [ "$(id -u)" != 0 ] && ! grep -qs "^\($(id -un)\|$(id -u)\):" /etc/subuid; then
        require_root "Making a private Debian 13" \
            "usermod --add-subuids 100000-165535 --add-subgids 100000-165535 $(id -un)"
    fi
    mirror=$(debian_mirror)
}

make_root() {
    local root=$1 mirror packages
    shift
    ready_to_bootstrap
    [ -n "$mirror" ] || die "apt-get knows no Debian mirror to make the private root from;" \
        "please install Qt 6.8 or later (Debian's names):" "$(missing "$@")"
    packages=$(packages_of "$@" | paste -s -d ,)

    mkdir -p "$cache"
    exec {lock}>"$cache/lock"
    flock --nonblock "$lock" || {
        say "Another run is making a private root, or an interrupted one is ending: waiting for it"
        flock "$lock"
    }
    if [ ! -d "$root" ]; then
        say "Qt here is older than 6.8: making a private Debian 13 with ${packages//,/ }"
        say "in $root (takes minutes and up to 2 GB, once for all checkouts)"
        making=$cache/making
        rm -rf --one-file-system "$making"
        mkdir "$making"
        trap 'abandon_root' EXIT
        trap 'exit 129' HUP
        trap 'exit 130' INT
        trap 'exit 143' TERM
        # A session of its own, because it hangs up its whole process group when it fails.
        setsid bash -c "$(declare -f bootstrap); bootstrap \"\$@\"" -- \
            "$making" "$mirror" "$packages" "$suite" "$keyring" </dev/null >&2 &
        maker=$!
        wait "$maker" || die "The private root could not be made"
        sync -f "$making"
        mv -T "$making" "$root"
        trap - EXIT HUP INT TERM
        # A root of an older list may serve an older checkout; one that nobody enters any more goes.
        find "$cache" -maxdepth 1 -name "$suite-*" -mtime +30 -exec rm -rf --one-file-system {} +
    fi
    exec {lock}>&-
}

# bootstrap FOLDER MIRROR PACKAGES SUITE KEYRING [OPTION...]; nothing is kept with /dev/null.
bootstrap() {
    local making=$1 mirror=$2 packages=$3 suite=$4 keyring=$5
    shift 5
    local command=(mmdebstrap --mode=unshare --variant=apt --quiet
        --aptopt='APT::Install-Recommends "false"' --dpkgopt=force-unsafe-io
        --include="$packages" --keyring="$keyring" "$@")
    local source="deb $mirror $suite main"
    set -o pipefail
    if [ "$making" = /dev/null ]; then
        "${command[@]}" "$suite" /dev/null "$source"
    elif [ "$(id -u)" = 0 ]; then
        "${command[@]}" "$suite" "$making" "$source" && chmod 755 "$making"
    else
        # A user owns every file of the root; the user namespace's other ids would end with it.
        "${command[@]}" "$suite" - "$source" | tar -x -C "$making" --exclude './dev/*' &&
            chmod 755 "$making"
    fi
}

# The lock is free once the last process that inherited it has ended: then nobody writes any more.
abandon_root() {
    kill -KILL -- "-$maker" 2>/dev/null || true
    exec {lock}>&-
    flock --timeout 10 "$cache/lock" rm -rf --one-file-system "$making"
}

# Folders that a Debian has of its own are the root's, all others are the host's: the checkout, the
# home, documents, and the sockets of the display are where they always are.
readonly own_folders='/(bin|boot|dev|etc|lib[^/]*|proc|sbin|sys|usr|var)(/.*)?'

# Sets `inside` to where the root shows a path of the host; one below an own folder is under /host.
inside=''
reach() {
    local path folder
    inside=$1
    path=$(realpath -m -- "$1")
    [[ $path =~ ^$own_folders$ ]] || return 0
    folder=$path
    [ -d "$folder" ] || folder=$(dirname -- "$path")
    mounts+=(--bind "$folder" "/host$folder")
    inside=/host$path
}

enter_root() {
    local root=$1 name entry mounts=() settings=() arguments=() command
    command -v bwrap >/dev/null || apt_install bubblewrap
    touch -c "$root" 2>/dev/null || true # the mark of use that keeps it; a user's may not set it

    for entry in "$root"/{bin,lib*,sbin}; do
        mounts+=(--symlink "$(readlink "$entry")" "/${entry##*/}")
    done
    for entry in usr etc var; do
        mounts+=(--ro-bind "$root/$entry" "/$entry")
    done
    for entry in /etc/{passwd,group,hosts,resolv.conf}; do
        [ ! -e "$entry" ] || [ ! -f "$root$entry" ] || mounts+=(--ro-bind "$entry" "$entry")
    done
    mounts+=(--dev-bind /dev /dev --proc /proc --ro-bind /sys /sys --bind /var/tmp /var/tmp)
    for entry in /*; do
        if [[ $entry =~ ^$own_folders$ ]]; then
            continue
        elif [ -L "$entry" ]; then
            mounts+=(--symlink "$(readlink "$entry")" "$entry")
        elif [ -d "$entry" ]; then
            mounts+=(--bind "$entry" "$entry")
        fi
    done

    # Only what is the user's goes in: the host's compilers, plugins and libraries are not there.
    for name in $(compgen -e); do
        case $name in
        LANG | LANGUAGE | LC_* | TZ | TERM | COLORTERM | NO_COLOR | USER | LOGNAME | CI | \
            DISPLAY | XAUTHORITY | WAYLAND_DISPLAY | XDG_RUNTIME_DIR | XDG_*_HOME | \
            XDG_CURRENT_DESKTOP | XDG_SESSION_TYPE | DBUS_SESSION_BUS_ADDRESS | \
            QT_QPA_PLATFORM | QT_SCALE_FACTOR* | QT_LOGGING_RULES | \
            CMAKE_BUILD_PARALLEL_LEVEL | CTEST_PARALLEL_LEVEL | ?SAN_OPTIONS | UBSAN_OPTIONS)
            settings+=("$name=${!name}")
            ;;
        esac
    done
    reach "$HOME"
    # CMake would take a NORVANE_ROOT for the place of the package.
    settings+=("HOME=$inside" "NORVANE_PRIVATE_ROOT=$root"
        PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin)

    # shellcheck disable=SC2154 # the command line, set by dev
    reach "${invocation[0]%/dev}"
    arguments=("$inside/dev")
    for entry in "${invocation[@]:1}"; do
        inside=$entry
        [ ! -e "$entry" ] || reach "$entry"
        arguments+=("$inside")
    done
    reach "$PWD"
    command=(env -i "${settings[@]}" "$(command -v bwrap)" --die-with-parent "${mounts[@]}" --chdir "$inside")
    "${command[@]}" true || die "bubblewrap may not make namespaces here, so the private root is of no use"
    exec "${command[@]}" "${arguments[@]}"
}

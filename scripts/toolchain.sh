# shellcheck shell=bash
# SPDX-FileCopyrightText: Norvane contributors
# SPDX-License-Identifier: MIT
#
# What the commands need, and where this machine gets it from.

# Each line: Debian's name for the package, and how its content shows on any system.
needs() {
    local set
    for set; do
        case $set in
        qt) cat <<'END' ;;
qt6-base-dev qt Qt6Widgets
qt6-svg-plugins plugin iconengines/libqsvgicon.so
qt6-l10n-tools program lrelease
END
        build) cat <<'END' ;;
git command git
python3 command python3
g++ command c++
cmake cmake 3.25
ninja-build command ninja
pkg-config command pkg-config
END
        desktop) cat <<'END' ;;
xvfb command Xvfb
openbox command openbox
xdotool command xdotool
imagemagick command import
x11-utils command xprop
dbus-daemon command dbus-run-session
at-spi2-core service org.a11y.Bus
fonts-dejavu-core font en
fonts-wqy-microhei font zh-cn
END
        lint) cat <<'END' ;;
clang-format command clang-format
clang-tidy command clang-tidy
clazy command clazy
END
        bench) cat <<'END' ;;
valgrind command valgrind
END
        docs) cat <<'END' ;;
doxygen command doxygen
END
        package) cat <<'END' ;;
debhelper command dh
dpkg-dev command dpkg-buildpackage
lintian command lintian
END
        esac
    done
}

at_least() { [ "$(printf '%s\n' "$1" "$2" | sort -V | head -n 1)" = "$1" ]; }

qt_prefix='' qt_libs='' qt_plugins='' qt_programs=''
find_qt() {
    local tool version bins=${CMAKE_PREFIX_PATH:+${CMAKE_PREFIX_PATH//://bin:}/bin:}
    for tool in qmake6 qmake-qt6 qmake; do
        tool=$(PATH=$bins$PATH command -v "$tool") || continue
        version=$("$tool" -query QT_VERSION 2>/dev/null) || continue
        at_least 6.8 "$version" || continue
        qt_prefix=$("$tool" -query QT_INSTALL_PREFIX)
        qt_libs=$("$tool" -query QT_INSTALL_LIBS)
        qt_plugins=$("$tool" -query QT_INSTALL_PLUGINS)
        qt_programs=$("$tool" -query QT_HOST_BINS)
        return
    done
}

is_there() {
    case $1 in
    command) command -v "$2" >/dev/null ;;
    cmake) command -v cmake >/dev/null && at_least "$2" "$(cmake --version | awk 'NR == 1 { print $3 }')" ;;
    qt) [ -e "$qt_libs/cmake/$2/$2Config.cmake" ] ;;
    plugin) [ -e "$qt_plugins/$2" ] ;;
    program) [ -x "$qt_programs/$2" ] ;;
    service) [ -e "/usr/share/dbus-1/services/$2.service" ] ;;
    font) fc-list --quiet ":lang=$2" 2>/dev/null ;;
    esac
}

# The packages of these sets whose content is not there.
missing() {
    local package probe argument
    while read -r package probe argument; do
        is_there "$probe" "$argument" || printf '%s ' "$package"
    done < <(needs "$@")
}

# Comes back when everything in the sets is at hand: the system has it, or it was installed. If
# that is not possible, the command starts anew in the private root and this does not come back.
prepare() {
    local root lacking
    find_qt
    read -ra lacking <<<"$(missing "$@")"
    if [ ${#lacking[@]} -gt 0 ]; then
        [ -z "${NORVANE_PRIVATE_ROOT:-}" ] || die "The private root $NORVANE_PRIVATE_ROOT lacks ${lacking[*]}: delete it"
        if [ -n "$(missing qt)" ]; then
            root=$(root_of "$@")
            [ ! -d "$root" ] || enter_root "$root"
            if is_debian_family && ! apt_offers_qt; then
                make_root "$root" "$@"
                enter_root "$root"
            fi
        fi
        is_debian_family || die "Qt 6.8 or later and the tools are needed and cannot be installed" \
            "from here; please install (Debian's names): ${lacking[*]}"
        apt_install "${lacking[@]}"
        find_qt
        read -ra lacking <<<"$(missing "$@")"
        [ ${#lacking[@]} -eq 0 ] || die "Installed, but still not usable: ${lacking[*]}"
    fi
    # A Qt that only the path leads to is found by CMake, too.
    export CMAKE_PREFIX_PATH="$qt_prefix${CMAKE_PREFIX_PATH:+:$CMAKE_PREFIX_PATH}"
}

is_debian_family() { command -v apt-get >/dev/null && command -v dpkg >/dev/null; }

require_root() { [ "$(id -u)" = 0 ] || die "$1 needs root: run as root, or first: $2"; }

apt_offers_qt() {
    local offer
    [ -n "$(apt-get indextargets 'Origin: Debian')$(apt-cache policy qt6-base-dev)" ] || apt_update
    offer=$(LC_ALL=C apt-cache policy qt6-base-dev | awk '$1 == "Candidate:" { print $2 }')
    at_least 6.8 "${offer#*:}"
}

apt_update() {
    require_root "Reading the package lists" "apt-get update"
    say "Reading the package lists (apt-get update)"
    apt-get -qq update </dev/null >&2 || die "apt-get update failed"
}

apt_install() {
    require_root "Installing $*" "apt-get install --no-install-recommends $*"
    say "Installing with apt-get: $*"
    local install=(env DEBIAN_FRONTEND=noninteractive
        apt-get -qq -y --no-install-recommends --no-remove install)
    "${install[@]}" --download-only "$@" </dev/null >&2 || {
        apt_update
        "${install[@]}" --download-only "$@" </dev/null >&2 || die "apt-get could not fetch $*"
    }
    # An interrupt while packages are unpacked would leave the system's package database broken.
    (
        trap '' INT TERM HUP
        "${install[@]}" "$@" </dev/null >&2
    ) || die "apt-get could not install $*"
}

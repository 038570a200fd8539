# shellcheck shell=bash
# SPDX-FileCopyrightText: Norvane contributors
# SPDX-License-Identifier: MIT
#
# The Debian packages.

packages=$here/build/package

# A package is made in the folder of its sources and left beside it, so these are a copy.
build_packages() {
    rm -rf "$packages"
    mkdir -p "$packages/norvane"
    (cd "$here" && git -c safe.directory="$here" ls-files -z -co --exclude-standard |
        tar -c --null --files-from -) | tar -x -C "$packages/norvane"
    # What it takes is there already: it may be a Qt that is no package.
    (cd "$packages/norvane" && DEB_BUILD_OPTIONS="noautodbgsym terse ${DEB_BUILD_OPTIONS:-}" \
        dpkg-buildpackage --no-check-builddeps --build=binary --no-sign) >&2
    lintian --allow-root --fail-on error --tag-display-limit 0 "$packages"/*.changes
    say "The packages:"
    ls -d "$packages"/*.deb
}

# Installs them into a Debian that has nothing but what they ask for, and goes when it was seen that
# the Workbench starts there and the examples are built and start.
try_packages() {
    local mirror stage=$packages/try shots=$packages/pictures
    compgen -G "$packages/*.deb" >/dev/null || die "There are no packages yet: ./dev package build"
    is_debian_family || die "The packages can be tried on a Debian-family system only"
    ready_to_bootstrap
    [ -n "$mirror" ] || die "apt-get knows no Debian mirror to try the packages with"
    rm -rf "$stage" "$shots"
    mkdir -p "$stage" "$shots"
    cp -r "$packages"/*.deb "$here/examples" "$here/scripts/on-display" "$here/scripts/try-packages" "$stage"
    say "Trying the packages in a Debian of their own, which takes minutes and is not kept"
    # Its session is one of its own for the same reason as that of the private root.
    # shellcheck disable=SC2016 # expanded by mmdebstrap
    setsid bash -c "$(declare -f bootstrap); bootstrap \"\$@\"" -- /dev/null "$mirror" \
        "$(needs desktop | awk '{ print $1 }' | paste -s -d ,)" "$suite" "$keyring" \
        --customize-hook='mkdir "$1/try"' \
        --customize-hook="sync-in $(printf %q "$stage") /try" \
        --customize-hook='chroot "$1" /try/try-packages' \
        --customize-hook="sync-out /try/pictures $(printf %q "$shots")" </dev/null >&2 &
    maker=$!
    trap 'kill -- "-$maker" 2>/dev/null || true' EXIT
    trap 'exit 129' HUP
    trap 'exit 130' INT
    trap 'exit 143' TERM
    wait "$maker" || die "The packages do not do what they should"
    trap - EXIT HUP INT TERM
    rm -rf "$stage"
    say "The packages are good; pictures of what was seen are in $shots"
}

# Debian packages by name. Each file tools/packages/LIST.txt names the packages of one purpose.

# Prints those of the given packages that are not installed.
missing_packages() {
    local package
    for package in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] \
            || echo "$package"
    done
}

# Prints the packages of the named lists, one a line.
packages_of() {
    local list
    for list in "$@"; do
        sed 's/#.*//; /^[[:space:]]*$/d' "$DEV_ROOT/tools/packages/$list.txt"
    done
}

# Sees to it that the packages of the named lists are installed; installs nothing when none is missing.
need_packages() {
    local -a wanted=() missing=()
    mapfile -t wanted < <(packages_of "$@")
    if ! command -v dpkg-query >/dev/null; then
        check_programs "${wanted[*]}"
        return
    fi
    mapfile -t missing < <(missing_packages "${wanted[@]}")
    [ ${#missing[@]} -eq 0 ] || install_packages "${missing[@]}"
}

# On another distribution: what cannot be installed from here has to be there.
check_programs() {
    local program
    for program in cmake c++ ninja pkg-config; do
        command -v "$program" >/dev/null \
            || die "this is not Debian, and $program is missing; install what Debian calls $1"
    done
}

install_packages() {
    local -a as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null \
            || die "these packages are missing and only root can install them: $*"
        as_root=(sudo)
    fi
    say "installing $*"
    "${as_root[@]}" apt-get update -q >&2 \
        || say "the package lists could not be refreshed; trying with the old ones"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -q -y --no-install-recommends "$@" >&2 \
        || die "these packages are missing and could not be installed: $*"
}

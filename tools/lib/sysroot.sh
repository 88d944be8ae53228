# A Debian file system for another processor, to build against and to run programs from. Nothing of
# it is installed on this machine, nor is a foreign architecture added to its packages.

# Prints this machine's own Debian package sources, less the security updates: theirs are not
# complete for every processor, and a sysroot is no machine to attack.
debian_sources() {
    apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Created-By: Packages' 'Origin: Debian' 'Label: Debian' | sort -u
}

# make_sysroot ARCH DIR: unless it is there already, made from the same list of packages.
make_sysroot() {
    local arch=$1 dir=$2 packages sources
    packages=$(packages_of sysroot | paste -s -d ,)
    if [ "$(cat "$dir/packages" 2>/dev/null)" = "$packages" ]; then
        return
    fi
    sources=$(debian_sources)
    [ -n "$sources" ] || die "no Debian package source is known; run apt-get update"
    echo "dev: unpacking Debian's $arch packages in $dir" >&2
    rm -rf "$dir"
    mkdir -p "$dir"
    unpack_packages "$arch" "$packages" "$sources" | tar -x -C "$dir" ./usr ./lib ./etc/fonts \
        || die "no $arch sysroot could be made"
    make_links_relative "$dir"
    echo "$packages" >"$dir/packages"
}

# Writes the unpacked packages to the standard output as an archive. No program of theirs is run.
unpack_packages() {
    local log=$DEV_ROOT/build/unpacking-$1.log
    mmdebstrap --logfile="$log" --aptopt='Acquire::Retries "3"' --variant=extract --architectures="$1" \
        --include="$2" --format=tar "$(. /etc/os-release && echo "$VERSION_CODENAME")" - - <<<"$3" \
        || { tail -n 5 "$log" >&2; false; }
}

# Absolute links would lead from the sysroot into this machine's file system.
make_links_relative() {
    local dir=$1 link target
    find "$dir" -lname '/*' | while IFS= read -r link; do
        target=$(readlink "$link")
        ln -sfnr "$dir$target" "$link"
    done
}

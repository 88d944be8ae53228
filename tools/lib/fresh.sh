# A fresh Debian root and what is run on it. Sourced, never run.

readonly FRESH=$DEV_ROOT/build/fresh
readonly FRESH_CHECKOUT="/srv/Käthes Werkstatt/platform widgets"

# The commands of the README's first block of shell lines, word for word.
readme_commands() {
    awk '/^```sh/ {inside = 1; next} /^```/ && inside {exit} inside' "$DEV_ROOT/README.md"
}

# The command of ./dev in a line such as "./dev test --qt 6".
command_in() {
    cut -d' ' -f2 <<<"$1"
}

# A minimal Debian as its installer leaves it, but for git to fetch the sources with.
fresh_base() {
    local base=$FRESH/base.tar
    if [ ! -s "$base" ]; then
        echo "dev: making a fresh Debian in $base" >&2
        mkdir -p "$FRESH/archives/partial"
        mmdebstrap --quiet --aptopt='Acquire::Retries "3"' --variant=minbase --include=git,ca-certificates --format=tar bookworm "$base.part" - <<<"$(debian_sources)" \
            || die "fresh: no Debian root could be made"
        mv "$base.part" "$base"
    fi
    echo "$base"
}

# make_fresh_root USER: with a clone of what is committed.
make_fresh_root() {
    local user=$1 root=$FRESH/root-$1 base
    base=$(fresh_base)
    rm -rf --one-file-system "$root"
    mkdir -p "$root"
    tar -x -C "$root" -f "$base" --exclude='./dev/*'
    cp /etc/resolv.conf /etc/hosts "$root/etc"
    mkdir -p "$root$FRESH_CHECKOUT"
    git clone -q --no-hardlinks "$DEV_ROOT" "$root$FRESH_CHECKOUT"
    if [ "$user" != root ]; then
        in_fresh_root "$root" root "useradd --create-home --shell /bin/bash $user"
        chown -R --reference="$root/home/$user" "$root$FRESH_CHECKOUT"
    fi
    if [ "$user" = sudoer ]; then
        in_fresh_root "$root" root "apt-get update -qq && apt-get install -qq -y --no-install-recommends sudo >/dev/null"
        echo "$user ALL=(ALL) NOPASSWD: ALL" >"$root/etc/sudoers.d/$user"
    fi
}

drop_fresh_root() {
    rm -rf --one-file-system "$FRESH/root-$1"
}

# in_fresh_root ROOT USER COMMAND: in the checkout. What is mounted goes with the process; of this machine's
# devices the root sees no more than any program needs.
in_fresh_root() {
    # shellcheck disable=SC2016 # the inner shells expand it
    unshare --mount --pid --fork --kill-child bash -c '
        set -e
        mount -t proc proc "$1/proc"
        mount -t tmpfs -o mode=755 tmpfs "$1/dev"
        for device in null zero full random urandom tty; do
            : >"$1/dev/$device"
            mount --bind "/dev/$device" "$1/dev/$device"
        done
        mkdir -m 1777 "$1/dev/shm"
        ln -s /proc/self/fd "$1/dev/fd"
        mount --bind "$2" "$1/var/cache/apt/archives"
        exec chroot "$1" env -i PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin TERM=dumb \
            runuser -u "$3" -- bash -c "cd \"\$1\" && eval \"\$2\"" bash "$4" "$5"' \
        bash "$1" "$FRESH/archives" "$2" "$FRESH_CHECKOUT" "$3" </dev/null
}

installed_in() {
    chroot "$1" dpkg-query -W -f '${Package}\n' | sort
}

# try_command USER LINE: fails when it does not end as it must.
try_command() {
    local user=$1 line=$2 root=$FRESH/root-$1 status=0 log before
    log=$FRESH/$user-$(command_in "$line").log
    before=$(installed_in "$root")
    echo "$user: $line"
    TIMEFORMAT='  elapsed %R s, processor %U + %S s'
    time { in_fresh_root "$root" "$user" "$line" >"$log" 2>&1 || status=$?; }
    if [ "$user" = guest ]; then
        echo "  refused: $(tail -n 1 "$log")"
        [ "$status" -ne 0 ] && [ "$(grep -c "^dev: " "$log")" -eq 1 ]
        return
    fi
    sed -n 's/^dev: installing /  missing: /p' "$log"
    echo "  packages added: $(comm -13 <(echo "$before") <(installed_in "$root") | wc -l)"
    echo "  ended with $status: $(tail -n 1 "$log")"
    return "$status"
}

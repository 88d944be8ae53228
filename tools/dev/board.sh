#!/usr/bin/env bash
# use the library by touch on an emulated board with a frame buffer
#
# usage: ./dev board [--arch ARCH] [--theme TEXT] [--photos DIR] [--accept]
#        ./dev board [--arch ARCH] --measure [--accept]
#        ./dev board [--arch ARCH] [--photos DIR] --keep
#
#   --arch ARCH   arm64 (the default), or armhf: 32 bit with hard float
#   --theme TEXT  run the themes of the suite whose names contain the text
#   --photos DIR  keep what the screen showed there; by default in build/board-ARCH/photos
#   --accept      take what the screen shows as the reference where it differs or there is none
#   --measure     measure what the device pays; --accept keeps it as docs/figures/board-ARCH.md
#   --keep        start the gallery and leave the board running, with a prompt that takes taps
#                 and photos
#
# The kernel and Debian's ARM packages are unpacked below build/, as with ./dev arm. Nothing runs as
# root but the installation of packages. The last line counts the tests: N passed, N failed

arch=arm64
what=suite
accept=
options=()
while [ $# -gt 0 ]; do
    case "$1" in
        --arch) arch=$(option_value board "$1" $# "${2:-}"); shift ;;
        --theme) options+=("$1" "$(option_value board "$1" $# "${2:-}")"); shift ;;
        --photos)
            photos=$(option_value board "$1" $# "${2:-}")
            options+=("$1" "$(realpath -m "$photos")")
            shift ;;
        --accept) accept=yes; options+=("$1") ;;
        --measure) what=measure ;;
        --keep) what=prompt ;;
        *) unknown_option board "$1" ;;
    esac
    shift
done
case "$arch" in
    arm64) kernel_package=linux-image-arm64 ;;
    armhf) kernel_package=linux-image-armmp ;;
    *) die "board: unknown architecture '$arch'" ;;
esac

# make_kernel DIR: the kernel and its modules, unless they are there already.
make_kernel() {
    local dir=$1 sources
    [ "$(cat "$dir/packages" 2>/dev/null)" != "$kernel_package" ] || return 0
    sources=$(debian_sources)
    [ -n "$sources" ] || die "no Debian package source is known; run apt-get update"
    echo "dev: unpacking Debian's kernel in $dir" >&2
    rm -rf "$dir"
    mkdir -p "$dir"
    unpack_packages "$arch" "$kernel_package" "$sources" \
        | tar -x -C "$dir" --wildcards './boot/vmlinuz*' ./lib/modules \
        || die "no $arch kernel could be unpacked"
    echo "$kernel_package" >"$dir/packages"
}

need_packages build test arm board
. "$DEV_ROOT/tools/lib/sysroot.sh"
cache=${PLATFORM_SYSROOT_CACHE:-$DEV_ROOT/build}
PLATFORM_SYSROOT=$cache/sysroot-$arch
export PLATFORM_SYSROOT
make_sysroot "$arch" "$PLATFORM_SYSROOT"
make_kernel "$cache/kernel-$arch"
build "$arch" board-agent board-application board-plain-panel board-settings \
    platform-widgets-gallery

output=$DEV_ROOT/build/board-$arch
mkdir -p "$output"
python3 "$DEV_ROOT/tools/board/image.py" \
    "$arch" "$PLATFORM_SYSROOT" "$cache/kernel-$arch" "$DEV_ROOT/build/$arch" "$output/image"
run_boards() {
    python3 "$DEV_ROOT/tools/board/run.py" "$arch" "$(echo "$cache/kernel-$arch"/boot/vmlinuz*)" \
        "$output/image" "$output" "$@"
}
if [ "$what" = measure ]; then
    run_boards measure | tee "$output/measured.md"
    [ -z "$accept" ] \
        || accept_figures "board-$arch" "./dev board --arch $arch --measure --accept" \
            <"$output/measured.md"
else
    run_boards "$what" ${options[@]+"${options[@]}"}
fi

#!/usr/bin/env bash
# cross-build for ARM and run the test suite under emulation
#
# usage: ./dev arm [--arch ARCH] [--filter REGEX]
#
#   --arch ARCH     armhf, 32 bit with hard float (the default), or arm64
#   --filter REGEX  run the tests whose names match
#
# Debian's ARM packages are unpacked below build/, in sysroot-ARCH; the packages of this machine
# stay as they are. PLATFORM_SYSROOT_CACHE names another folder to keep the sysroots in, say to
# share them between work trees. The last line counts the test programs: N passed, N failed

arch=armhf
filter=
while [ $# -gt 0 ]; do
    case "$1" in
        --arch) arch=$(option_value arm "$1" $# "${2:-}"); shift ;;
        --filter) filter=$(option_value arm "$1" $# "${2:-}"); shift ;;
        *) unknown_option arm "$1" ;;
    esac
    shift
done
case "$arch" in
    armhf | arm64) ;;
    *) die "arm: unknown architecture '$arch'" ;;
esac

need_packages build test arm
. "$DEV_ROOT/tools/lib/sysroot.sh"
PLATFORM_SYSROOT=${PLATFORM_SYSROOT_CACHE:-$DEV_ROOT/build}/sysroot-$arch
export PLATFORM_SYSROOT
make_sysroot "$arch" "$PLATFORM_SYSROOT"
build "$arch"
run_tests "$filter" "$arch"
print_test_count

# What has to hold before minutes are spent. Sourced, never run.

readonly LEAST_DISK=3      # GiB, for both builds of the tests
readonly LEAST_MEMORY=1    # GiB, for two compilers at a time

# check_preconditions PRESET...: refuses with one sentence that says what to do.
check_preconditions() {
    local preset
    { mkdir -p build && [ -w build ]; } 2>/dev/null \
        || die "cannot write to $DEV_ROOT/build; copy the checkout to a folder of your own"
    for preset in "$@"; do
        check_build_folder "build/$preset"
    done
    [ "$(gibibytes "$(df --output=avail -k build | tail -n 1)")" -ge "$LEAST_DISK" ] \
        || die "less than $LEAST_DISK GiB are free on the disk of $DEV_ROOT; make room or use another disk"
    [ "$(gibibytes "$(sed -n 's/^MemAvailable: *\([0-9]*\) kB/\1/p' /proc/meminfo)")" -ge "$LEAST_MEMORY" ] \
        || die "less than $LEAST_MEMORY GiB of memory are available; end other programs first"
}

gibibytes() {
    echo $(($1 / 1024 / 1024))
}

# CMake refuses a build folder that has been moved with its checkout.
check_build_folder() {
    local made_for
    made_for=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$1/CMakeCache.txt" 2>/dev/null) || return 0
    [ -z "$made_for" ] || [ "$made_for" = "$DEV_ROOT" ] \
        || die "$1 was made for a checkout in $made_for; delete it with: rm -r '$DEV_ROOT/$1'"
}

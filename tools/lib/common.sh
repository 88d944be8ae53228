# What the commands of ./dev share. Sourced, never run.

# The error channel of the command, wherever the output of a stage of it goes.
exec 3>&2

say() {
    echo "dev: $*" >&3
}

die() {
    say "$@"
    exit 1
}

# Prints the comment block at the top of a command's file, less its first line, as its help.
print_usage() {
    sed -n '2,/^[^#]/{/^#/{s/^# \{0,1\}//;p}}' "$1"
}

# Refuses an option that the command does not know.
unknown_option() {
    die "$1: unknown option '$2'; ./dev $1 --help lists the options"
}

# The value of an option: option_value COMMAND OPTION COUNT-OF-ARGUMENTS-LEFT VALUE
option_value() {
    [ "$3" -ge 2 ] || die "$1: $2 needs a value"
    printf '%s' "$4"
}

# Configures and builds a preset: build PRESET [TARGET...]
build() {
    local preset=$1 target
    shift
    local -a targets=()
    for target in "$@"; do
        targets+=(--target "$target")
    done
    check_preconditions "$preset"
    # The programs that it runs read file names by the locale, and a path may have any letter in it.
    local -x LC_ALL=C.UTF-8
    cmake --preset "$preset" --log-level=WARNING >&2 \
        && cmake --build --preset "$preset" ${targets[@]+"${targets[@]}"} >&2
}

. "$DEV_ROOT/tools/lib/figures.sh"
. "$DEV_ROOT/tools/lib/packages.sh"
. "$DEV_ROOT/tools/lib/preconditions.sh"
. "$DEV_ROOT/tools/lib/stages.sh"
. "$DEV_ROOT/tools/lib/tests.sh"

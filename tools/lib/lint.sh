# The checkers of ./dev lint. Sourced, never run. Each prints its findings and fails if there are any.

# The tracked files that match the given patterns.
sources() {
    git ls-files -- "$@"
}

# What clazy and clang-tidy read; the tests need not satisfy what makes a library robust.
clang_sources() {
    sources "${CLANG_READS[@]/%//*.cpp}"
}

# Runs a command once for each file on standard input, on all processors.
for_each_file() {
    xargs -r -n 1 -P "$(nproc)" "$@"
}

# Copies the lines of standard input that do not match, and fails if there are any.
no_lines_but() {
    ! grep -vE -- "$1"
}

# The rules of CONTRIBUTING.md that a search can check. The brackets keep the patterns from finding themselves, so
# that no file is left out.
lint_rules() {
    ! git grep -InE '\b(T[O]DO|F[I]XME|X[X]X)\b' \
        && ! git grep -nE '\b(Q[S]KIP|Q[E]XPECT_FAIL|QTest::q[S]leep|QTest::q[W]ait|QThread::[mu]?s[l]eep)\b' -- '*.cpp' '*.h' \
        && ! git grep -nE '^ *(public|protected|private)? *(signals|slots):|\bemit \w+\(|\bforeach \(|\bforever \{' -- '*.cpp' '*.h' \
        && no_long_lines
}

# Comments too, which clang-format leaves alone; a row of a table in one cannot be broken.
no_long_lines() {
    LC_ALL=C.UTF-8 git grep -nP '^.{101,}' -- '*.cpp' '*.h' | no_lines_but '^[^:]*:[0-9]+: +\* \|'
}

lint_format() {
    sources '*.cpp' '*.h' | xargs -r clang-format --dry-run -Werror \
        || { echo "clang-format -i FILE fixes it."; false; }
}

lint_shell() {
    # Where a sourced file lies is known at run time only.
    sources dev '.ci/run' '*.sh' | xargs -r shellcheck --shell=bash --severity=warning --exclude=SC1090,SC1091
}

# The compiler's own, which the dev preset turns into errors.
lint_warnings() {
    build dev
}

# Left out: what it misreads (a QPointer that turns null between two tests, members set through an initialiser list,
# children that their parents delete) and Qt's habit to name a local as the getter that it comes from.
lint_cppcheck() {
    cppcheck --quiet --error-exitcode=1 --inline-suppr --std=c++17 -j "$(nproc)" \
        --library=qt --enable=warning,style,performance,portability \
        --suppress=duplicateCondition --suppress=knownConditionTrueFalse --suppress=shadowFunction \
        --suppress=unassignedVariable --suppress=unsafeClassCanLeak --suppress=unusedStructMember \
        -I include -I platform/keyboard/include -I platform/style/include \
        src include platform gallery designer docs
}

# The compile commands of the dev build, less what only g++ understands and the precompiled headers, whose paths
# may be quoted, in build/lint.
clang_compile_commands() {
    build dev
    mkdir -p build/lint
    sed -E 's/ (-fno-gnu-unique|-Werror|-Winvalid-pch|-include (\\"[^"]*cmake_pch\.hxx\\"|[^" ]*cmake_pch\.hxx))//g' \
        build/dev/compile_commands.json >build/lint/compile_commands.json
}

readonly OWN_HEADERS="$DEV_ROOT/(src|include|platform|gallery|designer|docs)/"

lint_clazy() {
    clang_compile_commands
    # Properties have no change signals: that is the library's interface. What clazy calls its own error is a
    # connection to a QMetaMethod.
    clang_sources \
        | for_each_file clazy-standalone -p build/lint -header-filter="$OWN_HEADERS" \
            -checks=level1,no-qproperty-without-notify 2>&1 \
        | no_lines_but '^[0-9]+ warnings? generated\.$|\[-Wclazy-connect-non-signal\]: internal error'
}

lint_tidy() {
    clang_compile_commands
    clang_sources \
        | for_each_file clang-tidy -p build/lint --quiet --header-filter="$OWN_HEADERS" 2>&1 \
        | no_lines_but '^[0-9]+ warnings? generated\.$|^$'
}

# shellcheck shell=bash
# What the scripts beside this file share. To be sourced.

top=$(cd -P "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# fail MESSAGE...: one line on standard error, named after the running script, and the end of the script.
fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# quietly COMMAND...: runs the command with its output held back; shows the output only if the command fails.
quietly() {
    local log status=0
    log=$(mktemp)
    # In a subshell, so that a command that ends the script ends here, and its output is still shown.
    ("$@") >"$log" 2>&1 || status=$?
    ((status == 0)) || cat "$log" >&2
    rm -f "$log"
    return "$status"
}

# configure PRESET [OPTION...]: configures the preset. In CI warnings are errors, in a build folder that is there, too.
configure() {
    local build="$top/build/$1"
    printf 'Configuring build/%s\n' "$1"
    # A configuration that failed remembers what it did not find: start afresh.
    [[ -f $build/build.ninja ]] || rm -f "$build/CMakeCache.txt"
    (cd "$top" && quietly cmake --preset "$@" ${CI:+-DKITWRIGHT_WERROR=ON}) || fail "configuring build/$1 failed"
}

# build PRESET [TARGET...]: builds the targets, or everything, with the builder's own progress shown.
build() {
    local preset=$1
    shift
    cmake --build "$top/build/$preset" ${1:+--target "$@"} || fail "building build/$preset failed"
}

# tracked PATTERN...: the files under version control that match, relative to the top.
tracked() {
    git -C "$top" -c safe.directory="$top" ls-files -- "$@"
}

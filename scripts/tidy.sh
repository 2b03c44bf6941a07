# shellcheck shell=bash
# Runs clang-tidy on the editor's sources. To be sourced after common.sh and packages.sh.

# Configures a build of its own, without precompiled headers, so that a source that lacks an include is found, and makes
# the headers that come of the .ui files.
prepare_tidy() {
    # shellcheck disable=SC2154
    need_packages "${build_packages[@]}" "${lint_packages[@]}"
    configure lint
    quietly build lint autogen
}

# tidy CHECKS [SOURCE...]: has clang-tidy look at the sources, or all of the editor's; CHECKS as it takes them, empty for
# those of .clang-tidy.
tidy() {
    local checks=$1 found sources
    shift
    if (($# > 0)); then
        sources=("$@")
    else
        found=$(tracked '*.cpp' ':!tests/' ':!bench/' ':!fuzz/')
        [[ -n $found ]] || fail "no source is under version control"
        mapfile -t sources <<<"$found"
    fi
    export checks
    # The inner shell, not this one, is to expand its argument.
    # shellcheck disable=SC2016
    printf '%s\0' "${sources[@]}" | xargs -0 -n 1 -P "$(nproc)" bash -c 'tidy_one "$1"' tidy ||
        fail "clang-tidy has found something, see above"
    printf 'clang-tidy: %d sources are clean.\n' "${#sources[@]}"
}

# One source; its findings come in one piece, without the count of those in other people's headers.
tidy_one() {
    local report
    report=$(clang-tidy --quiet -p build/lint ${checks:+--checks="$checks"} \
        --extra-arg=-Wno-unknown-warning-option "$1" 2>&1) && return
    printf '%s:\n%s\n' "$1" "$(grep -vE '^[0-9]+ warnings? (and [0-9]+ errors? )?generated' <<<"$report")"
    return 1
}
export -f tidy_one

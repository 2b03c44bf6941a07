# shellcheck shell=bash
# The packages that the project needs, by their Debian names, and need_packages, which installs those that are
# missing. To be sourced after common.sh. "a|b" is one package that goes by either name.

# shellcheck disable=SC2034  # read by the scripts that source this file
{
    build_packages=(g++ cmake ninja-build ccache pkg-config qt6-base-dev 'qt6-svg-dev|libqt6svg6-dev'
        libqscintilla2-qt6-dev libgl1-mesa-dev)
    test_packages=(libgtest-dev libgmock-dev)
    sanitizer_packages=(clang 'libclang-rt-dev|libclang-rt-14-dev')
    run_packages=(fonts-dejavu-core libqt6svg6 qt6-qpa-plugins)
    format_packages=(git clang-format)
    lint_packages=(git clang-tidy)
}

# need_packages PACKAGE...: returns once all of them are installed, or ends the script and says what is missing.
need_packages() {
    local missing
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        need_commands_and_libraries "$@"
        return
    fi
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]} == 0)) || install_packages "${missing[@]}"
}

# Prints those of the packages that are not installed, one a line. Asks the package database once.
missing_packages() {
    local installed package name
    # A name that the database has never heard of makes dpkg-query fail; the others are answered all the same.
    # shellcheck disable=SC2016,SC2046
    installed=$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' $(printf '%s\n' "${@//|/$'\n'}") \
        2>/dev/null || true)
    for package in "$@"; do
        for name in ${package//|/ }; do
            [[ $'\n'$installed$'\n' == *$'\n'"$name installed"$'\n'* ]] && continue 2
        done
        printf '%s\n' "$package"
    done
}

# Installs the packages with apt-get, as root or through sudo.
install_packages() {
    local as_root=() names
    if ((EUID != 0)); then
        command -v sudo >/dev/null ||
            fail "packages are missing; as root, run: apt-get update && apt-get install ${*//|*/}"
        as_root=(sudo)
    fi
    printf 'Installing %s\n' "${*//|*/}"
    # An index that cannot be refreshed may still hold all that is needed: only the installation decides.
    quietly "${as_root[@]}" apt-get -qq -o Acquire::Retries=3 update ||
        printf 'The package index could not be refreshed; going on with the one at hand.\n' >&2
    mapfile -t names < <(known_names "$@")
    quietly "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -y --no-install-recommends \
        -o Acquire::Retries=3 -o DPkg::Lock::Timeout=300 install "${names[@]}" ||
        fail "installing failed; by hand: apt-get install ${names[*]}"
}

# Prints for each package the name that this system's index knows, or else the first one.
known_names() {
    local package name
    for package in "$@"; do
        for name in ${package//|/ }; do
            if [[ $package != *'|'* ]] || apt-cache show "$name" >/dev/null 2>&1; then
                printf '%s\n' "$name"
                continue 2
            fi
        done
        printf '%s\n' "${package%%|*}"
    done
}

# The same on a system without apt-get, where nothing is installed for the user: looks for the commands and
# libraries that the packages bring, and names those that are not there.
need_commands_and_libraries() {
    local package missing=()
    for package in "$@"; do
        case $package in
        g++) has_command c++ || missing+=("a C++20 compiler (c++)") ;;
        cmake) has_command cmake || missing+=("CMake 3.25 or later (cmake)") ;;
        ninja-build) has_command ninja || missing+=("Ninja (ninja)") ;;
        git | clang-format | clang-tidy) has_command "$package" || missing+=("$package") ;;
        qt6-base-dev) has_file cmake/Qt6Widgets/Qt6WidgetsConfig.cmake || missing+=("Qt 6 Widgets (Qt6Widgets)") ;;
        qt6-svg-dev*) has_file cmake/Qt6Svg/Qt6SvgConfig.cmake || missing+=("Qt 6 SVG (Qt6Svg)") ;;
        libqscintilla2-qt6-dev) has_file 'libqscintilla2_qt6.*' || missing+=("QScintilla for Qt 6") ;;
        libgtest-dev) has_file cmake/GTest/GTestConfig.cmake || missing+=("GoogleTest (GTest)") ;;
        esac
    done
    ((${#missing[@]} == 0)) && return
    fail "this system has no apt-get, so please install: $(printf '%s, ' "${missing[@]}" | sed 's/, $//')"
}

has_command() {
    command -v "$1" >/dev/null
}

# Does the pattern match a file in one of the folders where libraries lie?
has_file() {
    local prefix
    for prefix in /usr /usr/local /opt/homebrew ${CMAKE_PREFIX_PATH:+${CMAKE_PREFIX_PATH//:/ }}; do
        compgen -G "$prefix/lib/$1" >/dev/null && return
        compgen -G "$prefix/lib64/$1" >/dev/null && return
        compgen -G "$prefix/lib/*/$1" >/dev/null && return
    done
    return 1
}

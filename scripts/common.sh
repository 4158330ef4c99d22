# SPDX-FileCopyrightText: 2026 The UtilityWidgets authors
# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# What the scripts share: source it first. Leaves the shell in the project's folder; the one it was
# called from is in caller_folder.

set -euo pipefail
shopt -s inherit_errexit

project=$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")
# For the script that sources this.
# shellcheck disable=SC2034
caller_folder=$PWD
cd "$project"

# Ninja alone would start two jobs more than there are processors.
processors=$(nproc)
export CMAKE_BUILD_PARALLEL_LEVEL=${CMAKE_BUILD_PARALLEL_LEVEL:-$processors}
export CTEST_PARALLEL_LEVEL=${CTEST_PARALLEL_LEVEL:-$processors}

say()
{
    printf '== %s\n' "$*"
}

die()
{
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# as_root COMMAND...: runs it as root, through sudo where needed.
as_root()
{
    if [[ $(id -u) == 0 ]]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        die "this needs root and there is no sudo; as root, run: $*"
    fi
}

# need_packages GROUP...: installs what is missing of these groups of packages.txt.
need_packages()
{
    local group package missing=()
    if ! command -v dpkg-query >/dev/null; then
        say "Not a Debian system: taking it that the tools for \"$*\" (scripts/packages.txt) are here"
        return
    fi
    while read -r group package; do
        if [[ " $* " == *" $group "* ]] \
            && [[ $(dpkg-query -W -f='${Status}' "$package" 2>/dev/null) != *" installed" ]]; then
            missing+=("$package")
        fi
    done < <(grep -v -e '^#' -e '^$' "$project/scripts/packages.txt")
    if [[ ${#missing[@]} == 0 ]]; then
        return
    fi
    say "Installing ${missing[*]}"
    as_root apt-get update -q
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# build_preset PRESET [TARGET...]: configures and builds one preset of CMakePresets.json, through
# ccache where it is installed.
build_preset()
{
    local preset=$1 launcher=
    shift
    launcher=$(command -v ccache || true)
    say "Building the preset \"$preset\"${*:+: $*}"
    cmake --preset "$preset" -DCMAKE_CXX_COMPILER_LAUNCHER="$launcher"
    if [[ $# -gt 0 ]]; then
        set -- --target "$@"
    fi
    cmake --build --preset "$preset" "$@"
}

# --- steps that are timed and summed up -----------------------------------------------------------

step_lines=()
steps_failed=()

# run_step NAME COMMAND...: runs it whatever became of the steps before. Keeps the output also in
# build/steps/NAME.log.
run_step()
{
    local name=$1 log=build/steps/$1.log start=$SECONDS result=ok seconds
    shift
    mkdir -p build/steps
    say "Step $name"
    if ! "$@" 2>&1 | tee "$log"; then
        result=FAILED
        steps_failed+=("$name")
    fi
    seconds=$((SECONDS - start))
    step_lines+=("$(printf '%-8s %-10s %3d:%02d  %s' "$result" "$name" $((seconds / 60)) \
        $((seconds % 60)) "$(grep -E '^[0-9]+% tests passed' "$log" || true)")")
}

# Prints what became of the steps; fails when one failed.
step_summary()
{
    say "Summary"
    printf '%s\n' "${step_lines[@]}"
    if [[ ${#steps_failed[@]} -gt 0 ]]; then
        say "FAILED: ${steps_failed[*]}"
        return 1
    fi
    say "All ${#step_lines[@]} steps passed in $((SECONDS / 60)):$(printf %02d $((SECONDS % 60)))"
}

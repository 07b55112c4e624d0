# SPDX-FileCopyrightText: 2026 The VnaWidgets authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Shared by the scripts in this folder; to be sourced.

project_dir=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$project_dir" || exit 1

say() { printf '%s\n' "$*" >&2; }

# build PRESET [cmake --build arguments]: configures where that has not been done with the presets as they are now, and
# builds.
build() {
    local preset=$1
    shift
    local applied=build/$preset/CMakePresets.applied.json
    if [ ! -f "build/$preset/build.ninja" ] || ! cmp -s CMakePresets.json "$applied"; then
        say "Configuring build/$preset"
        cmake --fresh --preset "$preset" >"build-$preset.log" 2>&1 || {
            cat "build-$preset.log" >&2
            rm -f "build-$preset.log"
            return 1
        }
        rm -f "build-$preset.log"
        cp CMakePresets.json "$applied"
    fi
    say "Building build/$preset"
    cmake --build --preset "$preset" "$@" >&2
}

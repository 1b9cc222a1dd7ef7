#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# pages.sh [PAGE...]: does what the pages tell a reader to type, all of them or those named: every "```sh" block, command by
# command, each page in a fresh clone of what is committed. No command may fail, and none may leave anything that git sees.
# A window that opens gets the Escape key, which must end it; a page that is served is fetched, and its server ended.
# Two things it replaces, because they would change the machine: sudo, which only says what it was given, and apt-get,
# which fails, so that every package has to be here. It builds everything many times over and may take hours.
#
# pages.sh --look BUILD: only looks whether what these commands name is there: scripts, programs, targets, presets, lists of
# packages, options. Takes a second, and BUILD is a folder in which everything is built.
set -euo pipefail
CDPATH="" cd -- "$(dirname -- "$0")/../.."
source=$PWD
patience=3600 # seconds, for one command

fail() {
    echo "$*" >&2
    exit 1
}

# commands PAGE: one a line. Where the page has something typed into a file, that is the line "type".
commands() {
    awk '/^```/ { shell = $0 == "```sh"; if (/^```cpp into/ && !typed++) print "type"; next }
        shell { sub(/ +# .*/, "") } shell && sub(/\\$/, "") { line = line $0; next } shell { print line $0; line = "" }' "$1"
}

# Lines of what is missing, for the commands on standard input.
look() { # BUILD
    local command name list targets presets played captured
    targets=$(ninja -C "$1" -t targets all | sed 's/: .*//')
    presets=$(cmake --list-presets | sed -n 's/^ *"\(.*\)".*/\1/p')
    played=$("$1/velm4030-play" --help)
    captured=$("$1/velm4030-capture" --help)
    . packaging/packages.sh
    list=$(compgen -v | grep _packages)
    while IFS= read -r command; do
        bash -n <<<"$command" || echo "$command"
        for name in $(grep -oE -- '--target [a-z0-9_-]+' <<<"$command" | cut -d' ' -f2); do
            [[ $name == fuzz || $name == bench_* || $name == renew_drawings ]] || grep -qx -- "$name" <<<"$targets" || echo "no target $name"
        done
        for name in $(grep -oE -- '--preset [a-z]+' <<<"$command" | cut -d' ' -f2); do
            grep -qx -- "$name" <<<"$presets" || echo "no preset $name"
        done
        for name in $(grep -oE '[a-z]+_packages' <<<"$command"); do
            grep -qx -- "$name" <<<"$list" || echo "no list $name"
        done
        for name in $(grep -oE '(^| )(\./|packaging/|bench/|fuzz/)[a-z_]+\.(sh|mjs)' <<<"$command"); do
            [ -s "$name" ] || echo "no script $name"
        done
        for name in $(grep -oE 'build/(release|kit/bin)/[a-z0-9_-]+' <<<"$command"); do
            name=$(basename "$name")
            [[ $name == velm4030-new || $name == bench_* ]] || [ -x "$1/$name" ] || echo "no program $name"
        done
        for name in $(sed -nE 's/.*(run\.sh|velm4030-play) //p' <<<"$command" | grep -oE -- '--[a-z]+'); do
            [[ $played == *"$name"* ]] || echo "velm4030-play has no $name"
        done
        for name in $(sed -n 's/.*velm4030-capture //p' <<<"$command" | grep -oE -- '--[a-z0-9]+'); do
            [[ $captured == *"$name"* ]] || echo "velm4030-capture has no $name"
        done
    done
}

if [ "${1:-}" = --look ]; then
    pages=(README.md CONTRIBUTING.md docs/*.md)
    [ "$(for page in "${pages[@]}"; do commands "$page"; done | wc -l)" -gt 40 ] || fail "the pages have no commands"
    missing=$(for page in "${pages[@]}"; do commands "$page" | grep -vx type | look "$2" | sed "s|^|$page: |"; done)
    [ -z "$missing" ] || fail "$missing"
    exit
fi
if [ -z "${VELM_SCREEN:-}" ]; then
    VELM_SCREEN=1024x1024 exec packaging/private_display.sh "tests/docs/pages.sh" "$@"
fi

# Ends what waits for its viewer: a window by Escape, a server by a signal. Fails when there is neither.
end_showing() { # LOG
    local window address
    window=$(xdotool search --onlyvisible --name . 2>/dev/null | head -n 1 || true)
    address=$(sed -n 's/^The page: \([^ ]*\).*/\1/p' "$1")
    if [ -n "$window" ]; then
        xdotool windowfocus "$window" mousemove --window "$window" 100 100 key Escape 2>/dev/null || true
    elif [ -n "$address" ] && [[ $(curl -fs "$address") == *'<title>'* ]]; then
        kill "$2"
    fi
}

# follow COMMAND LOG: runs it in this folder, as a reader would who quits whatever opens.
follow() {
    local command=$1 log=$2 status=0 second
    PATH="$work/bin:$PATH" bash -euo pipefail -c "$command" >"$log" 2>&1 </dev/null &
    process=$!
    for ((second = 0; second < patience; ++second)); do
        kill -0 "$process" 2>/dev/null || break
        end_showing "$log" "$process"
        sleep 1
    done
    kill "$process" 2>/dev/null && fail "$command: no end in $patience seconds"
    wait "$process" || status=$?
    process=
    [ "$status" -eq 0 ] || { grep -q '^The page: ' "$log" && [ "$status" -eq 143 ]; } ||
        fail "$command: status $status, $(tail -n 20 "$log")"
}

# What git sees, but for what the page has its reader write.
changes() {
    git status --porcelain --untracked-files=all | sed 's/^...//' | grep -vxF -f <(
        echo src/demo/scenes/table.h
        cd docs/tutorial && find src tests -type f
    ) || true
}

follow_page() { # PAGE
    local command
    rm -rf "$work/clone" "$work/aurora"
    git clone -q "$source" "$work/clone"
    cd "$work/clone"
    while IFS= read -r -u 4 command; do
        echo "$1: $command"
        if [ "$command" = type ]; then
            awk -f tests/docs/add_scene.awk "$1" src/demo/scenes/table.h >build/table.h
            cp build/table.h src/demo/scenes/table.h
        else
            follow "$command" "$work/log"
        fi
        [ -z "$(changes)" ] || fail "$command leaves $(changes)"
    done 4< <(commands "$1")
    cd "$source"
}

work=$source/build/pages
rm -rf "$work"
mkdir -p "$work/bin"
# shellcheck disable=SC2016
printf '#!/bin/sh\necho "replaced: sudo $*"\n' >"$work/bin/sudo"
printf '#!/bin/sh\necho "apt-get is kept from $*" >&2\nexit 1\n' >"$work/bin/apt-get"
chmod +x "$work/bin"/*
openbox --sm-disable 2>/dev/null &
manager=$!
process=
trap 'kill "$manager" $process 2>/dev/null || true' EXIT
pages=("$@")
[ $# -gt 0 ] || pages=(README.md CONTRIBUTING.md docs/*.md)
for page in "${pages[@]}"; do
    follow_page "$page"
done
echo "Every command did what it should."

#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# bench/processes.sh [BUILD [SECONDS]]: what the demo and the player of a build (build/release) cost while they run, over
# 20 seconds or as many as given: the share of one processor, wake-ups of all threads a second, resident memory, and the
# bytes written a frame, which go to the X server but for a few that wake a thread of the sound; and how soon the demo has
# sent its logo and its first frame. They run on an Xvfb and a PulseAudio of their own; nothing comes out of a loudspeaker.
set -euo pipefail
CDPATH="" cd -- "$(dirname -- "$0")/.."
if [ "${VELM_MEASURED_ALONE:-}" != yes ]; then
    packaging/need.sh xvfb pulseaudio libpulsedsp >&2
    VELM_MEASURED_ALONE=yes VELM_SCREEN=1920x1080 exec packaging/private_display.sh bench/processes.sh "$@"
fi
build=${1:-build/release} seconds=${2:-20}
frames_a_second=30
warm_up=4

place=$(mktemp -d)
server=
process=
trap 'kill $process $server 2>/dev/null || true; wait; rm -rf "$place"' EXIT

# All that counts up in a process: nanoseconds on a processor, wake-ups, bytes written.
counters() { # PROCESS
    echo "$(cat "/proc/$1/task/"*/schedstat | awk '{ sum += $1 } END { print sum }')" \
        "$(cat "/proc/$1/task/"*/status | awk '/^voluntary/ { sum += $2 } END { print sum }')" \
        "$(awk '/^wchar/ { print $2 }' "/proc/$1/io")"
}

measure() { # NAME PROGRAM ARGUMENT...
    local name=$1 before after
    shift
    "$@" >/dev/null 2>"$place/errors" &
    process=$!
    sleep "$warm_up"
    before=$(counters "$process")
    sleep "$seconds"
    after=$(counters "$process") || { cat "$place/errors" >&2; exit 1; }
    echo "$before $after $(awk '/^VmRSS/ { print $2 }' "/proc/$process/status")" |
        awk -v name="$name" -v seconds="$seconds" -v rate="$frames_a_second" '{
            printf "| %s | %.2f %% | %.0f | %.1f MiB | %.0f |\n", name, ($4 - $1) / seconds / 1e7, ($5 - $2) / seconds,
                $7 / 1024, ($6 - $3) / seconds / rate }'
    kill "$process"
    wait "$process" || true
    process=
}

# The least milliseconds of 15 starts of the demo until it has written the bytes of one picture, and of two.
measure_start() {
    local begin picture written taken least=(1000000 1000000)
    for _ in {1..15}; do
        begin=${EPOCHREALTIME/[.,]/}
        "$build/velm4030" >/dev/null 2>"$place/errors" &
        process=$!
        for picture in 1 2; do
            written=0
            while ((written < picture * 256 * 256 * 4)); do
                { read -r _ && read -r _ written; } <"/proc/$process/io" || { cat "$place/errors" >&2; exit 1; }
            done
            taken=$((${EPOCHREALTIME/[.,]/} - begin))
            ((taken >= least[picture - 1])) || least[picture - 1]=$taken
        done
        kill "$process"
        wait "$process" || true
        process=
    done
    printf 'From the start of velm4030 to its logo %.1f ms, to its first frame %.1f ms.\n' "${least[0]}e-3" "${least[1]}e-3"
}

HOME=$place XDG_RUNTIME_DIR=$place pulseaudio -n --daemonize=no --exit-idle-time=-1 --use-pid-file=no \
    --load="module-null-sink rate=44100 format=s16le channels=1" \
    --load="module-native-protocol-unix auth-anonymous=1 socket=$place/native" 2>/dev/null &
server=$!
export PULSE_SERVER=unix:$place/native
device=$(dpkg -L libpulsedsp | grep -m 1 '/libpulsedsp\.so$')

uptime
echo '| program | of a processor | wake-ups a second | resident | bytes a frame |'
echo '|---|---:|---:|---:|---:|'
measure 'velm4030, silent' "$build/velm4030"
measure 'velm4030' env LD_PRELOAD="$device" "$build/velm4030"
measure 'velm4030-play, 256 x 256, silent' "$build/velm4030-play" --scale 1 --sound none schedule
measure 'velm4030-play, 256 x 256' "$build/velm4030-play" --scale 1 --sound pulseaudio schedule
measure 'velm4030-play, 1024 x 1024, silent' "$build/velm4030-play" --scale 4 --sound none schedule
measure 'velm4030-play, 768 x 768' "$build/velm4030-play" --scale 3 --sound pulseaudio schedule
measure_start
uptime

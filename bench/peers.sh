#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# bench/peers.sh [TOPIC...]: installs the libraries that we compare ourselves with, builds and runs the comparison, about
# three minutes. The topics are blits, filters, decoding, lines and sound. The table comes on the standard output.
set -euo pipefail
CDPATH="" cd -- "$(dirname -- "$0")/.."
. packaging/packages.sh

packaging/need.sh "${peer_packages[@]}" >&2
cmake --preset peers >&2
cmake --build --preset peers >&2
sed -n 's/^model name[^:]*: //p' /proc/cpuinfo | sort | uniq -c
uptime
build/peers/bench_peers "$@"

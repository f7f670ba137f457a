#!/usr/bin/env bash
# The program as users get it against the least that the same work takes: bench/medir.sh
# [DECLARANTS [RUNS]]. docs/performance.md says how to read it.
set -euo pipefail
cd "$(dirname "$0")/.."
cmake --preset release >/dev/null
cmake --build --preset release --target bench_medir >/dev/null
exec build/release/bench/bench_medir "$@"

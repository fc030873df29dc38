#!/bin/bash
# Runs a test program on a real X server of its own (Xvfb, 2560 x 2048, no window manager) with
# the xcb platform, at the ratio given by QT_SCALE_FACTOR. Without Xvfb the test is skipped
# (exit code 77, which ctest reports as skipped), never passed silently.
#   run_under_x.sh PROGRAM [ARGUMENTS...]
set -uo pipefail
if ! command -v xvfb-run >/dev/null 2>&1 || ! command -v Xvfb >/dev/null 2>&1; then
    echo "SKIPPED: no X server can be started here (xvfb-run and Xvfb, Debian package xvfb)"
    exit 77
fi
export QT_QPA_PLATFORM=xcb
# Sanitizer builds: what D-Bus keeps until the end is not the program's leak.
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
export LSAN_OPTIONS="${LSAN_OPTIONS:+$LSAN_OPTIONS:}suppressions=$here/x11-leaks.supp"
exec xvfb-run -a -s "-screen 0 2560x2048x24 -nolisten tcp" "$@"

#!/usr/bin/env bash
# Runs a command in the virtual display around it, as a desktop set to large text would.
set -euo pipefail
echo "Xft.dpi: 120" | xrdb -merge
QT_QPA_PLATFORM=xcb exec "$@"

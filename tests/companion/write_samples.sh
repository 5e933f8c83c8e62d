#!/bin/bash
# Lets the program write the sample backups anew on the sample device, and the companion what it
# makes of them. Both presets are built before; what has changed is to be read before it is kept.
set -euo pipefail
cd "$(dirname "$0")/../.."
WRITE_SAMPLES=1 scripts/on-device --install --screen qvga \
  build/windows/tests/device/device_tests.exe '--gtest_filter=SettingsTripTest.*'
tests/companion/goldens.sh build/host/tools/tidewell-backup --write
git diff --stat tests/companion

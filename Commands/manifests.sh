# SPDX-License-Identifier: MIT
# Group: check
# Help: | what package managers are told about the library agrees with it
# Needs: cmake git python3
# Gate: 069
source Commands/Support/Command.bash

quietly manifests-script python3 -B Tests/Manifests/CheckManifests.py --check-script
python3 -B Tests/Manifests/CheckManifests.py || fail 'the manifests have the faults above'
quietly manifests-devices cmake -P Tests/Manifests/StandIns.cmake
printf 'The manifests for Conan, ESP-IDF, Zephyr, PlatformIO, Arduino, CMSIS and Meson agree with the library\n'

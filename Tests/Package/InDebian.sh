#!/bin/sh
# SPDX-License-Identifier: MIT
# Runs in an empty Debian whose /root has the packages and this folder: installs the packages, builds outside programs
# with them, and removes them.
set -eu

cd /root/Package
apt-get update
apt-get install --yes --no-install-recommends /root/*.deb g++ cmake ninja-build pkg-config
cmake -S Installed -B /root/build -G Ninja
cmake --build /root/build
flags=$(pkg-config --cflags --libs dialogmanager-core)
# shellcheck disable=SC2086
g++ -std=c++17 Application.cpp Main.cpp $flags -o /root/build/ByPkgConfig
for program in Application Loading Compiled; do
    "/root/build/$program" >"/root/$program.txt"
    diff -u "$program.expected" "/root/$program.txt"
done
/root/build/ByPkgConfig | diff -u Application.expected -
apt-get purge --yes libdialogmanager-dev dialogmanager-tools 'libdialogmanager*'
left=$(find /usr -iname '*dialogmanager*' -o -name dialogc)
[ -z "$left" ]

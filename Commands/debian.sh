# SPDX-License-Identifier: MIT
# Group: all
# Help: | the Debian packages, installed in an empty Debian, where outside programs are built with them
# Needs: debootstrap
source Commands/Support/Command.bash
source Commands/Support/BareDebian.bash

./run shared
make_bare_debian "$PWD/build/debian"
cp build/shared/*.deb "$debian/root"
cp -r Tests/Package "$debian/root"
quietly debian-packages in_debian sh /root/Package/InDebian.sh
remove_proc
rm -rf --one-file-system "$debian"
printf 'The packages are installed in an empty Debian, programs are built with them, and nothing is left without them\n'

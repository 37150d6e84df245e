# SPDX-License-Identifier: MIT
# Group: check
# Help: | includes keep to the order of the rooms, rooms have a README, editor files name what there is
# Needs: libxml2-utils python3
# Gate: 069
source Commands/Support/Command.bash

python3 -B Commands/Support/House.py || fail 'the order of the rooms is in Commands/Support/House.py'
python3 -B Commands/Support/EditorFiles.py || fail 'editors are told of the above'
while read -r name; do
    xmlcatalog Docs/catalog.xml "$name" >build/logs/catalog.txt || fail "the catalog does not find $name"
done < <(sed -n 's/.*<uri name="\([^"]*\)".*/\1/p' Docs/catalog.xml)
printf 'Every include keeps to the order of the rooms, adapters are short, and what editors read names what there is\n'

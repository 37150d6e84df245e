# SPDX-License-Identifier: MIT
# Group: check
# Help: | validate the dialog description files against their schema
# Needs: libxml2-utils
# Gate: 069
source Commands/Support/Command.bash

# An example with its own object classes has its own schema, which includes the common one.
files=0
for example in Examples/*/; do
    schema=$(find "$example" -name '*.xsd')
    while read -r -d '' file; do
        xmllint --noout --schema "${schema:-Docs/DialogFile.xsd}" "$file" 2>build/logs/schema.log || {
            cat build/logs/schema.log
            fail "$file does not conform to its schema"
        }
        files=$((files + 1))
    done < <(find "$example" -name '*.xml' -print0 | sort -z)
done
[ "$files" -gt 0 ] || fail 'there are no dialog description files'
printf '%d dialog description files are valid\n' "$files"

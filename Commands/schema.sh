# SPDX-License-Identifier: MIT
# Group: check
# Help: | validate dialog description files and flow files against their schemas
# Needs: libxml2-utils
# Gate: 069
source Commands/Support/Command.bash

# An example with its own object classes has its own schema, which includes the common one.
files=0
for example in Examples/*/; do
    schema=$(find "$example" -name '*.xsd')
    while read -r -d '' file; do
        of_file=${schema:-Docs/DialogFile.xsd}
        ! grep -q '^<Flow' "$file" || of_file=Docs/Flow.xsd
        xmllint --noout --schema "$of_file" "$file" 2>build/logs/schema.log || {
            cat build/logs/schema.log
            fail "$file does not conform to its schema"
        }
        files=$((files + 1))
    done < <(find "$example" -name '*.xml' -print0 | sort -z)
done
[ "$files" -gt 0 ] || fail 'there are no dialog description files'
printf '%d dialog description and flow files are valid\n' "$files"

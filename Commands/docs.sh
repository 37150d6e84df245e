# SPDX-License-Identifier: MIT
# Group: everyday
# Help: | make the site of the documentation in build/site, and check its links, its C++ and the headers' comments
# Needs: doxygen python3 python3-markdown
# Gate: 065
source Commands/Support/Command.bash

site=build/site
rm -rf "$site"
mkdir -p "$site"
python3 -B Commands/Support/Snippets.py || fail 'the code above is not compiled'
# Doxygen fails at the first thing that has no comment; show all of them.
{
    cat Docs/Site/Doxyfile
    printf 'OUTPUT_DIRECTORY = %s\nWARN_LOGFILE = build/logs/doxygen.log\n' "$site"
} >build/logs/Doxyfile
quietly docs-doxygen doxygen build/logs/Doxyfile
if [ -s build/logs/doxygen.log ]; then
    cat build/logs/doxygen.log
    fail 'Doxygen found the above'
fi
# The library is for the system's Python, which need not be the first one on the path.
python=python3
[ ! -x /usr/bin/python3 ] || python=/usr/bin/python3
"$python" -B Commands/Support/Site.py "$site" || fail 'the above is wrong in the pages'
printf 'The site begins at %s/index.html\n' "$site"

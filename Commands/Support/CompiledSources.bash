# SPDX-License-Identifier: MIT
# The sources, for tools that analyse them.

# Writes two files: compile_commands.json, with how the preset clang compiles each source, and sources, with their
# names: <directory>
list_compiled_sources()
{
    build clang DialogManagerCompiledDialogs
    mkdir -p "$1"
    python3 -B Commands/Support/CompiledSources.py build/clang/compile_commands.json "$1"
}

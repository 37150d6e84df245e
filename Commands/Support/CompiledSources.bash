# The sources for tools that read them.

# Makes compile_commands.json, how the preset clang compiles each source, and sources, their names: <directory>
list_compiled_sources()
{
    build clang DialogManagerCompiledDialogs
    mkdir -p "$1"
    python3 -B Commands/Support/CompiledSources.py build/clang/compile_commands.json "$1"
}

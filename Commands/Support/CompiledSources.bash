# The sources for tools that read them.

# Makes build/analysis/compile_commands.json, how the preset clang compiles each source, and build/analysis/sources,
# their names.
list_compiled_sources()
{
    build clang DialogManagerCompiledDialogs
    mkdir -p build/analysis
    python3 -B Commands/Support/CompiledSources.py build/clang/compile_commands.json build/analysis
}

# SPDX-License-Identifier: MIT
# Writes a C++ source with the contents of text files: cmake -DOUTPUT=<source> -DFILES=<files> -P <this>
set(Source "#include \"Device/EmbeddedTexts.h\"\n\nconst EmbeddedText_t g_akEmbeddedTexts[] = {\n")
foreach(File IN LISTS FILES)
    cmake_path(GET File FILENAME Name)
    file(READ "${File}" Text)
    string(APPEND Source "    {\"${Name}\", R\"EmbeddedText(${Text})EmbeddedText\"},\n")
endforeach()
string(APPEND Source "    {nullptr, nullptr}};\n")
file(WRITE "${OUTPUT}" "${Source}")

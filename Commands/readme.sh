# Group: check
# Help: | compile and run the program in README.md, compare what README.md shows
# Needs: @build python3
# Gate: 190
source Commands/Support/Command.bash

build release DialogManagerCore DialogManagerLoader
mkdir -p build/readme
python3 -B Commands/Support/ReadmeBlocks.py README.md Examples/CoffeeMachine/Tour.golden build/readme ||
    fail 'README.md does not show what it should'
quietly readme g++ -std=c++17 -Wall -Wextra -Wpedantic -Werror -IInclude -I. build/readme/Program.cpp \
    -o build/readme/Program build/release/libDialogManagerLoader.a \
    build/release/libDialogManagerROMLoader.a build/release/libDialogManagerCore.a -lpugixml
build/readme/Program >build/readme/Output.txt || fail 'the program of README.md ends with an error'
diff -u build/readme/Expected.txt build/readme/Output.txt ||
    fail 'the program of README.md prints something else than README.md says'
printf 'The program of README.md prints what README.md says\n'

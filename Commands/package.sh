# SPDX-License-Identifier: MIT
# Group: check
# Help: | build outside programs with the installed and the vendored library
# Needs: @build libxml2-utils libfltk1.3-dev pkg-config
# Gate: 062
source Commands/Support/Command.bash
source Commands/Support/OutsidePrograms.bash

outside=build/package

# Fails unless CMake refuses an outside program that asks for components, with these words: <components> <words>
missing_component()
{
    local tree=build/package/MissingComponent said=build/package/MissingComponent.txt
    rm -rf "$tree"
    if cmake -S Tests/Package/MissingComponent -B "$tree" -DCMAKE_CXX_COMPILER=g++ "-DCMAKE_PREFIX_PATH=$prefix" \
        "-DCOMPONENTS=$1" >"$said" 2>&1; then
        fail "CMake accepts the components $1"
    fi
    tr -s ' \n' '  ' <"$said" | grep -q -F -e "$2" || fail "for the components $1 CMake should say: $2; see $said"
}

build release
rm -rf build/package
quietly package-install cmake --install build/release --prefix build/package/original
# An installation can be moved, and does not name the place where it was built.
mv build/package/original build/package/installed
if grep -r -l -F -e "$PWD" build/package/installed; then
    fail 'the installed files above name the directory where they were built'
fi

prefix=$PWD/build/package/installed
cmp LICENSE "$prefix/share/doc/DialogManager/LICENSE"
cmp Include/Core/GUIVersion.h "$prefix/include/DialogManager/Core/GUIVersion.h"
for schema in DialogFile Widgets; do
    quietly package-schema xmllint --noout --schema "$prefix/share/DialogManager/$schema.xsd" Tests/Package/Home.xml
done
missing_component 'Loader;Lodaer' "There is no component 'Lodaer'; this installation has \
Core, ROMLoader, Loader, Companions, Scenario, Widgets, Mirror, FLTK, Inspection, InspectionHost, Simulator, SimulatorTerminal, TestSupport."
missing_component Examples "There is no component 'Examples'; this installation has Core, "
printf 'A missing component is reported by name\n'
outside_programs Installed "-DCMAKE_PREFIX_PATH=$prefix" Application Loading Companion Compiled Widgets FLTK
outside_programs InstalledCore "-DCMAKE_PREFIX_PATH=$prefix" Application Compiled Widgets
pkg_config_program "$prefix" dialogmanager-core Application Tests/Package/{Application,Main}.cpp
pkg_config_program "$prefix" 'dialogmanager-testsupport dialogmanager-loader' Loading Tests/Package/Loading.cpp
pkg_config_program "$prefix" dialogmanager-fltk FLTK Tests/Package/FLTK.cpp
outside_programs Vendored "-DDIALOGMANAGER_DIRECTORY=$PWD" Application Loading Companion Compiled Widgets FLTK
outside_programs StaticExport "-DDIALOGMANAGER_DIRECTORY=$PWD" Application

if ninja -C build/package/Vendored -t targets all | grep -E '(UnitTests|ScenarioTests|CoffeeMachine):'; then
    fail 'the vendored library adds the targets above to the build of its user'
fi
quietly package-vendored-install cmake --install build/package/Vendored --prefix build/package/nothing
if [ -n "$(find build/package -path 'build/package/nothing/*' -type f)" ]; then
    fail 'the vendored library installs files with the program of its user'
fi
printf 'The vendored library adds neither tests nor install rules\n'

build_outside_programs Assertions "-DDIALOGMANAGER_DIRECTORY=$PWD"
told=build/package/Assertions/ForgottenRoot.txt
if build/package/Assertions/ForgottenRoot 2>"$told"; then
    fail 'ForgottenRoot of build/package/Assertions runs without a root'
fi
grep -F "Assertion \`NULL != ms_pInstance' failed" "$told" ||
    fail "ForgottenRoot of build/package/Assertions does not report the missing root; see $told"

# A build without options needs no GoogleTest, and does not build tests and examples.
plain=build/package/plain
quietly package-plain env -u CXXFLAGS cmake -S . -B "$plain" -DCMAKE_DISABLE_FIND_PACKAGE_GTest=ON
cmake --build "$plain" --target help >build/logs/package-plain-targets.txt
for target in DialogManagerCore DialogManagerLoader dialogc; do
    grep -q -F -x "... $target" build/logs/package-plain-targets.txt || fail "a plain build has no $target"
done
if grep -E '(Tests|CoffeeMachine)$' build/logs/package-plain-targets.txt; then
    fail 'a plain build has the targets above'
fi
quietly package-without-widgets env -u CXXFLAGS cmake -S . -B "$plain-without" -DDIALOGMANAGER_BUILD_WIDGETS=OFF
if cmake --build "$plain-without" --target help | grep Widgets; then
    fail 'a build without widgets has the target above'
fi
quietly package-without-fltk env -u CXXFLAGS cmake -S . -B "$plain-without" -DDIALOGMANAGER_BUILD_WIDGETS=ON \
    -DDialogManagerFLTKHeaders=OFF
if cmake --build "$plain-without" --target help | grep FLTK; then
    fail 'a build without FLTK has the target above'
fi
grep -q -x 'CMAKE_BUILD_TYPE:STRING=Release' "$plain/CMakeCache.txt" || fail 'a plain build is not optimised'
printf 'A plain build has the libraries and dialogc, optimised, and needs no GoogleTest\n'

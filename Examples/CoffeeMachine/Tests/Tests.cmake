# SPDX-License-Identifier: MIT
# The tests of the coffee machine, built as a part of the project.
add_executable(CoffeeMachineTests
    Tests/CoffeeMachineTest.cpp
    Tests/CompanionsTest.cpp
    Tests/DialogsTest.cpp
    Tests/MachineTest.cpp
    Tests/PopupsTest.cpp
    Tests/WidgetsTest.cpp)
target_link_libraries(CoffeeMachineTests PRIVATE
    CoffeeMachineApplication DialogManager::TestSupport ${GoogleTest})
if(DIALOGMANAGER_BUILD_DEVICE)
    target_sources(CoffeeMachineTests PRIVATE Tests/DialogReaderDevice.cpp)
    coffee_machine_compile_dialogs(CoffeeMachineTests)
    device_tests(CoffeeMachineTests)
else()
    target_sources(CoffeeMachineTests PRIVATE Tests/DialogReaderHost.cpp Tests/TourHostTest.cpp)
    target_compile_definitions(CoffeeMachineTests PRIVATE
        "COFFEE_MACHINE_DIRECTORY=\"${CMAKE_CURRENT_SOURCE_DIR}\"")
    target_link_libraries(CoffeeMachineTests PRIVATE DialogManager::Loader)
    add_test(NAME CoffeeMachineTests COMMAND CoffeeMachineTests)
endif()

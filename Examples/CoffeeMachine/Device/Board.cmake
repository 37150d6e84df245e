# SPDX-License-Identifier: MIT
# The coffee machine for the board in Device/ of the project.
add_executable(CoffeeMachine Device/Main.cpp Device/SteppedClock.cpp)
target_link_libraries(CoffeeMachine PRIVATE CoffeeMachineApplication)
device_embed_texts(CoffeeMachine Tour.scenario)
device_program(CoffeeMachine 64K)

# Compiles the dialogs into a program.
function(coffee_machine_compile_dialogs Target)
    file(GLOB Dialogs CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/Dialogs/*.xml")
    dialogmanager_add_compiled_dialogs(${Target}
        NAME Dialogs
        FILES ${Dialogs}
        HANDLES Application/Handles.h)
endfunction()
coffee_machine_compile_dialogs(CoffeeMachine)

# The same on its own clock, with an inspection over the serial line.
if(TARGET DialogManager::Inspection)
    add_executable(CoffeeMachineInspected Device/InspectedMain.cpp Device/MachineCommands.cpp)
    target_link_libraries(CoffeeMachineInspected PRIVATE CoffeeMachineApplication DialogManager::Inspection BoardSerialLine)
    device_program(CoffeeMachineInspected 64K)
    coffee_machine_compile_dialogs(CoffeeMachineInspected)
endif()

# On LVGL, with a display.
if(TARGET DialogManager::LVGL)
    add_executable(CoffeeMachineLVGL
        Device/LVGLMain.cpp
        Drawn/DrawnPlayer.cpp
        LVGL/Board.cpp
        LVGL/LVGLPlayer.cpp
        LVGL/Look.cpp
        LVGL/BoardPicture.cpp)
    target_link_libraries(CoffeeMachineLVGL PRIVATE CoffeeMachineApplication DialogManager::LVGL)
    device_embed_texts(CoffeeMachineLVGL Tour.scenario Drawn/Pictures.scenario)
    # 64K is more than is ever in use, but in pieces that are too small.
    device_program(CoffeeMachineLVGL 96K)
    coffee_machine_compile_dialogs(CoffeeMachineLVGL)
endif()

# SPDX-License-Identifier: MIT
# The coffee machine as WebAssembly: a page, and the tour for node.
add_executable(CoffeeMachinePage Browser/Main.cpp)
target_link_libraries(CoffeeMachinePage PRIVATE CoffeeMachineApplication)
dialogmanager_add_page(CoffeeMachinePage DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/Page" TOUR Tour.scenario)

add_executable(CoffeeMachineTour Browser/Tour.cpp)
target_link_libraries(CoffeeMachineTour PRIVATE CoffeeMachineApplication)
target_link_options(CoffeeMachineTour PRIVATE -sENVIRONMENT=node -sEXIT_RUNTIME=1 -sALLOW_MEMORY_GROWTH=1)

file(GLOB Dialogs CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/Dialogs/*.xml")
foreach(Program IN ITEMS CoffeeMachinePage CoffeeMachineTour)
    dialogmanager_add_compiled_dialogs(${Program}
        NAME Dialogs
        FILES ${Dialogs}
        HANDLES Application/Handles.h)
endforeach()

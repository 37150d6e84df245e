# SPDX-License-Identifier: MIT
# The coffee machine as WebAssembly: a page, and the tour for node.
add_executable(CoffeeMachinePage Browser/Main.cpp)
target_link_libraries(CoffeeMachinePage PRIVATE CoffeeMachineApplication)
set(Examples "${CMAKE_CURRENT_SOURCE_DIR}/..")
cmake_path(NORMAL_PATH Examples)
file(GLOB Flows CONFIGURE_DEPENDS "${Examples}/Flows/*.xml")
file(GLOB FlowFiles CONFIGURE_DEPENDS "${Examples}/Flows/*.scenario" "${CMAKE_CURRENT_SOURCE_DIR}/Dialogs/*.xml")
dialogmanager_add_page(CoffeeMachinePage DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/Page" TOUR Tour.scenario
    FLOWS ${Flows} FLOWS_BASE "${Examples}" FLOWS_FILES ${FlowFiles})

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

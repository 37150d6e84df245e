# Sets GoogleTest to the library that tests link: GoogleTest, GoogleMock and a main function.
#
# Without run-time type information the tests need a GoogleTest that was built without it too: the
# distribution's libraries are built with it, its sources can be built either way.
if(DIALOGMANAGER_RTTI)
    find_package(GTest REQUIRED)
    set(GoogleTest GTest::gmock_main)
else()
    set(INSTALL_GTEST OFF)
    add_subdirectory(/usr/src/googletest "${CMAKE_CURRENT_BINARY_DIR}/GoogleTest" EXCLUDE_FROM_ALL SYSTEM)
    target_compile_options(gtest PUBLIC -fno-rtti)
    set(GoogleTest gmock_main)
endif()

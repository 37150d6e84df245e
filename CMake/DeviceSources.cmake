# SPDX-License-Identifier: MIT
# The core and the reader of compiled dialogs, for build systems of devices that compile sources themselves: sets
# DialogManagerDeviceSources to the paths of the sources and DialogManagerDeviceIncludes to the folders of headers.
cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH DialogManagerRoot)
file(GLOB_RECURSE DialogManagerDeviceSources "${DialogManagerRoot}/Source/*.cpp")
list(APPEND DialogManagerDeviceSources
    "${DialogManagerRoot}/Loader/DialogFileError.cpp"
    "${DialogManagerRoot}/Loader/DialogTreeBuilder.cpp"
    "${DialogManagerRoot}/Loader/GUIDialogROMReader.cpp"
    "${DialogManagerRoot}/Loader/UTF8Text.cpp")
set(DialogManagerDeviceIncludes "${DialogManagerRoot}/Include" "${DialogManagerRoot}")

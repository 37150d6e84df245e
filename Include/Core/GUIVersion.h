// SPDX-License-Identifier: MIT
#ifndef CORE_GUIVERSION_H
#define CORE_GUIVERSION_H

/** @file
 *  The version of the dialog manager, for the preprocessor and as a text. CMake refuses to configure when the
 *  project's version is another one.
 */

/** A number of the version; Docs/Versions.md says when it changes.
 *  @{
 */
#define GUI_VERSION_MAJOR 0
#define GUI_VERSION_MINOR 1
#define GUI_VERSION_PATCH 0
/** @} */

/** "major.minor.patch", a literal */
#define GUI_VERSION                                                                                          \
    GUI_VERSION_TEXT_(GUI_VERSION_MAJOR)                                                                     \
    "." GUI_VERSION_TEXT_(GUI_VERSION_MINOR) "." GUI_VERSION_TEXT_(GUI_VERSION_PATCH)

#define GUI_VERSION_TEXT_(Number) GUI_VERSION_LITERAL_(Number)
#define GUI_VERSION_LITERAL_(Number) #Number

#endif

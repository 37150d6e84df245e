// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_APPLICATION_BUILTDIALOGS_H
#define EXAMPLES_COFFEEMACHINE_APPLICATION_BUILTDIALOGS_H

/** @file
 *  The dialogs and the popup that are built in code instead of being loaded from a file.
 */

class CGUIObject;

/** @return a new dialog DLG_BREWING below the root */
CGUIObject* BuildBrewingDialog();

/** @return a new dialog without an identifier below the root, a small window: AddDialog gives it one */
CGUIObject* BuildAboutDialog();

/** @return a new popup below the root; the manager shows it */
CGUIObject* BuildSavedPopup();

#endif

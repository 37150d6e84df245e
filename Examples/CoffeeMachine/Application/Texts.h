// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_APPLICATION_TEXTS_H
#define EXAMPLES_COFFEEMACHINE_APPLICATION_TEXTS_H

/** @file
 *  The texts on the screen, in every language.
 *
 *  Dialog files and code refer to a text by its key. The text is looked up when it is drawn, so a new
 *  language is visible at once, even in dialogs that were loaded before.
 */

#include "Core/Utils/eC_Types.h"

/** Languages of the machine. */
enum ELanguage : unsigned char
{
    LANGUAGE_ENGLISH,
    LANGUAGE_GERMAN
};

// clang-format off
/** Key, English, German. UTF-8. */
#define COFFEE_MACHINE_TEXTS(TEXT)                                                                           \
    TEXT(TXT_NONE, "", "")                                                                                   \
    TEXT(TXT_BACK, "Back", "Zurück")                                                                         \
    TEXT(TXT_HOME, "Home", "Start")                                                                          \
    TEXT(TXT_OK, "OK", "OK")                                                                                 \
    TEXT(TXT_COFFEE_MACHINE, "Coffee machine", "Kaffeemaschine")                                             \
    TEXT(TXT_WELCOME, "Good morning!", "Guten Morgen!")                                                      \
    TEXT(TXT_DRINKS, "Drinks", "Getränke")                                                                   \
    TEXT(TXT_SETTINGS, "Settings", "Einstellungen")                                                          \
    TEXT(TXT_CLEANING, "Cleaning", "Reinigung")                                                              \
    TEXT(TXT_ABOUT, "About", "Über")                                                                         \
    TEXT(TXT_WATER, "Water", "Wasser")                                                                       \
    TEXT(TXT_BEANS, "Beans", "Bohnen")                                                                       \
    TEXT(TXT_ESPRESSO, "Espresso", "Espresso")                                                               \
    TEXT(TXT_COFFEE, "Coffee", "Kaffee")                                                                     \
    TEXT(TXT_CAPPUCCINO, "Cappuccino", "Cappuccino")                                                         \
    TEXT(TXT_TEA_WATER, "Tea water", "Teewasser")                                                            \
    TEXT(TXT_YOUR_DRINK, "Your drink", "Ihr Getränk")                                                        \
    TEXT(TXT_STRENGTH, "Strength:", "Stärke:")                                                               \
    TEXT(TXT_MILD, "mild", "mild")                                                                           \
    TEXT(TXT_MEDIUM, "medium", "mittel")                                                                     \
    TEXT(TXT_STRONG, "strong", "stark")                                                                      \
    TEXT(TXT_BREW, "Brew", "Zubereiten")                                                                     \
    TEXT(TXT_BREWING, "Brewing", "Zubereitung")                                                              \
    TEXT(TXT_STOP, "Stop", "Abbrechen")                                                                      \
    TEXT(TXT_READY, "Ready", "Bereit")                                                                       \
    TEXT(TXT_BREWING_NOW, "Brewing ...", "Wird zubereitet ...")                                              \
    TEXT(TXT_WAITING, "Waiting", "Wartet")                                                                   \
    TEXT(TXT_ENJOY, "Enjoy your cup!", "Zum Wohl!")                                                          \
    TEXT(TXT_LANGUAGE, "Language", "Sprache")                                                                \
    TEXT(TXT_ENGLISH, "English", "English")                                                                  \
    TEXT(TXT_GERMAN, "Deutsch", "Deutsch")                                                                   \
    TEXT(TXT_MESSAGE_TIME, "Messages:", "Meldungen:")                                                        \
    TEXT(TXT_SAVED, "Saved", "Gespeichert")                                                                  \
    TEXT(TXT_CLEANING_TABLET, "Cleaning 1 of 3", "Reinigung 1 von 3")                                        \
    TEXT(TXT_PUT_TABLET, "Put a tablet into the brew unit.", "Tablette in die Brühgruppe legen.")            \
    TEXT(TXT_CLEANING_RINSE, "Cleaning 2 of 3", "Reinigung 2 von 3")                                         \
    TEXT(TXT_RINSING, "The machine is rinsing.", "Die Maschine spült.")                                      \
    TEXT(TXT_VALVE, "Valve:", "Ventil:")                                                                     \
    TEXT(TXT_OPEN, "open", "offen")                                                                          \
    TEXT(TXT_CLOSED, "closed", "geschlossen")                                                                \
    TEXT(TXT_CLEANING_EMPTY, "Cleaning 3 of 3", "Reinigung 3 von 3")                                         \
    TEXT(TXT_EMPTY_TRAY, "Empty the drip tray.", "Tropfschale leeren.")                                      \
    TEXT(TXT_NEXT, "Next", "Weiter")                                                                         \
    TEXT(TXT_RESTART, "Start again", "Neu beginnen")                                                         \
    TEXT(TXT_SERVICE, "Service", "Service")                                                                  \
    TEXT(TXT_CODE, "Service code", "Servicecode")                                                            \
    TEXT(TXT_ENTER_CODE, "Please enter the code.", "Bitte Code eingeben.")                                   \
    TEXT(TXT_CUPS, "Cups since descaling:", "Tassen seit Entkalkung:")                                       \
    TEXT(TXT_HOME_LAYOUT, "Home screen:", "Startbild:")                                                      \
    TEXT(TXT_REMINDER, "Descale reminder:", "Entkalkungshinweis:")                                           \
    TEXT(TXT_ON, "on", "an")                                                                                 \
    TEXT(TXT_OFF, "off", "aus")                                                                              \
    TEXT(TXT_WATER_EMPTY, "No water", "Kein Wasser")                                                         \
    TEXT(TXT_FILL_TANK, "Please fill the tank.", "Bitte Tank füllen.")                                       \
    TEXT(TXT_TRAY_MISSING, "No tray", "Schale fehlt")                                                        \
    TEXT(TXT_INSERT_TRAY, "Insert the drip tray.", "Tropfschale einsetzen.")                                 \
    TEXT(TXT_BEANS_LOW, "Few beans", "Wenig Bohnen")                                                         \
    TEXT(TXT_FILL_BEANS, "Please add beans.", "Bohnen nachfüllen.")                                          \
    TEXT(TXT_DESCALE, "Descale soon", "Bald entkalken")                                                      \
    TEXT(TXT_DESCALE_NOW, "Clean now", "Jetzt reinigen")                                                     \
    TEXT(TXT_ABOUT_TEXT, "An example of dialogs", "Ein Beispiel für Dialoge")                                \
    TEXT(TXT_ABOUT_TEXT_2, "and popups in one program.", "und Meldungen.")
// clang-format on

#define COFFEE_MACHINE_TEXT_KEY_(Key, English, German) Key,

/** Identifies a text. */
enum ETextKey : unsigned char
{
    COFFEE_MACHINE_TEXTS(COFFEE_MACHINE_TEXT_KEY_) NOF_TEXTS
};

/** @return the text in a language, zero-terminated UTF-8, constant */
const eC_Char* GetDisplayText(ETextKey eKey, ELanguage eLanguage);

/** Finds a text by the name of its key, as dialog files write it.
 *  @param pcName the key's name, zero-terminated
 *  @param eKeyOUT receives the key; unchanged if none has that name
 *  @return true if found
 */
eC_Bool FindTextKey(const eC_Char* pcName, ETextKey& eKeyOUT);

#endif

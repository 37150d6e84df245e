// SPDX-License-Identifier: MIT
/* SPDX-License-Identifier: MIT */
#ifndef ADAPTERS_LVGL_DIALOGMANAGER_LVGL_H
#define ADAPTERS_LVGL_DIALOGMANAGER_LVGL_H

/** @file
 *  The dialog manager on LVGL, for programs in C.
 *
 *      static lv_obj_t* build_home(lv_obj_t* parent, void* user_data)
 *      {
 *          lv_obj_t* screen = lv_obj_create(parent);
 *          lv_obj_t* button = lv_button_create(screen);
 *          dialogmanager_identify(button, ID_MENU_BUTTON);
 *          return screen;
 *      }
 *
 *      dialogmanager_create(NULL);
 *      dialogmanager_register_dialog(ID_HOME, build_home, NULL);
 *      dialogmanager_show(ID_HOME, DIALOGMANAGER_ACTION_KEEP);
 *
 *  There is one dialog manager, because there is one tree of objects. All functions are called from the task
 *  that calls lv_timer_handler. What they do becomes visible in its next turn; so all but
 *  dialogmanager_destroy may be called in event handlers of LVGL, also in those of an object that they
 * delete. No function throws, and none needs what it is given longer than the call unless it says so.
 * Functions that return a dialogmanager_result_t change nothing when it is not DIALOGMANAGER_OK, unless they
 * say so; there is an ERROR in the trace for each DIALOGMANAGER_ERROR_FAILED.
 *
 *  An identifier is a number from 1 to DIALOGMANAGER_GREATEST_ID; the application chooses those of dialogs,
 *  popups and objects. Any other number is a DIALOGMANAGER_ERROR_ARGUMENT where something gets an identifier
 *  or is shown, and is not found elsewhere.
 */

#include <lvgl.h>
#include <stdbool.h>
#include <stdint.h>

#define DIALOGMANAGER_GREATEST_ID 0x3FFFFFFF /**< the greatest identifier that an application may choose */

#ifdef __cplusplus
extern "C"
{
#endif

    typedef int32_t dialogmanager_id_t; /**< an identifier; 0 is none */

    /** What the functions return. */
    typedef enum
    {
        DIALOGMANAGER_OK = 0,              /**< it is done */
        DIALOGMANAGER_ERROR_ARGUMENT = -1, /**< null, or a value out of its range */
        DIALOGMANAGER_ERROR_STATE = -2,  /**< there is no dialog manager, or the function does not fit now */
        DIALOGMANAGER_ERROR_EXISTS = -3, /**< registered already */
        DIALOGMANAGER_ERROR_UNKNOWN =
            -4,                          /**< nothing is registered, shown or recorded under the identifier */
        DIALOGMANAGER_ERROR_FAILED = -5, /**< a dialog or popup could not be made, or the application threw */
        DIALOGMANAGER_ERROR_MEMORY = -6  /**< there is no memory */
    } dialogmanager_result_t;

    /** What becomes of the dialog that a new one replaces; going back undoes it. */
    typedef enum
    {
        DIALOGMANAGER_ACTION_HIDE = 0,     /**< hidden, and shown again on the way back */
        DIALOGMANAGER_ACTION_HIDE_ALL = 1, /**< likewise, and all dialogs of the history are hidden */
        DIALOGMANAGER_ACTION_DELETE = 2,   /**< deleted, and built again on the way back */
        DIALOGMANAGER_ACTION_DELETE_ALL =
            3,                        /**< likewise, and the visible dialogs of the history are deleted */
        DIALOGMANAGER_ACTION_KEEP = 4 /**< stays visible below the new one */
    } dialogmanager_action_t;

    /** The kinds of transitions: as lv_screen_load_anim, for dialogs. */
    typedef enum
    {
        DIALOGMANAGER_TRANSITION_NONE,
        DIALOGMANAGER_TRANSITION_OVER_LEFT, /**< the new dialog moves over the old one */
        DIALOGMANAGER_TRANSITION_OVER_RIGHT,
        DIALOGMANAGER_TRANSITION_OVER_UP,
        DIALOGMANAGER_TRANSITION_OVER_DOWN,
        DIALOGMANAGER_TRANSITION_MOVE_LEFT, /**< both move */
        DIALOGMANAGER_TRANSITION_MOVE_RIGHT,
        DIALOGMANAGER_TRANSITION_MOVE_UP,
        DIALOGMANAGER_TRANSITION_MOVE_DOWN,
        DIALOGMANAGER_TRANSITION_OUT_LEFT, /**< the old dialog moves away */
        DIALOGMANAGER_TRANSITION_OUT_RIGHT,
        DIALOGMANAGER_TRANSITION_OUT_UP,
        DIALOGMANAGER_TRANSITION_OUT_DOWN,
        DIALOGMANAGER_TRANSITION_FADE /**< the new dialog appears over the old one */
    } dialogmanager_transition_t;

    /** Builds a dialog or popup in a parent. Widgets that LVGL adds to the default group by itself get into
     * the group of the dialog or popup. It may call dialogmanager_identify.
     *  @return the outermost object; NULL if it failed: what it has made is deleted
     */
    typedef lv_obj_t* (*dialogmanager_builder_t)(lv_obj_t* parent, void* user_data);

    /** Called when dialogs and popups come and go; any of them may be NULL. They may call all functions. */
    typedef struct
    {
        void (*on_added)(dialogmanager_id_t id, void* user_data); /**< is current, was not in the history */
        void (*on_activated)(dialogmanager_id_t id, void* user_data); /**< has become current */
        void (*on_deactivated)(dialogmanager_id_t id,
                               void* user_data); /**< will be hidden, or stays but is left */
        bool (*may_delete)(dialogmanager_id_t id, void* user_data); /**< false: it is hidden instead */
        void (*on_left)(dialogmanager_id_t left, dialogmanager_id_t target,
                        void* user_data);      /**< on the way back */
        void (*on_last_left)(void* user_data); /**< no dialog could be brought back */
        void (*on_popup_shown)(dialogmanager_id_t id, void* user_data); /**< has become visible */
        void (*on_popup_hidden)(dialogmanager_id_t id,
                                void* user_data); /**< was hidden, or is being closed */
        void* user_data;                          /**< given to each of them */
    } dialogmanager_hooks_t;

    /** What the user does with widgets of compiled dialogs; any of them may be NULL. */
    typedef struct
    {
        void (*on_activated)(dialogmanager_id_t id, void* user_data); /**< pressed, or confirmed */
        /** The user has changed a value or a text. @param text zero-terminated, good during the call */
        void (*on_changed)(dialogmanager_id_t id, int32_t value, const char* text, void* user_data);
        void* user_data; /**< given to both */
    } dialogmanager_listener_t;

    /** The texts and values of compiled dialogs, by the names in textkey and source; any may be NULL. */
    typedef struct
    {
        uint16_t (*find_text)(const char* name,
                              void* user_data); /**< @return its number, 0 if there is none */
        const char* (*get_text)(uint16_t text, void* user_data); /**< in the current language */
        uint16_t (*find_value)(const char* name,
                               void* user_data); /**< @return its number, 0 if there is none */
        const char* (*get_value_text)(uint16_t value, void* user_data); /**< good until the next call */
        int32_t (*get_value_number)(uint16_t value, void* user_data);   /**< for bars and the like */
        void* user_data;                                                /**< given to each of them */
    } dialogmanager_contents_t;

    /** Where dialogs are. Zero is the default of each member. */
    typedef struct
    {
        lv_display_t* display; /**< NULL: LVGL's default display */
        lv_obj_t* parent;      /**< where the dialogs go; NULL: the active screen of the display */
        int32_t width;         /**< of the display in units of compiled dialogs; 0: these are in pixels */
        int32_t height;        /**< likewise */
        const lv_font_t* font; /**< measures texts of compiled dialogs; NULL: LVGL's default font */
        int32_t button_width;  /**< of a button of natural size at least, in pixels */
        int32_t button_height; /**< likewise */
        bool log_to_lvgl;      /**< the trace goes to LVGL's log instead of standard error */
    } dialogmanager_config_t;

    /** The tables that dialogc makes of dialog files: declare
     *      extern const struct DialogROMTables_t ckDialogs;
     */
    struct DialogROMTables_t;

    /* --- Life ----------------------------------------------------------------------------------------------
     */

    /** Makes the dialog manager, after lv_init and with a display. Sets the framework's clock to lv_tick_get.
     *  @param config is copied; NULL: all defaults
     *  @return DIALOGMANAGER_ERROR_STATE if there is one, or no display; DIALOGMANAGER_ERROR_MEMORY
     */
    dialogmanager_result_t dialogmanager_create(const dialogmanager_config_t* config);

    /** Deletes all dialogs and popups and the dialog manager, without calling hooks, before lv_deinit.
     *  @return DIALOGMANAGER_ERROR_STATE in an event handler of an input device
     */
    dialogmanager_result_t dialogmanager_destroy(void);

    /** Sets the hooks. @param hooks is copied; NULL: none */
    dialogmanager_result_t dialogmanager_set_hooks(const dialogmanager_hooks_t* hooks);

    /** Sets who learns what the user does. @param listener is copied; NULL: nobody */
    dialogmanager_result_t dialogmanager_set_listener(const dialogmanager_listener_t* listener);

    /** Sets texts and values, before dialogs that use them are shown. @param contents is copied; NULL: none
     */
    dialogmanager_result_t dialogmanager_set_contents(const dialogmanager_contents_t* contents);

    /** Shows the texts again, because the language has changed. */
    dialogmanager_result_t dialogmanager_update_texts(void);

    /** Adds a style to a name of compiled dialogs, or of a class of widgets; see CGUILVGL.
     *  @param name, style outlive the dialog manager. @param selector as of lv_obj_add_style
     */
    dialogmanager_result_t dialogmanager_add_style(const char* name, const lv_style_t* style,
                                                   lv_style_selector_t selector);

    /** Sets the transition of the switches from now on. @param transition a dialogmanager_transition_t
     *  @param time milliseconds, 0: none
     *  @param once only of the next switch
     */
    dialogmanager_result_t dialogmanager_set_transition(int transition, uint32_t time, bool once);

    /** Makes what has changed visible now instead of in the next turn of lv_timer_handler; in an event
     * handler of LVGL it waits for that.
     */
    dialogmanager_result_t dialogmanager_turn(void);

    /* --- Definitions ---------------------------------------------------------------------------------------
     */

    /** Registers a dialog that a function builds, when it is shown and again whenever it was deleted.
     *  @return DIALOGMANAGER_ERROR_EXISTS if a dialog or popup is registered under the identifier
     */
    dialogmanager_result_t dialogmanager_register_dialog(dialogmanager_id_t id,
                                                         dialogmanager_builder_t builder, void* user_data);

    /** Sets the compiled dialogs, once. @param tables outlives the dialog manager
     *  @return DIALOGMANAGER_ERROR_EXISTS if they are set, or if something else reads files that end in .xml
     */
    dialogmanager_result_t dialogmanager_set_tables(const struct DialogROMTables_t* tables);

    /** Registers a compiled dialog. @param path as given to dialogc; it ends in .xml. Showing fails if no
     *         table has it
     *  @return DIALOGMANAGER_ERROR_EXISTS if a dialog or popup is registered under the identifier
     */
    dialogmanager_result_t dialogmanager_register_compiled_dialog(dialogmanager_id_t id, const char* path);

    /** Registers a popup that a function builds. It keeps input from everything below it; see
     *  dialogmanager_set_popup_modal.
     *  @param priority 1 to 9, the greater one wins. @param time milliseconds until it closes itself, 0:
     * never
     *  @param delete_on_close whether closing deletes it; otherwise it is hidden
     *  @return DIALOGMANAGER_ERROR_EXISTS if a dialog or popup is registered under the identifier
     */
    dialogmanager_result_t dialogmanager_register_popup(dialogmanager_id_t id, int priority, uint32_t time,
                                                        bool delete_on_close, dialogmanager_builder_t builder,
                                                        void* user_data);

    /** Registers a compiled popup, whose attribute modal says whether it keeps input from what is below it.
     *  Otherwise as dialogmanager_register_popup.
     */
    dialogmanager_result_t dialogmanager_register_compiled_popup(dialogmanager_id_t id, int priority,
                                                                 uint32_t time, bool delete_on_close,
                                                                 const char* path);

    /** Names an object, in a builder: its focus is remembered under that identifier, and restored in the
     * object of that identifier when the dialog is built again. It gets into the group of the dialog.
     *  @return DIALOGMANAGER_ERROR_FAILED outside a builder, or if the dialog has an object of that
     * identifier
     */
    dialogmanager_result_t dialogmanager_identify(lv_obj_t* object, dialogmanager_id_t id);

    /* --- Dialogs -------------------------------------------------------------------------------------------
     */

    /** Switches to a dialog. @param action a dialogmanager_action_t
     *  @return DIALOGMANAGER_ERROR_FAILED if it is not registered or could not be made; the current one stays
     */
    dialogmanager_result_t dialogmanager_show(dialogmanager_id_t id, int action);

    /** Goes back one dialog. @param delete_dialog deletes the one that is left; otherwise it is hidden
     *  @return DIALOGMANAGER_ERROR_UNKNOWN if no dialog is current, or the history is empty;
     *          DIALOGMANAGER_ERROR_FAILED if the dialog could not be brought back: the other one is left
     *          nevertheless
     */
    dialogmanager_result_t dialogmanager_back(bool delete_dialog);

    /** Goes back to a dialog of the history, without showing those in between.
     *  @param delete_dialogs deletes the dialogs that are left; otherwise they are hidden
     *  @return DIALOGMANAGER_ERROR_UNKNOWN if it is not in the history; otherwise as dialogmanager_back
     */
    dialogmanager_result_t dialogmanager_back_to(dialogmanager_id_t id, bool delete_dialogs);

    /** Shortens the history to its oldest dialogs. @param keep how many
     *  @param delete_dialogs deletes the others; otherwise they are hidden. @param with_current the current
     * one, too
     */
    dialogmanager_result_t dialogmanager_clear(uint32_t keep, bool delete_dialogs, bool with_current);

    dialogmanager_id_t dialogmanager_current(void); /**< @return the current dialog, 0: none */
    uint32_t dialogmanager_history_size(void);      /**< @return how many dialogs the history records */

    /** @param index 0: the dialog to which dialogmanager_back leads. @return 0 if there are not that many */
    dialogmanager_id_t dialogmanager_history(uint32_t index);

    /* --- Popups --------------------------------------------------------------------------------------------
     */

    /** Shows a popup, or lets it wait for those of a higher priority.
     *  @return DIALOGMANAGER_ERROR_UNKNOWN if it is not registered, DIALOGMANAGER_ERROR_FAILED if it could
     *          not be made. After DIALOGMANAGER_ERROR_MEMORY it may have been made, and is hidden
     */
    dialogmanager_result_t dialogmanager_show_popup(dialogmanager_id_t id);

    /** Closes a popup, shown or waiting. @return DIALOGMANAGER_ERROR_UNKNOWN if it is neither */
    dialogmanager_result_t dialogmanager_close_popup(dialogmanager_id_t id);

    bool dialogmanager_is_popup_shown(dialogmanager_id_t id); /**< @return whether it is visible */

    /** Sets whether a popup that is shown or waits keeps input from what is below it.
     *  @return DIALOGMANAGER_ERROR_UNKNOWN if there is none
     */
    dialogmanager_result_t dialogmanager_set_popup_modal(dialogmanager_id_t id, bool is_modal);

    /* --- Focus ---------------------------------------------------------------------------------------------
     */

    dialogmanager_id_t
    dialogmanager_focus(void); /**< @return what has the focus, 0: nothing with an identifier */

    /** Gives the focus to an object of the current dialog.
     *  @return DIALOGMANAGER_ERROR_UNKNOWN if it has none of that identifier, or it cannot have the focus
     */
    dialogmanager_result_t dialogmanager_set_focus(dialogmanager_id_t id);

    /** @return the object of LVGL of a dialog, a popup or anything in them; NULL before it is made */
    lv_obj_t* dialogmanager_get_object(dialogmanager_id_t id);

#ifdef __cplusplus
}
#endif

#endif

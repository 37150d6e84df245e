// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_APPLICATION_SENSORS_H
#define EXAMPLES_COFFEEMACHINE_APPLICATION_SENSORS_H

/** @file
 *  The sensors in the tank, the hopper and below the tray.
 */

#include "Companions/GUIPostQueue.h"

class CMachine;

/** Carries what the sensors measure from their interrupts to the GUI task, to which the machine and its
 *  dialogs belong.
 */
class CSensors
{
public:
    /** @param kMachine where the values go, not owned */
    explicit CSensors(CMachine& kMachine) : m_kMachine(kMachine) {}

    // For interrupts and other tasks. Each returns false if the main loop is so late that the queue is full;
    // a sensor measures again soon.
    eC_Bool NoteWater(eC_UInt uiMillilitres) noexcept; ///< what is in the tank
    eC_Bool NoteBeans(eC_UInt uiGrams) noexcept;       ///< what is in the hopper
    eC_Bool NoteTray(eC_Bool bHasTray) noexcept;       ///< whether the tray is there

    /** Passes values on to the machine; the main loop calls it in every turn. At most four at a time, so that
     *  a sensor gone mad cannot stop the screen.
     */
    void Process() { m_kQueue.Process(4); }

private:
    CMachine& m_kMachine;
    CGUIPostQueueOf<8> m_kQueue;
};

#endif

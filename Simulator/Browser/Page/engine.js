// SPDX-License-Identifier: MIT
/** An application that was compiled to WebAssembly. Every operation answers with parsed lines (BrowserSession.h). */

import createSimulation from './simulation.js';

const LONGEST_LINE = 1000;

/** The application of this page. */
export async function loadEngine() {
    return makeEngine(await createSimulation());
}

export function makeEngine(module) {
    const call = (name, type, value) => module.ccall(name, 'string', type ? [type] : [], type ? [value] : []);
    const ask = (...words) => call(...words).split('\n').filter((line) => line !== '').map((line) => JSON.parse(line));
    return {
        describe: () => ask('SimulationDescribe'),
        run(line) {
            if (new TextEncoder().encode(line).length > LONGEST_LINE || line.includes('\0')) {
                return [{ type: 'result', executed: false, text: `expected a line of at most ${LONGEST_LINE} bytes` }];
            }
            return ask('SimulationRun', 'string', line);
        },
        advance: (milliseconds) => ask('SimulationAdvance', 'number', milliseconds),
        goTo: (position) => ask('SimulationGoTo', 'number', position),
        restart: () => ask('SimulationRestart'),
        lines: () => call('SimulationGetLines').split('\n').slice(0, -1),
        look: () => ask('FlowLook'),
    };
}

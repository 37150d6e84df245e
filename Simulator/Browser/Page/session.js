// SPDX-License-Identifier: MIT
/** A session is the list of lines that were executed. Here they are merged, and written into links and files. */

/** Time passes in lines of at most this many milliseconds: the time line shows every one of them. */
export const LONGEST_ADVANCE = 1000;

/** More lines than that are not taken from a link. */
export const MOST_LINES = 50000;

/** @returns {number | null} the milliseconds of a line that only lets time pass, otherwise null */
export function advanceOf(line) {
    const match = /^advance (\d{1,9})$/.exec(line);
    return match ? Number(match[1]) : null;
}

/** Joins the lines that only let time pass with those before them. */
export function joinAdvances(lines) {
    const joined = [];
    let time = null;
    for (const line of lines) {
        const milliseconds = advanceOf(line);
        if (milliseconds !== null && time !== null) {
            time += milliseconds;
            joined[joined.length - 1] = `advance ${time}`;
        } else {
            time = milliseconds;
            joined.push(line);
        }
    }
    return joined;
}

/** Cuts the lines that let time pass into pieces of at most LONGEST_ADVANCE. */
export function splitAdvances(lines) {
    const pieces = [];
    for (const line of lines) {
        let rest = advanceOf(line);
        if (rest === null || rest <= LONGEST_ADVANCE) {
            pieces.push(line);
            continue;
        }
        for (; rest > 0 && pieces.length <= MOST_LINES; rest -= LONGEST_ADVANCE) {
            pieces.push(`advance ${Math.min(rest, LONGEST_ADVANCE)}`);
        }
    }
    return pieces;
}

/**
 * Writes a session as the fragment of a link: lines with ";" between them and "+" for a blank.
 * @param {string[]} lines
 * @param {string | null} flow the word of the flow on which they are played (files.js)
 * @returns {string} with "#" in front
 */
export function toFragment(lines, flow = null) {
    const words = joinAdvances(lines).map((line) => encodeURIComponent(line).replaceAll('%20', '+'));
    return `#${flow ? `flow=${flow}&` : ''}session=${words.join(';')}`;
}

/**
 * Reads a session from the fragment of a link.
 * @param {string} fragment with or without "#" in front
 * @returns {string[] | null} the lines, null if there is no session in it
 * @throws {Error} that says what is wrong with it
 */
export function fromFragment(fragment) {
    const match = /^#?(?:flow=[^&]*&)?session=(.*)$/s.exec(fragment);
    if (!match) {
        return null;
    }
    const words = match[1].split(';').filter((word) => word !== '');
    const lines = words.map((word, index) => {
        let line;
        try {
            line = decodeURIComponent(word.replaceAll('+', ' '));
        } catch {
            throw new Error(`line ${index + 1} of the link is damaged; expected text, found "${word.slice(0, 40)}"`);
        }
        // eslint-disable-next-line no-control-regex -- these are what must not be in a line
        if (/[\u0000-\u001f\u007f]/.test(line)) {
            throw new Error(`line ${index + 1} of the link has a control character; expected a line of a scenario`);
        }
        return line;
    });
    const pieces = splitAdvances(lines);
    if (pieces.length > MOST_LINES) {
        throw new Error(`the link is too long; expected at most ${MOST_LINES} lines`);
    }
    return pieces;
}

/** The word of the flow that a link has, or null. */
export function flowOf(fragment) {
    return /^#?flow=([^&]*)&/.exec(fragment)?.[1] ?? null;
}

/** Reads the lines of a scenario. Its comments do nothing, but a page may show them. */
export function fromScenario(text, { withComments = false } = {}) {
    const lines = text.split('\n').map((line) => line.trim());
    return splitAdvances(lines.filter((line) => line !== '' && (withComments || !line.startsWith('#'))));
}

/** Writes a session as a scenario. */
export function toScenario(lines) {
    return joinAdvances(lines).map((line) => `${line}\n`).join('');
}

// SPDX-License-Identifier: MIT
/** Puts the lines of an inspection (Docs/Inspection.md) together again: the state from its parts, and the trace. */

/** @typedef {{time: number, items: object[]}} Part */

export class Inspection {
    constructor() {
        /** @type {Map<string, Part>} */
        this.parts = new Map();
        /** The widgets on the screen in drawing order, as the last line "screen" has them. */
        this.widgets = [];
        /** Counts the changes of a part, of "screen" and of "trace", so that a view knows whether to draw again. */
        this.versions = new Map();
    }

    /**
     * Takes one line.
     * @param {object} line a parsed line
     * @returns {boolean} whether it belongs to the state
     */
    take(line) {
        if (line.type === 'state') {
            const part = line.from === 0 ? undefined : this.parts.get(line.part);
            const items = part ? part.items.slice(0, line.from).concat(line.items) : line.items;
            this.parts.set(line.part, { time: line.time, items });
            this.count(line.part);
            return true;
        }
        if (line.type === 'screen') {
            this.widgets = line.widgets;
            this.count('screen');
            return true;
        }
        return false;
    }

    count(name) {
        this.versions.set(name, this.version(name) + 1);
    }

    version(name) {
        return this.versions.get(name) ?? 0;
    }

    items(part) {
        return this.parts.get(part)?.items ?? [];
    }

    /** The current dialog, or null. */
    get current() {
        const [dialog] = this.items('current');
        return dialog && dialog.id !== 0 ? dialog : null;
    }

    /** The history, the most recent entry first. */
    get history() {
        return this.items('history');
    }

    /** What has the focus, or null. */
    get focus() {
        return this.items('focus')[0] ?? null;
    }

    /**
     * The popups, the most important first.
     * @param {number} now the clock in milliseconds
     * @returns {object[]} with what is left of their display times now
     */
    popups(now) {
        const part = this.parts.get('active');
        return (part?.items ?? []).map((popup) => ({
            ...popup,
            left: popup.left === undefined ? undefined : Math.max(0, popup.left - (now - part.time)),
        })).reverse();
    }

    /** The objects under the root as a tree: each has "children". */
    get tree() {
        const top = [];
        const path = [];
        for (const item of this.items('tree')) {
            const object = { ...item, children: [] };
            path.length = item.depth;
            (item.depth === 0 ? top : path[item.depth - 1].children).push(object);
            path.push(object);
        }
        return top;
    }
}

/**
 * The name of an identifier, or its number.
 * @param {{id?: number, name?: string} | null | undefined} handle
 */
export function nameOf(handle) {
    if (!handle) {
        return 'none';
    }
    return handle.name ?? (handle.id === undefined ? 'gone' : `#${handle.id}`);
}

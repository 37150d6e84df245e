// SPDX-License-Identifier: MIT
/** A session as the page sees it: its steps, where one is among them, the state there, and the trace. */

import { Inspection, nameOf } from './inspection.js';

/**
 * A step is an executed line and what it led to.
 * @typedef {{line: string, time: number, dialog: string, popups: string[], isError: boolean}} Step
 */

export class Player {
    /** @param {object} engine see engine.js */
    constructor(engine) {
        this.engine = engine;
        this.inspection = new Inspection();
        /** @type {Step[]} */
        this.steps = [];
        this.position = 0;
        this.time = 0;
        /** The entries of the trace, each with the "step" that caused it. Those of later steps are kept, too. */
        this.trace = [];
        /** The lines of the session that the last input has replaced, or null. */
        this.replaced = null;
        this.device = this.take(engine.describe()).device;
    }

    get isAtEnd() {
        return this.position === this.steps.length;
    }

    get lines() {
        return this.steps.map((step) => step.line);
    }

    /** The entries of the trace up to the position. */
    get shownTrace() {
        return this.isAtEnd ? this.trace : this.trace.filter((entry) => entry.step < this.position);
    }

    /**
     * Executes a line at the position. What came after it is replaced.
     * @returns {{executed: boolean, text: string}}
     */
    run(line) {
        if (line.trim() === '') {
            return { executed: true, text: '' };
        }
        const before = this.isAtEnd ? null : this.lines;
        const answer = this.take(this.engine.run(line));
        if (answer.result.executed) {
            if (before) {
                this.replaced = before;
            }
            this.keepStep(answer);
        }
        return answer.result;
    }

    /** Lets time pass at the end of the session. */
    advance(milliseconds) {
        this.keepStep(this.take(this.engine.advance(milliseconds)));
    }

    goTo(position) {
        const target = Math.max(0, Math.min(position, this.steps.length));
        if (target !== this.position) {
            this.position = this.take(this.engine.goTo(target)).session.position;
        }
    }

    /**
     * Replaces the session.
     * @param {string[]} lines
     * @returns {{line: number, text: string} | null} the first wrong line, counted from 1; those before it are executed
     */
    load(lines) {
        this.take(this.engine.restart());
        this.steps = [];
        this.trace = [];
        this.position = 0;
        this.replaced = null;
        for (const [index, line] of lines.entries()) {
            const result = this.run(line);
            if (!result.executed) {
                return { line: index + 1, text: result.text };
            }
        }
        return null;
    }

    /** Takes an answer; what it has once is returned by its type. */
    take(lines) {
        const answer = { trace: [] };
        for (const line of lines) {
            if (line.type === 'trace') {
                answer.trace.push(line);
            } else if (!this.inspection.take(line)) {
                answer[line.type] = line;
            }
        }
        if (answer.session) {
            this.time = answer.session.time;
        }
        return answer;
    }

    keepStep({ session, trace }) {
        const wasAt = this.position;
        this.position = session.position;
        if (wasAt < this.steps.length) {
            this.steps.length = wasAt;
            this.trace = this.trace.filter((entry) => entry.step < wasAt);
        }
        const step = session.position - 1;
        this.steps[step] = {
            line: session.line,
            time: session.time,
            dialog: this.inspection.current ? nameOf(this.inspection.current) : '',
            popups: this.inspection.items('active').filter((popup) => popup.shown).map(nameOf),
            isError: trace.some((entry) => entry.level === 'ERROR') || (this.steps[step]?.isError ?? false),
        };
        this.trace.push(...trace.map((entry) => ({ ...entry, step })));
        if (trace.length > 0) {
            this.inspection.count('trace');
        }
    }
}

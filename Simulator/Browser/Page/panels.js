// SPDX-License-Identifier: MIT
/** The views of the state: history, popups, objects and trace. Each draws again only when its part has changed. */

import { nameOf } from './inspection.js';

const MOST_ENTRIES = 400; // of the trace, on the page

/** What was done to a dialog when the next one came. */
const LEFT = {
    ODA_NOTHING: 'stays visible below',
    ODA_INVISIBLE: 'hidden, kept in memory',
    ODA_INVISIBLE_ALL: 'hidden with all others',
    ODA_DELETE: 'deleted, made again on the way back',
    ODA_DELETE_ALL: 'deleted with all others',
};

/**
 * Makes an element.
 * @param {string} tag the tag and classes: "span.badge.quiet"
 * @param {...(Node | string)} children
 */
export function make(tag, ...children) {
    const [name, ...classes] = tag.split('.');
    const element = document.createElement(name);
    if (classes.length > 0) {
        element.className = classes.join(' ');
    }
    element.append(...children);
    return element;
}

export function seconds(milliseconds) {
    return `${(milliseconds / 1000).toFixed(1)} s`;
}

function isStill() {
    return matchMedia('(prefers-reduced-motion: reduce)').matches;
}

/** Lets an element leave, if it may move, and removes it. */
function leave(element) {
    if (isStill()) {
        element.remove();
        return;
    }
    element.classList.add('leaving');
    element.setAttribute('aria-hidden', 'true');
    const { height } = element.getBoundingClientRect();
    element.animate(
        [{ height: `${height}px`, opacity: 1 }, { height: '0', opacity: 0, transform: 'translateX(3rem)' }],
        { duration: 260, easing: 'ease-in' },
    ).finished.then(() => element.remove(), () => element.remove());
}

function enter(element) {
    if (!isStill()) {
        element.animate([{ opacity: 0, transform: 'translateY(-1.2rem)' }, { opacity: 1, transform: 'none' }],
            { duration: 240, easing: 'cubic-bezier(.2,.9,.3,1.15)' });
    }
}

/** The current dialog on top of the history. */
export class HistoryPanel {
    constructor(root) {
        this.list = root.querySelector('ol');
        this.count = root.querySelector('.count');
        this.cards = [];
    }

    update(inspection) {
        const entries = inspection.history.map((entry) => ({ entry })).reverse();
        if (inspection.current) {
            entries.push({ entry: inspection.current, focus: inspection.focus });
        }
        this.count.textContent = String(inspection.history.length);
        this.list.setAttribute('aria-label', `${inspection.history.length} dialogs to go back to`);
        const kept = Math.min(this.cards.length, entries.length);
        // What is above the first difference comes and goes, as on a stack.
        let same = 0;
        while (same < kept && this.cards[same].dataset.id === String(entries[same].entry.id)) {
            ++same;
        }
        for (const card of this.cards.splice(same).reverse()) {
            leave(card);
        }
        for (const [level, item] of entries.entries()) {
            if (level >= this.cards.length) {
                const card = make('li.card');
                card.dataset.id = item.entry.id;
                this.list.prepend(card);
                this.cards.push(card);
                enter(card);
            }
            this.fill(this.cards[level], item, level, level === entries.length - 1 && inspection.current !== null);
        }
        if (entries.length === 0) {
            this.list.replaceChildren(make('li.empty', 'No dialog is shown.'));
        } else {
            this.list.querySelector('.empty')?.remove();
        }
    }

    fill(card, { entry, focus }, level, isCurrent) {
        card.classList.toggle('current', isCurrent);
        if (isCurrent) {
            card.setAttribute('aria-current', 'true');
        } else {
            card.removeAttribute('aria-current');
        }
        card.dataset.name = nameOf(entry);
        const head = make('div.card-head', make('span.level', String(level)), make('strong', nameOf(entry)),
            make(isCurrent ? 'span.badge.accent' : 'span.badge', isCurrent ? 'current' : String(entry.left)));
        const about = isCurrent
            ? `focus on ${nameOf(focus)}`
            : `${LEFT[entry.left] ?? 'left'}${entry.focus ? `; focus goes back to ${nameOf(entry.focus)}` : ''}`;
        const rest = make('p', about);
        if (entry.deletion === false && !isCurrent) {
            rest.append(' (never deleted)');
        }
        card.replaceChildren(head, rest);
    }
}

/** A lane for each popup, with its time running down. */
export class PopupPanel {
    constructor(root) {
        this.list = root.querySelector('ul');
        this.count = root.querySelector('.count');
        this.lanes = new Map();
    }

    update(inspection, now) {
        const popups = inspection.popups(now);
        this.count.textContent = String(popups.length);
        const wanted = new Set();
        for (const [place, popup] of popups.entries()) {
            const key = popup.gone ? `gone ${place}` : String(popup.id);
            wanted.add(key);
            if (!this.lanes.has(key)) {
                this.lanes.set(key, this.makeLane());
                enter(this.lanes.get(key).item);
            }
            this.fill(this.lanes.get(key), popup);
            this.list.append(this.lanes.get(key).item);
        }
        for (const [key, lane] of this.lanes) {
            if (!wanted.has(key)) {
                this.lanes.delete(key);
                leave(lane.item);
            }
        }
        this.list.querySelector('.empty')?.remove();
        if (popups.length === 0) {
            this.list.append(make('li.empty', 'No popup is open.'));
        }
    }

    makeLane() {
        const lane = {
            name: make('strong'), badge: make('span.badge'), about: make('span.quiet'), bar: make('div.bar'),
            fill: make('div.bar-fill'),
        };
        lane.bar.append(lane.fill);
        lane.item = make('li.lane', make('div.card-head', lane.name, lane.badge), lane.bar, lane.about);
        return lane;
    }

    fill(lane, popup) {
        lane.popup = popup;
        lane.item.dataset.name = nameOf(popup);
        lane.name.textContent = nameOf(popup);
        lane.badge.textContent = popup.shown ? 'shown' : 'waits';
        lane.badge.className = popup.shown ? 'badge accent' : 'badge';
        lane.item.classList.toggle('waiting', !popup.shown);
        lane.priority = `priority ${popup.priority}${popup.delete ? ', deleted when closed' : ''}`;
        const hasTime = popup.time > 0 && popup.left !== undefined;
        lane.bar.classList.toggle('endless', popup.time === 0);
        const meter = {
            'role': 'meter', 'aria-label': `Time left of ${nameOf(popup)}`, 'aria-valuemin': 0,
            'aria-valuemax': popup.time, 'aria-valuenow': Math.round(popup.left),
        };
        for (const [name, value] of Object.entries(meter)) {
            if (hasTime) {
                lane.bar.setAttribute(name, String(value));
            } else {
                lane.bar.removeAttribute(name);
            }
        }
    }

    /** Lets the time run down on the page. */
    tick(inspection, now) {
        for (const popup of inspection.popups(now)) {
            const lane = this.lanes.get(String(popup.id));
            if (!lane) {
                continue;
            }
            const hasTime = popup.time > 0 && popup.left !== undefined;
            const ofTime = popup.time > 0 ? `waits, then ${seconds(popup.time)}` : 'stays until it is closed';
            const left = hasTime ? `${seconds(popup.left)} of ${seconds(popup.time)} left` : ofTime;
            const about = `${left}, ${lane.priority}`;
            if (lane.about.textContent !== about) {
                lane.about.textContent = about;
            }
            if (hasTime) {
                lane.bar.setAttribute('aria-valuenow', String(Math.round(popup.left)));
                lane.fill.style.transform = `scaleX(${Math.min(1, popup.left / popup.time)})`;
            } else {
                lane.fill.style.transform = 'none';
            }
        }
    }
}

/** The objects under the root. */
export class TreePanel {
    constructor(root) {
        this.list = root.querySelector('ul');
        this.count = root.querySelector('.count');
        this.scroller = root.querySelector('.scroller');
    }

    update(inspection) {
        this.count.textContent = String(inspection.items('tree').length);
        this.list.replaceChildren(...inspection.tree.map((object) => this.makeObject(object)));
        if (this.list.childElementCount === 0) {
            this.list.append(make('li.empty', 'There is no object.'));
        }
        const focussed = this.list.querySelector('.focussed');
        if (focussed) {
            // Only here: scrollIntoView would move the page as well.
            const top = focussed.offsetTop;
            const { scrollTop, clientHeight } = this.scroller;
            if (top < scrollTop || top + focussed.offsetHeight > scrollTop + clientHeight) {
                this.scroller.scrollTop = top - clientHeight / 2;
            }
        }
    }

    makeObject(object) {
        const isNamed = object.id !== 0;
        const name = isNamed ? make('span', nameOf(object)) : make('span.quiet', 'no identifier');
        const line = make('span.object', name);
        if (object.focussed) {
            line.append(make('span.badge.accent', 'focus'));
            line.classList.add('focussed');
        } else if (object.focusable) {
            line.append(make('span.badge', 'focusable'));
        }
        if (object.invisible) {
            line.append(make('span.badge', 'hidden'));
            line.classList.add('hidden-object');
        }
        const item = make('li', line);
        if (object.children.length > 0) {
            item.append(make('ul', ...object.children.map((child) => this.makeObject(child))));
        }
        return item;
    }
}

/** What was logged, below the lines that caused it. */
export class TracePanel {
    /** @param {(step: number) => void} onStep called when somebody wants to see the state after a line */
    constructor(root, onStep) {
        this.list = root.querySelector('ol');
        this.level = root.querySelector('select');
        this.words = root.querySelector('input');
        this.count = root.querySelector('.count');
        this.scroller = root.querySelector('.scroller');
        this.onStep = onStep;
        this.level.addEventListener('change', () => this.draw());
        this.words.addEventListener('input', () => this.draw());
        this.list.addEventListener('click', (event) => {
            const button = event.target.closest('button');
            if (button) {
                this.onStep(Number(button.dataset.step));
            }
        });
    }

    update(player) {
        this.player = player;
        this.draw();
    }

    draw() {
        const words = this.words.value.trim().toLowerCase();
        const entries = this.player.shownTrace.filter((entry) => this.isWanted(entry, words));
        const first = Math.max(0, entries.length - MOST_ENTRIES);
        const rows = [];
        let step = -1;
        for (const entry of entries.slice(first)) {
            if (entry.step !== step) {
                step = entry.step;
                rows.push(this.makeCause(step));
            }
            rows.push(this.makeEntry(entry));
        }
        this.count.textContent = String(entries.length);
        this.list.replaceChildren(...rows);
        if (rows.length === 0) {
            this.list.append(make('li.empty', words ? 'No entry has these words.' : 'Nothing was logged.'));
        }
        this.scroller.scrollTop = this.scroller.scrollHeight;
    }

    isWanted(entry, words) {
        const levels = {
            all: true,
            messages: entry.level !== 'INFO' && entry.level !== 'DEBUG',
            errors: entry.level === 'ERROR' || entry.level === 'HAZARD',
        };
        return levels[this.level.value] && `${entry.level} ${entry.text}`.toLowerCase().includes(words);
    }

    makeCause(step) {
        const { line, time } = this.player.steps[step];
        const button = make('button.cause', make('span', line), make('span.time', seconds(time)));
        button.type = 'button';
        button.dataset.step = step;
        button.title = 'See the state after this line';
        return make('li', button);
    }

    makeEntry(entry) {
        const level = make(`span.tag.${entry.level.toLowerCase()}`, entry.level);
        const text = make('span.message', entry.text.trimEnd());
        if (entry.file) {
            text.append(make('span.place', ` ${entry.file}:${entry.line}`));
        }
        return make('li.entry', level, text);
    }
}

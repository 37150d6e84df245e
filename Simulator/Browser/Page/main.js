// SPDX-License-Identifier: MIT
/** Puts the page together: the engine, the views, and what the user does. */

import { loadEngine } from './engine.js';
import { HistoryPanel, PopupPanel, TracePanel, TreePanel, make } from './panels.js';
import { Player } from './player.js';
import { Screen } from './screen.js';
import { advanceOf, flowOf, fromFragment, fromScenario, toFragment, toScenario } from './session.js';
import { TimeLine } from './timeline.js';

const TICK = 40; // milliseconds between two looks at the clock
const LONGEST_TICK = 1000;
const READING_TIME = 900; // how long a replayed input is looked at
const TOUR = 'tour.scenario';
const FLOWS = 'flows.json';
const BEGIN = 'power-on';

const find = (id) => document.getElementById(id);

class Page {
    constructor(player) {
        this.player = player;
        this.application = player;
        this.isRunning = true;
        this.speed = 1;
        this.elapsed = 0; // milliseconds that have passed, but not yet in the simulation
        this.drawn = new Map();
        this.tour = null; // fetches the scenario
        this.flow = null; // that runs in place of the application
        this.screen = new Screen(find('screen'), player.device, (line) => this.input(line));
        this.history = new HistoryPanel(find('history'));
        this.popups = new PopupPanel(find('popups'));
        this.objects = new TreePanel(find('objects'));
        this.trace = new TracePanel(find('trace'), (step) => this.goTo(step + 1));
        this.timeLine = new TimeLine(find('time-line'), (position) => this.scrub(position));
        this.showDevice();
        this.addCommand();
        this.addClock();
        this.addTools();
        this.addFlows();
    }

    // ---- The device --------------------------------------------------------------------------------------------

    showDevice() {
        const { device } = this.player;
        document.title = `${device.title}, simulator`;
        find('title').textContent = device.title;
        find('screen').setAttribute('aria-label', `Screen of the device: ${device.title}`);
        this.screen.setDevice(device);
        find('keys').replaceChildren(...device.keys.map((key) => this.makeKey(key)));
        find('offered').replaceChildren(...device.offered.map(({ label, line }) => {
            const button = make('button.offer', label);
            button.type = 'button';
            button.title = line;
            button.addEventListener('click', () => this.input(line));
            return button;
        }));
        find('usages').replaceChildren(...device.commands.map(({ usage }) => {
            const option = make('option');
            option.value = usage;
            return option;
        }));
        find('result').textContent = '';
        find('tour').hidden = !this.tour;
    }

    makeKey(key) {
        const button = make('button.key', make('span', key.label));
        button.type = 'button';
        if (key.keyboard !== '' && key.keyboard !== 'Tab') {
            button.append(make('kbd', key.keyboard));
        }
        button.classList.toggle('long', key.label.length > 12);
        button.dataset.key = key.name;
        button.addEventListener('click', () => this.input(`key ${key.name}`));
        return button;
    }

    /** Goes on with a flow, or with the application of the page: null. */
    showFlow(flow) {
        this.flow = flow;
        this.player = flow?.player ?? this.application;
        const { tour } = flow ?? {};
        this.tour = flow ? tour && (async () => tour) : this.ownTour;
        this.drawn.clear();
        this.elapsed = 0;
        this.showDevice();
        if (this.player.steps.length === 0) {
            this.play([BEGIN], { isAtEnd: true });
        }
        this.caption();
        this.update();
    }

    /** Opens flows if the page has what runs them. */
    async addFlows() {
        this.shipped = fetch(FLOWS).then((response) => (response.ok ? response.json() : null), () => null);
        if (!await this.shipped) {
            return;
        }
        find('open').hidden = false;
        find('open').addEventListener('click', () => this.useFlows((flows) => flows.showBox()));
        addEventListener('dragover', (event) => {
            if (event.dataTransfer.types.includes('Files')) {
                event.preventDefault();
            }
        });
        addEventListener('drop', (event) => {
            if (event.dataTransfer.types.includes('Files')) {
                event.preventDefault();
                const dropped = takeDropped(event.dataTransfer.items);
                this.useFlows((flows) => flows.drop(dropped));
            }
        });
    }

    async useFlows(use) {
        try {
            use(await this.loadFlows());
        } catch (error) {
            this.flows = undefined; // another time it may be there
            this.notify(`Flows cannot be opened: ${error.message}.`);
        }
    }

    /** What runs flows is loaded when it is asked for. */
    async loadFlows() {
        const shipped = await this.shipped;
        if (!shipped) {
            throw new Error('this page has nothing that runs flows');
        }
        this.flows ??= import('./flows.js').then(({ Flows }) =>
            new Flows(shipped, (flow) => this.showFlow(flow), (text) => this.notify(text)));
        return this.flows;
    }

    // ---- What the user does ------------------------------------------------------------------------------------

    addCommand() {
        find('command').addEventListener('submit', (event) => {
            event.preventDefault();
            const line = find('line').value.trim();
            if (line !== '' && this.input(line).executed) {
                find('line').value = '';
            }
        });
    }

    addClock() {
        find('play').addEventListener('click', () => this.setRunning(!this.isRunning));
        find('to-begin').addEventListener('click', () => this.goTo(Math.min(1, this.player.steps.length)));
        find('step-back').addEventListener('click', () => this.goTo(this.player.position - 1));
        find('step-on').addEventListener('click', () => this.stepOn());
        find('to-end').addEventListener('click', () => this.goTo(this.player.steps.length));
        find('speed').addEventListener('change', () => {
            this.speed = Number(find('speed').value);
        });
        find('restart').addEventListener('click', () => {
            const before = this.player.lines;
            this.play([BEGIN], { isAtEnd: true });
            this.player.replaced = before;
            this.update();
        });
        find('undo').addEventListener('click', () => {
            this.play(this.player.replaced, { isAtEnd: true });
            this.setRunning(false);
        });
    }

    addTools() {
        find('share').addEventListener('click', () => this.share());
        find('save').addEventListener('click', () => this.save());
        find('help-button').addEventListener('click', () => find('help').showModal());
        find('theme').addEventListener('click', () => changeTheme());
        find('tour').addEventListener('click', () => this.playTour());
        addEventListener('hashchange', () => this.openLink());
        fetch(TOUR).then((response) => {
            if (response.ok) {
                this.ownTour = async () => (await fetch(TOUR)).text();
                this.tour = this.flow ? this.tour : this.ownTour;
                find('tour').hidden = !this.tour;
            }
        }, () => undefined);
    }

    /** Executes a line that the user asks for. */
    input(line) {
        this.catchUp();
        if (!this.player.isAtEnd) {
            this.notify(`The ${this.player.steps.length - this.player.position} later steps were replaced.`);
        }
        const result = this.player.run(line);
        find('result').textContent = result.text === '' ? '' : `${line}: ${result.text}`;
        find('result').classList.toggle('wrong', !result.executed);
        find('caption').textContent = '';
        this.update();
        return result;
    }

    setRunning(isRunning) {
        this.isRunning = isRunning;
        this.elapsed = 0;
        this.update();
    }

    stepOn() {
        this.isRunning = false;
        if (this.player.isAtEnd) {
            this.player.advance(LONGEST_TICK / 10);
        } else {
            this.player.goTo(this.player.position + 1);
        }
        this.caption();
        this.update();
    }

    goTo(position) {
        this.isRunning = false;
        this.elapsed = 0;
        this.player.goTo(position);
        this.caption();
        this.update();
    }

    /** Follows the slider, at most once for each picture. */
    scrub(position) {
        if (this.wanted === undefined) {
            requestAnimationFrame(() => {
                this.goTo(this.wanted);
                this.wanted = undefined;
            });
        }
        this.wanted = position;
    }

    // ---- Sessions ----------------------------------------------------------------------------------------------

    /** Replaces the session, and shows its end or its beginning. */
    play(lines, { isAtEnd }) {
        const wrong = this.player.load(lines);
        if (wrong) {
            this.notify(`Line ${wrong.line} cannot be played: ${wrong.text}. What comes before it is shown.`);
        }
        this.isRunning = true;
        this.elapsed = 0;
        if (!isAtEnd) {
            this.player.goTo(Math.min(1, this.player.steps.length));
        }
        this.caption();
        this.update();
    }

    /** Shows the session of the link, or a new one. */
    async openLink() {
        let lines = null;
        try {
            lines = fromFragment(location.hash);
            await this.openFlow(lines && flowOf(location.hash));
        } catch (error) {
            lines = null;
            this.notify(`This link cannot be opened: ${error.message}.`);
        }
        this.play(lines ?? [BEGIN], { isAtEnd: true });
        if (lines) {
            this.setRunning(false);
        }
    }

    /** @param {string | null} word the flow of a link; null: the application of the page */
    async openFlow(word) {
        if (word) {
            await (await this.loadFlows()).openPacked(word);
        } else if (this.flow) {
            (await this.flows).close();
        }
    }

    async playTour() {
        const scenario = await this.tour();
        const before = this.player.lines;
        this.play(fromScenario(scenario, { withComments: true }), { isAtEnd: false });
        this.player.replaced = before;
        this.update();
    }

    async share() {
        const flow = this.flow ? await this.flow.pack() : null;
        const link = new URL(toFragment(this.player.lines, flow), location.href).href;
        history.replaceState(null, '', link);
        find('link-text').value = link;
        find('link').showModal();
        find('link-text').select();
        try {
            await navigator.clipboard.writeText(link);
            find('link-state').textContent = 'It is copied to the clipboard. Whoever opens it sees the same.';
        } catch {
            find('link-state').textContent = 'Copy it. Whoever opens it sees the same.';
        }
    }

    save() {
        const link = make('a');
        link.href = URL.createObjectURL(new Blob([toScenario(this.player.lines)], { type: 'text/plain' }));
        link.download = 'session.scenario';
        link.click();
        setTimeout(() => URL.revokeObjectURL(link.href), 1000);
    }

    notify(text) {
        const notice = find('notice');
        notice.textContent = text;
        notice.hidden = false;
        clearTimeout(this.noticeTimer);
        this.noticeTimer = setTimeout(() => {
            notice.hidden = true;
        }, 8000);
    }

    /** Shows the comment that a replayed session has before this step. */
    caption() {
        const { lines, position } = this.player;
        let first = position - 1;
        while (first > 0 && !lines[first].startsWith('#')) {
            --first;
        }
        let from = first;
        while (from > 0 && lines[from - 1].startsWith('#')) {
            --from;
        }
        const comments = lines.slice(from, first + 1).filter((line) => line.startsWith('#'));
        find('caption').textContent = comments.map((line) => line.replace(/^#+ */, '')).join(' ');
    }

    // ---- The clock ---------------------------------------------------------------------------------------------

    start() {
        let last = performance.now();
        const look = (now) => {
            if (this.isRunning) {
                this.elapsed += Math.min(now - last, LONGEST_TICK) * this.speed;
                this.move();
            }
            last = now;
            this.screen.checkZoom();
            this.timeLine.checkZoom();
            this.popups.tick(this.player.inspection, this.player.time + this.shownElapsed());
            requestAnimationFrame(look);
        };
        requestAnimationFrame(look);
    }

    /** How much of the elapsed time the page may show already. */
    shownElapsed() {
        const next = this.player.steps[this.player.position];
        const most = next === undefined ? TICK : advanceOf(next.line) ?? 0;
        return Math.min(this.elapsed, most);
    }

    move() {
        if (this.player.isAtEnd) {
            if (this.elapsed >= TICK) {
                this.catchUp();
                this.update();
            }
            return;
        }
        // A session is played: time passes as it did, and every input is shown for a while.
        const next = this.player.steps[this.player.position].line;
        const wait = advanceOf(next) ?? (next.startsWith('#') ? 0 : READING_TIME);
        if (this.elapsed >= wait) {
            this.elapsed -= wait;
            this.player.goTo(this.player.position + 1);
            this.caption();
            this.update();
        }
    }

    catchUp() {
        const milliseconds = Math.min(Math.floor(this.elapsed), LONGEST_TICK);
        if (this.isRunning && this.player.isAtEnd && milliseconds > 0) {
            this.player.advance(milliseconds);
        }
        this.elapsed -= milliseconds;
    }

    // ---- What is shown -----------------------------------------------------------------------------------------

    update() {
        const { player } = this;
        const { inspection } = player;
        const now = player.time;
        this.redraw('screen', ['screen'], () => this.screen.show(inspection.widgets));
        this.redraw('history', ['current', 'history', 'focus'], () => this.history.update(inspection));
        this.redraw('popups', ['active'], () => this.popups.update(inspection, now));
        this.redraw('objects', ['tree'], () => this.objects.update(inspection));
        const traced = `${inspection.version('trace')} ${player.shownTrace.length}`;
        if (this.drawn.get('trace') !== traced) {
            this.drawn.set('trace', traced);
            this.trace.update(player);
        }
        this.timeLine.update(player);
        this.popups.tick(inspection, now);
        find('play').textContent = this.isRunning ? 'Pause' : player.isAtEnd ? 'Run' : 'Play';
        find('undo').hidden = player.replaced === null;
        document.body.classList.toggle('past', !player.isAtEnd);
    }

    /** Draws a view if one of its parts has changed. */
    redraw(name, parts, draw) {
        const version = parts.map((part) => this.player.inspection.version(part)).join(' ');
        if (this.drawn.get(name) !== version) {
            this.drawn.set(name, version);
            draw();
        }
    }
}

/** What was dropped, which is gone after the event; where the browser can, as what can be read again. */
function takeDropped(items) {
    return [...items].filter(({ kind }) => kind === 'file')
        .map((item) => ({ handle: item.getAsFileSystemHandle?.(), file: item.getAsFile() }));
}

// ---- Light and dark ------------------------------------------------------------------------------------------------

const THEMES = ['auto', 'light', 'dark'];

function showTheme(theme) {
    document.documentElement.dataset.theme = theme;
    find('theme').lastElementChild.textContent = { auto: 'Auto', light: 'Light', dark: 'Dark' }[theme];
}

function changeTheme() {
    const theme = THEMES[(THEMES.indexOf(document.documentElement.dataset.theme) + 1) % THEMES.length];
    showTheme(theme);
    try {
        localStorage.setItem('theme', theme);
    } catch {
        // It is not kept where nothing may be stored.
    }
}

function readTheme() {
    try {
        return THEMES.find((theme) => theme === localStorage.getItem('theme')) ?? 'auto';
    } catch {
        return 'auto';
    }
}

async function begin() {
    showTheme(readTheme());
    try {
        const page = new Page(new Player(await loadEngine()));
        await page.openLink();
        page.start();
        document.body.classList.add('ready');
    } catch (error) {
        find('fault').hidden = false;
        find('fault').textContent = `The simulator cannot start: ${error.message ?? error}. It needs a browser with `
            + 'WebAssembly, and the folder must come from a web server.';
        throw error;
    }
}

begin();

// SPDX-License-Identifier: MIT
/**
 * The page with the coffee machine, driven in a browser as a person would: PageTest.mjs is run by node --test.
 *
 * BROWSER names the browser's program, HOST the program of the coffee machine for this machine, which plays what was
 * done on the page; what both show must be the same. Pictures of the page go to build/browser/pictures.
 */

import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { mkdirSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, afterEach, before, test } from 'node:test';

import { fromFragment, toScenario } from '../../Simulator/Browser/Page/session.js';
import { serve } from '../../Simulator/Browser/Serve.mjs';
import { build, load, pathOf, root } from './Packages.mjs';

const puppeteer = await load('puppeteer-core');
const folder = join(build, 'Examples/CoffeeMachine/Page');
const pictures = join(build, 'pictures');
const COLUMNS = 40;
const ROWS = 12;

let server;
let browser;
let page;
let scratch;
let requests = [];
let faults = [];

before(async () => {
    scratch = mkdtempSync(join(tmpdir(), 'page-'));
    mkdirSync(pictures, { recursive: true });
    server = await serve(folder);
    browser = await puppeteer.launch({
        executablePath: process.env.BROWSER,
        userDataDir: join(scratch, 'profile'),
        args: ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run', '--disable-background-networking',
            '--disable-component-update', '--disable-sync'],
    });
});

after(async () => {
    await browser?.close();
    await server?.close();
    rmSync(scratch, { recursive: true, force: true, maxRetries: 5 });
});

afterEach(async () => {
    await page.close();
    const foreign = requests.filter((url) => !url.startsWith(server.address) && !url.startsWith('blob:'));
    assert.deepEqual(foreign, [], 'the page asks another host');
    assert.deepEqual(faults, [], 'the page has faults');
});

/** Opens the page, with the clock standing still unless it should run. */
async function open({
    fragment = '', width = 1280, height = 860, scale = 1, isRunning = false, scheme = 'light',
} = {}) {
    requests = [];
    faults = [];
    page = await browser.newPage();
    page.on('request', (request) => requests.push(request.url()));
    page.on('pageerror', (error) => faults.push(String(error)));
    page.on('console', (message) => {
        if (message.type() === 'error' || message.type() === 'warn') {
            faults.push(message.text());
        }
    });
    await page.emulateMediaFeatures([{ name: 'prefers-color-scheme', value: scheme },
        { name: 'prefers-reduced-motion', value: 'reduce' }]);
    await page.setViewport({ width, height, deviceScaleFactor: scale, isMobile: width < 500, hasTouch: width < 500 });
    await page.goto(server.address + fragment);
    await page.waitForSelector('body.ready');
    if (!isRunning && fragment === '') {
        await page.click('#play');
    }
}

const entriesOf = (selector) => page.$$eval(selector, (elements) => elements.map((element) => element.textContent));
const textOf = (selector) => page.$eval(selector, (element) => element.textContent);
const namesOf = (selector) => page.$$eval(selector, (elements) => elements.map((element) => element.dataset.name));

/** Touches the middle of a widget on the screen, with the mouse. */
async function touch(name) {
    const places = await page.$$eval(`#screen [data-name="${name}"]`,
        (elements) => elements.map((element) => element.dataset.area.split(' ').map(Number)));
    assert.ok(places.length > 0, `${name} is not on the screen`);
    const [x, y, width, height] = places.at(-1);
    const area = await (await page.$('#screen')).boundingBox();
    await page.mouse.click(area.x + (x + width / 2) / COLUMNS * area.width,
        area.y + (y + height / 2) / ROWS * area.height);
}

async function run(...lines) {
    for (const line of lines) {
        await page.$eval('#line', (element, value) => {
            element.value = value;
        }, line);
        await page.click('#command button');
    }
}

/** What the page shows of the state, in the words of a transcript. */
function shown() {
    return page.evaluate(() => {
        const all = (selector) => [...document.querySelectorAll(selector)];
        const cards = all('#history .card').map((card) => {
            const action = card.querySelector('.badge').textContent;
            const focus = /focus goes back to (\S+)/.exec(card.textContent)?.[1];
            return card.classList.contains('current')
                ? `current: ${card.dataset.name}`
                : `history: ${card.dataset.name} ${action}${focus ? ` focus ${focus}` : ''}`;
        });
        const popups = all('#popups .lane').map((lane) => {
            const priority = /priority (\d+)/.exec(lane.textContent)[1];
            const left = /([\d.]+) s of/.exec(lane.textContent)?.[1];
            const isShown = lane.querySelector('.badge').textContent === 'shown';
            return `active: ${lane.dataset.name} prio ${priority}, ${isShown ? 'shown' : 'hidden'}${
                left ? `, ${left} s left` : ''}`;
        }).reverse();
        const focus = all('#objects .object.focussed').map((object) => `focus: ${object.firstChild.textContent}`);
        return [...cards, ...popups, ...focus];
    });
}

/** The last state of a transcript, in the same words. */
function stateOf(transcript) {
    const lines = transcript.split('\n');
    const from = lines.findLastIndex((line) => line.startsWith('| current: '));
    return lines.slice(from).filter((line) => /^\| (current|history|active|focus): /.test(line)).map((line) => line
        .slice(2)
        .replace(/^(current: \S+).*/, '$1')
        .replace(/ \(after .*/, '')
        .replace(/ prio (\d+), \d+ ms, (?:hide|delete) on close, (shown|hidden)/, ' prio $1, $2')
        .replace(/, (\d+) ms left/, (_, left) => `, ${(left / 1000).toFixed(1)} s left`));
}

/** Plays lines with the program of this machine. */
function playOnHost(lines) {
    const file = join(scratch, 'session.scenario');
    writeFileSync(file, toScenario(lines));
    return execFileSync(process.env.HOST, ['--play', file], { encoding: 'utf8' });
}

async function linesOfLink() {
    await page.click('#share');
    const link = await page.$eval('#link-text', (element) => element.value);
    await page.click('#link button');
    return fromFragment(new URL(link).hash);
}

async function expectSameAsHost() {
    assert.deepEqual(await shown(), stateOf(playOnHost(await linesOfLink())));
}

async function goTo(position) {
    await page.$eval('#time-line input', (element, value) => {
        element.value = String(value);
        element.dispatchEvent(new Event('input', { bubbles: true }));
    }, position);
    await page.waitForFunction((value) => document.querySelector('.where').textContent.startsWith(`Step ${value} `), {},
        position);
}

async function picture(name) {
    await page.screenshot({ path: join(pictures, `${name}.png`) });
}

async function expectAccessible(where) {
    await page.evaluate(readFileSync(pathOf('axe-core'), 'utf8'));
    const { violations, passes } = await page.evaluate(() => globalThis.axe.run(document, {
        runOnly: ['wcag2a', 'wcag2aa', 'wcag21a', 'wcag21aa', 'wcag22aa', 'best-practice'],
    }));
    const found = violations.flatMap(({ id, nodes }) => nodes.map(({ html, failureSummary }) =>
        `${id}: ${html}\n${failureSummary}`));
    assert.deepEqual(found, [], where);
    assert.ok(passes.some(({ id }) => id === 'color-contrast'), 'the contrast was not checked');
}

// ---- The device ----------------------------------------------------------------------------------------------------

test('touches lead through the coffee machine, and the page shows the state of the host', async () => {
    await open();
    assert.equal(await textOf('#title'), 'Coffee machine');
    assert.deepEqual(await shown(), ['current: DLG_HOME', 'focus: BTN_DRINKS']);

    await touch('BTN_DRINKS');
    await touch('BTN_CAPPUCCINO');
    await touch('BTN_STRENGTH');
    assert.deepEqual(await shown(), [
        'current: DLG_DRINK_DETAIL',
        'history: DLG_DRINKS ODA_NOTHING focus BTN_CAPPUCCINO',
        'history: DLG_HOME ODA_INVISIBLE focus BTN_DRINKS',
        'active: POP_SAVED prio 3, shown, 2.0 s left',
        'focus: BTN_STRENGTH',
    ]);
    await expectSameAsHost();

    await touch('BTN_BREW');
    await run('advance 1500', 'water 0');
    await expectSameAsHost();
    assert.ok((await shown()).includes('active: POP_WATER_EMPTY prio 9, shown'));

    await page.click('#offered button[title="water 1000"]');
    await run('advance 9000');
    await page.click('[data-key="back"]');
    await page.click('[data-key="back"]');
    await expectSameAsHost();
    assert.deepEqual(await namesOf('#history .card'), ['DLG_DRINKS', 'DLG_HOME']);
});

test('the keyboard reaches everything, and leaves the screen', async () => {
    await open();
    const focussed = () => page.evaluate(() => document.activeElement.id || document.activeElement.textContent);
    await page.focus('#screen');
    for (const key of ['ArrowDown', 'ArrowDown', 'Enter', 'Escape', 'ArrowUp', 'Enter']) {
        await page.keyboard.press(key);
    }
    assert.deepEqual(await namesOf('#history .card'), ['DLG_SETTINGS', 'DLG_HOME']);
    const active = await page.$eval('#screen', (element) => element.getAttribute('aria-activedescendant'));
    assert.equal(await page.$eval(`#${active}`, (element) => element.getAttribute('aria-label')), 'Language');
    await expectSameAsHost();

    const reached = new Set();
    for (let count = 0; count < 60; ++count) {
        await page.keyboard.press('Tab');
        reached.add(await focussed());
    }
    const wanted = await page.evaluate(() => [...document.querySelectorAll('button, select, input, canvas[tabindex]')]
        .filter((element) => element.checkVisibility()).map((element) => element.id || element.textContent));
    assert.deepEqual(wanted.filter((name) => !reached.has(name)), []);
});

test('a finger touches the screen of a phone', async () => {
    await open({ width: 390, height: 844, scale: 3 });
    const area = await (await page.$('#screen')).boundingBox();
    assert.ok(area.height / ROWS >= 24, 'a row is too low for a finger');
    const [x, y, width, height] = await page.$eval('#screen [data-name="BTN_SETTINGS"]',
        (element) => element.dataset.area.split(' ').map(Number));
    await page.touchscreen.tap(area.x + (x + width / 2) / COLUMNS * area.width,
        area.y + (y + height / 2) / ROWS * area.height);
    assert.deepEqual(await namesOf('#history .card'), ['DLG_SETTINGS', 'DLG_HOME']);
});

test('the screen has a pixel for every pixel of the display at any zoom', async () => {
    await open();
    for (const scale of [1, 1.5, 2, 3]) {
        await page.setViewport({ width: 1280, height: 860, deviceScaleFactor: scale });
        await page.waitForFunction((ratio) => {
            const canvas = document.getElementById('screen');
            const { width, height } = canvas.getBoundingClientRect();
            return devicePixelRatio === ratio && canvas.width === Math.round(width * ratio)
                && canvas.height === Math.round(height * ratio);
        }, { timeout: 5000 }, scale);
    }
    const colours = await page.$eval('#screen', (canvas) => {
        const { data } = canvas.getContext('2d').getImageData(0, 0, canvas.width, canvas.height);
        return new Set(new Uint32Array(data.buffer)).size;
    });
    assert.ok(colours > 50, 'the screen is empty');
});

// ---- The views -----------------------------------------------------------------------------------------------------

test('the time of a popup runs down while the clock runs, and the popup goes', async () => {
    await open({ isRunning: true });
    await run('ShowPopup POP_SAVED');
    const left = () => page.$eval('#popups [role="meter"]', (element) => Number(element.getAttribute('aria-valuenow')));
    const first = await left();
    await page.waitForFunction((value) => {
        const meter = document.querySelector('#popups [role="meter"]');
        return meter && Number(meter.getAttribute('aria-valuenow')) < value - 300;
    }, { timeout: 5000 }, first);
    await page.waitForFunction(() => document.querySelector('#popups .empty') !== null, { timeout: 8000 });
    assert.equal(await textOf('#popups .count'), '0');
    await page.click('#play');
    await expectSameAsHost();
});

test('while the clock stands still, no time passes', async () => {
    await open();
    await run('ShowPopup POP_SAVED');
    const old = await textOf('.where');
    await new Promise((resolve) => {
        setTimeout(resolve, 400);
    });
    assert.equal(await textOf('.where'), old);
});

test('the trace is filtered, marks errors, and leads to the state after a line', async () => {
    await open();
    await run('CreateDialog POP_SAVED ODA_NOTHING', 'ShowPopup POP_SAVED');
    const entries = () => entriesOf('#trace .entry');
    const whole = (await entries()).length;
    await page.select('#level', 'errors');
    const errors = await entries();
    assert.ok(errors.length > 0 && errors.length < whole);
    assert.ok(errors.every((entry) => /^ERROR.*GUIDialogManager\.cpp:\d+$/s.test(entry)), errors.join());
    await page.select('#level', 'all');
    await page.type('#words', 'onpopupactivation');
    assert.deepEqual(await entries(), ['INFOhook OnPopupActivation(POP_SAVED).']);
    await page.type('#words', ' nonsense');
    assert.equal(await textOf('#trace .empty'), 'No entry has these words.');
    await page.$eval('#words', (element) => {
        element.value = '';
        element.dispatchEvent(new Event('input'));
    });

    await page.click('#trace button.cause');
    assert.match(await textOf('.where'), /^Step 1 of 4, \S+ s: power-on$/);
    assert.deepEqual(await shown(), ['current: DLG_HOME', 'focus: BTN_DRINKS']);
});

test('a wrong line says what was expected and changes nothing', async () => {
    await open();
    const old = [await shown(), await textOf('.where')];
    await run('ShowPopup');
    assert.match(await textOf('#result'), /^ShowPopup: .*expected/);
    assert.equal(await page.$eval('#line', (element) => element.value), 'ShowPopup');
    await run('<img src=x onerror=alert(1)>');
    assert.match(await textOf('#result'), /^<img src=x onerror=alert\(1\)>: /);
    await run(`type ${'x'.repeat(2000)}`);
    assert.match(await textOf('#result'), /expected a line of at most 1000 bytes/);
    assert.deepEqual([await shown(), await textOf('.where')], old);
});

// ---- Time ----------------------------------------------------------------------------------------------------------

test('the time line goes back and forth through the same states', async () => {
    await open();
    const states = new Map();
    const note = async () => states.set(Number(/^Step (\d+)/.exec(await textOf('.where'))[1]), await shown());
    for (const line of ['touch BTN_DRINKS', 'touch BTN_TEA_WATER', 'touch BTN_BREW', 'advance 700', 'tray out',
        'advance 500', 'tray in', 'key back']) {
        await run(line);
        await note();
    }
    const trace = await entriesOf('#trace li');
    for (const [position, state] of [...states].reverse().concat([...states])) {
        await goTo(position);
        assert.deepEqual(await shown(), state, `step ${position}`);
    }
    assert.deepEqual(await entriesOf('#trace li'), trace);
    await expectSameAsHost();
});

test('input in the past replaces what came after it, and can be taken back', async () => {
    await open();
    await run('touch BTN_DRINKS', 'touch BTN_COFFEE', 'touch BTN_BREW');
    const [, last] = /^Step (\d+)/.exec(await textOf('.where'));
    const state = await shown();
    await goTo(Number(last) - 2);
    await run('key back');
    assert.deepEqual(await namesOf('#history .card'), ['DLG_HOME']);
    assert.equal(await textOf('#notice'), 'The 2 later steps were replaced.');
    const end = Number(last) - 1;
    assert.match(await textOf('.where'), new RegExp(`^Step ${end} of ${end}, \\S+ s: key back$`));
    assert.equal(await page.$eval('#time-line input', (element) => element.getAttribute('aria-valuetext')),
        await textOf('.where'));

    await page.click('#undo');
    assert.deepEqual(await shown(), state);
    assert.equal(await page.$eval('#undo', (element) => element.hidden), true);
});

test('the buttons of the clock go step by step', async () => {
    await open();
    await run('touch BTN_DRINKS', 'key back');
    const where = async () => Number(/^Step (\d+)/.exec(await textOf('.where'))[1]);
    const last = await where();
    await page.click('#step-back');
    assert.equal(await where(), last - 1);
    assert.equal(await page.$eval('body', (body) => body.classList.contains('past')), true);
    await page.click('#step-on');
    assert.equal(await where(), last);
    await page.click('#to-begin');
    assert.equal(await where(), 1);
    await page.click('#to-end');
    assert.equal(await where(), last);
    await page.click('#step-on');
    assert.equal(await where(), last + 1);
    await expectSameAsHost();
});

// ---- Sessions ------------------------------------------------------------------------------------------------------

test('a link shows the same session', async () => {
    await open({ isRunning: true });
    await touch('BTN_SETTINGS');
    await touch('BTN_LANGUAGE');
    await touch('BTN_GERMAN');
    await run('advance 300');
    await page.click('#play');
    const lines = await linesOfLink();
    const hash = await page.evaluate(() => location.hash);
    const state = await shown();
    const trace = await entriesOf('#trace .entry');
    await page.close();

    await open({ fragment: hash });
    assert.deepEqual(await shown(), state);
    assert.deepEqual(await entriesOf('#trace .entry'), trace);
    assert.deepEqual(await linesOfLink(), lines);
    await expectSameAsHost();
});

test('a damaged link is explained, and what comes before the fault is kept', async () => {
    await open({ fragment: '#session=power-on;touch+BTN_DRINKS;tuoch+BTN_TEA;key+back' });
    assert.match(await textOf('#notice'), /^Line 3 cannot be played: .*expected.*What comes before it is shown\.$/);
    assert.deepEqual(await namesOf('#history .card'), ['DLG_DRINKS', 'DLG_HOME']);
    await page.close();

    await open({ fragment: '#session=power-on;%E4%' });
    assert.equal(await textOf('#notice'),
        'This link cannot be opened: line 2 of the link is damaged; expected text, found "%E4%".');
    assert.deepEqual(await shown(), ['current: DLG_HOME', 'focus: BTN_DRINKS']);
});

test('the tour plays at human speed, with captions, and ends as recorded', async () => {
    await open();
    await page.waitForSelector('#tour:not([hidden])');
    await page.select('#speed', '16');
    await page.click('#tour');
    assert.match(await textOf('.where'), /^Step \d of \d{3}, /);
    await page.waitForFunction(() => Number(/^Step (\d+)/.exec(document.querySelector('.where').textContent)[1]) > 15);
    assert.notEqual(await textOf('#caption'), '');
    await page.click('#to-end');
    assert.deepEqual(await shown(), stateOf(readFileSync(join(root, 'Examples/CoffeeMachine/Tour.golden'), 'utf8')));
    await page.click('#undo');
    assert.deepEqual(await shown(), ['current: DLG_HOME', 'focus: BTN_DRINKS']);
});

// ---- Looks ---------------------------------------------------------------------------------------------------------

async function fill() {
    await touch('BTN_DRINKS');
    await touch('BTN_CAPPUCCINO');
    await run('touch BTN_STRENGTH', 'touch BTN_BREW', 'advance 1000', 'beans 20');
}

test('the page is accessible in light and dark, on a phone and with its boxes', async () => {
    for (const scheme of ['light', 'dark']) {
        await open({ scheme });
        await fill();
        await expectAccessible(scheme);
        await picture(scheme === 'dark' ? 'dark' : '1280');
        await page.click('#help-button');
        await expectAccessible(`${scheme}, help`);
        await page.click('#help button');
        await run('water 60', 'wrong');
        await page.click('#share');
        await expectAccessible(`${scheme}, link`);
        await page.close();
    }
    await open({ width: 390, height: 844, scale: 2 });
    await page.click('[data-key="ok"]');
    await expectAccessible('390 pixels');
    await picture('390');
});

test('nothing is cut off at 390 pixels', async () => {
    await open({ width: 390, height: 844 });
    await page.click('[data-key="ok"]');
    await run('beans 20');
    const wide = await page.evaluate(() => [...document.querySelectorAll('body *')]
        .filter((element) => element.checkVisibility() && element.closest('.unseen, .skip, .scroller, dialog') === null)
        .filter((element) => element.getBoundingClientRect().right > 390.5)
        .map((element) => element.outerHTML.slice(0, 80)));
    assert.deepEqual(wide, []);
    assert.equal(await page.evaluate(() => document.documentElement.scrollWidth), 390);
});

test('the colours follow the system until somebody chooses', async () => {
    await open({ scheme: 'dark' });
    const ground = () => page.$eval('body', (body) => getComputedStyle(body).backgroundColor);
    assert.equal(await ground(), 'rgb(17, 20, 23)');
    await page.click('#theme');
    assert.equal(await ground(), 'rgb(243, 241, 236)');
    await page.click('#theme');
    assert.equal(await ground(), 'rgb(17, 20, 23)');
    await page.reload();
    await page.waitForSelector('body.ready');
    assert.equal(await textOf('#theme'), 'Colours: Dark');
    await page.evaluate(() => localStorage.clear());
});

// SPDX-License-Identifier: MIT
/** The page with the coffee machine: PageTest.mjs is run by node --test. */

import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { test } from 'node:test';

import {
    COLUMNS, ROWS, entriesOf, expectAccessible, expectNothingCutOff, expectSameAsHost, goTo, linesOfLink, namesOf, open,
    page, picture, run, shown, stateOf, textOf, touch,
} from './Driver.mjs';
import { root } from './Packages.mjs';

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
    await page.click('#tour');
    await page.waitForFunction(() => /^Step \d of \d{3}, /.test(document.querySelector('.where').textContent));
    await page.select('#speed', '16');
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
    await expectNothingCutOff();
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

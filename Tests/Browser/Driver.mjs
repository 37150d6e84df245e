// SPDX-License-Identifier: MIT
/**
 * Drives the page with the coffee machine in a browser as a person would, and compares what it shows with the programs
 * for this machine.
 *
 * BROWSER names the browser's program, HOST that of the coffee machine, DIALOGSIM the one that runs flows; they play
 * what was done on the page, and what both show must be the same. Pictures of the page go to build/browser/pictures.
 */

import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { mkdirSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, afterEach, before } from 'node:test';

import { fromFragment } from '../../Simulator/Browser/Page/session.js';
import { serve } from '../../Simulator/Browser/Serve.mjs';
import { build, load, pathOf } from './Packages.mjs';

const puppeteer = await load('puppeteer-core');
const folder = join(build, 'Examples/CoffeeMachine/Page');
const pictures = join(build, 'pictures');
export const COLUMNS = 40;
export const ROWS = 12;

export let page;
export let scratch;
export let requests = [];
let server;
let browser;
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
export async function open({
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

export const entriesOf = (selector) => page.$$eval(selector,
    (elements) => elements.map((element) => element.textContent));
export const textOf = (selector) => page.$eval(selector, (element) => element.textContent);
export const namesOf = (selector) => page.$$eval(selector,
    (elements) => elements.map((element) => element.dataset.name));

/** Touches the middle of a widget on the screen of a device, with the mouse. */
export async function touch(name, columns = COLUMNS, rows = ROWS) {
    const places = await page.$$eval(`#screen [data-name="${name}"]`,
        (elements) => elements.map((element) => element.dataset.area.split(' ').map(Number)));
    assert.ok(places.length > 0, `${name} is not on the screen`);
    const [x, y, width, height] = places.at(-1);
    const area = await (await page.$('#screen')).boundingBox();
    await page.mouse.click(area.x + (x + width / 2) / columns * area.width,
        area.y + (y + height / 2) / rows * area.height);
}

export async function run(...lines) {
    for (const line of lines) {
        await page.$eval('#line', (element, value) => {
            element.value = value;
        }, line);
        await page.click('#command button');
    }
}

/** What the page shows of the state, in the words of a transcript. */
export function shown() {
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
export function stateOf(transcript) {
    const lines = transcript.split('\n');
    const from = lines.findLastIndex((line) => line.startsWith('| current: '));
    return lines.slice(from).filter((line) => /^\| (current|history|active|focus): /.test(line)).map((line) => line
        .slice(2)
        .replace(/^(current: \S+).*/, '$1')
        .replace(/ \(after .*/, '')
        .replace(/ prio (\d+), \d+ ms, (?:hide|delete) on close, (shown|hidden)/, ' prio $1, $2')
        .replace(/, (\d+) ms left/, (_, left) => `, ${(left / 1000).toFixed(1)} s left`));
}

/** Plays lines with the coffee machine of this machine, or a flow with dialogsim. @param {string} [flow] its file */
export function playOnHost(lines, flow) {
    const file = join(scratch, 'session.scenario');
    writeFileSync(file, `${lines.join('\n')}\n`);
    return flow
        ? execFileSync(process.env.DIALOGSIM, [flow, '--play', file], { encoding: 'utf8' })
        : execFileSync(process.env.HOST, ['--play', file], { encoding: 'utf8' });
}

export async function linesOfLink() {
    await page.click('#share');
    await page.waitForSelector('#link[open]');
    const link = await page.$eval('#link-text', (element) => element.value);
    await page.click('#link button');
    return fromFragment(new URL(link).hash);
}

/** @param {string} [flow] the file of the flow that the page runs */
export async function expectSameAsHost(flow) {
    assert.deepEqual(await shown(), stateOf(playOnHost(await linesOfLink(), flow)));
}

export async function goTo(position) {
    await page.$eval('#time-line input', (element, value) => {
        element.value = String(value);
        element.dispatchEvent(new Event('input', { bubbles: true }));
    }, position);
    await page.waitForFunction((value) => document.querySelector('.where').textContent.startsWith(`Step ${value} `), {},
        position);
}

export async function picture(name) {
    await page.screenshot({ path: join(pictures, `${name}.png`) });
}

export async function expectAccessible(where) {
    await page.evaluate(readFileSync(pathOf('axe-core'), 'utf8'));
    const { violations, passes } = await page.evaluate(() => globalThis.axe.run(document, {
        runOnly: ['wcag2a', 'wcag2aa', 'wcag21a', 'wcag21aa', 'wcag22aa', 'best-practice'],
    }));
    const found = violations.flatMap(({ id, nodes }) => nodes.map(({ html, failureSummary }) =>
        `${id}: ${html}\n${failureSummary}`));
    assert.deepEqual(found, [], where);
    assert.ok(passes.some(({ id }) => id === 'color-contrast'), 'the contrast was not checked');
}

/** Nothing may be cut off at the right of a phone's screen. */
export async function expectNothingCutOff() {
    const wide = await page.evaluate(() => [...document.querySelectorAll('body *')]
        .filter((element) => element.checkVisibility() && element.closest('.unseen, .skip, .scroller, dialog') === null)
        .filter((element) => element.getBoundingClientRect().right > 390.5)
        .map((element) => element.outerHTML.slice(0, 80)));
    assert.deepEqual(wide, []);
    assert.equal(await page.evaluate(() => document.documentElement.scrollWidth), 390);
}

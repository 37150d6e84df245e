// SPDX-License-Identifier: MIT
/** Flows on the page: FlowTest.mjs is run by node --test. */

import assert from 'node:assert/strict';
import { spawnSync } from 'node:child_process';
import { readFileSync, readdirSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { test } from 'node:test';

import { fromScenario } from '../../Simulator/Browser/Page/session.js';
import {
    entriesOf, expectAccessible, expectNothingCutOff, expectSameAsHost, goTo, linesOfLink, namesOf, open, page, picture,
    playOnHost, requests, run, scratch, shown, stateOf, textOf, touch,
} from './Driver.mjs';
import { root } from './Packages.mjs';

const flows = join(root, 'Examples/Flows');
const dialogs = join(root, 'Examples/CoffeeMachine/Dialogs');
const partsOfCoffeeMachine = readdirSync(dialogs).map((name) => join(dialogs, name));

const lamp = ({ title = 'Lamp', back = '<On key="back"><back/></On>', warm = 'DLG_WARM' } = {}) =>
    `<Flow name="Lamp" width="30" height="8">
  <Key name="ok" label="OK" keyboard="Enter" input="activate"/>
  <Key name="back" label="Back" keyboard="Escape"/>
  <DialogDefinition id="DLG_HOME"><Screen text="${title}"><Button id="BTN_GO" x="2" y="3" text="Go"/></Screen>
  </DialogDefinition>
  <DialogDefinition id="DLG_COLOUR"><Screen text="Colour"><Button id="BTN_WARM" x="2" y="3" text="Warm"/></Screen>
  </DialogDefinition>
  <DialogDefinition id="DLG_WARM"><Screen text="Warm"/></DialogDefinition>
  <Start><create dialog="DLG_HOME"/></Start>
  <On button="BTN_GO"><create dialog="DLG_COLOUR"/></On>
  <On button="BTN_WARM"><create dialog="${warm}"/></On>
  ${back}
</Flow>
`;

/** Writes a file to choose. */
function write(name, text) {
    const path = join(scratch, name);
    writeFileSync(path, text);
    return path;
}

/** Chooses files with the element of the page for that. */
async function choose(...paths) {
    await (await page.$('#flow-files')).uploadFile(...paths);
}

/** Opens the page, and a flow on it by its files. */
async function openFlow(...paths) {
    await open();
    await openBox();
    await choose(...paths);
    await page.waitForSelector('#flow-line:not([hidden])');
    await page.click('#play');
}

async function openBox() {
    await page.waitForSelector('#open:not([hidden])');
    await page.click('#open');
    await page.waitForSelector('#flows[open]');
}

const screenText = () => page.$eval('#screen [role="group"]', (element) => element.getAttribute('aria-label'));
const waitForText = (selector, text) => page.waitForFunction((where, words) =>
    document.querySelector(where).textContent.includes(words), {}, selector, text);

/** The commands of a transcript: the line, what was logged, and the state after it. */
function commandsOf(transcript) {
    const commands = [];
    for (const piece of transcript.split(/^> /m).slice(1)) {
        const state = stateOf(piece);
        commands.push({
            line: piece.split('\n', 1)[0],
            trace: piece.split('\n').map((line) => /^ {2}([A-Z]+: \S.*)/.exec(line)?.[1]).filter(Boolean),
            state: state.length > 0 ? state : commands.at(-1).state,
        });
    }
    return commands;
}

/** What the page has logged for each line, in the words of a transcript. */
async function tracesOfPage() {
    const rows = await page.$$eval('#trace li', (items) => items.map((item) => [
        item.querySelector('.cause span')?.textContent ?? null, item.querySelector('.tag')?.textContent,
        item.querySelector('.message')?.firstChild.textContent.split('\n')[0]]));
    const traces = [];
    for (const [cause, level, message] of rows) {
        if (cause !== null) {
            traces.push({ line: cause, trace: [] });
        } else {
            traces.at(-1).trace.push(`${level}: ${message}`);
        }
    }
    return traces;
}

test('what runs flows is loaded only when it is asked for', async () => {
    await open();
    await page.waitForSelector('#open:not([hidden])');
    const names = () => requests.map((url) => url.slice(url.lastIndexOf('/') + 1));
    assert.deepEqual(names().filter((name) => /^(flow|files)/.test(name)), ['flows.json']);
    await openBox();
    await page.waitForSelector('#shipped button');
    assert.ok(names().includes('flows.js'));
});

test('a flow from chosen files plays its tour as the terminal does', async () => {
    const flow = join(flows, 'CoffeeMachine.xml');
    await openFlow(flow, join(flows, 'CoffeeMachine.scenario'), ...partsOfCoffeeMachine);
    assert.equal(await textOf('#title'), 'Coffee machine');
    assert.equal(await textOf('#flow-name'), 'CoffeeMachine.xml');
    const lines = fromScenario(readFileSync(join(flows, 'CoffeeMachine.scenario'), 'utf8'), { withComments: true });
    await page.click('#tour');
    await waitForText('.where', ` of ${lines.length}, `);
    await page.click('#to-end');
    await waitForText('.where', `Step ${lines.length} of`);

    const commands = commandsOf(playOnHost(lines, flow));
    assert.ok(commands.length > 25, `${commands.length} commands`);
    assert.deepEqual(await tracesOfPage(), commands.filter(({ trace }) => trace.length > 0)
        .map(({ line, trace }) => ({ line, trace })));
    let position = 0;
    for (const { line, state } of commands) {
        position = lines.indexOf(line, position) + 1;
        await goTo(position);
        assert.deepEqual(await shown(), state, `step ${position}: ${line}`);
    }
    await expectSameAsHost(flow);
});

test('keys, the keyboard and time work in every flow that the page has', async () => {
    await open();
    for (const [label, name] of [['Car settings', 'CarSettings'], ['Coffee machine', 'CoffeeMachine'],
        ['Infusion pump', 'InfusionPump'], ['Washing machine', 'WashingMachine']]) {
        await openBox();
        await page.waitForSelector('#shipped button');
        await page.$$eval('#shipped button', (buttons, wanted) =>
            buttons.find((button) => button.textContent === wanted).click(), label);
        await waitForText('#flow-name', `${name}.xml`);
        await page.click('#keys button');
        await page.focus('#screen');
        await page.keyboard.press('ArrowDown');
        await page.keyboard.press('Enter');
        await run('advance 1500');
        if (await textOf('#play') === 'Pause') {
            await page.click('#play');
        }
        await expectSameAsHost(join(flows, `${name}.xml`));
        assert.equal(await page.$eval('#reload', (button) => button.hidden), true);
    }
});

test('a mistake shows its place, and the last good flow goes on', async () => {
    await openFlow(write('Lamp.xml', lamp()));
    await page.click('[data-key="ok"]');
    const state = await shown();

    const wrong = lamp().replace('<back/>', '<beck/>');
    const path = write('Lamp.xml', wrong);
    const said = spawnSync(process.env.DIALOGSIM, [path], { encoding: 'utf8' }).stderr.trim();
    const mistake = said.slice(said.indexOf('Lamp.xml:'));
    assert.match(mistake, /^Lamp\.xml:12:18: .*expected one of create, back/);
    await choose(path);
    await page.waitForSelector('#mistake:not([hidden])');
    assert.equal(await textOf('#mistake'), `${mistake}. The flow goes on as it was before.`);
    assert.deepEqual(await shown(), state);
    await page.click('[data-key="back"]');
    assert.deepEqual(await shown(), ['current: DLG_HOME', 'focus: BTN_GO']);

    // Another flow that cannot be opened leaves this one alone, too.
    await openBox();
    await choose(write('Other.xml', wrong));
    await page.waitForSelector('#flows-fault:not([hidden])');
    assert.equal(await textOf('#flows-fault'), mistake.replace('Lamp', 'Other'));
    await choose(write('Screen.scenario', 'key ok\n'), write('None.xml', '<Screen/>'));
    await page.keyboard.press('Escape');
    assert.equal(await textOf('#flow-name'), 'Lamp.xml');

    await choose(write('Lamp.xml', lamp({ title: 'Lamp, right again' })));
    await page.waitForSelector('#mistake', { hidden: true });
    assert.equal(await screenText(), 'Lamp, right again');
});

test('what is no flow is refused with what was expected', async () => {
    await open();
    await openBox();
    await choose(write('Screen.xml', '<Screen/>'));
    await page.waitForSelector('#flows-fault:not([hidden])');
    assert.equal(await textOf('#flows-fault'),
        'None of these files is a flow; expected an XML file whose first element is Flow.');
    assert.equal(await page.$eval('#flow-line', (line) => line.hidden), true);
});

test('a changed flow keeps the history where it still allows it', async () => {
    await openFlow(write('Lamp.xml', lamp()));
    await run('key ok', 'key ok', 'key back', 'key ok');
    const state = await shown();
    assert.deepEqual(state, ['current: DLG_WARM', 'history: DLG_COLOUR ODA_INVISIBLE focus BTN_WARM',
        'history: DLG_HOME ODA_INVISIBLE focus BTN_GO']);
    const lines = await linesOfLink();

    await choose(write('Lamp.xml', lamp({ title: 'Another lamp' })));
    await waitForText('#notice', 'Lamp.xml: the flow has changed.');
    assert.deepEqual(await shown(), state);
    assert.deepEqual(await linesOfLink(), lines);
    await page.click('[data-key="back"]');
    await page.click('[data-key="back"]');
    assert.equal(await screenText(), 'Another lamp');
    await page.click('#step-back');
    await page.click('#step-back');
    assert.deepEqual(await shown(), state);

    // The button leads somewhere else now: lines build the history again.
    await page.click('#to-end');
    await run('key ok', 'key ok');
    await choose(write('Lamp.xml', lamp({ warm: 'DLG_HOME', back: '' })));
    await waitForText('#notice', 'the history is built again.');
    assert.deepEqual(await shown(), state);
    assert.deepEqual((await linesOfLink()).slice(-3),
        ['CreateDialog DLG_HOME ODA_NOTHING', 'CreateDialog DLG_COLOUR ODA_INVISIBLE',
            'CreateDialog DLG_WARM ODA_INVISIBLE']);
    await expectSameAsHost(join(scratch, 'Lamp.xml'));
});

test('files that the browser can read again are followed', async () => {
    await open();
    // The handles of files that pages have for themselves are like those of files that somebody has chosen.
    await page.evaluate(async (text) => {
        const folder = await navigator.storage.getDirectory();
        globalThis.rewrite = async (words) => {
            const stream = await (await folder.getFileHandle('Lamp.xml', { create: true })).createWritable();
            await stream.write(words);
            await stream.close();
        };
        await globalThis.rewrite(text);
        globalThis.showOpenFilePicker = async () => [await folder.getFileHandle('Lamp.xml')];
        globalThis.showDirectoryPicker = async () => folder;
    }, lamp());
    const rewrite = (text) => page.evaluate((words) => globalThis.rewrite(words), text);
    await openBox();
    await page.click('#choose-files');
    await page.waitForSelector('#flow-line:not([hidden])');
    assert.match(await textOf('#flow-state'), /^followed/);
    await page.click('[data-key="ok"]');

    await rewrite(lamp().replace('"Colour"', '"Colour, changed"'));
    await page.waitForFunction(() => document.querySelector('#screen [data-name="DLG_COLOUR"]')
        ?.getAttribute('aria-label') === 'Colour, changed');
    assert.deepEqual(await namesOf('#history .card'), ['DLG_COLOUR', 'DLG_HOME']);
    await rewrite('<Flow name="Lamp">');
    await waitForText('#mistake', 'Lamp.xml:1:');
    assert.deepEqual(await namesOf('#history .card'), ['DLG_COLOUR', 'DLG_HOME']);
    await rewrite(lamp());
    await page.waitForSelector('#mistake', { hidden: true });
    assert.equal(await textOf('#reload'), 'Reload');
    await page.click('#reload');
    await waitForText('#notice', 'Lamp.xml has not changed.');

    await page.click('#leave-flow');
    await openBox();
    await page.click('#choose-folder');
    await waitForText('#flow-name', 'Lamp.xml');
    assert.match(await textOf('#flow-state'), /^followed/);
});

test('without such files the browser asks for them, and changed ones are chosen again', async () => {
    await open();
    await page.evaluate(() => {
        globalThis.showOpenFilePicker = undefined;
    });
    await openBox();
    const [chooser] = await Promise.all([page.waitForFileChooser(), page.click('#choose-files')]);
    assert.equal(chooser.isMultiple(), true);
    await chooser.accept([write('Lamp.xml', lamp())]);
    await page.waitForSelector('#flow-line:not([hidden])');
    assert.equal(await textOf('#reload'), 'Choose again…');
    const [again] = await Promise.all([page.waitForFileChooser(), page.click('#reload')]);
    await again.accept([write('Lamp.xml', lamp({ title: 'New' }))]);
    await waitForText('#notice', 'the flow has changed');
    assert.equal(await screenText(), 'New');
});

test('of several flows somebody chooses one, and missing dialog files are named', async () => {
    await open();
    await openBox();
    await choose(join(flows, 'CoffeeMachine.xml'), join(flows, 'CarSettings.xml'), ...partsOfCoffeeMachine.slice(1));
    await page.waitForSelector('#found button');
    assert.deepEqual(await entriesOf('#found button'), ['CoffeeMachine.xml', 'CarSettings.xml']);
    assert.equal(await page.evaluate(() => document.activeElement.textContent), 'CoffeeMachine.xml');
    await page.keyboard.press('Enter');
    await waitForText('#flow-name', 'CoffeeMachine.xml');
    const missing = await page.$eval('#notice', (notice) => notice.textContent);
    assert.equal(missing, '');

    await openBox();
    await choose(write('Lamp.xml', lamp().replace('"DLG_WARM"><Screen text="Warm"/></DialogDefinition>',
        '"DLG_WARM" file="Dialogs/Warm.xml"/>')));
    await waitForText('#notice', 'These files of the flow are missing: Dialogs/Warm.xml. Choose them, too.');
    await choose(write('Warm.xml', '<Screen text="Warm, from a file"/>'));
    await waitForText('#notice', 'the flow has changed');
    await run('key ok', 'key ok');
    assert.equal(await page.$eval('#screen [data-name="DLG_WARM"]', (element) => element.getAttribute('aria-label')),
        'Warm, from a file');
});

test('a flow can be dropped on the page', async () => {
    await open();
    await page.waitForSelector('#open:not([hidden])');
    const drop = (name, text) => page.evaluate((file, words) => {
        const dataTransfer = new DataTransfer();
        dataTransfer.items.add(new File([words], file));
        document.body.dispatchEvent(new DragEvent('drop', { dataTransfer, bubbles: true, cancelable: true }));
    }, name, text);
    await drop('Lamp.xml', lamp().replace('"Escape"', '"F2"'));
    await waitForText('#flow-name', 'Lamp.xml');
    assert.equal(await screenText(), 'Lamp');
    await page.click('#play');
    await touch('BTN_GO', 30, 8);
    assert.deepEqual(await namesOf('#history .card'), ['DLG_COLOUR', 'DLG_HOME']);
    await page.keyboard.press('F2');
    assert.deepEqual(await namesOf('#history .card'), ['DLG_HOME']);
    await drop('Note.txt', 'a note');
    await waitForText('#mistake', 'None of these files is a flow');
    assert.equal(await textOf('#flow-name'), 'Lamp.xml');
});

test('a link contains the flow', async () => {
    await openFlow(write('Lamp.xml', lamp({ title: 'Lämpchen' })));
    await run('key ok');
    await linesOfLink();
    const hash = await page.evaluate(() => location.hash);
    const state = await shown();
    assert.match(hash, /^#flow=[\w-]+&session=power-on;.*key\+ok/);
    assert.ok(hash.length < 1000, `${hash.length} characters`);
    await page.close();

    await open({ fragment: hash });
    assert.equal(await textOf('#title'), 'Lamp');
    assert.deepEqual(await shown(), state);
    await page.click('#leave-flow');
    assert.equal(await textOf('#title'), 'Coffee machine');
    assert.deepEqual(await shown(), ['current: DLG_HOME', 'focus: BTN_DRINKS']);
    await page.close();

    await open({ fragment: '#flow=damaged&session=power-on' });
    assert.equal(await textOf('#notice'), 'This link cannot be opened: the flow of the link is damaged.');
    assert.deepEqual(await shown(), ['current: DLG_HOME', 'focus: BTN_DRINKS']);
});

test('the application of the page goes on where it was when the flow is closed', async () => {
    await open();
    await run('touch BTN_DRINKS');
    const where = await textOf('.where');
    await openBox();
    await choose(write('Lamp.xml', lamp()));
    await page.waitForSelector('#flow-line:not([hidden])');
    await page.click('#play');
    assert.deepEqual(await entriesOf('#keys .key span'), ['OK', 'Back']);
    assert.equal(await page.$eval('#tour', (button) => button.hidden), true);
    await page.click('#leave-flow');
    assert.equal(await textOf('#title'), 'Coffee machine');
    assert.equal(await textOf('.where'), where);
    assert.equal(await page.$eval('#tour', (button) => button.hidden), false);
    await expectSameAsHost();
});

test('flows are accessible by keyboard, in light and dark and on a phone', async () => {
    for (const scheme of ['light', 'dark']) {
        await open({ scheme });
        await page.waitForSelector('#open:not([hidden])');
        await page.focus('#open');
        await page.keyboard.press('Enter');
        await page.waitForSelector('#shipped button');
        await choose(write('None.xml', '<Screen/>'));
        await page.waitForSelector('#flows-fault:not([hidden])');
        await expectAccessible(`${scheme}, the box that opens flows`);
        await picture(`flows-${scheme}`);
        const reached = [];
        for (let count = 0; count < 7; ++count) {
            reached.push(await page.evaluate(() => document.activeElement.textContent));
            await page.keyboard.press('Tab');
        }
        assert.deepEqual(reached, ['Choose files…', 'Choose a folder…', 'Car settings', 'Coffee machine',
            'Infusion pump', 'Washing machine', 'Cancel']);
        await page.keyboard.press('Escape');
        await choose(write('Lamp.xml', lamp()));
        await page.waitForSelector('#flow-line:not([hidden])');
        await choose(write('Lamp.xml', lamp().replace('<back/>', '<beck/>')));
        await page.waitForSelector('#mistake:not([hidden])');
        await page.click('#play');
        await expectAccessible(`${scheme}, a flow with a mistake`);
        await picture(`flow-${scheme}`);
        await page.close();
    }
    await open({ width: 390, height: 844, scale: 2 });
    await openBox();
    await page.waitForSelector('#shipped button');
    await expectAccessible('390 pixels, the box that opens flows');
    await picture('flows-390');
    await choose(join(flows, 'CoffeeMachine.xml'), ...partsOfCoffeeMachine);
    await page.waitForSelector('#flow-line:not([hidden])');
    await choose(write('CoffeeMachine.xml', '<Flow nome="x"/>'));
    await page.waitForSelector('#mistake:not([hidden])');
    await page.click('#play');
    await expectAccessible('390 pixels, a flow');
    await picture('flow-390');
    await expectNothingCutOff();
});

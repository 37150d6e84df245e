// SPDX-License-Identifier: MIT
/** Sessions as links and scenarios, and the state from the lines of an inspection. They need no browser. */

import assert from 'node:assert/strict';
import { test } from 'node:test';

import { Inspection, nameOf } from '../../Simulator/Browser/Page/inspection.js';
import {
    MOST_LINES, advanceOf, fromFragment, fromScenario, joinAdvances, splitAdvances, toFragment, toScenario,
} from '../../Simulator/Browser/Page/session.js';

test('a session comes back from its link', () => {
    const lines = ['power-on', 'touch-at 3 4', 'advance 1000', 'advance 250', "type 'a+b;c #ä%20'", '# a comment',
        'key ok'];
    const fragment = toFragment(lines);

    assert.equal(fragment, '#session=power-on;touch-at+3+4;advance+1250;'
        + "type+'a%2Bb%3Bc+%23%C3%A4%2520';%23+a+comment;key+ok");
    assert.deepEqual(fromFragment(fragment), lines);
});

test('a fragment without a session is none, and an empty session is one', () => {
    assert.equal(fromFragment(''), null);
    assert.equal(fromFragment('#screen'), null);
    assert.deepEqual(fromFragment('#session='), []);
    assert.deepEqual(fromFragment('#session=;power-on;;'), ['power-on']);
});

test('a damaged link says which line is wrong', () => {
    assert.throws(() => fromFragment('#session=power-on;%E4%'),
        { message: 'line 2 of the link is damaged; expected text, found "%E4%"' });
    assert.throws(() => fromFragment('#session=key+ok%0Akey+ok'),
        { message: 'line 1 of the link has a control character; expected a line of a scenario' });
});

test('a link that would play for ever is refused', () => {
    assert.throws(() => fromFragment('#session=advance+999999999'),
        { message: `the link is too long; expected at most ${MOST_LINES} lines` });
    assert.throws(() => fromFragment(`#session=${'key+ok;'.repeat(MOST_LINES + 1)}`),
        { message: `the link is too long; expected at most ${MOST_LINES} lines` });
});

test('time that passes is joined for links and cut for the time line', () => {
    assert.deepEqual(joinAdvances(['advance 1', 'advance 2', 'key ok', 'advance 3', 'advance x']),
        ['advance 3', 'key ok', 'advance 3', 'advance x']);
    assert.deepEqual(splitAdvances(['advance 0', 'advance 1000', 'advance 2500', 'key ok']),
        ['advance 0', 'advance 1000', 'advance 1000', 'advance 1000', 'advance 500', 'key ok']);
    assert.equal(advanceOf('advance 12'), 12);
    assert.equal(advanceOf('advance 12 '), null);
    assert.equal(advanceOf('advance -1'), null);
});

test('a scenario is read with and without its comments', () => {
    const text = '## Title\n\n# Why\nkey ok  \nadvance 1500\n';
    assert.deepEqual(fromScenario(text), ['key ok', 'advance 1000', 'advance 500']);
    assert.deepEqual(fromScenario(text, { withComments: true }),
        ['## Title', '# Why', 'key ok', 'advance 1000', 'advance 500']);
    assert.equal(toScenario(['key ok', 'advance 1000', 'advance 500']), 'key ok\nadvance 1500\n');
});

test('a part of the state is put together from its lines', () => {
    const inspection = new Inspection();
    const take = (from, items) => inspection.take({ type: 'state', time: 5, part: 'tree', from, items, more: true });
    assert.equal(take(0, [{ depth: 0, id: 1, name: 'A' }, { depth: 1, id: 2 }]), true);
    take(2, [{ depth: 2, id: 3 }, { depth: 1, id: 4 }, { depth: 0, id: 5 }]);

    const shape = (objects) => objects.map(({ id, children }) => (children.length ? [id, ...shape(children)] : id));
    assert.deepEqual(shape(inspection.tree), [[1, [2, 3], 4], 5]);
    assert.equal(inspection.version('tree'), 2);

    take(0, []);
    assert.deepEqual(inspection.tree, []);
});

test('the display times of popups run down from the time of their line, the most important popup first', () => {
    const inspection = new Inspection();
    inspection.take({
        type: 'state', time: 1000, part: 'active', from: 0, more: false,
        items: [{ id: 1, time: 2000, left: 1500 }, { id: 2, time: 0 }, { gone: true, time: 9, left: 9 }],
    });

    assert.deepEqual(inspection.popups(1400).map(({ id, left }) => [id, left]),
        [[undefined, 0], [2, undefined], [1, 1100]]);
    assert.deepEqual(inspection.popups(9000).map(({ left }) => left), [0, undefined, 0]);
});

test('without a dialog nothing is current, and names fall back to numbers', () => {
    const inspection = new Inspection();
    assert.equal(inspection.current, null);
    inspection.take({ type: 'state', time: 0, part: 'current', from: 0, more: false, items: [{ id: 0 }] });
    assert.equal(inspection.current, null);
    inspection.take({ type: 'state', time: 0, part: 'current', from: 0, more: false, items: [{ id: 77 }] });
    assert.equal(nameOf(inspection.current), '#77');
    assert.equal(nameOf({ id: 3, name: 'DLG_HOME' }), 'DLG_HOME');
    assert.equal(nameOf({ gone: true }), 'gone');
    assert.equal(nameOf(null), 'none');
    assert.equal(inspection.take({ type: 'reply' }), false);
});

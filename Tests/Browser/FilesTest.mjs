// SPDX-License-Identifier: MIT
/** The files of a flow: which they are, and how they get into a link. They need no browser. */

import assert from 'node:assert/strict';
import { test } from 'node:test';

import {
    assemble, isFlow, isWanted, merge, normalise, pack, partsOf, tourOf, unpack,
} from '../../Simulator/Browser/Page/files.js';

const file = (path, text = '') => ({ path, bytes: new TextEncoder().encode(text) });
const textsOf = (files) => files.map(({ path, bytes }) => [path, new TextDecoder().decode(bytes)]);

test('a flow is an XML file whose first element says so, right or wrong', () => {
    assert.equal(isFlow(file('a.xml', '<Flow name="x">')), true);
    assert.equal(isFlow(file('a.XML', '\uFEFF<?xml version="1.0"?>\n<!-- <Dialog> -->\n<!-- b --><Flow/>')), true);
    assert.equal(isFlow(file('a.xml', '<!DOCTYPE Flow>\n<Flow\n')), true);
    assert.equal(isFlow(file('a.xml', '<!-- <Flow> --><Dialog/>')), false);
    assert.equal(isFlow(file('a.xml', '<Flower/>')), false);
    assert.equal(isFlow(file('a.scenario', '<Flow/>')), false);
});

test('only XML files and scenarios are wanted', () => {
    assert.deepEqual(['Lamp.xml', 'Lamp.scenario', '.Lamp.xml', 'Lamp.xml~', 'xml', '.xml'].filter(isWanted),
        ['Lamp.xml', 'Lamp.scenario']);
});

test('a path has no detours, and may lead out of its folder', () => {
    assert.equal(normalise('./a//b/../c'), 'a/c');
    assert.equal(normalise('a/../../b'), '../b');
    assert.equal(normalise('../../b'), '../../b');
});

test('the dialog files of a flow are named by its definitions', () => {
    const text = '<Flow><DialogDefinition id="A" file="D/A.xml"/><!-- <PopupDefinition file="no.xml"/> -->'
        + "<PopupDefinition id='P'\n file = '../P.xml' time='1'/><DialogDefinition id='B'><Image file='i.png'/>"
        + '</DialogDefinition><DialogDefinition id="C" file="D/A.xml"/></Flow>';
    assert.deepEqual(partsOf(file('Flows/F.xml', text)), ['Flows/D/A.xml', 'P.xml']);
});

test('a dialog file is found in its folder, or by its name alone', () => {
    const flow = file('F.xml', '<Flow><DialogDefinition id="A" file="D/A.xml"/>'
        + '<DialogDefinition id="B" file="D/B.xml"/><DialogDefinition id="C" file="../C.xml"/></Flow>');
    const { files, missing } = assemble([file('A.xml', 'alone'), file('other.xml'), flow, file('D/A.xml', 'in D'),
        file('B.xml', 'b')], 'F.xml');
    assert.deepEqual(textsOf(files).slice(1), [['D/A.xml', 'in D'], ['D/B.xml', 'b']]);
    assert.equal(files[0], flow);
    assert.deepEqual(missing, ['../C.xml']);
});

test('what is chosen later takes the place of what was there', () => {
    const old = [file('P/F.xml', 'f'), file('P/D/A.xml', 'a')];
    assert.deepEqual(textsOf(merge(old, [file('A.xml', 'new a'), file('P/B.xml', 'b')])),
        [['P/F.xml', 'f'], ['P/D/A.xml', 'new a'], ['P/B.xml', 'b']]);
    assert.deepEqual(textsOf(merge(old, [file('P/F.xml', 'new f'), file('Q/A.xml', 'other')])),
        [['P/F.xml', 'new f'], ['P/D/A.xml', 'a'], ['Q/A.xml', 'other']]);
});

test('the tour of a flow is the scenario beside it that has its name', () => {
    const files = [file('P/F.xml'), file('F.scenario', 'wrong'), file('P/F.scenario', 'key ok')];
    assert.equal(tourOf(files, 'P/F.xml'), 'key ok');
    assert.equal(tourOf(files, 'P/G.xml'), null);
});

test('a flow comes back from the word of a link', async () => {
    const files = [file('F.xml', `<Flow name="ä €"/>${'<!-- again and again -->'.repeat(500)}`),
        file('D/A.xml', '<Screen/>')];
    const word = await pack(files);
    assert.match(word, /^[\w-]+$/);
    assert.ok(word.length < 400, `${word.length} characters`);
    assert.deepEqual(textsOf(await unpack(word)), textsOf(files));
});

test('a damaged flow of a link is refused, and one that would fill the memory', async () => {
    const damaged = { message: 'the flow of the link is damaged' };
    await assert.rejects(unpack('no+word!'), damaged);
    await assert.rejects(unpack((await pack([file('F.xml', '<Flow/>')])).slice(4)), damaged);
    const packed = async (value) => {
        const stream = new Blob([JSON.stringify(value)]).stream().pipeThrough(new CompressionStream('deflate-raw'));
        return Buffer.from(await new Response(stream).arrayBuffer()).toString('base64url');
    };
    for (const wrong of [[], {}, [['F.xml']], [['F.xml', 1]], 'F.xml']) {
        await assert.rejects(unpack(await packed(wrong)), damaged);
    }
    await assert.rejects(unpack(await packed([['F.xml', 'x'.repeat(9 * 1024 * 1024)]])),
        { message: 'the flow of the link is too large' });
});

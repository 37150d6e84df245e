// SPDX-License-Identifier: MIT
/** Opens flow files, and follows them while they run. The page loads this when somebody asks for it. */

import { makeEngine } from './engine.js';
import {
    MOST_BYTES, MOST_FILES, assemble, isFlow, isWanted, merge, nameOfPath, normalise, pack, partsOf,
    scenarioOf, tourOf, unpack,
} from './files.js';
import createFlow from './flow.js';
import { make } from './panels.js';
import { Player } from './player.js';

const LOOK = 1000; // milliseconds between two looks at the files
// A flow may name files a few folders above its own.
const PLACE = '/flow/flow/flow/flow/flow/flow';

const find = (id) => document.getElementById(id);

/** A flow that runs, with its files. */
class Flow {
    /**
     * @param {import('./files.js').ChosenFile[]} files
     * @param {string} path of the flow among them
     * @throws {Error} whose message is the mistake in the flow
     */
    static async open(files, path) {
        const flow = new Flow();
        flow.files = files;
        flow.path = path;
        flow.module = await createFlow();
        flow.good = flow.write();
        const mistake = flow.module.ccall('FlowOpen', 'string', ['string'], [path]);
        if (mistake !== '') {
            throw new Error(mistake);
        }
        flow.player = new Player(makeEngine(flow.module));
        return flow;
    }

    get name() {
        return nameOfPath(this.path);
    }

    get isFollowed() {
        return this.files.some((file) => file.handle);
    }

    /** Whether somebody has it on the own computer. */
    get isChosen() {
        return this.files.some((file) => file.isChosen);
    }

    get missing() {
        return assemble(this.files, this.path).missing;
    }

    get tour() {
        return tourOf(this.files, this.path);
    }

    /** Without mistakes that came in later. */
    pack() {
        return pack(this.good);
    }

    /** Puts the files where the program finds them, and returns them. */
    write() {
        const { FS } = this.module;
        const { files } = assemble(this.files, this.path);
        for (const { path, bytes } of files) {
            const place = normalise(`${PLACE}/${path}`);
            FS.mkdirTree(`/${place.slice(0, place.lastIndexOf('/'))}`);
            FS.writeFile(`/${place}`, bytes);
        }
        FS.chdir(PLACE);
        return files;
    }

    /** Whether chosen files are newer ones of this flow. @param {string} path of the flow among them */
    isSame(path) {
        const hasFolders = path.includes('/') && this.path.includes('/');
        return hasFolders ? path === this.path : nameOfPath(path) === this.name;
    }

    /** Reads the files again that can be. @returns {Promise<boolean>} whether one has changed */
    async read() {
        let isChanged = false;
        for (const file of this.files.filter(({ handle }) => handle)) {
            // It may be gone for the moment in which an editor replaces it.
            const bytes = await bytesOf(() => file.handle.getFile()).catch(() => file.bytes);
            isChanged ||= bytes.length !== file.bytes.length
                || bytes.some((byte, place) => byte !== file.bytes[place]);
            file.bytes = bytes;
        }
        return isChanged;
    }

    /** Takes over what has changed. @returns {{news: string, text: string}} */
    look() {
        const files = this.write();
        const { engine } = this.player;
        const { source, session } = this.player.take(engine.look());
        if (source.news !== 'mistake') {
            this.good = files;
        }
        if (source.news === 'changed') {
            // The keys and the steps may be others now.
            const lines = engine.lines();
            this.player = new Player(engine);
            this.player.load(lines);
            this.player.goTo(session.position);
        }
        return source;
    }
}

// ---- Files ---------------------------------------------------------------------------------------------------------

async function bytesOf(getFile) {
    const file = await getFile();
    return new Uint8Array(await file.slice(0, MOST_BYTES + 1).arrayBuffer());
}

function checkNumber(files) {
    if (files.length > MOST_FILES) {
        throw new Error(`There are more than ${MOST_FILES} files; expected the folder of a flow.`);
    }
}

/** @param {File[]} files of an element for input */
async function readFiles(files) {
    const wanted = files.filter((file) => isWanted(file.name));
    checkNumber(wanted);
    return Promise.all(wanted.map(async (file) => ({
        path: file.webkitRelativePath || file.name, bytes: await bytesOf(() => file), isChosen: true,
    })));
}

/** Reads files and folders that can be read again later. @param {FileSystemHandle[]} handles */
async function readHandles(handles, folder = '', files = []) {
    for (const handle of handles) {
        const path = normalise(folder + handle.name);
        if (handle.kind === 'directory') {
            const children = [];
            for await (const child of handle.values()) {
                children.push(child);
            }
            await readHandles(children.filter(({ name }) => !name.startsWith('.')), `${path}/`, files);
        } else if (isWanted(handle.name)) {
            files.push({ path, handle, bytes: await bytesOf(() => handle.getFile()), isChosen: true });
        }
        checkNumber(files);
    }
    return files;
}

/** @param {{handle?: Promise<FileSystemHandle | null>, file: File | null}[]} dropped */
async function readDropped(dropped) {
    const all = await Promise.all(dropped.map(async ({ handle, file }) => await handle?.catch(() => null) ?? file));
    const files = await readFiles(all.filter((file) => file instanceof File));
    return readHandles(all.filter((handle) => handle && !(handle instanceof File)), '', files);
}

// ---- The page ------------------------------------------------------------------------------------------------------

/** What the page shows of flows: the box that opens them, and the line about the one that runs. */
export class Flows {
    /**
     * @param {{flows: string[], files: string[]}} shipped paths of what the page has: flows, and what belongs to them
     * @param {(flow: Flow | null) => void} onShow called with the flow that runs from now on, or has changed
     * @param {(text: string) => void} onTell
     */
    constructor(shipped, onShow, onTell) {
        this.shipped = shipped;
        this.onShow = onShow;
        this.onTell = onTell;
        /** @type {Flow | null} */
        this.flow = null;
        this.listShipped();
        find('choose-files').addEventListener('click', () => this.choose('showOpenFilePicker', find('flow-files')));
        find('choose-folder').addEventListener('click', () => this.choose('showDirectoryPicker', find('flow-folder')));
        for (const input of [find('flow-files'), find('flow-folder')]) {
            input.addEventListener('change', () => {
                this.take(readFiles([...input.files]));
                input.value = ''; // the same files can be chosen again
            });
        }
        find('reload').addEventListener('click', () => this.reload());
        find('leave-flow').addEventListener('click', () => this.close());
        setInterval(() => this.follow(), LOOK);
    }

    listShipped() {
        for (const path of this.shipped.flows) {
            const words = nameOfPath(path).slice(0, -4).replace(/(?<=.)[A-Z]/g, (letter) => ` ${letter.toLowerCase()}`);
            find('shipped').append(this.makeChoice(words, () => this.take(this.fetch(path))));
        }
    }

    makeChoice(text, onChoice) {
        const button = make('button.offer', text);
        button.type = 'button';
        button.addEventListener('click', onChoice);
        return make('li', button);
    }

    showBox() {
        this.say('');
        find('flows').showModal();
    }

    /** Lets somebody choose files, so that they can be read again if the browser knows how. */
    async choose(picker, input) {
        this.say('');
        if (!globalThis[picker]) {
            input.click();
            return;
        }
        try {
            const chosen = await globalThis[picker](picker === 'showOpenFilePicker' ? { multiple: true } : {});
            await this.take(readHandles([chosen].flat()));
        } catch (error) {
            if (error.name !== 'AbortError') {
                input.click();
            }
        }
    }

    drop(dropped) {
        return this.take(readDropped(dropped));
    }

    /** Fetches a flow that the page has, with what belongs to it. */
    async fetch(path) {
        const get = async (wanted) => {
            const response = await fetch(`flows/${wanted}`);
            return { path: wanted, bytes: new Uint8Array(await response.arrayBuffer()) };
        };
        const flow = await get(path);
        const others = [...partsOf(flow), scenarioOf(path)].filter((other) => this.shipped.files.includes(other));
        return [flow, ...await Promise.all(others.map(get))];
    }

    /** Opens what was chosen, or takes it over into the flow that runs. @param {Promise<ChosenFile[]>} reading */
    take(reading) {
        return this.attempt(async () => {
            const files = await reading;
            const flows = files.filter(isFlow);
            if (flows.length > 1) {
                this.ask(files, flows);
            } else if (flows.length === 1) {
                await this.open(files, flows[0].path);
            } else if (this.flow && files.length > 0) {
                this.replace(files);
            } else {
                throw new Error('None of these files is a flow; expected an XML file whose first element is Flow.');
            }
        });
    }

    async attempt(task) {
        try {
            await task();
        } catch (error) {
            this.say(error.message);
        }
    }

    /** Asks which of several flows is meant. */
    ask(files, flows) {
        if (!find('flows').open) {
            this.showBox();
        }
        find('found').replaceChildren(...flows.map(({ path }) =>
            this.makeChoice(path, () => this.attempt(() => this.open(files, path)))));
        find('found-part').hidden = false;
        find('found').querySelector('button').focus();
    }

    /** @throws {Error} whose message is the mistake in the flow; the one that runs goes on then */
    async open(files, path) {
        if (this.flow?.isSame(path)) {
            this.replace(files);
        } else {
            await this.start(files, path);
            this.tellWhatIsMissing();
        }
    }

    async start(files, path) {
        this.flow = await Flow.open(files, path);
        this.showFlow();
        this.showMistake('');
        this.onShow(this.flow);
    }

    /** Opens the flow of a link. */
    async openPacked(word) {
        const files = await unpack(word);
        await this.start(files, files[0].path);
    }

    /** Goes on with newer files. */
    replace(files) {
        this.flow.files = merge(this.flow.files, files);
        this.showFlow();
        this.look();
    }

    look({ isAsked = true } = {}) {
        const { news, text } = this.flow.look();
        if (news === 'mistake') {
            this.showMistake(`${text}. The flow goes on as it was before.`);
            return;
        }
        this.onShow(this.flow);
        if (news === 'changed') {
            this.showMistake('');
            this.onTell(`${this.flow.name}: ${text}.`);
            this.tellWhatIsMissing();
        } else if (isAsked) {
            this.onTell(`${this.flow.name} has not changed.`);
        }
    }

    tellWhatIsMissing() {
        const { missing } = this.flow;
        if (missing.length > 0) {
            this.onTell(`These files of the flow are missing: ${missing.join(', ')}. Choose them, too.`);
        }
    }

    /** Takes over what others have written into the files. */
    async follow() {
        const { flow } = this;
        if (flow?.isFollowed && !this.isReading) {
            this.isReading = true;
            const isChanged = await flow.read();
            this.isReading = false;
            if (isChanged && flow === this.flow) {
                this.look({ isAsked: false });
            }
        }
    }

    async reload() {
        if (this.flow.isFollowed) {
            await this.flow.read();
            this.look();
        } else {
            find('flow-files').click();
        }
    }

    /** Goes back to the application of the page. */
    close() {
        this.flow = null;
        this.showFlow();
        this.showMistake('');
        this.onShow(null);
    }

    showFlow() {
        find('flows').close();
        find('flow-line').hidden = !this.flow;
        find('flow-name').textContent = this.flow?.name ?? '';
        find('flow-state').textContent = this.flow?.isFollowed ? 'followed: changes of the file are taken over' : '';
        find('reload').hidden = !this.flow?.isChosen;
        find('reload').textContent = this.flow?.isFollowed ? 'Reload' : 'Choose again…';
    }

    showMistake(text) {
        find('mistake').textContent = text;
        find('mistake').hidden = text === '';
    }

    /** Says what is wrong with what was chosen, where it is seen. */
    say(text) {
        if (find('flows').open) {
            find('found-part').hidden = true;
            find('flows-fault').textContent = text;
            find('flows-fault').hidden = text === '';
        } else {
            this.showMistake(text);
        }
    }
}

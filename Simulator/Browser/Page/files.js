// SPDX-License-Identifier: MIT
/** Files that somebody has chosen: which of them is a flow, what it is made of, and how it gets into a link. */

/** A larger file is no flow, and its rest is not read. */
export const MOST_BYTES = 1024 * 1024;

/** More files than that are not read from a folder. */
export const MOST_FILES = 500;

const MOST_UNPACKED = 8 * MOST_BYTES;

/**
 * A file with its path, "/" between the names; with a handle it can be read again. It is chosen if it comes from
 * somebody's computer.
 * @typedef {{path: string, bytes: Uint8Array, handle?: FileSystemFileHandle, isChosen?: boolean}} ChosenFile
 */

export const nameOfPath = (path) => path.slice(path.lastIndexOf('/') + 1);
const folderOf = (path) => path.slice(0, path.lastIndexOf('/') + 1);
const textOf = (bytes) => new TextDecoder().decode(bytes);

/** Whether somebody may want to open a file of this name. */
export const isWanted = (name) => /^[^.].*\.(xml|scenario)$/i.test(name);

/** Whether a file is a flow: its first element says so, right or wrong. */
export function isFlow({ path, bytes }) {
    const text = /\.xml$/i.test(path) ? textOf(bytes) : '';
    return /^\uFEFF?\s*(?:<[?!][^>]*>\s*)*<Flow[\s/>]/.test(text.replace(/<!--.*?-->/gs, ''));
}

/** Takes "." and ".." out of a path, apart from those at its beginning that lead out of the folder. */
export function normalise(path) {
    const names = [];
    for (const name of path.split('/').filter((word) => word !== '' && word !== '.')) {
        if (name === '..' && names.length > 0 && names.at(-1) !== '..') {
            names.pop();
        } else {
            names.push(name);
        }
    }
    return names.join('/');
}

/** The paths of the dialog files that a flow names. */
export function partsOf({ path, bytes }) {
    const names = [...textOf(bytes).replace(/<!--.*?-->/gs, '')
        .matchAll(/<(?:Dialog|Popup)Definition\s[^>]*?\bfile\s*=\s*(["'])(.*?)\1/gs)].map(([, , name]) => name);
    return [...new Set(names.map((name) => normalise(folderOf(path) + name)))];
}

/**
 * Finds the files of a flow. A dialog file may have been chosen without its folder.
 * @param {ChosenFile[]} files
 * @param {string} path of the flow
 * @returns {{files: ChosenFile[], missing: string[]}} the flow first, each with the path by which it is found
 */
export function assemble(files, path) {
    const flow = files.find((file) => file.path === path);
    const found = [flow];
    const missing = [];
    for (const part of partsOf(flow)) {
        const file = files.find((other) => other.path === part)
            ?? files.find((other) => other.path === nameOfPath(part));
        if (file) {
            found.push({ ...file, path: part });
        } else {
            missing.push(part);
        }
    }
    return { files: found, missing };
}

/** The path of the scenario that is the tour of a flow. */
export const scenarioOf = (path) => path.replace(/\.xml$/i, '.scenario');

/** The tour of a flow as text, or null. */
export function tourOf(files, path) {
    const tour = files.find((file) => file.path === scenarioOf(path));
    return tour ? textOf(tour.bytes) : null;
}

/**
 * Puts files that were chosen later in the place of those before.
 * @param {ChosenFile[]} old
 * @param {ChosenFile[]} chosen one without a folder replaces the one of its name, wherever that is
 */
export function merge(old, chosen) {
    const files = [...old];
    for (const file of chosen) {
        const hasFolder = file.path.includes('/');
        const place = files.findIndex(({ path }) => path === file.path
            || (!hasFolder && nameOfPath(path) === file.path));
        if (place >= 0) {
            files[place] = { ...file, path: files[place].path };
        } else {
            files.push(file);
        }
    }
    return files;
}

// ---- Links ---------------------------------------------------------------------------------------------------------

async function readAll(stream, most) {
    const chunks = [];
    let size = 0;
    for (const reader = stream.getReader(); ;) {
        const { done, value } = await reader.read();
        if (done) {
            return new Blob(chunks).arrayBuffer();
        }
        size += value.length;
        if (size > most) {
            await reader.cancel();
            throw new Error('the flow of the link is too large');
        }
        chunks.push(value);
    }
}

/**
 * Writes a flow as a word for a link.
 * @param {ChosenFile[]} files the flow first
 */
export async function pack(files) {
    const text = JSON.stringify(files.map(({ path, bytes }) => [path, textOf(bytes)]));
    const packed = new Blob([text]).stream().pipeThrough(new CompressionStream('deflate-raw'));
    const bytes = new Uint8Array(await readAll(packed, Infinity));
    return btoa(Array.from(bytes, (byte) => String.fromCharCode(byte)).join(''))
        .replaceAll('+', '-').replaceAll('/', '_').replaceAll('=', '');
}

/**
 * Reads a flow from the word of a link.
 * @returns {Promise<ChosenFile[]>} the flow first
 * @throws {Error} that says what is wrong with it
 */
export async function unpack(word) {
    let files;
    try {
        const bytes = Uint8Array.from(atob(word.replaceAll('-', '+').replaceAll('_', '/')),
            (character) => character.charCodeAt(0));
        const stream = new Blob([bytes]).stream().pipeThrough(new DecompressionStream('deflate-raw'));
        files = JSON.parse(textOf(await readAll(stream, MOST_UNPACKED)));
    } catch (error) {
        throw error.message.startsWith('the flow') ? error : new Error('the flow of the link is damaged');
    }
    const isWhole = Array.isArray(files) && files.length > 0 && files.every((file) => Array.isArray(file)
        && file.length === 2 && file.every((word_) => typeof word_ === 'string'));
    if (!isWhole) {
        throw new Error('the flow of the link is damaged');
    }
    return files.map(([path, text]) => ({ path: normalise(path), bytes: new TextEncoder().encode(text) }));
}

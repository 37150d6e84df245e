// SPDX-License-Identifier: MIT
/** Loads packages from the folder where `./run browser --check` has installed them. */

import { createRequire } from 'node:module';
import { resolve } from 'node:path';
import { pathToFileURL } from 'node:url';

export const root = resolve(import.meta.dirname ?? new URL('.', import.meta.url).pathname, '../..');
export const build = resolve(root, 'build/browser');

const { resolve: find } = createRequire(resolve(build, 'packages/package.json'));

export const pathOf = (name) => find(name);
export const load = async (name) => (await import(pathToFileURL(find(name)).href)).default;

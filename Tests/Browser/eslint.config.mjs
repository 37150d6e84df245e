// SPDX-License-Identifier: MIT
import { load } from './Packages.mjs';

const js = await load('@eslint/js');

const browser = ['addEventListener', 'atob', 'Blob', 'btoa', 'clearTimeout', 'CompressionStream', 'DataTransfer',
    'DecompressionStream', 'devicePixelRatio', 'document', 'DragEvent', 'Event', 'fetch', 'File', 'getComputedStyle',
    'history', 'localStorage', 'location', 'matchMedia', 'navigator', 'performance', 'requestAnimationFrame',
    'ResizeObserver', 'Response', 'setInterval', 'setTimeout', 'TextDecoder', 'TextEncoder', 'URL'];
const node = ['Buffer', 'console', 'process', 'setTimeout', 'URL'];
const names = (list) => Object.fromEntries(list.map((name) => [name, 'readonly']));

export default [
    js.configs.recommended,
    {
        rules: {
            'complexity': ['error', 16], 'consistent-return': 'error', 'eqeqeq': 'error', 'no-console': 'error',
            'no-implicit-globals': 'error', 'no-shadow': 'error', 'no-unused-vars': ['error', { caughtErrors: 'all' }],
            'no-use-before-define': ['error', { functions: false }], 'no-var': 'error', 'object-shorthand': 'error',
            'prefer-const': 'error', 'prefer-template': 'error', 'max-len': ['error', { code: 120 }],
        },
    },
    { files: ['**/Page/*.js'], languageOptions: { globals: names(browser) } },
    { files: ['**/*.mjs'], languageOptions: { globals: names([...node, ...browser]) } },
];

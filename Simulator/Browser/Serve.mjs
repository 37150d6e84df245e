// SPDX-License-Identifier: MIT
/** Serves a folder on loopback, and prints its address: Serve.mjs <folder> [port] */

import { createReadStream } from 'node:fs';
import { stat } from 'node:fs/promises';
import { createServer } from 'node:http';
import { extname, join, normalize } from 'node:path';
import { pathToFileURL } from 'node:url';

const TYPES = {
    '.css': 'text/css', '.html': 'text/html', '.js': 'text/javascript', '.svg': 'image/svg+xml',
    '.wasm': 'application/wasm',
};

/**
 * @param {string} folder
 * @param {number} port 0 for any that is free
 * @returns {Promise<{address: string, close: () => Promise<void>}>}
 */
export function serve(folder, port = 0) {
    const server = createServer(async (request, response) => {
        try {
            const path = normalize(decodeURIComponent(new URL(request.url, 'http://localhost').pathname));
            const file = join(folder, path.endsWith('/') ? `${path}index.html` : path);
            if (request.method !== 'GET' || !(await stat(file)).isFile()) {
                throw new Error('no such file');
            }
            const type = TYPES[extname(file)] ?? 'text/plain';
            response.writeHead(200, {
                'Content-Type': type.startsWith('text/') ? `${type}; charset=utf-8` : type,
                'Cache-Control': 'no-cache',
                'X-Content-Type-Options': 'nosniff',
            });
            createReadStream(file).pipe(response);
        } catch {
            response.writeHead(404, { 'Content-Type': 'text/plain' });
            response.end('There is no such file.\n');
        }
    });
    return new Promise((resolve, reject) => {
        server.once('error', reject);
        server.listen(port, '127.0.0.1', () => resolve({
            address: `http://127.0.0.1:${server.address().port}/`,
            close: () => new Promise((closed) => {
                server.close(closed);
                server.closeAllConnections();
            }),
        }));
    });
}

if (import.meta.url === pathToFileURL(process.argv[1] ?? '').href) {
    const [folder, port = '8080'] = process.argv.slice(2);
    try {
        const { address } = await serve(folder, Number(port));
        process.stdout.write(`The simulator is at ${address} until you press Ctrl+C.\n`);
    } catch (error) {
        process.stderr.write(`cannot serve ${folder} on port ${port}: ${error.message}\n`);
        process.exitCode = 1;
    }
}

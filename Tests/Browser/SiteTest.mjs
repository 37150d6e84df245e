// SPDX-License-Identifier: MIT
/** The site of the documentation on a narrow screen and without scripts: SiteTest.mjs is run by node --test. */

import assert from 'node:assert/strict';
import { mkdtempSync, readdirSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, before, test } from 'node:test';
import { pathToFileURL } from 'node:url';

import { load, root } from './Packages.mjs';

const puppeteer = await load('puppeteer-core');
const site = join(root, 'build/site');
// Of the reference, the classes: its lists and the sources look all the same.
const pages = readdirSync(site, { recursive: true })
    .filter((name) => name.endsWith('.html') && !/^api\/(?!class)|-members|^file-/.test(name));

let browser;
let page;
let scratch;

before(async () => {
    scratch = mkdtempSync(join(tmpdir(), 'site-'));
    browser = await puppeteer.launch({
        executablePath: process.env.BROWSER,
        userDataDir: join(scratch, 'profile'),
        args: ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run', '--disable-background-networking',
            '--disable-component-update', '--disable-sync'],
    });
    page = await browser.newPage();
    await page.setJavaScriptEnabled(false);
});

after(async () => {
    await browser?.close();
    rmSync(scratch, { recursive: true, force: true, maxRetries: 5 });
});

test('every page fits a screen of 390 px', async () => {
    await page.setViewport({ width: 390, height: 844 });
    const tooWide = [];
    for (const name of pages) {
        await page.goto(pathToFileURL(join(site, name)).href);
        const width = await page.evaluate(() => document.documentElement.scrollWidth);
        if (width > 390) {
            tooWide.push(`${name}: ${width} px`);
        }
    }
    assert.deepEqual(tooWide, []);
    assert.ok(pages.length > 50, `only ${pages.length} pages`);
});

test('without scripts the table of hooks has all rows and no filter that does nothing', async () => {
    await page.goto(pathToFileURL(join(site, 'hooks-table.html')).href);
    assert.ok(await page.$$eval('.cells tbody tr:not([hidden])', (rows) => rows.length) > 7000);
    assert.equal(await page.$eval('.filter', (filter) => getComputedStyle(filter).display), 'none');
});

test('the filter of the table of hooks leaves the rows with all its words', async () => {
    await page.setJavaScriptEnabled(true);
    await page.goto(pathToFileURL(join(site, 'hooks-table.html')).href);
    await page.type('#words', 'ondialogdeletion back throw');
    const texts = await page.$$eval('.cells tbody tr:not([hidden])', (rows) => rows.map((row) => row.textContent));
    assert.ok(texts.length > 0 && texts.length < 1000);
    for (const text of texts) {
        assert.match(text, /OnDialogDeletion/);
        assert.match(text, /Back/);
        assert.match(text, /throw/);
    }
});

// SPDX-License-Identifier: GPL-3.0-or-later
// The photo show in a real browser: twelve small images, a show built by
// tarnquill-cli from our template, served by php -S on 127.0.0.1 under
// error_reporting(E_ALL), driven through Debian's chromium. Besides the show
// itself: hostile settings, folders with odd, unreadable, many or no images,
// and zip downloads that are broken off or asked for twice at once. When the
// test runs as root the server runs as nobody, so that a file can be kept from
// it.
// Usage: node show.mjs BUILD_DIR
import { chromium } from 'playwright-core';
import { spawn, spawnSync } from 'node:child_process';
import fs from 'node:fs';
import http from 'node:http';
import net from 'node:net';
import os from 'node:os';
import path from 'node:path';
import zlib from 'node:zlib';
import crypto from 'node:crypto';

const here = path.dirname(new URL(import.meta.url).pathname);
const source = path.resolve(here, '../../..');
const build = path.resolve(process.argv[2] || 'build');
const cli = path.join(build, 'bin', 'tarnquill-cli');
const template = path.join(source, 'data', 'photodata.php');
const sleep = (ms) => new Promise((r) => setTimeout(r, ms));

// ------------------------------------------------------------------ images

const crcTable = Array.from({ length: 256 }, (_, n) => {
  let c = n;
  for (let k = 0; k < 8; k++) c = c & 1 ? 0xedb88320 ^ (c >>> 1) : c >>> 1;
  return c >>> 0;
});

function crc32(buf) {
  let c = 0xffffffff;
  for (const b of buf) c = crcTable[(c ^ b) & 0xff] ^ (c >>> 8);
  return (c ^ 0xffffffff) >>> 0;
}

function chunk(type, data) {
  const len = Buffer.alloc(4);
  len.writeUInt32BE(data.length);
  const body = Buffer.concat([Buffer.from(type, 'ascii'), data]);
  const crc = Buffer.alloc(4);
  crc.writeUInt32BE(crc32(body));
  return Buffer.concat([len, body, crc]);
}

/// A small RGB PNG of one colour with a darker band, so each image differs.
function png(width, height, [r, g, b]) {
  const header = Buffer.alloc(13);
  header.writeUInt32BE(width, 0);
  header.writeUInt32BE(height, 4);
  header[8] = 8; // bit depth
  header[9] = 2; // RGB
  const rows = [];
  for (let y = 0; y < height; y++) {
    const row = Buffer.alloc(1 + width * 3);
    for (let x = 0; x < width; x++) {
      const band = y > height / 3 && y < (2 * height) / 3 ? 0.5 : 1;
      row.set([r * band, g * band, b * band].map(Math.round), 1 + x * 3);
    }
    rows.push(row);
  }
  return Buffer.concat([
    Buffer.from([0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a]),
    chunk('IHDR', header),
    chunk('IDAT', zlib.deflateSync(Buffer.concat(rows))),
    chunk('IEND', Buffer.alloc(0)),
  ]);
}

const imageNames = Array.from({ length: 12 }, (_, i) => `img${String(i + 1).padStart(2, '0')}.png`);

const asRoot = process.getuid() === 0;

function makeSite() {
  const root = fs.mkdtempSync(path.join(os.tmpdir(), 'tq-show-'));
  fs.chmodSync(root, 0o755);
  const site = path.join(root, 'photos');
  fs.mkdirSync(site);
  imageNames.forEach((name, i) => {
    fs.writeFileSync(path.join(site, name), png(80, 60, [(i * 40) % 256, (i * 90) % 256, 255 - i * 20]));
  });
  // things that are not images of the show, and one file outside its folder
  fs.writeFileSync(path.join(site, 'notes.txt'), 'not an image');
  fs.writeFileSync(path.join(site, '.hidden.png'), png(4, 4, [0, 0, 0]));
  fs.writeFileSync(path.join(root, 'secret.png'), png(4, 4, [1, 2, 3]));
  fs.writeFileSync(path.join(root, 'secret.txt'), 'TOP-SECRET-CONTENT');
  fs.symlinkSync(path.join(root, 'secret.png'), path.join(site, 'zz-link.png'));
  // a name that is not UTF-8, and a picture the server may not read
  fs.writeFileSync(Buffer.from(path.join(site, 'bad-\xff-name.png'), 'latin1'), png(4, 4, [9, 9, 9]));
  fs.writeFileSync(path.join(site, 'locked.png'), png(80, 60, [5, 5, 5]));
  fs.chmodSync(path.join(site, 'locked.png'), 0o000);
  return { root, site };
}

/// A folder of its own beside the photos, with `count` copies of one image
/// (or files of `bytes` random bytes each).
function makeFolder(root, name, count, bytes = 0) {
  const folder = path.join(root, name);
  fs.mkdirSync(folder);
  const one = png(8, 6, [200, 100, 50]);
  for (let i = 0; i < count; i++) {
    const file = path.join(folder, `p${String(i).padStart(5, '0')}.png`);
    fs.writeFileSync(file, bytes ? crypto.randomBytes(bytes) : one);
  }
  return folder;
}

// ------------------------------------------------------------------ building

function writeShow(site, values, file = path.join(site, 'club.shw')) {
  const s = {
    HomeFile: 'index.htm',
    HomeLinkText: 'BACK TO THE CLUB',
    ImageFolder: site + '/',
    WebImageFolder: 'https://club.example/photos/',
    ShowFileName: 'club.shw',
    UseFading: 'NO',
    ImagesPerLine: '5 - default',
    ColumnsPerLine: '3 - default',
    AllowZip: 'YES',
    BrowserTitle: 'Club photos',
    FadeMode: 'classic - default',
    FadeSteps: '6 - default',
    FadeDelay: '70 - default',
    BackgroundColor: String(0x203040), // red 0x40, green 0x30, blue 0x20
    ...values,
  };
  fs.writeFileSync(file, Object.values(s).map((v) => v + '\r\n').join(''));
  return file;
}

function runShow(file) {
  return spawnSync(cli, ['show', file, '--template', template], { encoding: 'utf8' });
}

function buildShow(site, values) {
  const r = runShow(writeShow(site, values));
  if (r.status !== 0) throw new Error(`tarnquill-cli show failed (${r.status}): ${r.stdout}${r.stderr}`);
  const out = r.stdout.trim().split('\n');
  const web = (values.WebImageFolder || 'https://club.example/photos/').replace(/\/$/, '');
  expect(out[0] === path.join(site, 'photoshow.php'), `first output line: ${out[0]}`);
  expect(out[2] === `${web}/photoshow.php`, `output line: ${out[2]}`);
  expect(r.stderr.startsWith('DONE: 1. FTP all of your images'), `DONE message: ${r.stderr}`);
  return r;
}

// ------------------------------------------------------------------ server, browser

async function freePort() {
  return new Promise((resolve, reject) => {
    const srv = net.createServer();
    srv.on('error', reject);
    srv.listen(0, '127.0.0.1', () => {
      const { port } = srv.address();
      srv.close(() => resolve(port));
    });
  });
}

/// php -S for the folders under `root`, a few workers so that requests overlap,
/// its temporary files in `temp`; as nobody when the test runs as root.
async function startPhp(root, temp) {
  const port = await freePort();
  const log = [];
  const php = ['php', '-S', `127.0.0.1:${port}`, '-t', root, '-d', 'error_reporting=E_ALL',
    '-d', 'display_errors=1', '-d', 'log_errors=1', '-d', 'html_errors=0', '-d', `sys_temp_dir=${temp}`,
    '-d', `upload_tmp_dir=${temp}`,
    // the show is rebuilt in place between cases: no cached copy of the old script
    '-d', 'opcache.enable=0', '-d', 'opcache.enable_cli=0'];
  const argv = asRoot ? ['setpriv', '--reuid=nobody', '--regid=nogroup', '--clear-groups', ...php] : php;
  // a process group of its own: stopping it stops the workers too
  const proc = spawn(argv[0], argv.slice(1), { stdio: ['ignore', 'pipe', 'pipe'], detached: true,
    env: { ...process.env, PHP_CLI_SERVER_WORKERS: '4' } });
  const stop = () => {
    try {
      process.kill(-proc.pid, 'SIGTERM');
    } catch {
      // already gone
    }
  };
  proc.stdout.on('data', (d) => log.push(String(d)));
  proc.stderr.on('data', (d) => log.push(String(d)));
  const base = `http://127.0.0.1:${port}/photos`;
  for (let i = 0; i < 100; i++) {
    if (proc.exitCode !== null) break;
    try {
      await fetch(base + '/notes.txt');
      return { base, log, stop };
    } catch {
      await sleep(50);
    }
  }
  stop();
  throw new Error(`php -S did not start: ${log.join('')}`);
}

async function startBrowser() {
  const profile = fs.mkdtempSync(path.join(os.tmpdir(), 'tq-chromium-'));
  const context = await chromium.launchPersistentContext(profile, {
    executablePath: '/usr/bin/chromium',
    headless: true,
    args: ['--headless', '--no-sandbox', '--disable-gpu', '--disable-background-networking',
      '--disable-component-update', '--no-first-run'],
  });
  // nothing leaves this machine
  await context.route('**/*', (route) =>
    new URL(route.request().url()).hostname === '127.0.0.1' ? route.continue() : route.abort());
  return {
    context,
    async close() {
      await context.close();
      fs.rmSync(profile, { recursive: true, force: true });
    },
  };
}

// ------------------------------------------------------------------ checks

function expect(cond, message) {
  if (!cond) throw new Error(message);
}

function expectEqual(got, want, what) {
  const g = JSON.stringify(got);
  const w = JSON.stringify(want);
  if (g !== w) throw new Error(`${what}: got ${g}, want ${w}`);
}

/// A page that fails the case on a script error or a PHP message in its text.
async function openPage(browser) {
  const page = await browser.context.newPage();
  page.errors = [];
  page.on('pageerror', (e) => page.errors.push(String(e)));
  return page;
}

async function noPhpMessages(page) {
  const text = await page.content();
  expect(!/(Warning|Notice|Deprecated|Fatal error)\s*:/.test(text), `PHP message in the page:\n${text}`);
  expect(page.errors.length === 0, `script errors: ${page.errors.join('; ')}`);
}

/// The thumbnails of the grid page: names, loaded, and laid out in rows.
async function gridOf(page) {
  return page.$$eval('#grid .thumb img', (imgs) => {
    const tops = [...new Set(imgs.map((i) => Math.round(i.getBoundingClientRect().top)))];
    return {
      names: imgs.map((i) => i.alt),
      loaded: imgs.every((i) => i.complete && i.naturalWidth === 80),
      rows: tops.map((t) => imgs.filter((i) => Math.round(i.getBoundingClientRect().top) === t).length),
    };
  });
}

async function checkGrid(page, base, perLine, perColumn) {
  const perPage = perLine * perColumn;
  const pages = Math.ceil(12 / perPage);
  await page.goto(base + '/photoshow.php');
  for (let p = 1; p <= pages; p++) {
    if (p > 1) {
      await page.click('#next-page');
      await page.waitForURL(`**/photoshow.php?page=${p}`);
    }
    await page.waitForFunction(() => [...document.images].every((i) => i.complete));
    const grid = await gridOf(page);
    const want = imageNames.slice((p - 1) * perPage, p * perPage);
    expectEqual(grid.names, want, `names on page ${p} of ${perLine}x${perColumn}`);
    expect(grid.loaded, `thumbnails of page ${p} loaded`);
    const rows = [];
    for (let left = want.length; left > 0; left -= perLine) rows.push(Math.min(perLine, left));
    expectEqual(grid.rows, rows, `rows on page ${p}`);
    expectEqual(await page.getAttribute('body', 'data-pages'), String(pages), 'page count');
    await noPhpMessages(page);
  }
  expect((await page.$('#next-page')) === null, 'no next link on the last page');
}

/// The names in a zip file, after checking every member's CRC.
function zipNames(file) {
  const r = spawnSync('python3', ['-c', 'import sys, zipfile\n'
    + 'z = zipfile.ZipFile(sys.argv[1])\nbad = z.testzip()\nif bad: sys.exit("bad member " + bad)\n'
    + 'print("\\n".join(z.namelist()))', file], { encoding: 'utf8' });
  if (r.status !== 0) throw new Error(`not a good zip file: ${r.stderr}`);
  return r.stdout.trim().split('\n').sort();
}

/// A GET that reads the head of the answer and then waits: resolves with the
/// status and a handle to read the rest, or to break the download off.
function startDownload(url) {
  return new Promise((resolve, reject) => {
    const req = http.get(url, (res) => {
      const chunks = [];
      res.once('data', (d) => {
        chunks.push(d);
        res.pause();
        resolve({
          status: res.statusCode,
          abort: () => req.destroy(),
          rest: () => new Promise((done) => {
            res.on('data', (more) => chunks.push(more));
            res.on('end', () => done(Buffer.concat(chunks)));
            res.resume();
          }),
        });
      });
    });
    req.on('error', reject);
  });
}

async function waitFor(cond, what, ms = 5000) {
  for (const until = Date.now() + ms; Date.now() < until; await sleep(50)) {
    if (await cond()) return;
  }
  throw new Error(`timed out: ${what}`);
}

const refused = [
  '?img=../secret.txt', '?img=..%2Fsecret.png', '?img=/etc/passwd', '?img=../../../../etc/passwd',
  '?img=notes.txt', '?img=.hidden.png', '?img=zz-link.png', '?img=photoshow.php', '?img=club.shw',
  '?img[]=img01.png', '?img=img01.png%00.txt', '?img=', '?view=../secret.txt', '?view=/etc/passwd',
  '?view[]=x', '?img=%2E%2E/secret.png', '?img=locked.png', '?img=bad-%FF-name.png', '?img=%2Fetc%2Fpasswd',
  '?img=%00', '?img=img01.png%00', '?view=zz-link.png', '?img=.', '?img=..',
];

// ------------------------------------------------------------------ cases

async function main() {
  const { root, site } = makeSite();
  const temp = fs.mkdtempSync(path.join(os.tmpdir(), 'tq-show-temp-'));
  fs.chmodSync(temp, 0o777);
  let server;
  let browser;
  let passed = 0;
  let failed = 0;
  const run = async (name, fn) => {
    try {
      await fn();
      passed += 1;
      console.log(`ok    ${name}`);
    } catch (e) {
      failed += 1;
      console.log(`FAIL  ${name}\n      ${String(e && e.stack ? e.stack : e).split('\n').join('\n      ')}`);
    }
  };
  try {
    buildShow(site, { ImagesPerLine: '4', ColumnsPerLine: '2' });
    server = await startPhp(root, temp);
    browser = await startBrowser();
    const { base } = server;

    await run('grid and paging, 4 per line, 2 lines', async () => {
      const page = await openPage(browser);
      await checkGrid(page, base, 4, 2);
      expectEqual(await page.title(), 'Club photos', 'title');
      expectEqual(await page.$eval('body', (b) => getComputedStyle(b).backgroundColor), 'rgb(64, 48, 32)',
        'background');
      const home = await page.$eval('.home a', (a) => ({ href: a.getAttribute('href'), text: a.textContent.trim() }));
      expectEqual(home, { href: 'index.htm', text: 'BACK TO THE CLUB' }, 'return link');
      await page.close();
    });

    await run('large view, next and previous without blending', async () => {
      const page = await openPage(browser);
      await page.goto(base + '/photoshow.php?page=2');
      await page.click('.thumb >> nth=3');
      await page.waitForURL('**/photoshow.php?view=img12.png');
      await page.waitForFunction(() => document.getElementById('photo').naturalWidth === 80);
      expectEqual(await page.getAttribute('body', 'data-view'), 'large', 'view');
      await page.click('#next');
      await page.waitForFunction(() => document.getElementById('photo').alt === 'img01.png');
      expect(page.url().endsWith('?view=img01.png'), `url after next: ${page.url()}`);
      expect((await page.$('#stage img + img, #stage .cells')) === null, 'no blending layer');
      expectEqual(await page.textContent('#counter'), '1 / 12', 'counter');
      await page.click('#prev');
      await page.waitForFunction(() => document.getElementById('photo').alt === 'img12.png');
      expectEqual(await page.getAttribute('#index', 'href'), '?page=2', 'back to the page of the image');
      await noPhpMessages(page);
      await page.close();
    });

    await run('zip holds all twelve images', async () => {
      const page = await openPage(browser);
      await page.goto(base + '/photoshow.php');
      const [download] = await Promise.all([page.waitForEvent('download'), page.click('#zip')]);
      const file = path.join(root, 'all.zip');
      await download.saveAs(file);
      expectEqual(zipNames(file), imageNames, 'zip entries');
      await page.close();
    });

    await run('traversal and other files are refused', async () => {
      for (const q of refused) {
        const r = await fetch(`${base}/photoshow.php${q}`);
        const body = await r.text();
        expect(r.status === 404, `${q}: status ${r.status}`);
        expect(body === '', `${q}: body ${JSON.stringify(body.slice(0, 80))}`);
      }
      const ok = await fetch(`${base}/photoshow.php?img=img03.png`);
      expectEqual([ok.status, ok.headers.get('content-type')], [200, 'image/png'], 'a listed image');
      const html = await (await fetch(`${base}/photoshow.php`)).text();
      for (const other of ['notes.txt', '.hidden.png', 'zz-link.png', 'secret', 'locked', 'bad-']) {
        expect(!html.includes(other), `the grid names ${other}`);
      }
    });

    buildShow(site, { ImagesPerLine: '3', ColumnsPerLine: '3 - default', AllowZip: 'NO', UseFading: 'YES',
      FadeMode: 'left to right', FadeSteps: '5', FadeDelay: '50' });

    await run('grid and paging, 3 per line, 3 lines, no zip', async () => {
      const page = await openPage(browser);
      await checkGrid(page, base, 3, 3);
      expect((await page.$('#zip')) === null, 'no zip link');
      expectEqual((await fetch(`${base}/photoshow.php?zip=1`)).status, 404, 'zip refused');
      await page.close();
    });

    for (const [mode, value] of [['classic - default', 0], ['right to left', 1], ['left to right', 2],
      ['square', 3], ['random', null]]) {
      await run(`next blends in ${mode} mode`, async () => {
        buildShow(site, { UseFading: 'YES', FadeMode: mode, FadeSteps: '5', FadeDelay: '50' });
        const page = await openPage(browser);
        await page.goto(base + '/photoshow.php?view=img05.png');
        await page.waitForFunction(() => document.getElementById('photo').naturalWidth === 80);
        // watch the stage: the blending layer and every step it shows
        await page.evaluate(() => {
          window.seen = { fading: false, steps: [], layers: 0 };
          const stage = document.getElementById('stage');
          new MutationObserver(() => {
            if (stage.dataset.fading === '1') window.seen.fading = true;
            if (stage.dataset.fadeStep) window.seen.steps.push(stage.dataset.fadeStep);
            window.seen.layers = Math.max(window.seen.layers, stage.children.length);
          }).observe(stage, { attributes: true, childList: true });
        });
        const started = Date.now();
        await page.click('#next');
        await page.waitForFunction(() => document.getElementById('stage').dataset.fading === '0'
          && document.getElementById('photo').alt === 'img06.png');
        const took = Date.now() - started;
        const seen = await page.evaluate(() => window.seen);
        expect(seen.fading && seen.layers === 2, `blending layer shown: ${JSON.stringify(seen)}`);
        expectEqual([...new Set(seen.steps)], ['1', '2', '3', '4', '5'], 'fade steps');
        expect(took >= 5 * 50, `five shades of 50 ms took ${took} ms`);
        expectEqual(await page.$$eval('#stage > *', (n) => n.length), 1, 'layer removed');
        if (value !== null) {
          const php = fs.readFileSync(path.join(site, 'photoshow.php'), 'utf8');
          expect(php.includes(`\r\n$fadeMode=${value};\r\n`), `mode line for ${mode}`);
        }
        expect(page.url().endsWith('?view=img06.png'), `url after next: ${page.url()}`);
        await noPhpMessages(page);
        await page.close();
      });
    }

    const origin = base.slice(0, -'/photos'.length);

    await run('zip: one at a time per folder, nothing left on the server when broken off', async () => {
      const big = makeFolder(root, 'big', 3, 8 << 20);
      buildShow(big, { WebImageFolder: 'https://club.example/big/' });
      const url = `${origin}/big/photoshow.php?zip=1`;
      const first = await startDownload(url);
      expectEqual(first.status, 200, 'first download');
      const second = await fetch(url);
      expectEqual([second.status, second.headers.get('retry-after')], [503, '30'], 'a second one meanwhile');
      await second.text();
      expectEqual(fs.readdirSync(temp), [], 'temporary folder during a download');
      const file = path.join(root, 'big.zip');
      fs.writeFileSync(file, await first.rest());
      expectEqual(zipNames(file), ['p00000.png', 'p00001.png', 'p00002.png'], 'zip entries');
      for (let i = 0; i < 3; i++) (await startDownload(url)).abort();
      await waitFor(async () => {
        const probe = await startDownload(url);
        probe.abort();
        return probe.status === 200;
      }, 'the folder free again after broken-off downloads');
      await waitFor(async () => {
        const r = await fetch(url);
        if (r.status !== 200) return false;
        fs.writeFileSync(file, Buffer.from(await r.arrayBuffer()));
        return true;
      }, 'a whole download after broken-off ones');
      expectEqual(zipNames(file).length, 3, 'entries after broken-off downloads');
      expectEqual(fs.readdirSync(temp), [], 'temporary folder afterwards');
    });

    await run('quotes, backslashes and dollar signs in the settings are text, never code', async () => {
      const name = 'q"$x\\\'s';
      const folder = makeFolder(root, name, 2);
      const values = {
        HomeFile: 'back"$x\\n<b>.htm?a=1&b=\'2\'',
        HomeLinkText: '<script>document.title="$x"</script> \\ {$y} "back"',
        WebImageFolder: 'https://club.example/q"$x\\\'s/',
        ShowFileName: 'c"$x\\.shw',
        BrowserTitle: 'X" . strtoupper("y") . " \\ $HOME {$x} \\',
      };
      buildShow(folder, values);
      const page = await openPage(browser);
      const dialogs = [];
      page.on('dialog', (d) => { dialogs.push(d.message()); d.dismiss(); });
      for (const query of ['', '?view=p00001.png']) {
        await page.goto(`${origin}/${encodeURIComponent(name)}/photoshow.php${query}`);
        await noPhpMessages(page);
        expectEqual(await page.title(), values.BrowserTitle, `title ${query}`);
        expectEqual(await page.textContent('h1'), values.BrowserTitle, `heading ${query}`);
        const home = await page.$eval('.home a', (a) => ({ href: a.getAttribute('href'), text: a.textContent }));
        expectEqual(home, { href: values.HomeFile, text: values.HomeLinkText }, `return link ${query}`);
      }
      expectEqual(await page.$$eval('.home script', (n) => n.length), 0, 'no script from the settings');
      expectEqual(dialogs, [], 'dialogs');
      await page.close();
      // the settings that are checked: refused with a message, nothing written
      fs.rmSync(path.join(folder, 'photoshow.php'));
      for (const key of ['UseFading', 'ImagesPerLine', 'ColumnsPerLine', 'AllowZip', 'FadeMode', 'FadeSteps',
        'FadeDelay', 'ImageFolder']) {
        const r = runShow(writeShow(folder, { ...values, [key]: '"$x\\' }));
        expect(r.status === 1 && r.stderr.startsWith('ERROR: '), `${key}: ${r.status} ${r.stderr}`);
        expect(!fs.existsSync(path.join(folder, 'photoshow.php')), `${key}: a page was written`);
      }
    });

    await run('no images, and ten thousand images answered in under a second', async () => {
      const none = makeFolder(root, 'none', 0);
      buildShow(none, { WebImageFolder: 'https://club.example/none/' });
      const empty = await fetch(`${origin}/none/photoshow.php`);
      const html = await empty.text();
      expect(empty.status === 200 && html.includes('There are no images in this folder yet.'), html);
      for (const q of ['?zip=1', '?view=x.png', '?img=x.png']) {
        expectEqual((await fetch(`${origin}/none/photoshow.php${q}`)).status, 404, `empty folder ${q}`);
      }
      const many = makeFolder(root, 'many', 10000);
      buildShow(many, { WebImageFolder: 'https://club.example/many/' });
      const times = {};
      for (const [what, q, want] of [['grid', '', 'p00014.png'], ['last page', '?page=667', 'p09999.png'],
        ['large view', '?view=p09999.png', '10000 / 10000'], ['one image', '?img=p05000.png', 'PNG']]) {
        const started = performance.now();
        const r = await fetch(`${origin}/many/photoshow.php${q}`);
        const text = await r.text();
        times[what] = Math.round(performance.now() - started);
        expect(r.status === 200 && text.includes(want), `${what}: ${r.status}`);
        expect(times[what] < 1000, `${what} took ${times[what]} ms`);
      }
      console.log(`      10000 images, ms: ${JSON.stringify(times)}`);
    });

    await run('no PHP warning under E_ALL in the server log', async () => {
      const log = server.log.join('');
      expect(!/PHP (Warning|Notice|Deprecated|Fatal)/.test(log), `server log:\n${log}`);
    });
  } catch (e) {
    failed += 1;
    console.log(`FAIL  setup\n      ${e && e.stack ? e.stack : e}`);
  } finally {
    if (browser) await browser.close();
    if (server) server.stop();
    fs.rmSync(root, { recursive: true, force: true });
    fs.rmSync(temp, { recursive: true, force: true });
  }
  console.log(`show: ${passed} passed, ${failed} failed`);
  return failed === 0 ? 0 : 1;
}

// an answer broken off on purpose may hold a socket open: end here
process.exit(await main());

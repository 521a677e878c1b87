// SPDX-License-Identifier: GPL-3.0-or-later
// The pieces of the end-to-end tests: PHP's built-in server on 127.0.0.1 with
// a mail capture, Debian's chromium through playwright-core, a small runner.
import { chromium } from 'playwright-core';
import { spawn } from 'node:child_process';
import fs from 'node:fs';
import net from 'node:net';
import os from 'node:os';
import path from 'node:path';

export const here = path.dirname(new URL(import.meta.url).pathname);

export function tempDir(prefix) {
  return fs.mkdtempSync(path.join(os.tmpdir(), prefix));
}

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

async function accepts(port) {
  return new Promise((resolve) => {
    const s = net.connect(port, '127.0.0.1');
    s.on('connect', () => { s.destroy(); resolve(true); });
    s.on('error', () => resolve(false));
  });
}

const sleep = (ms) => new Promise((r) => setTimeout(r, ms));

/// Serves `site` with php -S on 127.0.0.1; every mail lands in `mailDir`.
export async function startPhp(site, { outputBuffering = 0 } = {}) {
  const port = await freePort();
  const mailDir = tempDir('tq-mail-');
  const log = [];
  const proc = spawn('php', [
    '-S', `127.0.0.1:${port}`, '-t', site,
    '-d', `output_buffering=${outputBuffering}`,
    '-d', 'display_errors=0', '-d', 'log_errors=1',
    '-d', `sendmail_path=${path.join(here, 'capture-mail.sh')} ${mailDir}`,
  ], { stdio: ['ignore', 'pipe', 'pipe'] });
  proc.stdout.on('data', (d) => log.push(String(d)));
  proc.stderr.on('data', (d) => log.push(String(d)));
  for (let i = 0; i < 100 && !(await accepts(port)); ++i) {
    if (proc.exitCode !== null) break;
    await sleep(50);
  }
  if (!(await accepts(port))) throw new Error(`php -S did not start: ${log.join('')}`);
  return {
    port,
    base: `http://127.0.0.1:${port}`,
    mailDir,
    log,
    /// The mails sent so far, oldest first, each as its text.
    mails() {
      return fs.readdirSync(mailDir).filter((f) => f.startsWith('mail-')).sort()
        .map((f) => fs.readFileSync(path.join(mailDir, f), 'utf8'));
    },
    clearMails() {
      for (const f of fs.readdirSync(mailDir)) fs.rmSync(path.join(mailDir, f));
    },
    async stop() {
      if (proc.exitCode === null) {
        proc.kill('SIGTERM');
        await new Promise((r) => proc.once('exit', r));
      }
      fs.rmSync(mailDir, { recursive: true, force: true });
    },
  };
}

/// Debian's chromium, headless, with a fresh profile; every request that is
/// not for 127.0.0.1 is refused, so no test leaves this machine.
export async function startBrowser() {
  const profile = tempDir('tq-chromium-');
  const context = await chromium.launchPersistentContext(profile, {
    executablePath: '/usr/bin/chromium',
    headless: true,
    args: ['--headless', '--no-sandbox', '--disable-gpu', '--disable-background-networking',
      '--disable-component-update', '--no-first-run'],
  });
  await context.route('**/*', (route) => {
    const host = new URL(route.request().url()).hostname;
    return host === '127.0.0.1' ? route.continue() : route.abort();
  });
  return {
    context,
    async page() {
      return context.newPage();
    },
    async close() {
      await context.close();
      fs.rmSync(profile, { recursive: true, force: true });
    },
  };
}

/// A small runner: named cases, a failure never stops the others.
export class Runner {
  constructor() {
    this.passed = 0;
    this.failed = 0;
    this.skipped = 0;
  }
  async test(name, fn) {
    try {
      await fn();
      this.passed += 1;
      console.log(`ok    ${name}`);
    } catch (e) {
      if (e && e.skip) {
        this.skipped += 1;
        console.log(`skip  ${name}: ${e.message}`);
        return;
      }
      this.failed += 1;
      console.log(`FAIL  ${name}\n      ${String(e && e.stack ? e.stack : e).split('\n').join('\n      ')}`);
    }
  }
  summary() {
    console.log(`e2e: ${this.passed} passed, ${this.failed} failed, ${this.skipped} skipped`);
    return this.failed === 0 ? 0 : 1;
  }
}

export function skip(message) {
  const e = new Error(message);
  e.skip = true;
  return e;
}

export function expect(cond, message) {
  if (!cond) throw new Error(message);
}

export function expectIncludes(text, part, what) {
  if (!text.includes(part)) {
    throw new Error(`${what}: expected to contain ${JSON.stringify(part)}\n--- got ---\n${text}`);
  }
}

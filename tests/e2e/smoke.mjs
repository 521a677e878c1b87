// SPDX-License-Identifier: GPL-3.0-or-later
// Every golden page loads in the browser without a script error: a smoke
// check, not a pixel test. The built sample pages are also kept as screenshots
// in BUILD_DIR/artifacts for a person to look at.
import fs from 'node:fs';
import path from 'node:path';
import { expect, here, startPhp } from './harness.mjs';

const goldenRoot = path.join(here, '..', 'golden');

function pagesUnder(dir) {
  const found = [];
  for (const entry of fs.readdirSync(dir, { withFileTypes: true })) {
    const full = path.join(dir, entry.name);
    if (entry.isDirectory()) found.push(...pagesUnder(full));
    else if (/\.html?$/i.test(entry.name)) found.push(full);
  }
  return found.sort();
}

/// Loads `url` and returns the script errors it raised: uncaught exceptions
/// and console errors other than a refused load of an outside resource (the
/// harness lets nothing leave this machine, so the sample site's pictures fail
/// to load by design).
async function scriptErrors(browser, url, screenshot) {
  const page = await browser.page();
  const errors = [];
  page.on('pageerror', (e) => errors.push(`uncaught: ${e.message}`));
  page.on('console', (m) => {
    if (m.type() !== 'error') return;
    if (/Failed to load resource/.test(m.text())) return;
    errors.push(`console: ${m.text()}`);
  });
  await page.goto(url, { waitUntil: 'load' });
  // scripts bound to a timer or to the load get a moment to run
  await page.waitForTimeout(100);
  if (screenshot) await page.screenshot({ path: screenshot, fullPage: true });
  await page.close();
  return errors;
}

export async function smokeGoldenPages(run, browser, buildDir) {
  const pages = pagesUnder(goldenRoot);
  const artifacts = path.join(buildDir, 'artifacts');
  fs.mkdirSync(artifacts, { recursive: true });
  const server = await startPhp(goldenRoot);
  try {
    await run.test(`smoke: ${pages.length} golden pages load without a script error`, async () => {
      expect(pages.length > 0, 'no golden pages found');
      const faults = [];
      for (const file of pages) {
        const rel = path.relative(goldenRoot, file);
        const sample = rel.startsWith(`samples${path.sep}`);
        const shot = sample ? path.join(artifacts, `${path.basename(path.dirname(file))}.png`) : null;
        const errors = await scriptErrors(browser, `${server.base}/${rel.split(path.sep).join('/')}`, shot);
        if (errors.length) faults.push(`${rel}: ${errors.join('; ')}`);
      }
      expect(faults.length === 0, `script errors:\n${faults.join('\n')}`);
    });
    await run.test('smoke: both sample pages are among them, with a screenshot each', async () => {
      for (const name of ['form', 'survey']) {
        const shot = path.join(artifacts, `${name}.png`);
        expect(fs.existsSync(shot) && fs.statSync(shot).size > 0, `no screenshot ${shot}`);
      }
    });
  } finally {
    await server.stop();
  }
}

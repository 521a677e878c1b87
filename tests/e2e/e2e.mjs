// SPDX-License-Identifier: GPL-3.0-or-later
// The end-to-end tests: node e2e.mjs BUILD_DIR. Exits non-zero on any failure.
import { Runner, startBrowser } from './harness.mjs';
import { scriptScenarios } from './script_scenarios.mjs';

const run = new Runner();
const browser = await startBrowser();
try {
  await scriptScenarios(run, browser);
} finally {
  await browser.close();
}
process.exit(run.summary());

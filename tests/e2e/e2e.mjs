// SPDX-License-Identifier: GPL-3.0-or-later
// The end-to-end tests: node e2e.mjs BUILD_DIR. Exits non-zero on any failure.
import path from 'node:path';
import { Runner, startBrowser } from './harness.mjs';
import { projectScenarios } from './project_scenarios.mjs';
import { resultsScenarios } from './results_scenarios.mjs';
import { scriptScenarios } from './script_scenarios.mjs';
import { smokeGoldenPages } from './smoke.mjs';

const buildDir = path.resolve(process.argv[2] || 'build');
const only = process.env.TQ_E2E_ONLY || '';
const run = new Runner();
const browser = await startBrowser();
try {
  if (!only || only === 'smoke') await smokeGoldenPages(run, browser, buildDir);
  if (!only || only === 'script') await scriptScenarios(run, browser);
  if (!only || only === 'project') await projectScenarios(run, browser, buildDir);
  if (!only || only === 'results') await resultsScenarios(run, browser, buildDir);
} finally {
  await browser.close();
}
process.exit(run.summary());

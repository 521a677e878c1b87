// Pictures for the help pages: each Input Type of the sample projects built
// on its own by tarnquill-cli and photographed in Debian's chromium, and the
// table of data/help/input_types.html that shows them. A Condition keeps its
// Followup. Usage: node help_pictures.mjs BUILD_DIR
import { chromium } from 'playwright-core';
import { execFileSync } from 'node:child_process';
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';

const here = path.dirname(new URL(import.meta.url).pathname);
const root = path.resolve(here, '../..');
const cli = path.resolve(process.argv[2] || 'build', 'bin/tarnquill-cli');
const help = path.join(root, 'data/help');
const marker = '*'.repeat(32);

// The blocks of a project file: [{type, lines}] with the lines after the type line.
function blocksOf(file) {
  const lines = fs.readFileSync(file, 'latin1').split('\r\n');
  const blocks = [];
  for (let i = 0; i < lines.length; i++) {
    if (lines[i] === marker && lines[i + 2] === marker) {
      blocks.push({ type: lines[i + 1], lines: [] });
      i += 2;
    } else if (blocks.length) {
      blocks[blocks.length - 1].lines.push(lines[i]);
    }
  }
  return blocks;
}

const asFile = (blocks) => blocks.map((b) => [marker, b.type, marker, ...b.lines].join('\r\n')).join('\r\n');
const slug = (name) => name.toLowerCase().replace(/[^a-z0-9]+/g, '_');

const work = fs.mkdtempSync(path.join(os.tmpdir(), 'tq-help-'));
const shots = [];
for (const [sample, mode] of [['sample_form.fms', 'FORM'], ['sample_form_2.fms', 'FORM'],
  ['sample_survey.srv', 'SURVEY'], ['sample_survey_2.srv', 'SURVEY']]) {
  const blocks = blocksOf(path.join(root, 'data/samples', sample));
  const setup = blocks[0];
  for (let i = 1; i < blocks.length; i++) {
    const b = blocks[i];
    if (b.type.startsWith('Followup')) continue;
    const group = [setup, b];
    if (blocks[i + 1] && blocks[i + 1].type.startsWith('Followup')) group.push(blocks[i + 1]);
    const name = `${mode.toLowerCase()}_${slug(b.type)}`;
    if (shots.some((s) => s.name === name)) continue;
    const dir = path.join(work, name);
    fs.mkdirSync(dir);
    const project = path.join(dir, mode === 'FORM' ? 'one.fms' : 'one.srv');
    fs.writeFileSync(project, asFile(group), 'latin1');
    try {
      const out = execFileSync(cli, ['build', project, '--whole-page', '--replace', '--web-folder', dir,
        '--data-folder', dir], { encoding: 'utf8', stdio: ['ignore', 'pipe', 'pipe'] });
      const html = out.split('\n').find((l) => l.endsWith('.htm'));
      shots.push({ name, mode, type: b.type, followup: group[2]?.type, html });
    } catch (e) {
      console.error(`${b.type}: not built: ${e.stderr || e.message}`);
    }
  }
}

const profile = fs.mkdtempSync(path.join(os.tmpdir(), 'tq-help-chromium-'));
const context = await chromium.launchPersistentContext(profile, {
  executablePath: '/usr/bin/chromium', headless: true, viewport: { width: 760, height: 600 },
  args: ['--headless', '--no-sandbox', '--disable-gpu', '--disable-background-networking',
    '--disable-component-update', '--no-first-run'],
});
await context.route('**/*', (route) => (route.request().url().startsWith('file:') ? route.continue() : route.abort()));
const page = await context.newPage();
fs.mkdirSync(path.join(help, 'types'), { recursive: true });
for (const s of shots) {
  await page.goto('file://' + s.html);
  const form = (await page.$('form')) || (await page.$('body'));
  await form.screenshot({ path: path.join(help, 'types', s.name + '.png') });
}
await context.close();
fs.rmSync(work, { recursive: true, force: true });
fs.rmSync(profile, { recursive: true, force: true });

const rows = (mode) => shots.filter((s) => s.mode === mode).map((s) =>
  `<tr><td><b>${s.type}</b>${s.followup ? `<br>with its ${s.followup}` : ''}</td>` +
  `<td><img src="types/${s.name}.png" alt="${s.type}"></td></tr>`).join('\n');
fs.writeFileSync(path.join(help, 'input_types.html'), `<!DOCTYPE html>
<html lang="en">
<head><meta charset="utf-8"><title>The Input Types - Tarnquill Help</title><link rel="stylesheet" href="style.css"></head>
<body>
<header><a href="index.html">Contents</a><a href="creating_a_form.html">Creating a form</a><a href="input_types.html">Input Types</a><a href="setup_page.html">Setup page</a><a href="building_and_uploading.html">Building and uploading</a><a href="testing_locally.html">Testing locally</a><a href="photo_show.html">Photo show</a></header>
<main>
<h1>The Input Types</h1>
<p>Each question of a form is one Input Type. Beside each name is what it makes on the page, built from the sample projects that ship with Tarnquill (<code>share/tarnquill/samples</code>). A <em>Condition</em> asks a question whose answer opens its <em>Followup</em>, which stands in the row below it.</p>
<p>Press <kbd>Space</kbd> on a name in the pick list to see it with your own settings.</p>
<h2>In a form</h2>
<table class="types">
${rows('FORM')}
</table>
<h2>In a survey</h2>
<table class="types">
${rows('SURVEY')}
</table>
</main>
</body>
</html>
`);
console.log(`${shots.length} pictures in ${path.join(help, 'types')}`);

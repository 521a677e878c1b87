// SPDX-License-Identifier: GPL-3.0-or-later
// Real projects, built by tarnquill-cli into a web folder, served by PHP's
// built-in server and filled in by a visitor in chromium: what the visitor
// sees and which mail leaves.
//
// The fixtures are project files as the program saves them. The field
// names follow from the rows: the first five letters of the Input Type and
// the row's odd line in the flat list (Name in the third row: "name5").
import { spawnSync } from 'node:child_process';
import fs from 'node:fs';
import path from 'node:path';
import { expect, expectIncludes, here, startPhp, tempDir } from './harness.mjs';

const fixtures = path.join(here, 'fixtures');

/// Builds `fixture` with the whole page into a fresh web folder that also
/// holds the pages the script links to; returns the folder.
export function buildSite(cli, fixture) {
  const site = tempDir('tq-site-');
  const data = tempDir('tq-data-');
  const r = spawnSync(cli, ['build', path.join(fixtures, fixture), '--whole-page', '--replace',
    '--web-folder', site, '--data-folder', data], { encoding: 'utf8' });
  fs.rmSync(data, { recursive: true, force: true });
  if (r.status !== 0) throw new Error(`build of ${fixture} failed (${r.status}): ${r.stderr}`);
  fs.writeFileSync(path.join(site, 'thankyou.htm'), '<html><body><h1>Thank you</h1></body></html>\r\n');
  fs.writeFileSync(path.join(site, 'index.htm'), '<html><body><h1>Home</h1></body></html>\r\n');
  fs.mkdirSync(path.join(site, 'files'));
  fs.writeFileSync(path.join(site, 'files', 'a.zip'), 'zip');
  fs.writeFileSync(path.join(site, 'files', 'b.pdf'), 'pdf');
  return site;
}

// ---------------------------------------------------------------------------
// The FORM: e2e_form.fms

export const formValid = {
  name5: 'Ann Example',
  email7: 'ann@example.com',
  subje9: 'General Question',
  phone11: '555 0100',
  comme13: 'Through a friend',
  quest15: 'yes',
  dropd17: 'Germany',
  'check19[]': ['Beginner', 'Advanced'],
  condi21: 'no',
  follo23: '',
  passw25: 'Pw1',
  secur27: '4711',
  follo31: 'NONE',
};

const radios = new Set(['quest15', 'condi21']);
const selects = new Set(['dropd17']);

/// Opens the form, fills it with `values` and submits it; returns the page.
export async function submitForm(browser, server, pageName, values) {
  const page = await browser.page();
  await page.goto(`${server.base}/${pageName}`);
  for (const [name, value] of Object.entries(values)) {
    if (Array.isArray(value)) {
      for (const v of value) await page.check(`input[name="${name}"][value="${v}"]`);
    } else if (radios.has(name)) {
      if (value) await page.check(`input[name="${name}"][value="${value}"]`);
    } else if (selects.has(name)) {
      await page.selectOption(`select[name="${name}"]`, value);
    } else {
      await page.fill(`[name="${name}"]`, value);
    }
  }
  await Promise.all([page.waitForNavigation({ waitUntil: 'load' }), page.click('input[type="submit"]')]);
  return page;
}

async function expectError(browser, server, values, message) {
  server.clearMails();
  const page = await submitForm(browser, server, 'formtql.htm', values);
  const content = await page.content();
  expect((await page.title()) === 'Show Error', `expected the error page for "${message}", got "${await page.title()}" at ${page.url()}`);
  expectIncludes(content, message, 'error page');
  expect(server.mails().length === 0, `no mail expected, got ${server.mails().length}`);
  await page.close();
}

async function expectAccepted(browser, server, values, pageName = 'formtql.htm') {
  server.clearMails();
  const page = await submitForm(browser, server, pageName, values);
  expect(page.url() === `${server.base}/thankyou.htm`, `expected the [COMPLETED= page, got ${page.url()}: ${await page.content()}`);
  const mails = server.mails();
  expect(mails.length === 1, `exactly one mail expected, got ${mails.length}`);
  await page.close();
  return mails[0];
}

async function formScenarios(run, browser, cli) {
  const site = buildSite(cli, 'e2e_form.fms');
  const server = await startPhp(site);
  try {
    await run.test('project form: a complete submission redirects to [COMPLETED= and mails what was typed', async () => {
      const mail = await expectAccepted(browser, server, formValid);
      expectIncludes(mail, 'To: a@example.com,b@example.com,c@example.com\r\n', 'mail');
      expectIncludes(mail, 'Subject: General Question\r\n', 'mail');
      expectIncludes(mail, 'from: Tarnquill Test@', 'mail');
      for (const part of [
        '1. Enter your full name\r\nAnn Example\r\n',
        '2. Enter your Email Address\r\nann@example.com\r\n',
        '3. Subject\r\nGeneral Question\r\n',
        '4. Enter your contact phone number\r\n555 0100\r\n',
        '6. Would you like to be added to our mailing list?\r\nyes\r\n',
        '7. Select a country from the dropdown list\r\nGermany\r\n',
        '8. Select your level of play\r\n',
        '9a. Do you want to schedule a Karaoke Show?\r\nno\r\n',
        '10. Enter the password\r\n                  (case sensitive)\r\nPw1\r\n',
        '11. For added security, please enter 4711 for the security code\r\n4711\r\n',
        '12b. Enter the password\r\n                             (case sensitive)\r\n\r\nNONE\r\n',
        'End of message',
      ]) expectIncludes(mail, part, 'mail');
      expectIncludes(mail, 'Beginner', 'mail');
      expectIncludes(mail, 'Advanced', 'mail');
      expect(!/Intermediate/.test(mail), 'an unticked box is not in the mail');
    });

    await run.test('project form: each required field left empty shows its numbered message, no mail', async () => {
      const cases = [
        ['name5', '', '1. Nothing has been entered for the name for question 1'],
        ['email7', '', '2. Email Address cannot be left blank for question 2'],
        ['email7', 'not an address', '2. Email Address is not valid for question 2'],
        ['subje9', '', '3. Nothing has been entered for the Subject for question 3'],
        ['comme13', '', '5. Please tell us how you found us for question 5'],
        ['quest15', '', '6. Please tell us if you would like to be added to our mailing list for question 6'],
        ['dropd17', 'not selected', '7. You must select a country for question 7'],
        ['check19[]', [], '8. You have not selected a level of play for question 8'],
        ['condi21', '', ' 9a. Please tell us if you want to schedule a Karaoke Show for question 9a'],
        ['passw25', '', '10. Password cannot be left blank for question 10'],
        ['secur27', '', '11. Security Code cannot be left blank for question 11'],
        ['follo31', '', ' 12b. Password cannot be left blank for question 12b'],
      ];
      for (const [name, value, message] of cases) {
        await expectError(browser, server, { ...formValid, [name]: value }, message);
      }
    });

    await run.test('project form: a Condition answered yes needs its Followup; no is accepted', async () => {
      await expectError(browser, server, { ...formValid, condi21: 'yes', follo23: '' },
        ' 9b. Please let us know the date and time of the Karaoke Show for question 9b');
      const mail = await expectAccepted(browser, server, { ...formValid, condi21: 'yes', follo23: 'Friday at eight' });
      expectIncludes(mail, '9b. Tell us when\r\n\r\nFriday at eight\r\n', 'mail');
      await expectAccepted(browser, server, { ...formValid, condi21: 'no', follo23: '' });
    });

    await run.test('project form: a wrong password or security code shows its message', async () => {
      await expectError(browser, server, { ...formValid, passw25: 'pw1' },
        '10. Incorrect password. The password is case sensitive for question 10');
      await expectError(browser, server, { ...formValid, secur27: '4712' }, '11. Incorrect Security Code for question 11');
    });

    await run.test('project form: the download password shows one link per file and Home; a wrong one the error', async () => {
      server.clearMails();
      const page = await submitForm(browser, server, 'formtql.htm', { ...formValid, follo31: 'Secret' });
      expect((await page.title()) === 'Download', `expected the download page, got "${await page.title()}"`);
      const links = await page.$$eval('a[href]', (as) => as.map((a) => [a.getAttribute('href'), a.textContent]));
      const files = links.filter(([href]) => href.startsWith('/files'));
      expect(JSON.stringify(files) === JSON.stringify([['/files/a.zip', 'a.zip'], ['/files/b.pdf', 'b.pdf']]),
        `links: ${JSON.stringify(links)}`);
      expect(links.some(([href]) => href === 'index.htm'), `the Home link: ${JSON.stringify(links)}`);
      expect(await page.$('input[value="Home"]'), 'the Home button');
      // the link works on the server
      const zip = await page.request.get(`${server.base}/files/a.zip`);
      expect(zip.ok() && (await zip.text()) === 'zip', 'the file behind the link');
      expect(server.mails().length === 1, `one mail, got ${server.mails().length}`);
      await page.close();
      await expectError(browser, server, { ...formValid, follo31: 'secret' },
        ' 12b. Incorrect password. You need to request the password to download these files for question 12b');
      await expectAccepted(browser, server, { ...formValid, follo31: 'NONE' });
    });

    await run.test('project form: a title and values beyond ASCII reach the mail unchanged', async () => {
      const typed = 'Zoë aus Łódź, 日本';
      const mail = await expectAccepted(browser, server, { ...formValid, name5: typed, comme13: 'Grüße' });
      expectIncludes(mail, `1. Enter your full name\r\n${typed}\r\n`, 'mail');
      expectIncludes(mail, '5. Wie haben Sie uns gefunden? Grüße aus Łódź\r\nGrüße\r\n', 'mail');
    });
  } finally {
    await server.stop();
  }

  // Under an output buffer, as many hosts run PHP, the redirect wins over the
  // download page.
  const buffered = await startPhp(site, { outputBuffering: 4096 });
  try {
    await run.test('project form: under output_buffering=4096 the right password ends on [COMPLETED=', async () => {
      await expectAccepted(browser, buffered, { ...formValid, follo31: 'Secret' });
    });
  } finally {
    await buffered.stop();
    fs.rmSync(site, { recursive: true, force: true });
  }
}

// ---------------------------------------------------------------------------
// The SURVEY: e2e_survey.srv, served through `tarnquill-cli serve`.

/// Starts `tarnquill-cli serve FILE`; resolves once it printed its URL.
async function startServe(cli, fixture) {
  const { spawn } = await import('node:child_process');
  const proc = spawn(cli, ['serve', path.join(fixtures, fixture)], { stdio: ['ignore', 'pipe', 'pipe'] });
  let out = '';
  let err = '';
  proc.stdout.on('data', (d) => { out += String(d); });
  proc.stderr.on('data', (d) => { err += String(d); });
  for (let i = 0; i < 200 && !/URL: (\S+)/.test(out); ++i) {
    if (proc.exitCode !== null) break;
    await new Promise((r) => setTimeout(r, 50));
  }
  const m = /URL: (\S+)/.exec(out);
  if (!m) {
    proc.kill('SIGINT');
    throw new Error(`serve did not start: ${out}${err}`);
  }
  return {
    url: m[1],
    output: () => out,
    async stop() {
      if (proc.exitCode === null) {
        proc.kill('SIGINT');
        await new Promise((r) => proc.once('exit', r));
      }
      return proc.exitCode;
    },
  };
}

async function surveyScenarios(run, browser, cli) {
  const serve = await startServe(cli, 'e2e_survey.srv');
  try {
    await run.test('project survey (serve): tables, dropdowns and checkboxes are mailed as chosen', async () => {
      const page = await browser.page();
      await page.goto(serve.url);
      await page.fill('[name="name5"]', 'Bo Survey');
      // both tables: the second choice of the first, the last of the other
      await page.check('input[name="table7"][value="Satisfied"]');
      await page.check('input[name="table9"][value="Poor"]');
      const selects = await page.$$eval('select', (ss) => ss.map((s) => [s.name, s.options[1].text]));
      for (const [name, option] of selects) await page.selectOption(`select[name="${name}"]`, { label: option });
      const boxes = await page.$$eval('input[type="checkbox"]', (bs) => bs.map((b) => [b.name, b.value]));
      expect(boxes.length > 0, 'checkboxes');
      await page.check(`input[name="${boxes[0][0]}"][value="${boxes[0][1]}"]`);
      await Promise.all([page.waitForNavigation({ waitUntil: 'load' }), page.click('input[type="submit"]')]);
      expect(page.url().endsWith('/thankyou.htm'), `expected the [COMPLETED= page, got ${page.url()}: ${await page.content()}`);
      await page.close();
      // serve prints each mail as it arrives
      for (let i = 0; i < 50 && !/----- end of mail 1 -----/.test(serve.output()); ++i) {
        await new Promise((r) => setTimeout(r, 100));
      }
      const out = serve.output();
      expectIncludes(out, '----- mail 1 -----', 'serve output');
      expectIncludes(out, 'Bo Survey', 'mail');
      expectIncludes(out, '\nSatisfied\r\n', 'mail');
      expectIncludes(out, '\nPoor\r\n', 'mail');
      for (const [, option] of selects) expectIncludes(out, option, 'mail');
      expectIncludes(out, boxes[0][1], 'mail');
      expect(!/----- mail 2 -----/.test(out), 'exactly one mail');
    });
  } finally {
    const code = await serve.stop();
    await run.test('project survey (serve): Ctrl-C stops the server and removes the folder', async () => {
      expect(code === 0, `serve exit code ${code}`);
      expectIncludes(serve.output(), 'removed.', 'serve output');
    });
  }
}

// CELL PHONE NUMBER and USER NAME put a blank into their variable name
// ("$cell 5"): PHP refuses the whole script, so a project that holds either
// (the samples hold both) cannot be submitted. The scenarios above leave them out.
async function blankKeyScenario(run, browser, cli) {
  const site = buildSite(cli, 'blank_keys.fms');
  const server = await startPhp(site);
  try {
    await run.test('project with Cell Phone Number and User Name: PHP refuses the script, no mail', async () => {
      const page = await browser.page();
      await page.goto(`${server.base}/formtql.htm`);
      await page.fill('[name="name3"]', 'Ann Example');
      const [response] = await Promise.all([
        page.waitForResponse((r) => r.url().endsWith('/formtql.php')),
        page.click('input[type="submit"]'),
      ]);
      expect(response.status() === 500, `expected PHP's parse error (500), got ${response.status()}`);
      expect(server.mails().length === 0, 'no mail');
      await page.close();
    });
  } finally {
    await server.stop();
    fs.rmSync(site, { recursive: true, force: true });
  }
}

export async function projectScenarios(run, browser, buildDir) {
  const cli = path.join(buildDir, 'bin', 'tarnquill-cli');
  await formScenarios(run, browser, cli);
  await surveyScenarios(run, browser, cli);
  await blankKeyScenario(run, browser, cli);
}

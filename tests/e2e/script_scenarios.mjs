// SPDX-License-Identifier: GPL-3.0-or-later
// The reviewed golden script (tests/golden/php/full_script) behind a hand-made
// form, in a real browser against the real PHP server: what a visitor sees and
// which mail leaves, check by check.
import fs from 'node:fs';
import path from 'node:path';
import { expect, expectIncludes, here, startPhp, tempDir } from './harness.mjs';

const golden = path.join(here, '..', 'golden', 'php', 'full_script', 'expected.php');

/// The site: the script with its sample host made local, the form, and the
/// pages the script links to.
function makeSite() {
  const site = tempDir('tq-site-');
  const script = fs.readFileSync(golden, 'latin1').replaceAll('https://www.tarnquill.example/', '/');
  fs.writeFileSync(path.join(site, 'formtql.php'), script, 'latin1');
  fs.copyFileSync(path.join(here, 'fixtures', 'golden_script', 'form.htm'), path.join(site, 'form.htm'));
  fs.writeFileSync(path.join(site, 'thanks.htm'), '<html><body><h1>Thank you</h1></body></html>\r\n');
  fs.writeFileSync(path.join(site, 'index.htm'), '<html><body><h1>Home</h1></body></html>\r\n');
  return site;
}

const valid = {
  name3: 'Ann Example',
  email5: 'ann@example.com',
  condi7: 'No',
  follo9: '',
  follo17: 'NONE',
  passw21: 'Pw1',
};

async function submit(browser, server, values, ticks = []) {
  const page = await browser.page();
  await page.goto(`${server.base}/form.htm`);
  for (const [name, value] of Object.entries(values)) {
    if (name === 'condi7') {
      if (value) await page.check(`input[name="condi7"][value="${value}"]`);
    } else if (value !== undefined) {
      await page.fill(`[name="${name}"]`, value);
    }
  }
  for (const t of ticks) await page.check(`input[name="check13[]"][value="${t}"]`);
  await Promise.all([page.waitForLoadState('load'), page.click('input[type="submit"]')]);
  await page.waitForLoadState('load');
  return page;
}

async function expectError(browser, server, values, message) {
  server.clearMails();
  const page = await submit(browser, server, values);
  expect((await page.title()) === 'Show Error', `expected the error page, got "${await page.title()}" at ${page.url()}`);
  expectIncludes(await page.content(), `             ${message}`, 'error page');
  expectIncludes(await page.content(), 'BACK', 'error page');
  expect(server.mails().length === 0, `no mail expected, got ${server.mails().length}`);
  await page.close();
}

async function expectAccepted(browser, server, values, ticks = []) {
  server.clearMails();
  const page = await submit(browser, server, values, ticks);
  expect(page.url() === `${server.base}/thanks.htm`, `expected the thank-you page, got ${page.url()}`);
  const mails = server.mails();
  expect(mails.length === 1, `exactly one mail expected, got ${mails.length}`);
  await page.close();
  return mails[0];
}

export async function scriptScenarios(run, browser) {
  const site = makeSite();
  const server = await startPhp(site);
  try {
    await run.test('script: a valid submission redirects and sends one mail', async () => {
      const mail = await expectAccepted(browser, server, valid, ['Red', 'Blue']);
      expectIncludes(mail, 'To: a@example.com,c@example.com\r\n', 'mail');
      expectIncludes(mail, 'Subject: General Question\r\n', 'mail');
      expectIncludes(mail, 'from: forms@', 'mail');
      expectIncludes(mail, 'A message has been submitted from\r\nforms@\r\n', 'mail');
      expectIncludes(mail, '1. Name\r\nAnn Example\r\n', 'mail');
      expectIncludes(mail, '2. Your e-mail\r\nplease\r\nann@example.com\r\n', 'mail');
      expectIncludes(mail, 'Table B. Colour\r\n\r\nThanks\r\n', 'mail');
      expectIncludes(mail, 'End of message', 'mail');
    });

    await run.test('script: each required field left empty shows its numbered message', async () => {
      await expectError(browser, server, { ...valid, name3: '' }, '1. Please enter your name for question 1');
      await expectError(browser, server, { ...valid, name3: '   ' }, '1. Please enter your name for question 1');
      await expectError(browser, server, { ...valid, email5: '' }, '2. No e-mail for question 2');
      await expectError(browser, server, { ...valid, email5: 'no address' }, '2. Invalid e-mail for question 2');
      await expectError(browser, server, { ...valid, condi7: '' }, ' 3a. Answer yes or no for question 3a');
      await expectError(browser, server, { ...valid, follo17: '' }, ' 6b. Enter the password for question 6b');
      await expectError(browser, server, { ...valid, passw21: '' }, '7. Empty for question 7');
    });

    await run.test('script: a Condition answered yes needs its Followup', async () => {
      await expectError(browser, server, { ...valid, condi7: 'Yes' }, ' 3b. Tell us more for question 3b');
      await expectAccepted(browser, server, { ...valid, condi7: 'Yes', follo9: 'Because' });
      await expectAccepted(browser, server, { ...valid, condi7: 'No', follo9: '' });
    });

    await run.test('script: a wrong password is refused, exactly and case-sensitively', async () => {
      await expectError(browser, server, { ...valid, passw21: 'pw1' }, '7. Wrong for question 7');
      await expectError(browser, server, { ...valid, passw21: 'Pw1 ' }, '7. Wrong for question 7');
    });

    await run.test('script: the download password shows the download page; a wrong one the error', async () => {
      server.clearMails();
      const page = await submit(browser, server, { ...valid, follo17: 'Secret' });
      expect((await page.title()) === 'Download', `expected the download page, got "${await page.title()}"`);
      const links = await page.$$eval('a[href]', (as) => as.map((a) => [a.getAttribute('href'), a.textContent]));
      const files = links.filter(([href]) => href.startsWith('/files/'));
      expect(JSON.stringify(files) === JSON.stringify([['/files/a.zip', 'a.zip'], ['/files/b.pdf', 'b.pdf']]),
        `links: ${JSON.stringify(links)}`);
      expect(links.some(([href]) => href === '/index.htm'), 'the Home link');
      expect(await page.$('input[value="Home"]'), 'the Home button');
      expectIncludes(await page.content(), 'PASSWORD IS CORRECT', 'download page');
      // the script goes on behind the page: the mail leaves, the redirect comes too late
      expect(page.url() === `${server.base}/formtql.php`, `stays on the page: ${page.url()}`);
      expect(server.mails().length === 1, `one mail, got ${server.mails().length}`);
      await page.close();
      await expectError(browser, server, { ...valid, follo17: 'secret' }, ' 6b. Wrong password for question 6b');
      await expectAccepted(browser, server, { ...valid, follo17: 'NONE' });
    });

    await run.test('script: letters beyond ASCII reach the mail unchanged', async () => {
      const name = 'Zoë Ångström Łódź 日本';
      const mail = await expectAccepted(browser, server, { ...valid, name3: name });
      expectIncludes(mail, `1. Name\r\n${name}\r\n`, 'mail');
    });
  } finally {
    await server.stop();
  }

  // Under an output buffer, as many hosts run PHP, the redirect wins over the
  // download page.
  const buffered = await startPhp(site, { outputBuffering: 4096 });
  try {
    await run.test('script: under output_buffering=4096 the right password ends on the thank-you page', async () => {
      const page = await submit(browser, buffered, { ...valid, follo17: 'Secret' });
      expect(page.url() === `${buffered.base}/thanks.htm`, `expected the redirect, got ${page.url()}`);
      expect(buffered.mails().length === 1, 'one mail');
      await page.close();
    });
  } finally {
    await buffered.stop();
    fs.rmSync(site, { recursive: true, force: true });
  }
}

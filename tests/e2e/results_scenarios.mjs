// SPDX-License-Identifier: GPL-3.0-or-later
// The answers that came back: forms and surveys built by tarnquill-cli,
// submitted in chromium, their mails caught and kept the ways mail programs
// keep them (an mbox with re-encoded and re-wrapped copies among unrelated
// mails, an IMAP mailbox on a local Dovecot), then read back with
// `tarnquill-cli results`: every answer in its column, exact counts.
import { spawnSync } from 'node:child_process';
import fs from 'node:fs';
import path from 'node:path';
import { expect, here, startPhp, tempDir } from './harness.mjs';
import { buildSite, formValid, submitForm } from './project_scenarios.mjs';

const fixtures = path.join(here, 'fixtures');

/// Reads a CSV file (RFC 4180) into rows of fields.
function parseCsv(text) {
  if (text.startsWith('\ufeff')) text = text.slice(1);
  const rows = [];
  let row = [];
  let field = '';
  let quoted = false;
  for (let i = 0; i < text.length; ++i) {
    const c = text[i];
    if (quoted) {
      if (c === '"' && text[i + 1] === '"') { field += '"'; ++i; } else if (c === '"') quoted = false; else field += c;
    } else if (c === '"') quoted = true;
    else if (c === ',') { row.push(field); field = ''; } else if (c === '\r' && text[i + 1] === '\n') {
      row.push(field); rows.push(row); row = []; field = ''; ++i;
    } else field += c;
  }
  return rows;
}

function splitMail(mail) {
  const at = mail.indexOf('\r\n\r\n');
  return [mail.slice(0, at), mail.slice(at + 4)];
}

function quotedPrintable(text) {
  return Buffer.from(text, 'utf8').toString('latin1').split('\r\n').map((line) => {
    let out = '';
    let width = 0;
    for (const ch of line) {
      const code = ch.charCodeAt(0);
      const piece = code > 126 || ch === '=' ? `=${code.toString(16).toUpperCase().padStart(2, '0')}` : ch;
      if (width + piece.length > 75) { out += '=\r\n'; width = 0; }
      out += piece;
      width += piece.length;
    }
    return out;
  }).join('\r\n');
}

/// The same mail as mail programs store it: as caught, quoted-printable,
/// base64, or inside a multipart with an attachment.
function reencode(mail, how, n) {
  const [head, body] = splitMail(mail);
  const id = `Message-ID: <result-${n}@tarnquill.test>`;
  if (how === 'qp') {
    return `${head}\r\n${id}\r\nMIME-Version: 1.0\r\nContent-Type: text/plain; charset=UTF-8\r\n`
      + `Content-Transfer-Encoding: quoted-printable\r\n\r\n${quotedPrintable(body)}`;
  }
  if (how === 'base64') {
    const b64 = Buffer.from(body, 'utf8').toString('base64').replace(/.{76}/g, '$&\r\n');
    return `${head}\r\n${id}\r\nMIME-Version: 1.0\r\nContent-Type: text/plain; charset=utf-8\r\n`
      + `Content-Transfer-Encoding: base64\r\n\r\n${b64}\r\n`;
  }
  if (how === 'multipart') {
    return `${head}\r\n${id}\r\nMIME-Version: 1.0\r\nContent-Type: multipart/mixed; boundary="b-${n}"\r\n\r\n`
      + `--b-${n}\r\nContent-Type: text/plain; charset=utf-8\r\nContent-Transfer-Encoding: 8bit\r\n\r\n${body}\r\n`
      + `--b-${n}\r\nContent-Type: application/octet-stream; name="a.bin"\r\nContent-Disposition: attachment\r\n`
      + `Content-Transfer-Encoding: base64\r\n\r\n${Buffer.alloc(3000, 7).toString('base64').replace(/.{76}/g, '$&\r\n')}\r\n`
      + `--b-${n}--\r\n`;
  }
  return mail;
}

const unrelated = [
  'From: news@shop.example\r\nSubject: Our offers\r\n\r\nA message from our shop.\r\nFrom now on everything is cheaper.\r\n',
  'From: friend@example.com\r\nSubject: Lunch?\r\nMIME-Version: 1.0\r\nContent-Type: text/html\r\n\r\n<p>Lunch?</p>\r\n',
];

function mbox(mails) {
  return mails.map((m) => `From tarnquill@localhost Mon Nov 23 10:00:00 2026\n${m.replace(/\n>*From /g, (x) => x.replace('From ', '>From '))}\n`).join('\n');
}

function runResults(cli, fixture, sources, extra = [], input = '') {
  const csv = path.join(tempDir('tq-csv-'), 'results.csv');
  const r = spawnSync(cli, ['results', path.join(fixtures, fixture), '--mail', ...sources, '--csv', csv, ...extra],
    { encoding: 'utf8', input });
  const rows = fs.existsSync(csv) ? parseCsv(fs.readFileSync(csv, 'utf8')) : [];
  fs.rmSync(path.dirname(csv), { recursive: true, force: true });
  return { ...r, rows };
}

/// The column of `caption` in the CSV's header row.
function column(rows, caption) {
  const i = rows[0].indexOf(caption);
  if (i < 0) throw new Error(`no column "${caption}" in ${JSON.stringify(rows[0])}`);
  return i;
}

async function submitAll(browser, server, list) {
  const mails = [];
  for (const values of list) {
    server.clearMails();
    const page = await submitForm(browser, server, 'formtql.htm', values);
    expect(page.url().endsWith('/thankyou.htm'), `not accepted: ${page.url()}`);
    await page.close();
    const caught = server.mails();
    expect(caught.length === 1, `one mail per submission, got ${caught.length}`);
    mails.push(caught[0]);
  }
  return mails;
}

const formSubmissions = [
  { ...formValid, name5: 'Zoë aus Łódź, 日本', dropd17: 'Germany', 'check19[]': ['Beginner'] },
  { ...formValid, name5: 'Ann "Quote", & Co', comme13: 'Line one\nLine two', dropd17: 'Sweden', 'check19[]': ['Beginner', 'Advanced'] },
  { ...formValid, name5: 'Bo', quest15: 'no', dropd17: 'Germany', condi21: 'yes', follo23: 'Friday', 'check19[]': ['Advanced'] },
  { ...formValid, name5: 'Cy', dropd17: 'Germany', 'check19[]': ['Beginner', 'Advanced'] },
];

async function formResults(run, browser, cli, imap) {
  const site = buildSite(cli, 'e2e_form.fms');
  const server = await startPhp(site);
  let mails;
  try {
    await run.test('results: four form submissions in chromium are caught', async () => {
      mails = await submitAll(browser, server, formSubmissions);
    });
  } finally {
    await server.stop();
    fs.rmSync(site, { recursive: true, force: true });
  }
  if (!mails) return;
  const stored = mails.map((m, i) => reencode(m, ['plain', 'qp', 'base64', 'multipart'][i], i));
  const folder = tempDir('tq-results-');
  try {
    const box = path.join(folder, 'saved.mbox');
    // the first mail twice, a cut-off copy, and unrelated mails around them
    const cut = mails[3].slice(0, mails[3].indexOf('End of message') - 30);
    fs.writeFileSync(box, mbox([unrelated[0], ...stored, mails[0], cut, unrelated[1]]));

    await run.test('results: the mbox reads back every answer in its column with exact counts', async () => {
      const r = runResults(cli, 'e2e_form.fms', [box]);
      expect(r.status === 0, `exit ${r.status}: ${r.stderr}`);
      expect(r.stdout.startsWith('Submissions: 4\n'), r.stdout);
      expect(r.stdout.includes('Skipped: 4 (cut off before "End of message": 1, no text part: 1, not a form result: 1, read twice: 1)'), r.stdout);
      for (const part of [
        '7. Select a country from the dropdown list\n  Italy: 0 (0.0%)\n  Germany: 3 (75.0%)\n  Sweden: 1 (25.0%)\n',
        '8. Select your level of play\n  Beginner: 3 (75.0%)\n  Intermediate: 0 (0.0%)\n  Advanced: 3 (75.0%)\n',
        '6. Would you like to be added to our mailing list?\n  yes: 3 (75.0%)\n  no: 1 (25.0%)\n',
        '1. Enter your full name\n  text answers: 4\n',
      ]) expect(r.stdout.includes(part), `expected ${JSON.stringify(part)} in\n${r.stdout}`);
      expect(r.rows.length === 5, `header and four rows, got ${r.rows.length}`);
      const name = column(r.rows, '1. Enter your full name');
      const comments = column(r.rows, '5. Wie haben Sie uns gefunden? Grüße aus Łódź');
      const country = column(r.rows, '7. Select a country from the dropdown list');
      const level = column(r.rows, '8. Select your level of play');
      const when = column(r.rows, '9b. Tell us when');
      const got = r.rows.slice(1).map((row) => [row[name], row[comments], row[country], row[level], row[when]]);
      const want = formSubmissions.map((v) => [v.name5, v.comme13.replace(/\n/g, '\r\n'), v.dropd17,
        v['check19[]'].join('; '), v.follo23]);
      expect(JSON.stringify(got) === JSON.stringify(want), `rows\n${JSON.stringify(got)}\nwant\n${JSON.stringify(want)}`);
      expect(r.rows.slice(1).every((row) => row[1] === '127.0.0.1'), 'the address column');
    });

    await run.test('results: without the project the questions come from the mails; no mail, exit 1', async () => {
      const r = spawnSync(cli, ['results', '--mail', box], { encoding: 'utf8' });
      expect(r.status === 0 && r.stdout.startsWith('Submissions: 4\n'), `${r.status}: ${r.stdout}${r.stderr}`);
      expect(r.stdout.includes('7. Select a country from the dropdown list\n  Germany: 3 (75.0%)\n  Sweden: 1 (25.0%)\n'), r.stdout);
      const empty = path.join(folder, 'unrelated.mbox');
      fs.writeFileSync(empty, mbox(unrelated));
      const none = spawnSync(cli, ['results', path.join(fixtures, 'e2e_form.fms'), '--mail', empty], { encoding: 'utf8' });
      expect(none.status === 1 && none.stdout.startsWith('Submissions: 0\nSkipped: 2'), `${none.status}: ${none.stdout}`);
    });

    if (imap) {
      await run.test('results: the same mails appended to an IMAP mailbox on Dovecot read back alike', async () => {
        for (const [i, m] of [unrelated[0], ...stored, mails[0]].entries()) {
          const file = path.join(folder, `append-${i}.eml`);
          fs.writeFileSync(file, m);
          const up = spawnSync('curl', ['-s', '-S', '-T', file, '--user', `${imap.user}:${imap.password}`,
            `imap://127.0.0.1:${imap.port}/INBOX`], { encoding: 'utf8' });
          expect(up.status === 0, `append: ${up.stderr}`);
        }
        const address = `imap://${imap.user}@127.0.0.1:${imap.port}/INBOX`;
        const r = runResults(cli, 'e2e_form.fms', [address], ['--password-stdin'], `${imap.password}\n`);
        expect(r.status === 0, `exit ${r.status}: ${r.stdout}${r.stderr}`);
        expect(r.stdout.startsWith('Submissions: 4\nSkipped: 2 (not a form result: 1, read twice: 1)\n'), r.stdout);
        const name = column(r.rows, '1. Enter your full name');
        expect(JSON.stringify(r.rows.slice(1).map((row) => row[name])) === JSON.stringify(formSubmissions.map((v) => v.name5)),
          `names: ${JSON.stringify(r.rows.map((row) => row[name]))}`);
        const wrong = spawnSync(cli, ['results', '--mail', address, '--password-stdin'], { encoding: 'utf8', input: 'nope\n' });
        expect(wrong.status === 1 && /Login denied/.test(wrong.stderr), `${wrong.status}: ${wrong.stderr}`);
      });
    }
  } finally {
    fs.rmSync(folder, { recursive: true, force: true });
  }
}

async function surveyResults(run, browser, cli) {
  const site = buildSite(cli, 'e2e_survey.srv');
  const server = await startPhp(site);
  const folder = tempDir('tq-results-');
  try {
    await run.test('results: survey tables, dropdowns and boxes counted per choice, zeros kept', async () => {
      const picks = [['Satisfied', 'Poor', 'Bo Survey'], ['Satisfied', 'Average', 'Ålesund Ütte'], ['Dissatisfied', 'Poor', 'Cy']];
      const mails = [];
      for (const [t7, t9, name] of picks) {
        server.clearMails();
        const page = await browser.page();
        await page.goto(`${server.base}/surveytql.htm`);
        await page.fill('[name="name5"]', name);
        await page.check(`input[name="table7"][value="${t7}"]`);
        await page.check(`input[name="table9"][value="${t9}"]`);
        const selects = await page.$$eval('select', (ss) => ss.map((s) => [s.name, s.options[1].text]));
        for (const [sel, option] of selects) await page.selectOption(`select[name="${sel}"]`, { label: option });
        const boxes = await page.$$eval('input[type="checkbox"]', (bs) => bs.map((b) => [b.name, b.value]));
        await page.check(`input[name="${boxes[0][0]}"][value="${boxes[0][1]}"]`);
        await Promise.all([page.waitForNavigation({ waitUntil: 'load' }), page.click('input[type="submit"]')]);
        expect(page.url().endsWith('/thankyou.htm'), `not accepted: ${page.url()}`);
        await page.close();
        mails.push(...server.mails());
      }
      expect(mails.length === 3, `three mails, got ${mails.length}`);
      const box = path.join(folder, 'survey.mbox');
      fs.writeFileSync(box, mbox([...mails, unrelated[0]]));
      const r = runResults(cli, 'e2e_survey.srv', [box]);
      expect(r.status === 0 && r.stdout.startsWith('Submissions: 3\nSkipped: 1 (not a form result: 1)\n'), `${r.status}: ${r.stdout}${r.stderr}`);
      const satisfied = /\n {2}Satisfied: 2 \(66\.7%\)\n/;
      expect(satisfied.test(r.stdout), r.stdout);
      expect(/\n {2}Poor: 2 \(66\.7%\)\n/.test(r.stdout) && /\n {2}Average: 1 \(33\.3%\)\n/.test(r.stdout), r.stdout);
      expect(/: 0 \(0\.0%\)\n/.test(r.stdout), `choices nobody picked are listed at 0:\n${r.stdout}`);
      const names = r.rows.slice(1).map((row) => row[2]);
      expect(JSON.stringify(names) === JSON.stringify(picks.map((p) => p[2])), `names: ${JSON.stringify(names)}`);
    });
  } finally {
    await server.stop();
    fs.rmSync(site, { recursive: true, force: true });
    fs.rmSync(folder, { recursive: true, force: true });
  }
}

/// Starts the test Dovecot once for these scenarios; nothing when it is not installed.
function startDovecot() {
  const script = path.join(here, 'imap', 'dovecot.sh');
  if (spawnSync('sh', ['-c', 'command -v dovecot']).status !== 0) return null;
  const dir = tempDir('tq-dovecot-');
  const port = 20000 + (process.pid % 20000);
  const imap = { dir, port, user: 'results', password: 'Res-Pw 1' };
  const r = spawnSync(script, ['start', dir, String(port), imap.user, imap.password], { encoding: 'utf8' });
  if (r.status !== 0) throw new Error(`dovecot did not start: ${r.stderr}`);
  imap.stop = () => {
    spawnSync(script, ['stop', dir]);
    fs.rmSync(dir, { recursive: true, force: true });
  };
  return imap;
}

export async function resultsScenarios(run, browser, buildDir) {
  const cli = path.join(buildDir, 'bin', 'tarnquill-cli');
  const imap = startDovecot();
  try {
    await formResults(run, browser, cli, imap);
    await surveyResults(run, browser, cli);
  } finally {
    if (imap) imap.stop();
  }
}

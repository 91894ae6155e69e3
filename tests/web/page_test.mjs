// The page of the examples in headless Chromium: node page_test.mjs CHROMIUM BUILD
// A script that only the test serves works the page and sends what it shows.
import assert from 'node:assert/strict';
import {spawn} from 'node:child_process';
import {once} from 'node:events';
import {rmSync} from 'node:fs';
import {join} from 'node:path';
import test from 'node:test';

import {pageServer} from '../../examples/web/serve.mjs';

const [chromium, build] = process.argv.slice(2);

const driver = `
import {showTone} from './page.mjs';
const element = (id) => document.getElementById(id);
const shown = {lengths: [...element('length').options].map((option) => Number(option.value)), peaks: []};
const send = () => fetch('shown', {method: 'POST', body: JSON.stringify(shown)});
try {
  // The picture comes by a message, maybe after the sound has ended.
  const changed = (output) => new Promise((resolve) => {
    const timer = setInterval(() => {
      if (output.value === '' || output.value.startsWith('Running')) return;
      clearInterval(timer);
      resolve(output.value);
    }, 20);
  });
  for (const [frequency, points] of [[3000, 64], [12000, 36], [4800, 20]]) {
    element('peak').value = '';
    await showTone(frequency, points);
    shown.peaks.push(await changed(element('peak')));
  }
  element('check').click();
  shown.bits = await changed(element('bits'));
} catch (error) {
  shown.error = String(error);
}
send();
`;

async function shownByPage() {
  const server = pageServer(build);
  const [serve] = server.listeners('request');
  server.removeAllListeners('request');
  const shown = new Promise((resolve) => {
    server.on('request', async (request, response) => {
      if (request.url === '/driver.mjs') {
        response.writeHead(200, {'content-type': 'text/javascript'}).end(driver);
      } else if (request.url === '/driven.html') {
        const page = await (await fetch(`http://localhost:${server.address().port}/`)).text();
        response.writeHead(200, {'content-type': 'text/html'});
        response.end(`${page}<script type="module" src="driver.mjs"></script>`);
      } else if (request.url === '/shown') {
        let text = '';
        for await (const part of request) text += part;
        response.end();
        resolve(JSON.parse(text));
      } else {
        serve(request, response);
      }
    });
  });
  await once(server.listen(0, 'localhost'), 'listening');
  // It stays until the next run: what is left of a browser's processes may still write there.
  const profile = join(build, 'page-profile');
  rmSync(profile, {recursive: true, force: true});
  const browser = spawn(chromium, [
    '--headless', '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
    '--disable-background-networking', '--disable-component-update', '--disable-sync',
    `--user-data-dir=${profile}`, `http://localhost:${server.address().port}/driven.html`,
  ], {stdio: 'ignore', detached: true});
  const ended = once(browser, 'exit');
  try {
    return await Promise.race([
      shown, ended.then(() => { throw new Error('the browser ends before the page is done'); })]);
  } finally {
    // The group: the browser and the processes that it has started.
    if (browser.exitCode === null) process.kill(-browser.pid, 'SIGKILL');
    await ended;
    server.close();
    server.closeAllConnections();
  }
}

test('the page shows spectra from an AudioWorklet and the published bits', async () => {
  const shown = await shownByPage();
  assert.equal(shown.error, undefined);
  assert.equal(shown.lengths.length, 16);
  assert.deepEqual(shown.peaks, [
    'highest at 3000 Hz, bin 4 of 64',
    'highest at 12000 Hz, bin 9 of 36',
    'highest at 4800 Hz, bin 2 of 20',
  ]);
  assert.equal(shown.bits, '1,193 of 1,193 as published\nexit status 0');
});

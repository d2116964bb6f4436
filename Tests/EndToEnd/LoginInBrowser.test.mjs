import assert from 'node:assert/strict';
import test from 'node:test';
import { openBrowser } from './Support/Browser.mjs';
import { Desktop } from './Support/Desktop.mjs';
import { House } from './Support/House.mjs';

test('a person logs in with Chromium, out, and in again', { timeout: 110_000 }, async t =>
{
	const house = new House(t);
	const desktop = await Desktop.open(house);
	desktop.openKeyring();
	await desktop.startVorel();
	const page = await openBrowser(house);

	await desktop.find('Log in');
	await desktop.picture('login-1-panel');
	await desktop.click('Log in');
	await page.goto(await desktop.takeAddress());
	await page.getByRole('button', { name: 'Cancel' }).press('Enter');
	await desktop.find(/^The sign-in was cancelled in the browser/);
	await page.keep('login-1-cancelled');

	await desktop.click('Log in');
	await page.goto(await desktop.takeAddress());
	await desktop.picture('login-2-waiting');
	await page.keep('login-3-page');
	await page.write('Ada Lovelace');
	await page.keyboard.press('Enter');
	await page.getByText('close this window').waitFor();
	await page.keep('login-4-done');
	await desktop.find('Welcome back!');
	await desktop.find('Licenced to: Ada Lovelace');
	await desktop.find('Credits: 100');
	await desktop.picture('login-5-chat');

	// The store of secrets, and not the browser, lets the next start in.
	assert.equal(await desktop.quitVorel(), 0, desktop.vorel.text);
	await desktop.startVorel();
	await desktop.find('Licenced to: Ada Lovelace');

	// A tab that is closed and opened anew, by the keys of the other menu.
	await desktop.hand('key', 'ctrl+w');
	await desktop.hand('key', 'alt+b', 'Down', 'Return');
	await desktop.vorel.waitFor(/(Updating view state[^]*){2}/);
	await desktop.find('Licenced to: Ada Lovelace');

	await desktop.click('Logout');
	await desktop.find('Log in');
	await desktop.picture('login-6-logged-out');
	await desktop.click('Log in');
	await page.goto(await desktop.takeAddress());
	await page.locator('button:focus', { hasText: 'Continue as Ada Lovelace' }).waitFor();
	await page.keep('login-7-again');
	await page.keyboard.press('Enter');
	await page.getByText('close this window').waitFor();
	await desktop.find('Licenced to: Ada Lovelace');
	await desktop.picture('login-8-back');
	assert.equal(await desktop.quitVorel(), 0, desktop.vorel.text);
});

import assert from 'node:assert/strict';
import test from 'node:test';
import { openBrowser } from './Support/Browser.mjs';
import { Desktop } from './Support/Desktop.mjs';
import { House } from './Support/House.mjs';
import { Person } from './Support/Person.mjs';

test('a person without credits tops up in Chromium, comes back to the window, and goes on', { timeout: 110_000 }, async t =>
{
	const house = new House(t);
	const desktop = await Desktop.open(house);
	await desktop.startVorel('--daily-credits', '1');
	await desktop.click('Log in');
	const person = new Person();
	await person.open(await desktop.takeAddress());
	await person.send({ action: 'allow', name: 'Ada' });
	await desktop.find('Credits: 1');
	await desktop.ask('Hello!', 'You have no credits left for this Agent mode.');
	await desktop.find('Credits: 0');
	await desktop.picture('credits-1-none');

	await desktop.click('Get more credits');
	await desktop.leaveWindow();
	const page = await openBrowser(house);
	await page.goto(await desktop.takeAddress());
	await page.getByRole('button', { name: 'Top up' }).press('Enter');
	await page.getByText('Your credits are full again').waitFor();
	await page.keep('credits-2-page');

	await desktop.returnToWindow();
	await desktop.find('Credits: 1');
	await desktop.picture('credits-3-back');
	await desktop.ask('Hello again!', 'Credits: 0');
	assert.equal(await desktop.quitVorel(), 0, desktop.vorel.text);
});

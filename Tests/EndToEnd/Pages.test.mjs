import assert from 'node:assert/strict';
import test from 'node:test';
import { openBrowser } from './Support/Browser.mjs';
import { House, importPackage } from './Support/House.mjs';
import { getLoginAddress } from './Support/Person.mjs';
import { startService } from './Support/Service.mjs';

const sizes = { desk: { width: 1000, height: 720 }, phone: { width: 320, height: 640 } };
const account = { name: 'ada', password: 'a long enough password' };

// By the checker's rules, in both sizes and by day and night.
async function judge(page, axe, name)
{
	for (const [size, viewport] of Object.entries(sizes))
	{
		await page.setViewportSize(viewport);
		for (const colorScheme of ['light', 'dark'])
		{
			await page.emulateMedia({ colorScheme });
			await page.evaluate(axe.source);
			const { violations, passes } = await page.evaluate(() => globalThis.axe.run());
			assert.deepEqual(violations.map(({ help, nodes }) => `${help}: ${nodes[0].html}`), [], `${name} ${size} ${colorScheme}`);
			assert.ok(passes.some(({ id }) => id === 'color-contrast'), 'the checker has looked');
			await page.keep(`page-${name}-${size}-${colorScheme}`);
		}
		const width = await page.evaluate(() => document.documentElement.scrollWidth);
		assert.ok(width <= viewport.width, `${name} is ${width} wide on a ${size}`);
	}
}

test('the pages are read by everybody, on a desk and on a phone, and used by keyboard', { timeout: 110_000 }, async t =>
{
	const house = new House(t);
	const service = await startService(house, { [account.name]: account.password });
	const page = await openBrowser(house);
	const { default: axe } = await importPackage('axe-core');
	const addresses = { home: '/', tos: '/tos', privacy: '/privacy', billing: '/billing', plugin: '/plugin',
		grant: await getLoginAddress(service.address, 'vorel-editor', 'http://127.0.0.1:9/callback') };
	for (const [name, address] of Object.entries(addresses))
	{
		assert.equal((await page.goto(new URL(address, service.address).href)).status(), 200, address);
		await judge(page, axe, name);
	}

	const { keyboard } = page;
	await page.goto(`${service.address}/login`);
	await page.write(account.name);
	await keyboard.press('Tab');
	await page.write('a wrong password');
	await keyboard.press('Enter');
	await page.getByRole('alert').waitFor();
	await judge(page, axe, 'refused');
	await page.write(account.password);
	await keyboard.press('Enter');
	await page.waitForURL(`${service.address}/billing`).catch(async error =>
		assert.fail(`${error.message}\n${await page.locator('main').innerHTML()}`));
	await judge(page, axe, 'credits');
	for (let stops = 0; stops < 20 && await page.evaluate(() => document.activeElement.textContent) !== 'Top up'; ++stops)
	{
		await keyboard.press('Tab');
	}
	await keyboard.press('Enter');
	await page.getByText('Your credits are full again').waitFor();
	await judge(page, axe, 'topped-up');
});

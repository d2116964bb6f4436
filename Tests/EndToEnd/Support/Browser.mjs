import path from 'node:path';
import { importPackage, pictures } from './House.mjs';

// The distribution's Chromium without a window, with a new profile.
export async function openBrowser(house)
{
	const { default: { chromium } } = await importPackage('playwright-core');
	const flags = `--no-sandbox --disable-gpu --disable-quic --no-first-run --disable-background-networking --disable-component-update
		--disable-sync`.split(/\s+/);
	const context = await chromium.launchPersistentContext(house.path('profile'), {
		executablePath: '/usr/bin/chromium', headless: true, args: flags, env: house.env, viewport: { width: 900, height: 700 },
		timeout: 30_000,
	});
	house.undo(() => context.close());
	const page = context.pages()[0];
	page.setDefaultTimeout(20_000);
	page.keep = name => page.screenshot({ path: path.join(pictures, `${name}.png`) });
	// A person types when there is a cursor, which may come later than the page.
	page.write = async text =>
	{
		await page.locator('input:focus').waitFor();
		await page.keyboard.type(text);
	};
	return page;
}

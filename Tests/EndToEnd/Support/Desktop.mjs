import fs from 'node:fs';
import path from 'node:path';
import { pictures, support, until } from './House.mjs';

const window = ['search', '--sync', '--onlyvisible', '--name', '^Vorel.AI$'];

// A desktop session: an X server, a message bus with a screen reader's view of the windows, a default browser that hands addresses to
// the test, and a hand on mouse and keyboard.
export class Desktop
{
	#seen = 0;

	static async open(house)
	{
		const desktop = new Desktop();
		desktop.house = house;
		const display = house.start('Xvfb', '-displayfd 1 -nolisten tcp -screen 0 1280x1024x24'.split(' '));
		house.env.DISPLAY = `:${(await display.waitFor(/^(\d+)\n/m))[1]}`;
		const bus = house.start('dbus-daemon', ['--session', '--nofork', '--print-address', `--address=unix:path=${house.path('run/bus')}`]);
		house.env.DBUS_SESSION_BUS_ADDRESS = (await bus.waitFor(/unix:path=\S+/))[0];
		house.start('/usr/libexec/at-spi-bus-launcher', ['--launch-immediately', '--a11y=1']);
		await until(() => fs.existsSync(house.path('run/at-spi')), () => 'the bus of the screen readers');
		desktop.#setDefaultBrowser();
		return desktop;
	}

	// The desktop's store of secrets, opened with a password as a login does.
	openKeyring()
	{
		delete this.house.env.VOREL_SECRET_STORE;
		this.house.start('gnome-keyring-daemon', ['--foreground', '--unlock', '--components=secrets'], 'the password of this desktop');
	}

	#setDefaultBrowser()
	{
		const { house } = this;
		const schemes = ['x-scheme-handler/http', 'x-scheme-handler/https'];
		fs.writeFileSync(house.path('browser'), `#!/bin/sh\nprintf '%s\\n' "$1" >>'${house.path('addresses')}'\n`, { mode: 0o755 });
		fs.mkdirSync(house.path('.local/share/applications'));
		fs.writeFileSync(house.path('.local/share/applications/browser.desktop'),
			`[Desktop Entry]\nType=Application\nName=Browser\nExec=${house.path('browser')} %u\nMimeType=${schemes.join(';')};\n`);
		fs.writeFileSync(house.path('.config/mimeapps.list'),
			`[Default Applications]\n${schemes.map(scheme => `${scheme}=browser.desktop\n`).join('')}`);
	}

	// The next address that was opened in the browser.
	async takeAddress()
	{
		const index = this.#seen++;
		const file = this.house.path('addresses');
		return until(() => fs.existsSync(file) && fs.readFileSync(file, 'utf8').split('\n').slice(0, -1)[index],
			() => `an address opened in the browser; ${this.vorel.text}`);
	}

	// Opens the program's window with the chat in it.
	async startVorel(...options)
	{
		this.vorel = this.house.start('vorel', ['--data-dir', this.house.path('data'), ...options]);
		await this.hand(...window, 'windowmove', '0', '0', 'windowfocus', '--sync');
		await this.hand('key', 'alt+t', 'Down', 'Return');
		return this.vorel;
	}

	// To the desktop beside it.
	async leaveWindow()
	{
		const place = await this.hand('mousemove', '1270', '1010', 'getmouselocation', '--shell');
		await this.hand('windowfocus', '--sync', place.match(/WINDOW=(\d+)/)[1]);
	}

	returnToWindow()
	{
		return this.hand(...window, 'windowfocus', '--sync');
	}

	// Commands of xdotool.
	hand(...commands)
	{
		return this.house.run('xdotool', commands);
	}

	async read()
	{
		const nodes = JSON.parse(await this.house.run('/usr/bin/python3', [path.join(support, 'ReadWindow.py')]));
		return nodes.map(([role, name, text, x, y]) => ({ role, name, text, x, y }));
	}

	// What is called so, or shows this text.
	async find(text)
	{
		const pattern = typeof text === 'string' ? new RegExp(`^${text}$`) : text;
		let nodes = [];
		return until(async () => (nodes = await this.read()).find(node => pattern.test(node.name) || pattern.test(node.text)),
			() => `${pattern} to be read among\n${nodes.map(node => Object.values(node).join(' | ')).join('\n')}\n${this.vorel.text}`);
	}

	async click(text)
	{
		const { x, y } = await this.find(text);
		await this.hand('mousemove', `${x}`, `${y}`, 'click', '1');
	}

	// The sign is what shows that the answer has come.
	async ask(question, sign)
	{
		await this.click('Type your message here...');
		await this.hand('type', '--delay', '5', question);
		await this.hand('key', 'Return');
		await this.find(sign);
	}

	// By its keys; answers with the exit status.
	async quitVorel()
	{
		await this.hand('key', 'ctrl+q');
		return this.vorel.finish();
	}

	picture(name)
	{
		return this.house.run('scrot', ['--overwrite', path.join(pictures, `${name}.png`)]);
	}
}

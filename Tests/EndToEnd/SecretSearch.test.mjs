import assert from 'node:assert/strict';
import fs from 'node:fs';
import test from 'node:test';
import { Desktop } from './Support/Desktop.mjs';
import { House, pictures } from './Support/House.mjs';
import { Person } from './Support/Person.mjs';
import { RecordingProxy } from './Support/RecordingProxy.mjs';
import { SecretSearch } from './Support/SecretSearch.mjs';
import { startService } from './Support/Service.mjs';

const account = { name: 'ada', password: 'correct horse battery staple' };
const kinds = ['access_token', 'code', 'code_verifier', 'cookie', 'form_token', 'password', 'refresh_token', 'state', 'token'];
const play = `open "Vorel AI"\nwait text "Licenced to: ada" 30\ntree "tree.txt"\nscreenshot window "window.png"\n`;

test('no secret of a whole run is found where it does not belong', { timeout: 115_000 }, async t =>
{
	const house = new House(t);
	const desktop = await Desktop.open(house);
	desktop.openKeyring();
	const proxy = await RecordingProxy.start(house);
	const service = await startService(house, { [account.name]: account.password }, '--public-url', proxy.address);
	proxy.target = service.address;
	const search = new SecretSearch();
	const look = async () =>
	{
		[service, desktop.vorel].forEach(program => search.addProcess(program.child.pid));
		search.addText('the window', JSON.stringify(await desktop.read()));
	};

	const logIn = async () =>
	{
		await desktop.click('Log in');
		const person = new Person();
		await person.open(await desktop.takeAddress());
		await look();
		await person.send({ action: 'allow', ...account });
		assert.equal(person.status, 200, person.page);
		search.addText('the last page in the browser', person.page);
		await desktop.find('Licenced to: ada');
		await look();
	};
	const vorel = await desktop.startVorel('--service', proxy.address);
	await logIn();
	await desktop.ask('Hello!', /^Credits: 99$/);
	proxy.refuseNext = true;
	await desktop.ask('Hello again!', /^Credits: 98$/);
	assert.equal(proxy.requests.filter(request => request === 'POST /oauth/token').length, 2, `${proxy.requests}`);
	fs.writeFileSync(house.path('dump.play'), play);
	const second = await house.run('vorel',
		['--offscreen', '--data-dir', house.path('data'), '--service', proxy.address, '--play', 'dump.play']);
	await desktop.click('Logout');
	await logIn();
	await topUp(proxy.address);
	await look();
	assert.equal(await desktop.quitVorel(), 0, vorel.text);

	search.addText('what the windows say', vorel.text + second);
	search.addText('what the service says', service.text);
	// The desktop hands the address with the state to the browser, which is its place.
	fs.rmSync(house.path('addresses'));
	search.addFolder(house.folder);
	assert.deepEqual([...new Set(proxy.secrets.values())].sort(), kinds);
	assert.deepEqual(search.find(proxy.secrets), []);
	t.diagnostic(`${proxy.secrets.size} secrets, ${search.size} places, ${proxy.requests.length} requests`);
	const inAddresses = new SecretSearch();
	inAddresses.addText('an address', proxy.addresses.join('\n'));
	assert.deepEqual(inAddresses.find([...proxy.secrets].filter(([, kind]) => kind !== 'code' && kind !== 'state')), []);
	fs.copyFileSync(house.path('window.png'), `${pictures}/secret-search.png`);

	// That nothing was found means something only where it would have been.
	const [[secret, kind]] = proxy.secrets;
	fs.writeFileSync(house.path('data/planted'), Buffer.from(`x${secret}x`, 'utf16le'));
	const planted = new SecretSearch();
	planted.addFolder(house.folder);
	planted.addProcess(house.start('sh', ['-c', 'sleep 60; :', secret]).child.pid);
	const found = new Set(planted.find(proxy.secrets).map(place => place.replace(/proc\/\d+/, 'proc/N')));
	assert.deepEqual([...found].sort(), [`${kind} in /proc/N/cmdline`, `${kind} in ${house.path('data/planted')}`]);
});

// In the browser, where a person signs in too.
async function topUp(address)
{
	const person = new Person();
	await person.open(`${address}/login`);
	await person.send({ action: 'allow', ...account });
	await person.open(`${address}/billing`);
	await person.send({});
	assert.match(person.page, /100/);
}

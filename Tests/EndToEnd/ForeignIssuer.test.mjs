import assert from 'node:assert/strict';
import http from 'node:http';
import test from 'node:test';
import { Desktop } from './Support/Desktop.mjs';
import { House, importPackage, until } from './Support/House.mjs';
import { Person } from './Support/Person.mjs';

const clientId = 'the-editor';

// A certified OpenID provider, which lets no program in without PKCE. Its access tokens are good for a second, so that
// each use of one asks for another first.
async function startIssuer(house)
{
	const server = http.createServer();
	await new Promise(resolve => server.listen(0, '127.0.0.1', resolve));
	house.undo(() => (server.closeAllConnections(), server.close()));
	const address = `http://127.0.0.1:${server.address().port}`;
	const { default: Provider } = await importPackage('oidc-provider');
	const provider = new Provider(address, {
		clients: [{
			client_id: clientId, application_type: 'native', token_endpoint_auth_method: 'none',
			redirect_uris: ['http://127.0.0.1/callback'], response_types: ['code'],
			grant_types: ['authorization_code', 'refresh_token'],
		}],
		claims: { openid: ['sub'], profile: ['name'], email: ['email'] },
		features: { revocation: { enabled: true } },
		findAccount: (context, id) => ({ accountId: id, claims: () => ({ sub: id, name: `${id} of Elsewhere`, email: `${id}@example.com` }) }),
		issueRefreshToken: () => true,
		pkce: { required: () => true, methods: ['S256'] },
		rotateRefreshToken: true,
		ttl: { AccessToken: 1 },
	});
	server.on('request', provider.callback());
	return { address, provider };
}

async function logIn(address, name)
{
	const person = new Person();
	await person.open(address);
	await person.send({ login: name, password: 'any' });
	await person.send({});
	return person;
}

test('a program without PKCE gets no code from this issuer', { timeout: 60_000 }, async t =>
{
	const { address } = await startIssuer(new House(t));
	const request = { response_type: 'code', client_id: clientId, redirect_uri: 'http://127.0.0.1:9/callback', scope: 'openid' };
	const back = await new Person().open(`${address}/auth?${new URLSearchParams(request)}`, { stopAt: next => next.port === '9' });
	assert.equal(back.searchParams.get('error'), 'invalid_request');
	assert.match(back.searchParams.get('error_description'), /PKCE/);
});

test('the login works with an issuer that none of us wrote', { timeout: 110_000 }, async t =>
{
	const house = new House(t);
	const { address, provider } = await startIssuer(house);
	const grants = [];
	let refreshToken = null;
	let revoked = false;
	provider.on('grant.success', context => grants.push(context.oidc.params.grant_type));
	provider.on('grant.revoked', () => revoked = true);
	provider.on('refresh_token.saved', token => refreshToken = token);

	const desktop = await Desktop.open(house);
	await desktop.startVorel('--issuer', address, '--client-id', clientId);
	await desktop.click('Log in');
	const person = await logIn(await desktop.takeAddress(), 'Ada');
	assert.equal(person.status, 200, person.page);
	await desktop.find('Licenced to: Ada of Elsewhere');
	await desktop.picture('foreign-issuer-signed-in');

	await desktop.ask('Hello!', 'Hello!');
	await until(() => grants.includes('refresh_token'), () => `a token renewed: ${grants}; ${desktop.vorel.text}`);
	await desktop.find('Licenced to: Ada of Elsewhere');

	await refreshToken.destroy();
	await desktop.ask('Hello again!', 'Log in');
	await desktop.find(/^Your sign-in has ended/);
	await desktop.picture('foreign-issuer-signed-out');

	await desktop.click('Log in');
	await logIn(await desktop.takeAddress(), 'Grace');
	await desktop.find('Licenced to: Grace of Elsewhere');

	await desktop.click('Logout');
	await until(() => revoked, () => `the login revoked; ${desktop.vorel.text}`);
	assert.equal(await desktop.quitVorel(), 0, desktop.vorel.text);
});

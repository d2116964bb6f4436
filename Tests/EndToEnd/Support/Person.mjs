import assert from 'node:assert/strict';
import { createHash, randomBytes } from 'node:crypto';

function unescape(text)
{
	const names = { amp: '&', lt: '<', gt: '>', quot: '"', '#39': '\'', '#x27': '\'' };
	return text.replace(/&(\w+|#\w+);/g, (all, name) => names[name] ?? all);
}

function readAttributes(tag)
{
	return Object.fromEntries([...tag.matchAll(/([\w-]+)="([^"]*)"/g)].map(([, name, value]) => [name, unescape(value)]));
}

// What a person with a plain browser does on the pages of a login: follows links, keeps cookies, fills in forms.
export class Person
{
	#cookies = new Map();

	// Several lines come as one, with commas between them.
	#keepCookies(lines)
	{
		for (const [, name, value] of lines.split(/,(?=\s*[^;,=\s]+=)/).map(line => line.match(/^\s*([^=]+)=([^;]*)/)).filter(Boolean))
		{
			this.#cookies.set(name, value);
		}
	}

	// Goes to where it is sent on, and answers with the address where the caller wants it to stop.
	async open(address, { form, stopAt = () => false } = {})
	{
		for (let redirects = 0; redirects < 20; ++redirects)
		{
			const cookie = [...this.#cookies].map(pair => pair.join('=')).join('; ');
			const reply = await fetch(address, { method: form ? 'POST' : 'GET', body: form, redirect: 'manual', headers: { cookie } });
			this.#keepCookies(reply.headers.get('set-cookie') ?? '');
			const next = reply.headers.get('location') && new URL(reply.headers.get('location'), address);
			this.address = `${address}`;
			this.status = reply.status;
			this.page = await reply.text();
			if (!next || stopAt(next))
			{
				return next;
			}
			[address, form] = [next, undefined];
		}
		assert.fail(`redirected without end to ${address}`);
	}

	// Sends the page's form as it came, with these fields filled in.
	send(fields, options = {})
	{
		const form = readAttributes(this.page.match(/<form[^>]*>/)?.[0] ?? assert.fail(`no form in ${this.page}`));
		const values = new URLSearchParams();
		for (const input of [...this.page.matchAll(/<input[^>]*>/g)].map(([tag]) => readAttributes(tag)))
		{
			input.type === 'hidden' && values.set(input.name, input.value);
		}
		Object.entries(fields).forEach(([name, value]) => values.set(name, value));
		return this.open(new URL(form.action, this.address), { ...options, form: values });
	}
}

function readMetadata(issuer)
{
	return fetch(`${issuer}/.well-known/oauth-authorization-server`).then(reply => reply.json());
}

// Where a native program sends its user.
export async function getLoginAddress(issuer, clientId, redirect, state = 'any', verifier = 'any')
{
	return `${(await readMetadata(issuer)).authorization_endpoint}?${new URLSearchParams({
		response_type: 'code', client_id: clientId, redirect_uri: redirect, state, code_challenge_method: 'S256',
		code_challenge: createHash('sha256').update(verifier).digest('base64url'),
	})}`;
}

// Goes through the code flow as a native program does, and answers with what the token endpoint gives.
export async function getTokens(issuer, clientId, fields)
{
	const redirect = 'http://127.0.0.1:9/callback';
	const verifier = randomBytes(32).toString('base64url');
	const state = randomBytes(16).toString('base64url');
	const person = new Person();
	await person.open(await getLoginAddress(issuer, clientId, redirect, state, verifier));
	const back = await person.send({ action: 'allow', ...fields }, { stopAt: address => address.href.startsWith(redirect) });
	assert.equal(back?.searchParams.get('state'), state, person.page);
	const reply = await fetch((await readMetadata(issuer)).token_endpoint, { method: 'POST', body: new URLSearchParams({
		grant_type: 'authorization_code', code: back.searchParams.get('code'), redirect_uri: redirect, client_id: clientId,
		code_verifier: verifier,
	}) });
	assert.equal(reply.status, 200, await reply.clone().text());
	return reply.json();
}

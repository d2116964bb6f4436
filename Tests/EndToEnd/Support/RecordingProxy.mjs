import http from 'node:http';

// What must never be found where it does not belong, by the names under which it travels.
const secretNames = /^(code|code_verifier|state|access_token|refresh_token|token|password|form_token)$/;

// Stands before a service and writes down every secret that passes.
export class RecordingProxy
{
	secrets = new Map();
	requests = [];
	// With their queries.
	addresses = [];
	// Answers the next API request with 401 instead of the service.
	refuseNext = false;

	static async start(house)
	{
		const proxy = new RecordingProxy();
		const server = http.createServer((request, reply) => proxy.#pass(request, reply));
		await new Promise(resolve => server.listen(0, '127.0.0.1', resolve));
		house.undo(() => (server.closeAllConnections(), server.close()));
		proxy.address = `http://127.0.0.1:${server.address().port}`;
		return proxy;
	}

	#keep(name, value)
	{
		value && this.secrets.set(value, name);
	}

	#keepFields(fields)
	{
		for (const [name, value] of fields)
		{
			secretNames.test(name) && this.#keep(name, value);
		}
	}

	#keepAddress(text)
	{
		this.addresses.push(text);
		this.#keepFields(new URL(text, this.address).searchParams);
	}

	#keepHeaders(headers)
	{
		this.#keep('access_token', headers.authorization?.replace(/^Bearer /, ''));
		for (const cookie of [headers.cookie?.split('; '), headers['set-cookie']].flat().filter(Boolean))
		{
			this.#keep('cookie', cookie.match(/^[^=]+=([^;]*)/)[1]);
		}
		headers.location && this.#keepAddress(headers.location);
	}

	#keepBody(headers, body)
	{
		const type = headers['content-type'] ?? '';
		type.startsWith('application/x-www-form-urlencoded') && this.#keepFields(new URLSearchParams(body));
		type.startsWith('application/json') && body.startsWith('{') && this.#keepFields(Object.entries(JSON.parse(body)));
	}

	#watch(message)
	{
		const parts = [];
		this.#keepHeaders(message.headers);
		message.on('data', part => parts.push(part)).on('end', () => this.#keepBody(message.headers, Buffer.concat(parts).toString()));
	}

	#pass(request, reply)
	{
		this.requests.push(`${request.method} ${request.url.replace(/\?.*/, '')}`);
		this.#keepAddress(request.url);
		this.#watch(request);
		if (this.refuseNext && request.url.startsWith('/v1/'))
		{
			this.refuseNext = false;
			request.resume();
			reply.writeHead(401, { 'WWW-Authenticate': 'Bearer error="invalid_token"' }).end();
			return;
		}
		const { method, url: path, headers } = request;
		const onward = http.request(this.target, { method, path, headers }, answer =>
		{
			this.#watch(answer);
			reply.writeHead(answer.statusCode, answer.headers);
			answer.pipe(reply);
		});
		onward.on('error', () => reply.destroy());
		reply.on('close', () => onward.destroy());
		request.pipe(onward);
	}
}

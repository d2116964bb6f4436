import assert from 'node:assert/strict';
import test from 'node:test';
import { House, importPackage } from './Support/House.mjs';
import { getTokens } from './Support/Person.mjs';
import { startService } from './Support/Service.mjs';

// What the guide answers in one sentence.
const messages = [{ role: 'user', content: 'Hello!' }];
const longQuestion = { messages: [{ role: 'user', content: 'How do delegates work?' }] };

async function readPieces(stream, most = Infinity)
{
	const pieces = [];
	for await (const piece of stream)
	{
		if (pieces.push(piece) >= most)
		{
			break;
		}
	}
	return pieces;
}

test('the client package that everybody uses streams from the service and reads its errors', { timeout: 110_000 }, async t =>
{
	const house = new House(t);
	const account = { name: 'ada', password: 'a long enough password' };
	const service = await startService(house, { [account.name]: account.password }, '--daily-credits', '4');
	const { access_token: token } = await getTokens(service.address, 'vorel-editor', account);
	const { OpenAI } = await importPackage('openai');
	const connect = (apiKey, defaultHeaders = {}) =>
		new OpenAI({ baseURL: `${service.address}/v1`, apiKey, defaultHeaders, maxRetries: 0, timeout: 30_000 });
	const client = connect(token);
	const model = (await client.models.list()).data[0].id;
	const ask = (more = {}, from = client) => from.chat.completions.create({ model, messages, stream: true, ...more });
	const refused = (work, kind, wanted) => assert.rejects(work, error =>
	{
		assert.ok(error instanceof kind, `${error}`);
		assert.deepEqual({ status: error.status, ...Object.fromEntries(Object.keys(wanted).map(key => [key, error[key]])) }, wanted);
		return typeof error.error.message === 'string' && error.error.message !== '';
	});

	await t.test('streams an answer', async () =>
	{
		const pieces = await readPieces(await ask(longQuestion));
		assert.ok(pieces.length > 10, `${pieces.length} pieces`);
		assert.match(pieces.map(piece => piece.choices[0]?.delta.content ?? '').join(''), /delegate/i);
		assert.equal(pieces.findLast(piece => piece.choices[0]?.finish_reason).choices[0].finish_reason, 'stop');
		assert.notEqual((await ask({ stream: false })).choices[0].message.content, '');
	});

	await t.test('reads what is refused, which costs nothing', async () =>
	{
		const noToken = { status: 401, type: 'invalid_request_error', code: 'invalid_api_key' };
		await refused(ask({}, connect('no-such-token')), OpenAI.AuthenticationError, noToken);
		const anonymous = connect(token, { Authorization: null });
		await refused(anonymous.models.list(), OpenAI.AuthenticationError, noToken);
		await refused(ask({}, anonymous), OpenAI.AuthenticationError, noToken);
		await refused(ask({ messages: 'none' }), OpenAI.BadRequestError, { status: 400, type: 'invalid_request_error' });
		await refused(client.get('/no/such/thing'), OpenAI.NotFoundError, { status: 404 });
	});

	await t.test('breaks an answer off, and the next one comes', async () =>
	{
		const stream = await ask(longQuestion);
		await readPieces(stream, 3);
		stream.controller.abort();
		assert.ok((await readPieces(await ask())).length > 2);
	});

	await t.test('is told that no credits are left', async () =>
	{
		await refused(ask(), OpenAI.APIError, { status: 402, type: 'insufficient_quota', code: 'insufficient_credits' });
		const chat = { metadata: { vorel_mode: 'chat' } };
		assert.ok((await readPieces(await ask(chat))).length > 2);
	});
});

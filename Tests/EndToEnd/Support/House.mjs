import assert from 'node:assert/strict';
import { spawn } from 'node:child_process';
import fs from 'node:fs';
import { createRequire } from 'node:module';
import os from 'node:os';
import path from 'node:path';
import { setTimeout as pause } from 'node:timers/promises';
import { fileURLToPath, pathToFileURL } from 'node:url';

const patience = 30_000;

// Where the programs lie, and where pictures for people go.
const programs = process.env.VOREL_PROGRAMS;
export const pictures = process.env.VOREL_PICTURES;
export const support = path.dirname(fileURLToPath(import.meta.url));

// Packages of npm lie in the build folder, where import does not look.
export function importPackage(name)
{
	return import(pathToFileURL(createRequire(path.join(process.env.VOREL_NPM, 'any.js')).resolve(name)));
}

// Asks until the answer is neither false nor empty.
export async function until(ask, describe)
{
	for (const end = Date.now() + patience; Date.now() < end; await pause(100))
	{
		const answer = await ask();
		if (answer)
		{
			return answer;
		}
	}
	assert.fail(`did not come within ${patience / 1000} s: ${describe()}`);
}

// A program that runs until the test has done with it, and whatever it starts.
class Program
{
	text = '';
	#read = 0;

	constructor(command, options, folder, env, input)
	{
		this.name = path.basename(command);
		this.child = spawn(command, options, { cwd: folder, env, detached: true });
		this.child.stdin.on('error', () => {}).end(input);
		for (const stream of [this.child.stdout, this.child.stderr])
		{
			stream.setEncoding('utf8').on('data', data => this.text += data);
		}
		// The exit status, or why there is none.
		this.exited = new Promise(resolve => this.child.once('error', resolve).once('exit', (status, signal) => resolve(status ?? signal)));
		this.closed = new Promise(resolve => this.child.once('close', resolve));
		this.exited.then(status =>
		{
			this.status = status;
			// What it leaves behind ends with it.
			this.#signal('SIGKILL');
		});
	}

	// To its whole group, while nobody else can have got its number.
	#signal(name)
	{
		try
		{
			process.kill(-this.child.pid, name);
		}
		catch
		{
			// All of them have ended.
		}
	}

	// Looks at what it has written since the match before.
	async waitFor(pattern)
	{
		let match = null;
		await until(() => (match = this.text.slice(this.#read).match(pattern)) || this.status !== undefined,
			() => `${this.name} writes ${pattern}, not just:\n${this.text}`);
		assert.ok(match, `${this.name} ended with ${this.status} before it wrote ${pattern}:\n${this.text}`);
		this.#read += match.index + match[0].length;
		return match;
	}

	// Answers with its exit status when all of its words have arrived.
	async finish()
	{
		await Promise.all([this.exited, this.closed]);
		return this.status;
	}

	async stop()
	{
		if (this.status === undefined)
		{
			this.#signal('SIGTERM');
			const killing = setTimeout(() => this.#signal('SIGKILL'), 10_000);
			await this.exited;
			clearTimeout(killing);
		}
		this.child.stdout.destroy();
		this.child.stderr.destroy();
	}
}

// A home of its own for each test: no setting, key or file of the person who runs the tests counts, and nothing stays behind.
export class House
{
	folder = fs.mkdtempSync(path.join(os.tmpdir(), 'vorel-end-to-end-'));
	#undo = [];

	constructor(test)
	{
		this.env = {
			PATH: process.env.PATH, LANG: 'C.UTF-8', HOME: this.folder, XDG_CONFIG_HOME: this.path('.config'),
			XDG_DATA_HOME: this.path('.local/share'), XDG_CACHE_HOME: this.path('.cache'), XDG_RUNTIME_DIR: this.path('run'),
			VOREL_SECRET_STORE: 'none',
		};
		for (const name of ['XDG_CONFIG_HOME', 'XDG_DATA_HOME', 'XDG_CACHE_HOME', 'XDG_RUNTIME_DIR'])
		{
			fs.mkdirSync(this.env[name], { recursive: true, mode: 0o700 });
		}
		this.undo(() => fs.rmSync(this.folder, { recursive: true, force: true, maxRetries: 5 }));
		test.after(async () =>
		{
			for (const step of this.#undo.reverse())
			{
				await step();
			}
		});
	}

	// What came last is undone first.
	undo(step)
	{
		this.#undo.push(step);
	}

	path(...names)
	{
		return path.join(this.folder, ...names);
	}

	start(program, options, input = '')
	{
		const command = program.startsWith('vorel') ? path.join(programs, program) : program;
		const running = new Program(command, options, this.folder, this.env, input);
		this.undo(() => running.stop());
		return running;
	}

	// Answers with what it wrote; it must succeed.
	async run(program, options, input)
	{
		const running = this.start(program, options, input);
		const status = await running.finish();
		assert.equal(status, 0, `${program} ${options.join(' ')}:\n${running.text}`);
		return running.text;
	}
}

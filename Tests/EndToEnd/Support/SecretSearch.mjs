import fs from 'node:fs';
import path from 'node:path';

function* filesBelow(folder)
{
	for (const entry of fs.readdirSync(folder, { withFileTypes: true }))
	{
		const file = path.join(folder, entry.name);
		entry.isDirectory() ? yield* filesBelow(file) : entry.isFile() && (yield file);
	}
}

// Searches bytes for secrets, as they are and as the UTF-16 that programs keep texts in. Names place and kind, never the secret.
export class SecretSearch
{
	#places = [];

	addText(place, text)
	{
		this.#places.push({ place, bytes: Buffer.from(text) });
	}

	addFolder(folder)
	{
		for (const file of filesBelow(folder))
		{
			this.#places.push({ place: file, bytes: fs.readFileSync(file) });
		}
	}

	// Of the program and all that it started.
	addProcess(group)
	{
		for (const id of fs.readdirSync('/proc').filter(name => /^\d+$/.test(name)))
		{
			try
			{
				const [, , ownGroup] = fs.readFileSync(`/proc/${id}/stat`, 'utf8').replace(/^.*\) /s, '').split(' ');
				const files = ownGroup === `${group}` ? [`/proc/${id}/cmdline`, `/proc/${id}/environ`] : [];
				files.forEach(file => this.addText(file, fs.readFileSync(file)));
			}
			catch
			{
				// It has just ended.
			}
		}
	}

	get size()
	{
		return this.#places.length;
	}

	find(secrets)
	{
		const found = [];
		for (const [secret, name] of secrets)
		{
			for (const bytes of [Buffer.from(secret), Buffer.from(secret, 'utf16le'), Buffer.from(encodeURIComponent(secret))])
			{
				found.push(...this.#places.filter(place => place.bytes.includes(bytes)).map(({ place }) => `${name} in ${place}`));
			}
		}
		return [...new Set(found)];
	}
}

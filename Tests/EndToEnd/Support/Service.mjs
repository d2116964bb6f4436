import { once } from 'node:events';
import net from 'node:net';

async function findFreePort()
{
	const server = net.createServer().listen(0, '127.0.0.1');
	await once(server, 'listening');
	const { port } = server.address();
	server.close();
	await once(server, 'close');
	return port;
}

// A service of several accounts, each a name with its password, in a data folder of its own.
export async function startService(house, accounts, ...options)
{
	const folder = ['--data-dir', house.path('service')];
	for (const [name, password] of Object.entries(accounts))
	{
		await house.run('vorel-service', [...folder, 'accounts', 'add', name], `${password}\n`);
	}
	const place = `127.0.0.1:${await findFreePort()}`;
	const service = house.start('vorel-service', [...folder, '--listen', place, ...options]);
	await service.waitFor(/listening at /);
	service.address = `http://${place}`;
	return service;
}

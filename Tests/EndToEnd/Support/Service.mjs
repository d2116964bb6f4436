// A service of several accounts, each a name with its password, in a data folder of its own.
export async function startService(house, accounts, ...options)
{
	const folder = ['--data-dir', house.path('service')];
	for (const [name, password] of Object.entries(accounts))
	{
		await house.run('vorel-service', [...folder, 'accounts', 'add', name], `${password}\n`);
	}
	const service = house.start('vorel-service', [...folder, '--listen', '127.0.0.1:0', ...options]);
	service.address = `http://${(await service.waitFor(/listening at (?:http:\/\/)?(127\S+)/))[1]}`;
	return service;
}

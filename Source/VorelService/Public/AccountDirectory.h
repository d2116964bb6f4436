// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#pragma once

#include <memory>
#include <string>
#include <vector>

class FServiceDatabase;

// The accounts with passwords in a service's data file, for those who run the service. It may be running meanwhile.
//
// A name has 1 to 64 characters; case and blanks around it don't count. A password has at least 8 characters. What can't be done returns
// false, with a sentence for people.
class FAccountDirectory
{
public:
	// Makes the file where it is missing. Null with a sentence where it can't be used.
	static std::unique_ptr<FAccountDirectory> Open(const std::string& DataFile, std::string& OutError);
	~FAccountDirectory();

	bool Add(const std::string& Name, const std::string& Password, std::string& OutError);

	// Ends all logins of the account.
	bool SetPassword(const std::string& Name, const std::string& Password, std::string& OutError);
	bool Remove(const std::string& Name, std::string& OutError);

	// By the alphabet.
	bool List(std::vector<std::string>& OutNames, std::string& OutError) const;

private:
	explicit FAccountDirectory(std::unique_ptr<FServiceDatabase> InDatabase);

	std::unique_ptr<FServiceDatabase> Database;
};

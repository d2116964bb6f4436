// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Account/Tokens/PrivateFile.h"

#include "Misc/Paths.h"
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
constexpr off_t MaxBytes = 256 * 1024;

class FDescriptor final
{
public:
	FDescriptor(const std::string& File, int Flags)
		: Descriptor(::open(File.c_str(), Flags | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR))
	{
	}
	~FDescriptor()
	{
		if (Descriptor >= 0)
		{
			::close(Descriptor);
		}
	}
	FDescriptor(const FDescriptor&) = delete;
	FDescriptor& operator=(const FDescriptor&) = delete;

	int Get() const { return Descriptor; }

	bool Write(const std::string& Text) const
	{
		std::size_t Written = 0;
		while (Written < Text.size())
		{
			const ssize_t Size = ::write(Descriptor, Text.data() + Written, Text.size() - Written);
			if (Size < 0 && errno != EINTR)
			{
				return false;
			}
			Written += static_cast<std::size_t>(Size > 0 ? Size : 0);
		}
		return ::fsync(Descriptor) == 0;
	}

private:
	const int Descriptor;
};

bool IsOurs(const struct stat& Status)
{
	return Status.st_uid == ::geteuid() && (Status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}
} // namespace

bool PrivateFile::MakeFolder(const FString& Folder)
{
	const std::string Path = TCHAR_TO_UTF8(*Folder);
	std::error_code Error;
	std::filesystem::create_directories(std::filesystem::path(Path).parent_path(), Error);
	::mkdir(Path.c_str(), S_IRWXU);
	struct stat Status;
	return ::stat(Path.c_str(), &Status) == 0 && S_ISDIR(Status.st_mode) && Status.st_uid == ::geteuid();
}

bool PrivateFile::MakePrivateFolder(const FString& Folder)
{
	const std::string Path = TCHAR_TO_UTF8(*Folder);
	return MakeFolder(Folder) && !std::filesystem::is_symlink(Path) && ::chmod(Path.c_str(), S_IRWXU) == 0;
}

bool PrivateFile::Write(const FString& File, const std::string& Text)
{
	const std::string Path = TCHAR_TO_UTF8(*File);
	const std::string Temporary = Path + "." + std::to_string(::getpid()) + ".new";
	::unlink(Temporary.c_str());
	bool bWritten = false;
	{
		const FDescriptor Descriptor(Temporary, O_WRONLY | O_CREAT | O_EXCL);
		bWritten = Descriptor.Get() >= 0 && Descriptor.Write(Text);
	}
	if (!bWritten || ::rename(Temporary.c_str(), Path.c_str()) != 0)
	{
		::unlink(Temporary.c_str());
		return false;
	}
	return true;
}

PrivateFile::ERead PrivateFile::Read(const FString& File, std::string& OutText)
{
	const std::string Path = TCHAR_TO_UTF8(*File);
	const FDescriptor Descriptor(Path, O_RDONLY | O_NONBLOCK);
	if (Descriptor.Get() < 0)
	{
		return errno == ENOENT ? ERead::Missing : ERead::Unusable;
	}
	struct stat Status;
	if (::fstat(Descriptor.Get(), &Status) != 0 || !S_ISREG(Status.st_mode) || !IsOurs(Status) || Status.st_size > MaxBytes)
	{
		return ERead::Unusable;
	}
	OutText.resize(static_cast<std::size_t>(Status.st_size));
	return ::read(Descriptor.Get(), OutText.data(), OutText.size()) == Status.st_size ? ERead::Done : ERead::Unusable;
}

void PrivateFile::Remove(const FString& File)
{
	::unlink(TCHAR_TO_UTF8(*File));
}

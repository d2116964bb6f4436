# Sourced by test.sh behind setup.sh: brings the public suites of Markdown examples and the packages of the end-to-end tests into the build
# folder. They are not ours, so they are not part of the project. What can't be had is told, and the tests that need it fail.

suites=$root/build/suites

# has_suite NAME CHECKSUM
has_suite()
{
	sha256sum --check --status <<<"$2  $suites/$1.txt" 2>/dev/null
}

# keep_suite NAME CHECKSUM takes the text from stdin.
keep_suite()
{
	cat >"$suites/$1.txt"
	has_suite "$1" "$2" && return
	rm -f "$suites/$1.txt"
	say "the Markdown examples of $1 could not be fetched or are not the expected ones (is there a network?)"
}

# CommonMark 0.31.2, which no package of the distribution holds.
fetch_commonmark()
{
	(cd "$suites" && npm pack --silent --fetch-retries=1 --fetch-timeout=30000 commonmark-spec@0.31.2 >/dev/null) &&
		tar --extract --gzip --to-stdout --file "$suites/commonmark-spec-0.31.2.tgz" package/spec.txt
}

# The extensions, as cmark-gfm documents them. Systems for containers leave documentation out unless it is asked for.
fetch_gfm()
{
	local text=/usr/share/doc/cmark-gfm/spec.txt.gz
	[ -f $text ] || apt install --yes --reinstall -o Dpkg::Options::=--path-include=$text cmark-gfm
	gunzip --stdout $text
}

# fetch_suite NAME CHECKSUM
fetch_suite()
{
	has_suite "$@" && return
	say "fetching the Markdown examples of $1"
	"fetch_$1" | keep_suite "$@"
}

# Programs and libraries from npm, in the versions of the lock file. None of them may run anything while it is installed.
fetch_npm_packages()
{
	local wanted=$root/Tests/EndToEnd packages=$suites/npm
	cmp --silent "$wanted/package-lock.json" "$packages/installed" && return
	say "fetching the packages of the end-to-end tests"
	mkdir -p "$packages" && cp "$wanted/package.json" "$wanted/package-lock.json" "$packages" &&
		(cd "$packages" && npm ci --silent --ignore-scripts --no-audit --no-fund --fetch-retries=1 --fetch-timeout=30000 >&2) &&
		cp "$wanted/package-lock.json" "$packages/installed" ||
		say "the packages of the end-to-end tests could not be fetched (is there a network?)"
}

fetch_suites()
{
	mkdir -p "$suites" || stop "can't write to $suites"
	command -v npm >/dev/null || install_packages npm
	fetch_suite commonmark 257c41ad946f7a1414a499aca402a1aa8fdac3678532266611348c1cf54f4b80
	fetch_suite gfm 3b031af354c7a68aa1f6e67bbc187a942ba714c0c1a8cc9e40b312f1cd68f453
	fetch_npm_packages
}

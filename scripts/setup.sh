# Sourced by run.sh and test.sh: installs what the build needs and builds one preset. Everything it says goes to stderr, because
# stdout belongs to the program that is started afterwards.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
me=$(basename "$0")

# What the scripts themselves exit with; vorel uses 1 and 2.
cannot_go_on=3

build_packages=(
	g++ cmake ninja-build ccache pkg-config
	qt6-base-dev qt6-svg-dev libicu-dev libmd4c-dev libsqlite3-dev libcpp-httplib-dev nlohmann-json3-dev
	qtkeychain-qt6-dev libsodium-dev
	fonts-roboto-unhinted fonts-jetbrains-mono fonts-noto-core fonts-noto-cjk fonts-noto-color-emoji
	libbenchmark-dev ca-certificates xdg-utils)
test_packages=(
	libgtest-dev xvfb xdotool xauth cmark-gfm
	chromium dbus-daemon at-spi2-core python3-pyatspi gnome-keyring scrot)

say()
{
	echo "$me: $*" >&2
}

stop()
{
	say "$@"
	exit $cannot_go_on
}

# missing_packages PACKAGE... prints those that are not installed.
missing_packages()
{
	local installed
	installed=$(dpkg-query --show --showformat '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null | sed -n 's/^installed //p')
	comm -23 <(printf '%s\n' "$@" | sort -u) <(sort -u <<<"$installed")
}

# apt COMMAND... runs apt-get as root, patient with another apt that holds the lock, impatient with a dead network.
apt()
{
	local as_root=()
	[ "$(id -u)" = 0 ] || as_root=(sudo)
	"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q \
		-o DPkg::Lock::Timeout=300 -o Acquire::Retries=2 -o Acquire::http::Timeout=30 -o Acquire::https::Timeout=30 "$@" >&2
}

# install_packages PACKAGE...
install_packages()
{
	command -v dpkg-query >/dev/null && command -v apt-get >/dev/null ||
		stop "this needs Debian 12 or a relative of it: there is no apt-get here to install: $*"
	local missing
	mapfile -t missing < <(missing_packages "$@")
	[ ${#missing[@]} -gt 0 ] || return 0
	[ "$(id -u)" = 0 ] || command -v sudo >/dev/null ||
		stop "packages are missing and can't be installed without root or sudo: ${missing[*]}"
	say "installing ${missing[*]}"
	# An outdated package list may still do, so only the installation decides.
	apt update || say "the package lists could not be refreshed, trying with those at hand"
	apt install --yes --no-install-recommends "${missing[@]}" ||
		stop "apt-get could not install what is missing (is there a network?): ${missing[*]}"
}

check_tools()
{
	export CXX=${CXX:-g++}
	"$CXX" -std=c++20 -x c++ -fsyntax-only - 2>/dev/null <<-'END' || stop "the compiler $CXX is too old: this needs g++ 12 or newer"
		#if !defined(__clang__) && __GNUC__ < 12
		#error
		#endif
		#include <concepts>
	END
	local version
	version=$(cmake --version | sed -n '1s/.*version //p')
	[ "$(printf '%s\n' 3.25 "$version" | sort -V | head -n 1)" = 3.25 ] || stop "CMake $version is too old: this needs 3.25 or newer"
}

# Passes on what ninja says, without what it says when there is nothing to do. On a terminal its progress stays on one line.
build_output()
{
	local line clear='' progress='%s\n'
	[ ! -t 2 ] || { clear='\r\033[K' progress='%.100s'; }
	while IFS= read -r line
	do
		case $line in
			"ninja: no work to do." | "ninja: Entering directory"* | *"Re-checking globbed directories..."*) ;;
			"["*) printf "$clear$progress" "$line" >&2 ;;
			*) printf "$clear%s\n" "$line" >&2 ;;
		esac
	done
	printf "$clear" >&2
}

# configure PRESET, unless this folder is configured already. A build folder that came along with a copied project is made anew.
configure()
{
	local build=$root/build/$1
	if [ -f "$build/CMakeCache.txt" ] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$build/CMakeCache.txt"
	then
		rm -rf "$build"
	fi
	[ -f "$build/build.ninja" ] && return
	check_tools
	say "configuring $1"
	(cd "$root" && cmake --preset "$1") >&2 || stop "configuring failed, see above"
}

# build PRESET TARGET... One build at a time: ninja does not lock its folder.
build()
{
	local preset=$1
	shift
	mkdir -p "$root/build" || stop "can't write to $root/build"
	(
		flock 9
		configure "$preset"
		ninja -C "$root/build/$preset" "$@" 2>&1 | build_output
		[ "${PIPESTATUS[0]}" = 0 ] || stop "building failed, see above"
	) 9>"$root/build/$preset.lock" || exit $cannot_go_on
}

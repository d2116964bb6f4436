#!/bin/bash
# ./run.sh [arguments for vorel]: installs what is needed, builds all programs into build/release/bin and starts vorel.
set -u
. "$(dirname "${BASH_SOURCE[0]}")/scripts/setup.sh"

install_packages "${build_packages[@]}"
build release
vorel=$root/build/release/bin/vorel

if [ $# -gt 0 ] || [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]
then
	exec "$vorel" "$@"
fi

# Nobody is there to see a window: show what a conversation looks like.
pictures=$root/build/first-conversation
rm -rf "$pictures"
mkdir -p "$pictures" || stop "can't write to $pictures"
say "there is no display, so a sample conversation is played offscreen"
# What it signs in with is none of the user's.
(cd "$pictures" && VOREL_SECRET_STORE=none "$vorel" --offscreen --data-dir data --play "$root/Docs/Samples/first-conversation.play")
status=$?
say "its pictures lie in $pictures:"
(cd "$pictures" && ls -- *.png 2>/dev/null | sed 's/^/  /') >&2
exit $status

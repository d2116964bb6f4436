// Copyright (c) 2026 Vorel AI. Licensed under the MIT License.

#include "Pages/PageStyle.h"

// The editor's colors, and lighter ones beside them. Text has a contrast of 4.5 to 1 at least; edges of fields and the focus one of 3 to 1.
const char* const PageStyle = R"css(
:root {
	color-scheme: light dark;
	--ground: #f4f6fb; --card: #ffffff; --line: #dfe3ec; --edge: #767d8c;
	--text: #16181c; --quiet: #4a505c; --link: #2459c4;
	--bad: #8e1b20; --bad-ground: #fdecec; --good: #14602e; --good-ground: #e6f4ea;
	--second: #e3e7ef; --second-hover: #d5dae5;
}
@media (prefers-color-scheme: dark) {
	:root {
		--ground: #16181c; --card: #1d2025; --line: #2d3139;
		--text: #e9ebf0; --quiet: #c8ccd4; --link: #59b4ff;
		--bad: #ffb4b4; --bad-ground: #3a1d22; --good: #9be3b1; --good-ground: #17301f;
		--second: #363b45; --second-hover: #454b57;
	}
}
* { box-sizing: border-box; }
body {
	margin: 0; min-height: 100vh; display: flex; flex-direction: column;
	background: var(--ground); color: var(--text);
	font: 1rem/1.55 Roboto, system-ui, "Segoe UI", "Noto Sans", sans-serif; overflow-wrap: anywhere;
}
header, main, footer { width: 100%; max-width: 34rem; margin: 0 auto; padding: 0 1rem; }
header { padding-top: 1.75rem; padding-bottom: 1.25rem; }
header a { display: inline-block; border-radius: 0.25rem; color: var(--text); }
header svg { display: block; width: 9.5rem; height: auto; }
main { flex: 1; }
.card { padding: 1.75rem; border: 1px solid var(--line); border-radius: 0.75rem; background: var(--card); }
h1 { margin: 0 0 0.75rem; font-size: 1.5rem; font-weight: 500; line-height: 1.25; }
h2 { margin: 1.75rem 0 0.25rem; font-size: 1.0625rem; font-weight: 500; }
p, ul, ol { margin: 0 0 0.75rem; }
ul, ol { padding-left: 1.25rem; }
li { margin-bottom: 0.25rem; }
.card > :last-child { margin-bottom: 0; }
.quiet, footer { color: var(--quiet); font-size: 0.9375rem; }
a { color: var(--link); text-underline-offset: 0.15em; }
a:hover { text-decoration-thickness: 2px; }
code { font: 0.9em/1.4 "JetBrains Mono", ui-monospace, monospace; font-variant-ligatures: none; }
pre { margin: 0 0 0.75rem; padding: 0.75rem; border-radius: 0.5rem; background: var(--ground); white-space: pre-wrap; }
label { display: block; margin: 1rem 0 0.375rem; font-weight: 500; }
input {
	width: 100%; min-height: 2.75rem; padding: 0.5rem 0.75rem; border: 1px solid var(--edge); border-radius: 0.375rem;
	background: var(--ground); color: inherit; font: inherit;
}
input + .quiet { margin-top: 0.5rem; }
.buttons { display: flex; flex-wrap: wrap; gap: 0.75rem; margin: 1.5rem 0 0; }
button {
	flex: 1 1 8rem; min-height: 2.75rem; padding: 0.5rem 1.25rem; border: 0; border-radius: 0.375rem;
	background: var(--second); color: var(--text); font: inherit; font-weight: 500; overflow-wrap: anywhere; cursor: pointer;
}
button:hover { background: var(--second-hover); }
button.first { flex-grow: 2; background: #2f6bdb; color: #ffffff; }
button.first:hover { background: #2459c4; }
:focus-visible { outline: 3px solid var(--link); outline-offset: 2px; }
.problem, .notice { margin: 1rem 0 0; padding: 0.625rem 0.875rem; border-left: 4px solid; border-radius: 0.25rem; }
.problem { background: var(--bad-ground); color: var(--bad); }
.notice { background: var(--good-ground); color: var(--good); }
.amount { margin: 1.25rem 0 0.5rem; font-size: 1.125rem; }
.amount strong { font-size: 2.25rem; font-weight: 500; line-height: 1; }
.bar { display: block; width: 100%; height: 0.5rem; margin-bottom: 1rem; border-radius: 0.25rem; }
.bar .whole { fill: var(--second); }
.bar .left { fill: var(--link); }
footer { padding-top: 1.5rem; padding-bottom: 2rem; }
footer ul { display: flex; flex-wrap: wrap; gap: 0.25rem 1.25rem; margin: 0; padding: 0; list-style: none; }
footer li { margin: 0; }
footer a { display: inline-block; padding: 0.375rem 0; color: inherit; }
@media (max-width: 30rem) {
	.card { padding: 1.25rem; }
	button.first { flex-basis: 100%; }
}
@media (forced-colors: active) {
	button, .problem, .notice { border: 1px solid; }
}
)css";

const char* const PageLogo = R"svg(<svg viewBox="0 0 500 105" aria-hidden="true" focusable="false">
<defs><linearGradient id="ground" x1="0" y1="0" x2="1" y2="1"><stop offset="0" stop-color="#37b6ff"/><stop offset="0.55" stop-color="#3d6bf5"/>
<stop offset="1" stop-color="#7a3df0"/></linearGradient></defs>
<g transform="translate(2 2.5) scale(0.78125)"><rect x="6" y="6" width="116" height="116" rx="30" fill="url(#ground)"/>
<path d="M34 46 L58 92 L80 50" fill="none" stroke="#ffffff" stroke-width="14" stroke-linecap="round" stroke-linejoin="round"/>
<path d="M94 20 C95.5 29.5 98.5 32.5 108 34 C98.5 35.5 95.5 38.5 94 48 C92.5 38.5 89.5 35.5 80 34 C89.5 32.5 92.5 29.5 94 20 Z" fill="#ffffff"/></g>
<g fill="none" stroke="currentColor" stroke-width="11.5" stroke-linecap="round" stroke-linejoin="round"><path d="M131 25 L156 80 L181 25"/>
<circle cx="215" cy="59.5" r="20.5"/><path d="M258 80 V39 M258 59 A20 20 0 0 1 280 39.5"/><path d="M297 59.5 H337 A20.5 20.5 0 1 0 330.5 74.5"/>
<path d="M362 21 V80"/></g>
<g fill="none" stroke="var(--link)" stroke-width="11.5" stroke-linecap="round" stroke-linejoin="round"><path d="M404 80 L429 25 L454 80 M414 63 H444"/>
<path d="M485 25 V80"/></g></svg>)svg";

const char* const PageIcon = "data:image/svg+xml,%3Csvg xmlns='http://www.w3.org/2000/svg' viewBox='6 6 116 116'%3E"
							 "%3Crect x='6' y='6' width='116' height='116' rx='30' fill='%233d6bf5'/%3E"
							 "%3Cpath d='M34 46 L58 92 L80 50' fill='none' stroke='%23fff' stroke-width='14' stroke-linecap='round' "
							 "stroke-linejoin='round'/%3E%3C/svg%3E";

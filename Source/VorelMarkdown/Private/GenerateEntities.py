# Copyright (c) 2026 Vorel AI. Licensed under the MIT License.
# Writes MarkdownEntityTable.inl: the character references that HTML names, sorted.
import html.entities


def literal(text):
    escapes = {'"': '\\"', "\\": "\\\\", "\n": " ", "\t": "\\t"}
    return "".join(escapes.get(c) or (c if " " <= c <= "~" else "\\u%04X" % ord(c) if ord(c) < 0x10000 else "\\U%08X" % ord(c)) for c in text)


names = sorted((name[:-1], text) for name, text in html.entities.html5.items() if name.endswith(";"))
line = ""
for name, text in names:
    entry = '{"%s", "%s"},' % (name, literal(text))
    if len(line) + len(entry) > 139:
        print(line)
        line = ""
    line += (" " if line else "") + entry
print(line)

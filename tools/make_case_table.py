#!/usr/bin/env python3
"""Prints src/platform/unicode_case_table.inc: Unicode's simple case mappings as runs.

A run {first, last, step, delta} maps every step-th code point from first to last to itself plus
delta. Run it again when a newer Unicode is wanted: tools/make_case_table.py > src/platform/unicode_case_table.inc
"""
import sys
import unicodedata


def simple(code, kind):
    text = chr(code)
    mapped = text.lower() if kind == "lower" else text.upper()
    if len(mapped) == 1:
        return ord(mapped)
    # Full mappings of more than one letter: the simple mapping of these two differs from the text.
    if kind == "lower" and code == 0x130:
        return 0x69
    if kind == "upper" and 0x1F80 <= code <= 0x1FFC:
        title = text.title()
        if len(title) == 1:
            return ord(title)
    return code


def runs(kind):
    pairs = [(c, simple(c, kind) - c) for c in range(0x80, sys.maxunicode + 1)
             if not 0xD800 <= c <= 0xDFFF and simple(c, kind) != c]
    result = []
    for code, delta in pairs:
        if result:
            first, last, step, old = result[-1]
            if old == delta and (code - last == step or (first == last and code - last <= 2)):
                result[-1] = (first, code, code - last if first == last else step, old)
                continue
        result.append((code, code, 1, delta))
    return result


print(f"// Unicode {unicodedata.unidata_version}, simple mappings above ASCII; made by tools/make_case_table.py.")
for kind in ("lower", "upper"):
    print(f"constexpr CaseRun k{kind.capitalize()}Runs[] = {{")
    for first, last, step, delta in runs(kind):
        print(f"    {{0x{first:04X}, 0x{last:04X}, {step}, {delta}}},")
    print("};")

"""The faults that can be seeded in the program's lines, in the order in which they are tried.

A fault is chosen by a hash of its line's own text, so that moving a file or changing its neighbours does not change the
choice. A line has one fault at most: a comparison turned, a constant changed, a statement dropped and the like.
"""

import hashlib
import re
import subprocess
from collections import defaultdict, namedtuple
from pathlib import Path

Fault = namedtuple("Fault", "feature file number before after")

NOT_THE_PROGRAM = {"tests", "bench", "docs", "packaging"}
SWAPS = dict(zip("<  >  <= >= == != && || + - += -= true false std::min std::max break continue".split(),
                 "<= >= <  >  != == || && - + -= += false true std::max std::min continue break".split()))
SWAPPED = {"comparison": r"(?<= )([<>]=?|[!=]=)(?= )", "logic": r"(?<= )(&&|\|\|)(?= )", "bool": r"\b(true|false)\b",
           "arithmetic": r"(?<=[\w)\]] )([+-]=?)(?= [\w(])", "limit": r"\bstd::(min|max)\b(?=\()",
           "jump": r"\b(break|continue)\b(?=;)"}
TOKEN = re.compile(r"""//.*|/\*.*?\*/|"(?:\\.|[^"\\])*"|\b\d[\w'.]*|\b[A-Za-z_]\w*|'(?:\\.|[^'\\])*'""")
CONDITION = re.compile(r"\b(?:if|while) \(((?:[^();]|\((?:[^()]|\((?:[^()]|\([^()]*\))*\))*\))*)\)")
STATEMENT = re.compile(r"(?!return\b|throw\b|using\b)[\w*][\w.:\->\[\]()*]*( [-+|&]?= .+|\(.*\));$")


def hashed(*words):
    return hashlib.sha256("\0".join(map(str, words)).encode()).hexdigest()


def feature_of(file):
    top, below = file.split("/")[:2]
    if top == "core":  # older revisions have the layers base, forms and reader in one folder
        return {"forms": "forms", "files": "base", "text": "base"}.get(below, "reader")
    return "desktop" if (top, below) == ("ui", "desktop") else top


def changes(line, previous):
    """The changes of a line by kind, and its code with texts and comments blanked. `previous` is the code before it."""
    found, code = defaultdict(list), line
    for token in TOKEN.finditer(line):
        text, (start, end) = token.group(), token.span()
        changed = {'"': text[:-1] + '~"', "'": "'y'" if text == "'x'" else "'x'"}.get(text[0])
        if re.fullmatch(r"\d[\d']*", text):
            changed = str(int(text.replace("'", "")) + 1)
        if changed:
            found["number" if text[0].isdigit() else "text"].append(line[:start] + changed + line[end:])
        if not re.match(r"[A-Za-z_]", text):
            code = code[:start] + ("0" if text[0].isdigit() else " ") * len(text) + code[end:]
    for kind, pattern in SWAPPED.items():
        for match in re.finditer(pattern, code):
            found[kind].append(line[:match.start()] + SWAPS[match.group()] + line[match.end():])
    for match in CONDITION.finditer(code):
        if " = " not in match[1]:
            start, end = match.span(1)
            found["condition"].append(f"{line[:start]}!({line[start:end]}){line[end:]}")
    code = code.strip()
    if STATEMENT.match(code) and code.count("(") == code.count(")") and re.search(r"(^|[{};:)]|\belse)$", previous):
        found["statement"].append("(void)0;")
    return found, code


def faults_by_feature(tree, seed):
    chosen = defaultdict(dict)
    for file in subprocess.check_output(["git", "-C", tree, "ls-files", "*.cpp"], text=True).split():
        code = ""
        for number, line in enumerate(map(str.strip, (tree / file).read_text().splitlines()), 1):
            if file.split("/")[0] in NOT_THE_PROGRAM or not line or re.match("#|//|assert|static_assert", line):
                continue
            found, code = changes(line, code)
            if not found or (line[0] in '{"' and int(hashed(seed, line), 16) % 4 > 0):
                continue  # the rows of a table are many and alike: one in four will do
            kind = min(found, key=lambda kind: hashed(seed, kind, line))
            after = min(found[kind], key=lambda after: hashed(seed, after))
            fault = Fault(feature_of(file), file, number, line, after)
            twin = chosen[fault.feature].setdefault(line, fault)
            chosen[fault.feature][line] = min(fault, twin, key=lambda fault: hashed(seed, Path(fault.file).name))
    return {feature: sorted(faults.values(), key=lambda fault: hashed(seed, fault.before, fault.after))
            for feature, faults in sorted(chosen.items())}

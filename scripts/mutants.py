#!/usr/bin/env python3
"""Mutation sampler: applies small faults to src/**/*.cpp one at a time in a scratch copy,
rebuilds incrementally and runs the tests of the mutated layer and of the layers that use it.

Called by scripts/mutants, which prepares the scratch copy and the PostgreSQL server."""
import os
import random
import re
import subprocess
import sys
import time

# Test executables in layer order; a fault in a layer is looked for by its own tests and by
# the tests of every layer after it.
LAYERS = ["common", "settings", "data", "devices", "sales", "app", "ui", "cli"]
SRC_LAYER = {"common": 0, "settings": 1, "data": 2, "devices": 3, "sales": 4, "purchase": 4,
             "app": 5, "ui": 6, "main": 7}

SWAPS = {"==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">", "&&": "||",
         "||": "&&", "+": "-", "-": "+", "*": "/", "/": "*"}


def blank_non_code(text):
    """Returns text of the same length with comments, string and character literals and
    preprocessor lines replaced by spaces (line breaks kept), so faults land in code only."""
    out = list(text)
    i, n = 0, len(text)
    line_start = True

    def blank(a, b):
        for k in range(a, b):
            if out[k] != "\n":
                out[k] = " "

    while i < n:
        c = text[i]
        if line_start and c in " \t":
            i += 1
            continue
        if line_start and c == "#":
            j = i
            while j < n:
                e = text.find("\n", j)
                if e < 0:
                    e = n
                if text[e - 1:e] == "\\":
                    j = e + 1
                    continue
                j = e
                break
            blank(i, j)
            i = j
            continue
        line_start = c == "\n"
        if text.startswith("//", i):
            e = text.find("\n", i)
            e = n if e < 0 else e
            blank(i, e)
            i = e
        elif text.startswith("/*", i):
            e = text.find("*/", i + 2)
            e = n if e < 0 else e + 2
            blank(i, e)
            i = e
        elif c == "R" and text.startswith('"', i + 1) and not re.match(r"\w", text[i - 1:i] or " "):
            m = re.match(r'R"([^(\s]*)\(', text[i:])
            if m:
                end = text.find(")" + m.group(1) + '"', i)
                end = n if end < 0 else end + len(m.group(1)) + 2
                blank(i, end)
                i = end
            else:
                i += 1
        elif c in "\"'":
            if c == "'" and re.match(r"[0-9A-Fa-f]", text[i - 1:i] or " ") and \
                    re.match(r"[0-9A-Fa-f]", text[i + 1:i + 2] or " "):
                i += 1  # digit separator 1'000
                continue
            j = i + 1
            while j < n and text[j] != c:
                j += 2 if text[j] == "\\" else 1
            blank(i, j + 1)
            i = j + 1
        else:
            i += 1
    return "".join(out)


def matching_paren(code, open_at):
    depth = 0
    for k in range(open_at, len(code)):
        if code[k] == "(":
            depth += 1
        elif code[k] == ")":
            depth -= 1
            if depth == 0:
                return k
    return -1


def sites_in(path, text):
    """Yields (offset, length, replacement, kind) for every fault this file offers."""
    code = blank_non_code(text)
    for m in re.finditer(r"(?<=\s)(==|!=|<=|>=|&&|\|\||<|>|\+|-|\*|/)(?=\s)", code):
        yield m.start(), len(m.group(1)), SWAPS[m.group(1)], "operator"
    for m in re.finditer(r"(?<![\w)\]!=<>&|])!(?=[\w(])", code):
        yield m.start(), 1, "", "negation"
    for m in re.finditer(r"\b(true|false)\b", code):
        yield m.start(), len(m.group(1)), "false" if m.group(1) == "true" else "true", "constant"
    for m in re.finditer(r"(?<![\w.'])(\d+)(?![\w.'])", code):
        value = int(m.group(1))
        yield m.start(), len(m.group(1)), str(value + 1 if value != 1 else 0), "constant"
    for m in re.finditer(r"\bif\s*\(", code):
        open_at = m.end() - 1
        close_at = matching_paren(code, open_at)
        if close_at < 0:
            continue
        if re.match(r"\s*\{?\s*return\b", code[close_at + 1:]):
            yield open_at, close_at + 1 - open_at, "(false)", "early return"


def all_sites(tree):
    sites = []
    for folder, _, files in sorted(os.walk(os.path.join(tree, "src"))):
        for name in sorted(files):
            if not name.endswith(".cpp"):
                continue
            full = os.path.join(folder, name)
            rel = os.path.relpath(full, tree)
            layer = rel.split(os.sep)[1]
            if layer not in SRC_LAYER:
                continue
            with open(full, encoding="utf-8") as f:
                text = f.read()
            for offset, length, repl, kind in sites_in(rel, text):
                sites.append((rel, offset, length, repl, kind))
    return sites


def run_tests(build, layers, timeout, log):
    """Runs the test executables in order; returns the first that failed or timed out, or None."""
    env = dict(os.environ, QT_QPA_PLATFORM="offscreen", SANDOGH_BUILD_DIR=build,
               GTEST_FAIL_FAST="1", GTEST_BRIEF="1")
    deadline = time.monotonic() + timeout
    for layer in layers:
        exe = os.path.join(build, "tests", "test_" + layer)
        if not os.path.exists(exe):
            continue
        left = deadline - time.monotonic()
        if left <= 0:
            return layer + " (timeout)"
        try:
            r = subprocess.run([exe], cwd=build, env=env, stdout=log, stderr=subprocess.STDOUT,
                               timeout=left)
        except subprocess.TimeoutExpired:
            return layer + " (timeout)"
        if r.returncode != 0:
            return layer
    return None


def build_targets(build, layers, log):
    targets = ["test_" + layer for layer in layers]
    if "cli" in layers:
        targets.append("sandogh-admin")
    command = ["cmake", "--build", build, "-j2", "--target"] + targets
    lock = os.environ.get("SANDOGH_BUILD_LOCK")
    if lock:
        command = ["flock", lock] + command
    r = subprocess.run(command, stdout=log, stderr=subprocess.STDOUT)
    return r.returncode == 0


def main():
    tree, build, count, seed = sys.argv[1], sys.argv[2], int(sys.argv[3]), int(sys.argv[4])
    timeout = int(os.environ.get("SANDOGH_MUTANT_TIMEOUT", "600"))
    logs = os.path.join(os.path.dirname(build), "logs")
    os.makedirs(logs, exist_ok=True)
    test_layers = [l for l in LAYERS if os.path.isdir(os.path.join(tree, "tests", l))]

    sites = all_sites(tree)
    chosen = random.Random(seed).sample(sites, min(count, len(sites)))
    print(f"mutants: {len(sites)} fault sites in src/*.cpp, {len(chosen)} chosen with seed {seed}",
          flush=True)

    if os.environ.get("SANDOGH_MUTANT_SKIP_BASELINE") != "1":
        with open(os.path.join(logs, "baseline.log"), "w") as log:
            if not build_targets(build, test_layers, log):
                sys.exit(f"mutants: the unchanged tree does not build, see {log.name}")
            tests_started = time.monotonic()
            failed = run_tests(build, test_layers, 3 * timeout, log)
            tests_took = time.monotonic() - tests_started
        if failed:
            sys.exit(f"mutants: test_{failed} fails on the unchanged tree, see {logs}/baseline.log")
        print(f"mutants: the unchanged tree builds and its tests pass ({tests_took:.0f} s)",
              flush=True)

    killed = survived = unbuilt = 0
    survivors = []
    for index, (rel, offset, length, repl, kind) in enumerate(chosen, 1):
        path = os.path.join(tree, rel)
        with open(path, encoding="utf-8") as f:
            original = f.read()
        line_no = original.count("\n", 0, offset) + 1
        orig = original[offset:offset + length]
        change = f"{rel}:{line_no}: {kind} '{orig}' -> '{repl}'"
        layers = [l for l in test_layers if LAYERS.index(l) >= SRC_LAYER[rel.split(os.sep)[1]]]
        started = time.monotonic()
        try:
            with open(path, "w", encoding="utf-8") as f:
                f.write(original[:offset] + repl + original[offset + length:])
            with open(os.path.join(logs, f"mutant-{index:03}.log"), "w") as log:
                log.write(change + "\n")
                log.flush()
                if not build_targets(build, layers, log):
                    verdict, detail = "did not build", ""
                    unbuilt += 1
                else:
                    failed = run_tests(build, layers, timeout, log)
                    if failed:
                        verdict, detail = "killed", f"by test_{failed}"
                        killed += 1
                    else:
                        verdict, detail = "survived", ""
                        survived += 1
                        line = original.splitlines()[line_no - 1].strip()
                        survivors.append(f"{change}   | {line}")
        finally:
            with open(path, "w", encoding="utf-8") as f:
                f.write(original)
        took = time.monotonic() - started
        print(f"[{index}/{len(chosen)}] {verdict:13} {change} {detail} ({took:.0f} s)", flush=True)

    tried = killed + survived
    share = 100.0 * killed / tried if tried else 0.0
    if survivors:
        print("survivors:")
        for s in survivors:
            print("  " + s)
    print(f"mutants: seed {seed}, {len(chosen)} faults: {killed} killed, {survived} survived, "
          f"{unbuilt} did not build; killed {share:.1f} % of those that built", flush=True)


if __name__ == "__main__":
    main()

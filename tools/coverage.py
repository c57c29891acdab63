#!/usr/bin/python3
"""Measures which lines and branches the tests reach, and checks that no new gap has come up.

  coverage.py        after the preset `linux-coverage` has been built

A table goes to the terminal, a report for browsers to build/coverage/index.html, and the branches
never taken to build/coverage/not-taken.txt. In the folders of CHECKED each of these has to be noted
in tests/coverage/not-taken.txt with the reason, in the same form; the status is 1 when one is not,
and when one is noted that is taken by now.
"""

import collections
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "linux-coverage"
REPORT = ROOT / "build" / "coverage"
NOTED = ROOT / "tests" / "coverage" / "not-taken.txt"
SHOWN = ("src/node/", "src/xml/", "platform/", "support/")
CHECKED = ("src/node/", "src/xml/", "platform/")

Gap = collections.namedtuple("Gap", "path line condition")


def run_tests(programs):
    """Runs all test programs; the profile of all of them together."""
    for program in programs:
        environment = dict(
            os.environ,
            LLVM_PROFILE_FILE=str(REPORT / f"{program.name}.profraw"),
            TOLVA_DIFFERENTIAL_LENGTH="4",
        )
        log = REPORT / f"{program.name}.log"
        with open(log, "wb") as output:
            tested = subprocess.run(
                [program, "--gtest_brief=1"], stdout=output, stderr=output, env=environment,
                check=False,
            )
        if tested.returncode != 0:
            sys.exit(f"coverage: {program.name} fails, see {log.relative_to(ROOT)}")
    profile = REPORT / "tests.profdata"
    raw = sorted(REPORT.glob("*.profraw"))
    subprocess.run(["llvm-profdata", "merge", "-sparse", "-o", profile, *raw], check=True)
    return profile


def llvm_cov(command, profile, programs, options):
    binaries = [BUILD / "libtolva.so", *programs]
    objects = [str(binaries[0])] + [f"-object={binary}" for binary in binaries[1:]]
    return subprocess.run(
        ["llvm-cov", command, f"-instr-profile={profile}", *options, *objects],
        check=True, capture_output=True, text=True,
    ).stdout


def path_of(entry):
    """A file's path in the tree; the compiler was given one that is relative to the build."""
    return os.path.relpath(BUILD / entry["filename"], ROOT)


def others(profile, programs):
    """The option that leaves out all files but those to be shown."""
    summary = json.loads(llvm_cov("export", profile, programs, ["-summary-only"]))
    names = [
        re.escape(entry["filename"])
        for entry in summary["data"][0]["files"]
        if not path_of(entry).startswith(SHOWN)
    ]
    return f"-ignore-filename-regex=^({'|'.join(names)})$"


def branches_of(entry):
    """{(first line, first column, last line, last column): [times true, times false]}

    A template's branches are listed once for each of its instances.
    """
    branches = {}
    for branch in entry["branches"]:
        counts = branches.setdefault(tuple(branch[:4]), [0, 0])
        counts[0] += branch[4]
        counts[1] += branch[5]
    return branches


def gaps_of(path, branches):
    """The branches never taken, in the order of the file."""
    lines = (ROOT / path).read_text().splitlines()
    for (line, column, last_line, last_column), counts in sorted(branches.items()):
        text = lines[line - 1 : last_line]
        text[-1] = text[-1][: last_column - 1]
        text[0] = text[0][column - 1 :]
        condition = " ".join(" ".join(text).split())
        is_constant = "constexpr " in lines[line - 1] and not any(counts)
        for outcome, count in zip(("true", "false"), counts):
            if count == 0 and not is_constant:
                yield line, Gap(path, lines[line - 1].strip(), f"{condition}: never {outcome}")


def read_noted():
    """How often each gap is noted."""
    noted = collections.Counter()
    paragraphs = NOTED.read_text().split("\n\n") if NOTED.exists() else []
    for paragraph in paragraphs:
        lines = [line for line in paragraph.splitlines() if line and not line.startswith("#")]
        if not lines:
            continue
        conditions = [line for line in lines if line.endswith((": never true", ": never false"))]
        if len(lines) < 3 + len(conditions) or not conditions or lines[1][:2] != "> ":
            sys.exit(f"{NOTED.relative_to(ROOT)}: not understood:\n{paragraph}")
        for condition in conditions:
            noted[Gap(lines[0], lines[1][2:].strip(), condition)] += 1
    return noted


def spell(gap):
    return f"{gap.path}\n> {gap.line}\n{gap.condition}\n"


def print_table(rows):
    print(f"{'':36}{'lines':>7}{'run':>9}{'branches':>11}{'taken':>9}")
    total = [0, 0, 0, 0]
    for name, *counts in rows:
        total = [a + b for a, b in zip(total, counts)]
        print_row(name, counts)
    print_row("all", total)


def print_row(name, counts):
    def percent(part, whole):
        return f"{100 * part / whole:.1f} %" if whole else "-"

    lines, run, branches, taken = counts
    print(f"{name:36}{lines:7}{percent(run, lines):>9}{branches:11}{percent(taken, branches):>9}")


def main():
    programs = sorted(
        path for path in (BUILD / "tests").glob("tolva_*_tests") if os.access(path, os.X_OK)
    )
    if not programs:
        sys.exit("coverage: the preset linux-coverage has not been built")
    shutil.rmtree(REPORT, ignore_errors=True)
    REPORT.mkdir(parents=True)
    profile = run_tests(programs)
    left_out = others(profile, programs)
    options = ["-format=html", f"-output-dir={REPORT}", "-show-branches=count", left_out]
    llvm_cov("show", profile, programs, options)
    exported = json.loads(llvm_cov("export", profile, programs, ["-skip-expansions", left_out]))

    rows = []
    gaps = []
    for entry in exported["data"][0]["files"]:
        path = path_of(entry)
        branches = branches_of(entry)
        taken = sum((a != 0) + (b != 0) for a, b in branches.values())
        lines = entry["summary"]["lines"]
        rows.append((path, lines["count"], lines["covered"], 2 * len(branches), taken))
        gaps += gaps_of(path, branches)
    print_table(sorted(rows))
    listed = [f"{spell(gap)}(line {line})\n" for line, gap in gaps]
    (REPORT / "not-taken.txt").write_text("\n".join(listed))

    found = collections.Counter(gap for _, gap in gaps if gap.path.startswith(CHECKED))
    noted = read_noted()
    for gap in (found - noted).elements():
        print(f"\nnever taken, and not in {NOTED.relative_to(ROOT)}:\n{spell(gap)}", end="")
    for gap in (noted - found).elements():
        print(f"\nin {NOTED.relative_to(ROOT)}, but taken or gone:\n{spell(gap)}", end="")
    print(f"\ncoverage: {len(gaps)} branches never taken, see build/coverage/not-taken.txt and"
          " build/coverage/index.html")
    return 0 if found == noted else 1


if __name__ == "__main__":
    sys.exit(main())

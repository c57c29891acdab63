#!/usr/bin/python3
"""Puts small faults into the sources, one at a time, and sees whether the tests notice.

  mutants.py [--seed N] [--count N] [--only PATH...] [--kind KIND...] [--fresh]
  mutants.py [...] --show     prints the faults, and runs nothing

A mutant is a copy of the tree, in build/mutants, with one fault (tools/faults.py). It is caught when a
test program fails, ends early or takes too long. It does not count when it does not compile, or when
the programs come out the same. Prints the score and the survivors; the status is 1 when fewer than
95 % are caught.

The seed alone decides which faults are chosen, and in which order. What becomes of each is written to
build/mutants/known.json at once: an interrupted run goes on where it stopped, and after a change of
the tests alone, only what had survived is run again.

A survivor shows that a test is missing, or it behaves like the original. The latter is noted in
tests/mutants/equivalent.txt with the reason, and does not count.
"""

import argparse
import fcntl
import hashlib
import json
import os
import pathlib
import resource
import shutil
import subprocess
import sys
import time

import faults

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDER = ROOT / "build" / "mutants"
TREE = FOLDER / "tree"
BUILD = TREE / "build" / "linux-release"
LOG = FOLDER / "log"
KNOWN = FOLDER / "known.json"
EQUIVALENT = ROOT / "tests" / "mutants" / "equivalent.txt"

MUTATED = ["src", "platform", "support"]
LEFT_OUT = ("platform/windows/", "support/windows/")  # not compiled here
TESTS = ("tests/", "examples/")  # what decides whether a mutant is caught

TABLES = "src/node/schema.h"  # it has the rules that keep a wrong table from being compiled
MUST_FAIL = ["tools/must-fail.sh", "g++"]

CAUGHT = "caught"
SURVIVED = "survived"
NOT_COMPILED = "does not compile"
SAME = "same program"
WANTED = 95  # percent

BUILD_SECONDS = 1800
MEMORY = 8 << 30
FILE_SIZE = 1 << 30


# ---- what is changed -----------------------------------------------------------------------------


def tree_files(*places):
    """The files of the repository, new ones included."""
    listed = subprocess.run(
        ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard", "--", *places],
        cwd=ROOT, check=True, capture_output=True, text=True,
    ).stdout
    return sorted(path for path in set(listed.split("\0")) if path and (ROOT / path).is_file())


def find_faults(places, kinds):
    found = []
    for path in tree_files(*places):
        if path.endswith((".cpp", ".h")) and not path.startswith(LEFT_OUT):
            found += faults.find_faults(path, (ROOT / path).read_text())
    return [fault for fault in found if not kinds or fault.kind in kinds]


def choose(found, seed, count):
    """Kinds take turns, so that the rare ones are tried as well.

    A fault's place in the order follows from what it is: a change elsewhere does not move it.
    """
    kinds = {}
    for fault in sorted(found, key=lambda fault: digest(str(seed), fault.key)):
        kinds.setdefault(fault.kind, []).append(fault)
    chosen = []
    while len(chosen) < count and any(kinds.values()):
        chosen += [kinds[kind].pop() for kind in sorted(kinds) if kinds[kind]]
    return chosen[:count]


def read_equivalent():
    """{(file, line before, line after)}; a paragraph has these, and then the reason."""
    noted = set()
    for paragraph in EQUIVALENT.read_text().split("\n\n") if EQUIVALENT.exists() else []:
        lines = [line for line in paragraph.splitlines() if line and not line.startswith("#")]
        if not lines:
            continue
        if len(lines) < 4 or lines[1][:2] != "- " or lines[2][:1] != "+":
            sys.exit(f"{EQUIVALENT.relative_to(ROOT)}: not understood:\n{paragraph}")
        noted.add((lines[0], lines[1][2:].strip(), lines[2][1:].strip()))
    return noted


def is_noted(fault, noted):
    return (fault.path, fault.before.strip(), fault.after.strip()) in noted


# ---- what is known -------------------------------------------------------------------------------


def digest(*texts):
    return hashlib.sha256("\0".join(texts).encode()).hexdigest()


class Known:
    """The verdicts, kept from run to run."""

    def __init__(self, is_fresh):
        files = {path: digest((ROOT / path).read_bytes().hex()) for path in tree_files(".")}
        tests = {path: text for path, text in files.items() if path.startswith(TESTS)}
        sources = {path: text for path, text in files.items() if path.startswith(tuple(MUTATED))}
        self.state = {"sources": digest(*sources, *sources.values()),
                      "tests": digest(*tests, *tests.values())}
        self.verdicts = {}
        if is_fresh or not KNOWN.exists():
            return
        old = json.loads(KNOWN.read_text())
        if old["sources"] != self.state["sources"]:
            print("mutants: the sources have changed: all mutants are run again")
            return
        self.verdicts = old["verdicts"]
        if old["tests"] != self.state["tests"]:
            print("mutants: the tests have changed: what survived is run again")
            self.verdicts = {key: it for key, it in self.verdicts.items() if it[0] != SURVIVED}

    def record(self, fault, verdict, how):
        self.verdicts[fault.key] = [verdict, how]
        new = KNOWN.with_suffix(".new")
        new.write_text(json.dumps({**self.state, "verdicts": self.verdicts}, indent=1))
        new.rename(KNOWN)


# ---- running -------------------------------------------------------------------------------------


def run(command, timeout, **options):
    """The exit status, or None after the timeout."""
    with open(LOG, "wb") as output:
        try:
            return subprocess.run(
                ["nice", *command], cwd=TREE, check=False, timeout=timeout,
                stdin=subprocess.DEVNULL, stdout=output, stderr=output, **options,
            ).returncode
        except subprocess.TimeoutExpired:
            return None


def limit_resources():
    """A mutant may do anything."""
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_FSIZE, (FILE_SIZE, FILE_SIZE))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


class Program:
    """A test program."""

    def __init__(self, name):
        self.name = name
        self.path = BUILD / "tests" / name
        self.original = None  # what the program is without a fault
        self.seconds = BUILD_SECONDS

    def build(self):
        return run(["cmake", "--build", str(BUILD), "--target", self.name], BUILD_SECONDS) == 0

    def content(self):
        """Of all that it runs."""
        libraries = sorted(BUILD.rglob("libtolva*.so"))
        return digest(*(path.read_bytes().hex() for path in [self.path, *libraries]))

    def run(self):
        """Nothing when it succeeds; else the test that failed, or in which it ended."""
        temporary = FOLDER / "temporary"
        shutil.rmtree(temporary, ignore_errors=True)
        temporary.mkdir()
        environment = {"TMPDIR": str(temporary), "TOLVA_DIFFERENTIAL_LENGTH": "3"}
        status = run(
            [str(self.path), "--gtest_fail_fast"], 10 + 10 * self.seconds,
            env={**os.environ, **environment}, preexec_fn=limit_resources,
        )
        if status == 0:
            return ""
        test = "before the first test"
        for line in LOG.read_text(errors="replace").splitlines():
            if line.startswith("[ RUN      ] "):
                test = line[13:]
            if line.startswith("[  FAILED  ] "):
                return line[13:].split(",")[0].split(" (")[0]
        return f"{test} ({'hangs' if status is None else f'status {status}'})"


def copy_tree():
    """Only what has changed, so that no more than that is compiled."""
    wanted = set(tree_files("."))
    for path in wanted:
        source, target = ROOT / path, TREE / path
        if not target.exists() or target.read_bytes() != source.read_bytes():
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(source, target)
    for folder, folders, files in os.walk(TREE):
        if folder == str(TREE) and "build" in folders:
            folders.remove("build")
        for path in (pathlib.Path(folder) / name for name in files):
            if str(path.relative_to(TREE)) not in wanted:
                path.unlink()


def prepare():
    """Builds and tests the tree as it is; the test programs, the fastest first."""

    def require(holds, what):
        if not holds:
            print(*LOG.read_text(errors="replace").splitlines()[-30:], sep="\n")
            sys.exit(f"mutants: {what}, without a fault")

    copy_tree()
    options = ["-DTOLVA_DEVELOPER=OFF", "-DTOLVA_TESTS=ON", "-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"]
    configured = run(["cmake", "--preset", "linux-release", *options], BUILD_SECONDS)
    require(configured == 0, "the tree cannot be configured")
    listed = subprocess.run(
        ["ctest", "--test-dir", str(BUILD), "--show-only=json-v1"],
        check=True, capture_output=True, text=True,
    ).stdout
    programs = [Program(test["name"]) for test in json.loads(listed)["tests"]]
    for program in programs:
        require(program.build(), f"{program.name} cannot be built")
    for program in programs:
        start = time.monotonic()
        failed = program.run()
        require(not failed, f"{program.name} fails: {failed}")
        program.seconds = time.monotonic() - start
        program.original = program.content()
    return sorted(programs, key=lambda program: program.seconds)


def judge(fault, programs):
    """The verdict on the tree as it is now, and which test has caught it."""
    differs = False
    if fault.path == TABLES and run(MUST_FAIL, BUILD_SECONDS) != 0:
        return CAUGHT, MUST_FAIL[0]
    for program in programs:
        if not program.build():
            return NOT_COMPILED, ""
        if program.content() != program.original:
            differs = True
            failed = program.run()
            if failed:
                return CAUGHT, failed
    return (SURVIVED if differs else SAME), ""


def run_mutant(fault, programs):
    target = TREE / fault.path
    original = target.read_text()
    target.write_text(fault.apply(original))
    try:
        return judge(fault, programs)
    finally:
        target.write_text(original)


def run_all(chosen, known):
    waiting = [fault for fault in chosen if fault.key not in known.verdicts]
    if not waiting:
        return
    print(f"mutants: {len(waiting)} of {len(chosen)} to run", flush=True)
    programs = prepare()
    for number, fault in enumerate(waiting, 1):
        start = time.monotonic()
        verdict, how = run_mutant(fault, programs)
        known.record(fault, verdict, how)
        print(f"[{number:3}/{len(waiting)}] {time.monotonic() - start:4.0f} s  "
              f"{fault.path}:{fault.line} ({fault.kind}): {verdict}{': ' + how if how else ''}",
              flush=True)


def report(chosen, known):
    """Whether enough are caught."""
    by_verdict = {CAUGHT: [], SURVIVED: []}
    for fault in chosen:
        by_verdict.setdefault(known.verdicts[fault.key][0], []).append(fault)
    for fault in by_verdict[SURVIVED]:
        print(f"\nsurvivor: {fault.path}:{fault.line} ({fault.kind})\n{spell(fault)}")
    caught, survived = len(by_verdict[CAUGHT]), len(by_verdict[SURVIVED])
    score = 100 * caught / max(1, caught + survived)
    counts = ", ".join(f"{len(those)} {verdict}" for verdict, those in by_verdict.items())
    print(f"\nmutants: {counts}; score {score:.1f} %, wanted {WANTED} %")
    return score >= WANTED


def spell(fault):
    return f"  - {fault.before.strip()}\n  + {fault.after.strip()}"


def main():
    parser = argparse.ArgumentParser(
        description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter
    )
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--count", type=int, default=100)
    parser.add_argument("--only", nargs="+", default=MUTATED, metavar="PATH")
    parser.add_argument("--kind", nargs="+", metavar="KIND")
    parser.add_argument("--fresh", action="store_true", help="forget what is known")
    parser.add_argument("--show", action="store_true")
    arguments = parser.parse_args()

    noted = read_equivalent()
    found = [fault for fault in find_faults(arguments.only, arguments.kind)
             if not is_noted(fault, noted)]
    chosen = choose(found, arguments.seed, arguments.count)
    if not chosen:
        sys.exit("mutants: there is nothing to change")
    if arguments.show:
        for fault in chosen:
            print(f"{fault.path}:{fault.line} ({fault.kind})\n{spell(fault)}")
        return 0
    FOLDER.mkdir(parents=True, exist_ok=True)
    lock = open(FOLDER / "lock", "w", encoding="ascii")
    try:
        fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
    except BlockingIOError:
        sys.exit("mutants: another run is under way")
    known = Known(arguments.fresh)
    run_all(chosen, known)
    return 0 if report(chosen, known) else 1


if __name__ == "__main__":
    try:
        sys.exit(main())
    except KeyboardInterrupt:
        sys.exit("\nmutants: interrupted; the next run goes on here")

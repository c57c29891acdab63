#!/usr/bin/python3
"""Runs clang-tidy over all sources that the preset linux-clang compiles.

  tidy.py [--all]      --all: those as well that have been found clean as they are

A source that was clean is not checked again until it, a header that it includes, the way it is
compiled or the checks change; what that was is kept in build/tidy.
"""

import argparse
import concurrent.futures
import hashlib
import json
import os
import pathlib
import shlex
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "linux-clang"
FOLDER = ROOT / "build" / "tidy"
PLUGIN = ROOT / "tools" / "tidy" / "own_declarations.cpp"
LLVM = "/usr/lib/llvm-14"

# It has every accessor of every interface: it takes minutes, for two macros.
LEFT_OUT = {"tests/tables/elements.cpp"}


class Source:
    def __init__(self, entry, version):
        self.path = os.path.relpath(entry["file"], ROOT)
        self.command = [word for word in shlex.split(entry["command"]) if word != "ccache"]
        self.directory = entry["directory"]
        self.stamp = FOLDER / (self.path.replace("/", "-") + ".json")
        self.version = version
        self.known = json.loads(self.stamp.read_text()) if self.stamp.exists() else {}

    def configurations(self):
        """The files that say what is checked."""
        folders = [ROOT / folder for folder in pathlib.PurePath(self.path).parents]
        return [str(path) for folder in folders if (path := folder / ".clang-tidy").exists()]

    def included(self):
        """The source and the project's headers that it includes."""
        options = self.command[1 : self.command.index("-o")] + self.command[-1:]
        rule = subprocess.run(
            [self.command[0], *options, "-MM", "-MF", "-"],
            cwd=self.directory, check=True, capture_output=True, text=True,
        ).stdout
        words = rule.partition(":")[2].replace("\\\n", " ").split()
        return sorted({os.path.normpath(os.path.join(self.directory, word)) for word in words})

    def digest(self, files):
        digest = hashlib.sha256(json.dumps([self.version, self.command]).encode())
        for path in files + self.configurations():
            if not os.path.exists(path):
                return None
            digest.update(path.encode() + b"\0" + pathlib.Path(path).read_bytes())
        return digest.hexdigest()

    def is_known_clean(self):
        return "digest" in self.known and self.known["digest"] == self.digest(self.known["files"])

    def check(self):
        """What clang-tidy finds; nothing: the source is clean."""
        files = self.included()
        digest = self.digest(files)
        start = time.monotonic()
        result = subprocess.run(
            ["nice", f"{LLVM}/bin/clang-tidy", "-p", FOLDER, "--quiet", "--warnings-as-errors=*",
             "--load", FOLDER / "plugin.so", "--checks=tolva-own-declarations", self.path],
            cwd=ROOT, check=False, capture_output=True, text=True,
        )
        seconds = time.monotonic() - start
        if result.returncode != 0:
            self.stamp.unlink(missing_ok=True)
            return result.stdout.strip() or result.stderr.strip()
        stamp = {"digest": digest, "files": files, "seconds": round(seconds, 1)}
        self.stamp.write_text(json.dumps(stamp, indent=1))
        return ""


def make_plugin():
    """Compiles what keeps clang-tidy to the project's own declarations."""
    subprocess.run(
        [f"{LLVM}/bin/clang++", "-std=c++17", "-O1", "-fPIC", "-shared", "-fno-rtti",
         "-isystem", f"{LLVM}/include", PLUGIN, "-o", FOLDER / "plugin.so"],
        check=True,
    )


def main():
    parser = argparse.ArgumentParser(
        description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter
    )
    parser.add_argument("--all", action="store_true", help="check the clean ones again")
    arguments = parser.parse_args()

    subprocess.run(
        ["cmake", "--build", str(BUILD), "--target", "lists", "tolva_sentences"],
        check=True, capture_output=True
    )
    # Sources that several programs have are compiled several times: once is enough here.
    entries = {}
    for entry in json.loads((BUILD / "compile_commands.json").read_text()):
        path = os.path.relpath(entry["file"], ROOT)
        if not path.startswith(("..", "build/")) and path not in LEFT_OUT:
            entries.setdefault(path, entry)
    FOLDER.mkdir(parents=True, exist_ok=True)
    (FOLDER / "compile_commands.json").write_text(json.dumps(list(entries.values())))
    version = subprocess.run(
        [f"{LLVM}/bin/clang-tidy", "--version"], check=True, capture_output=True, text=True
    ).stdout + PLUGIN.read_text()
    sources = [Source(entry, version) for entry in entries.values()]
    unknown = [source for source in sources if arguments.all or not source.is_known_clean()]
    # The longest first, so that all processors are busy to the end.
    unknown.sort(key=lambda source: -source.known.get("seconds", 60))

    if unknown:
        make_plugin()
    failed = []
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as workers:
        for source, findings in zip(unknown, workers.map(Source.check, unknown)):
            if findings:
                failed.append(source.path)
                print(findings, flush=True)
    for path in failed:
        print(f"not clean: {path}")
    print(f"tidy: {len(unknown)} of {len(sources)} sources checked, {len(failed)} not clean")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/python3
"""Makes the lists of contents of the packages, in the form of CycloneDX 1.5:
  make-sbom.py <version> <folder>

The library contains nothing of others. The tool contains CLI11 and JSON for Modern C++, and the archive for
Windows the runtime libraries of MinGW-w64 as well; their versions are those of the Debian packages here.
"""

import datetime
import json
import os
import pathlib
import subprocess
import sys
import uuid

CLI11 = ("CLI11", "libcli11-dev", "BSD-3-Clause")
JSON = ("nlohmann-json", "nlohmann-json3-dev", "MIT")
GCC = ("MinGW-w64 runtime of GCC (libstdc++, libgcc)", "gcc-mingw-w64-x86-64-posix-runtime",
       "GPL-3.0-or-later WITH GCC-exception-3.1")
THREADS = ("winpthreads of MinGW-w64", "mingw-w64-x86-64-dev", "MIT")
LISTS = {
    "libtolva": ("library", []),
    "tolva": ("application", [CLI11, JSON]),
    "tolva-windows": ("application", [CLI11, JSON, GCC, THREADS]),
}


def version_of(package):
    return subprocess.run(["dpkg-query", "-W", "-f=${Version}", package], check=True, capture_output=True,
                          text=True).stdout


def component(name, package, licence):
    version = version_of(package)
    kind = {"expression": licence} if " " in licence else {"license": {"id": licence}}
    return {"type": "library", "bom-ref": package, "name": name, "version": version, "licenses": [kind],
            "purl": f"pkg:deb/debian/{package}@{version.replace('+', '%2B')}?distro=bookworm"}


def make(name, version, kind, contents, time):
    described = {"type": kind, "bom-ref": name, "name": name, "version": version}
    components = [component(*one) for one in contents]
    return {"bomFormat": "CycloneDX", "specVersion": "1.5", "version": 1,
            "serialNumber": f"urn:uuid:{uuid.uuid5(uuid.NAMESPACE_URL, f'{name}-{version}-{time}')}",
            "metadata": {"timestamp": time, "component": described},
            "components": components,
            "dependencies": [{"ref": name, "dependsOn": [one["bom-ref"] for one in components]}]}


def main():
    version, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    now = datetime.datetime.now(datetime.timezone.utc).timestamp()
    seconds = int(os.environ.get("SOURCE_DATE_EPOCH", now))
    time = datetime.datetime.fromtimestamp(seconds, datetime.timezone.utc).strftime("%Y-%m-%dT%H:%M:%SZ")
    for name, (kind, contents) in LISTS.items():
        text = json.dumps(make(name, version, kind, contents, time), indent=2)
        (folder / f"{name}-{version}.cdx.json").write_text(text + "\n", encoding="utf-8")


main()

#!/usr/bin/python3
"""Compiles the library for Microsoft's target with Clang, and compares its binary interface with abi/.

  msvc.py [clang++]

The headers are libc++'s and MinGW-w64's, abi/prelude.h has what they lack. The library is compiled with
both XML layers, and the support library; of the objects, the exports and the tables of virtual functions
of the classes behind the interfaces have to be those of abi/. The tool and the tests are parsed, without
making objects; of the tool and its tests, those sources are left out that use what this libc++ lacks,
std::ranges algorithms and std::jthread.

What this cannot show: Microsoft's own front end and library, the header xmllite.h of the Windows SDK,
linking and running.
"""

import concurrent.futures
import os
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
OBJECTS = ROOT / "build" / "msvc"
LLVM = "/usr/lib/llvm-14"
CLANG = sys.argv[1] if len(sys.argv) > 1 else "clang++-14"

FLAGS = """
    --target=x86_64-pc-windows-msvc -fms-compatibility-version=19.33 -fms-extensions -std=c++20 -nostdinc
    -Wall -Wextra -Wmicrosoft -Werror
    -D_LIBCPP_NO_VCRUNTIME -D_LIBCPP_HAS_THREAD_API_WIN32 -D_CRT_CONST_CORRECT_OVERLOADS
    -DUNICODE -DNOMINMAX -DWIN32_LEAN_AND_MEAN -D_WIN32_WINNT=0x0A00
    -Iinclude -Isrc -I. -Isupport/include -include abi/prelude.h
""".split()
for headers in [f"{LLVM}/include/c++/v1", f"{LLVM}/lib/clang/14.0.6/include", "tests/windows-sdk",
                "/usr/share/mingw-w64/include", "/usr/src/googletest/googletest/include",
                "/usr/src/googletest/googlemock/include"]:
    FLAGS += ["-isystem", headers]

# The classes that no factory makes: namespace, class, interface.
INNER = [("TolvaInterface", "CILPInLineProxy", "IILPInLineProxy"),
         ("CpsAnalysisDetailsConf", "CcustomDisplayText", "IcustomDisplayText")]

OWN = ["-DTOLVA_OWN_XML_LAYER"]
BUILDING = ["-DTOLVA_BUILDING"]
WITHIN = ["-Itests", "-Itests/seam", f"-I{OBJECTS}", '-DTOLVA_DOCUMENTS=""', '-DTOLVA_SOURCES=""']
TOOL = ["-DTOLVA_API=", "-Icli/windows", f"-isystem{OBJECTS}/headers", '-DTOLVA_VERSION=""']
MISSING = re.compile(r"std::(ranges::|jthread|stop_token)")
PARSING = ["-fsyntax-only", "-Wno-unused-command-line-argument"]


def paths(*patterns):
    return sorted({str(path.relative_to(ROOT)) for pattern in patterns for path in ROOT.glob(pattern)})


def jobs():
    """What is compiled: (name of the object, source, further flags)."""
    library = paths("src/**/*.cpp", "platform/utf.cpp", "platform/windows/open_to_read.cpp")
    for source in library + paths("platform/xml/*.cpp"):
        yield "own", source, OWN + BUILDING
    for source in library + paths("platform/windows/xmllite.cpp"):
        yield "xmllite", source, BUILDING
    for source in paths("support/*.cpp", "support/windows/*.cpp"):
        yield "support", source, []
    for source in paths("tests/**/*_test.cpp", "tests/support/*.cpp", "tests/tables/*.cpp"):
        if "posix" in source or "/differential/" in source or lacks_something(source):
            continue
        yield "tests", source, OWN + WITHIN + TOOL + PARSING
    for source in paths("cli/*.cpp", "cli/windows/*.cpp"):
        if not lacks_something(source):
            yield "tool", source, OWN + TOOL + PARSING


def lacks_something(source):
    """Whether a source of the tool, or a header of its name, uses what this libc++ does not have."""
    if "cli/" not in source:
        return False
    files = [ROOT / source, (ROOT / source).with_suffix(".h")]
    return any(MISSING.search(file.read_text(encoding="utf-8")) for file in files if file.exists())


def link_headers():
    """The headers of the tool's libraries, without their neighbours."""
    folder = OBJECTS / "headers"
    folder.mkdir(parents=True, exist_ok=True)
    for name in ["CLI", "nlohmann"]:
        if not (folder / name).exists():
            (folder / name).symlink_to(f"/usr/include/{name}")


def make_lists():
    """The lists of accessors and enumerators that tests include."""
    folder = OBJECTS / "tables"
    folder.mkdir(parents=True, exist_ok=True)
    for what in ["accessors", "enumerators"]:
        with open(folder / f"{what}.def", "w", encoding="utf-8") as made:
            subprocess.run([f"tests/tables/list-{what}.sh", *paths("include/**/*.h")], cwd=ROOT, stdout=made,
                           check=True)


def compile_one(job):
    name, source, flags = job
    target = OBJECTS / name / (source.replace("/", "-") + ".obj")
    target.parent.mkdir(parents=True, exist_ok=True)
    layouts = []
    if source == "src/exports/factories.cpp":
        layouts = ["-Xclang", "-fdump-vtable-layouts"]
    done = subprocess.run([CLANG, *flags, *FLAGS, *layouts, "-c", source, "-o", str(target)], cwd=ROOT,
                          capture_output=True, text=True, check=False)
    return job, target, done


def exports(objects):
    """The names that the linker is told to export."""
    said = subprocess.run(["llvm-readobj", "--coff-directives", *objects], capture_output=True, text=True,
                          check=True).stdout
    return sorted(re.findall(r"/EXPORT:\"?([^\s,\"]+)", said))


def plain(function):
    """A virtual function without its class and its types, which a class may narrow."""
    name = re.search(r"(~?)(\w+)\(", function)
    return "~" if name[1] else name[2]


def slots(layouts):
    """The virtual functions of each class, by the most derived one that has the table."""
    found = {}
    for part in layouts.split("VFTable for ")[1:]:
        lines = part.split("\n\n")[0].splitlines()
        whole = re.findall(r"'([^']+)'", lines[0])[-1]
        table = [line.split(" | ", 1)[1] for line in lines[1:] if re.match(r" +\d+ \| ", line)]
        if table and table[0].endswith(" RTTI"):
            found[whole] = [plain(function) for function in table[1:]]
    return found


def expected_slots():
    found = {}
    for part in (ROOT / "abi" / "slots.txt").read_text(encoding="utf-8").strip().split("\n\n"):
        name, *functions = part.splitlines()
        found[name] = [plain(function) for function in functions]
    return found


def compare_slots(layouts):
    """Faults of the classes behind the interfaces."""
    made, expected, count = slots(layouts), expected_slots(), 0
    factories = re.findall(r"^TOLVA_FACTORY\((\w+), *\w+, *(\w+), *(\w+)\)",
                           (ROOT / "src/exports/factories.def").read_text(encoding="utf-8"), re.MULTILINE)
    for space, node, interface in factories + INNER:
        wanted = expected[f"{space}::{interface}"]
        found = made.get(f"{space}::{node}")
        count += len(wanted)
        if found != wanted:
            yield f"{space}::{node} has the slots {found}, and not {wanted}"
    print(f"{count} slots of classes behind interfaces")


def main():
    faults = []
    objects, layouts, count = [], "", {}
    make_lists()
    link_headers()
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for (name, source, _), target, done in pool.map(compile_one, jobs()):
            count[name] = count.get(name, 0) + 1
            if done.returncode != 0:
                faults.append(f"{source} ({name}):\n{done.stderr}")
            elif name == "own":
                objects.append(str(target))
                if "VFTable" in done.stdout:
                    layouts += done.stdout
    print(", ".join(f"{name}: {number} sources" for name, number in count.items()))
    if not faults:
        names = exports(objects)
        wanted = (ROOT / "abi/exports-windows-msvc.txt").read_text(encoding="utf-8").split()
        print(f"{len(names)} exports")
        faults += [f"exports differ: {name}" for name in sorted(set(names) ^ set(wanted))]
        faults += compare_slots(layouts)
    for fault in faults:
        print(fault, file=sys.stderr)
    return 1 if faults else 0


sys.exit(main())

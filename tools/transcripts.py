#!/usr/bin/python3
"""Runs the transcripts of a page and compares what they show:
  transcripts.py [--update] <page> <tolva> [argument of tolva...]

A transcript is a block ```console. A line "$ command" is run by the shell, in a folder that has copies of
the example documents; the lines after it are its output. A line "..." stands for any lines. --update writes
the output into the page, where there is no such line. Paths of Windows are compared as if they had slashes.
"""

import os
import pathlib
import shlex
import shutil
import subprocess
import sys
import tempfile

ANYTHING = '...'


def matches(expected, actual):
    if ANYTHING not in expected:
        return expected == actual
    at = expected.index(ANYTHING)
    if expected[:at] != actual[:at]:
        return False
    rest = expected[at + 1:]
    return any(matches(rest, actual[start:]) for start in range(at, len(actual) + 1))


def with_slashes(lines):
    return [line.replace('\\', '/') for line in lines]


def run(command, folder, environment):
    # A pipe would be open as long as what the command has left running: Wine's server.
    with tempfile.TemporaryFile() as output:
        subprocess.run(['bash', '-c', command], cwd=folder, env=environment, check=False,
                       stdout=output, stderr=subprocess.STDOUT)
        output.seek(0)
        return output.read().decode('utf-8').splitlines()


def main():
    arguments = sys.argv[1:]
    is_update = arguments[0] == '--update'
    page, *tool = arguments[1:] if is_update else arguments
    tool = [str(pathlib.Path(part).absolute()) if pathlib.Path(part).exists() else part for part in tool]
    lines = pathlib.Path(page).read_text(encoding='utf-8').splitlines()
    result = []
    count = 0
    failed = False
    with tempfile.TemporaryDirectory() as temporary:
        programs = pathlib.Path(temporary) / 'bin'
        programs.mkdir()
        starter = programs / 'tolva'
        starter.write_text(f'#!/bin/sh\nexec {shlex.join(tool)} "$@"\n')
        starter.chmod(0o755)
        folder = pathlib.Path(temporary) / 'documents'
        shutil.copytree(pathlib.Path(__file__).parent.parent / 'examples/documents', folder)
        environment = dict(os.environ, PATH=f'{programs}:{os.environ["PATH"]}', COLUMNS='80')
        index = 0
        is_console = False
        while index < len(lines):
            line = lines[index]
            index += 1
            result.append(line)
            if line.startswith('```'):
                is_console = line == '```console'
            if not is_console or not line.startswith('$ '):
                continue
            start = index
            while not lines[index].startswith(('$ ', '```')):
                index += 1
            expected = lines[start:index]
            actual = run(line[2:], folder, environment)
            count += 1
            if matches(with_slashes(expected), with_slashes(actual)):
                result += expected
            elif is_update and ANYTHING not in expected:
                result += actual
            else:
                failed = True
                result += expected
                print(f'{page}:{start}: {line}', *(f'  {one}' for one in actual), sep='\n')
    if is_update:
        pathlib.Path(page).write_text('\n'.join(result) + '\n', encoding='utf-8')
    print(f'{page}: {count} commands')
    return 1 if failed or count == 0 else 0


if __name__ == '__main__':
    sys.exit(main())

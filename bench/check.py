#!/usr/bin/python3
"""Times `tolva check` and `tolva diff` as whole processes:
  check.py <tolva> <examples>

A policy of 10 MB, beside xmllint with the tool's XML Schema, and against one with a hundred other values; and a
folder of 1,000 small documents, on all processors and on one. The time is the shortest of several runs; the processor's time is that of the same run.
Fails if xmllint takes less than five times as long.
"""

import os
import pathlib
import re
import resource
import shutil
import subprocess
import sys
import tempfile
import time

RUNS = 7
LEAST_RATIO = 5


def measure(command, runs=RUNS, status=0):
    """The shortest run: seconds on the clock, and on the processor."""
    best = (float('inf'), 0.0)
    for _ in range(runs):
        before = resource.getrusage(resource.RUSAGE_CHILDREN)
        start = time.perf_counter()
        done = subprocess.run(command, check=False, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        if done.returncode != status:
            raise subprocess.CalledProcessError(done.returncode, command)
        elapsed = time.perf_counter() - start
        after = resource.getrusage(resource.RUSAGE_CHILDREN)
        used = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
        best = min(best, (elapsed, used))
    return best


def large_policy(example, size):
    """The example with its locations again and again."""
    text = re.sub('<!--.*?-->', '', example.read_text(encoding='utf-8'), flags=re.DOTALL)
    start = text.index('<Location ')
    end = text.rindex('</Location>') + len('</Location>')
    locations = text[start:end] + '\n'
    return text[:start] + locations * (size // len(locations.encode()) + 1) + text[end:]


def tell(what, times):
    print(f'{what:<42} {times[0] * 1000:8.1f} ms, processor {times[1] * 1000:8.1f} ms')


def main():
    tolva, examples = sys.argv[1], pathlib.Path(sys.argv[2])
    with tempfile.TemporaryDirectory() as temporary:
        folder = pathlib.Path(temporary)
        policy = folder / 'policy.xml'
        policy.write_text(large_policy(examples / 'policy.xml', 10_000_000), encoding='utf-8')
        schema = folder / 'policy.xsd'
        subprocess.run([tolva, 'schema', 'xsd', 'policy', '-o', schema], check=True)
        check = measure([tolva, 'check', policy])
        rival = measure(['xmllint', '--noout', '--nonet', '--schema', schema, policy])
        tell('10 MB policy, tolva check', check)
        tell('10 MB policy, xmllint --schema', rival)
        # On a busy machine the processor's time says more.
        ratio = rival[1] / check[1]
        print(f'xmllint takes {ratio:.1f} times as long')

        other = folder / 'other.xml'
        parts = policy.read_text(encoding='utf-8').split(' Sid="11"')
        every = len(parts) // 100
        text = ''.join(part + (' Sid="12"' if i % every == 0 else ' Sid="11"')
                       for i, part in enumerate(parts[:-1])) + parts[-1]
        other.write_text(text, encoding='utf-8')
        tell('10 MB policies, tolva diff', measure([tolva, 'diff', policy, other], status=1))

        small = folder / 'small'
        small.mkdir()
        for number in range(1000):
            shutil.copy(examples / 'policy.xml', small / f'{number}.xml')
        processors = sorted(os.sched_getaffinity(0))
        tell(f'1,000 documents, {len(processors)} processors', measure([tolva, 'check', '-r', small]))
        one = ['taskset', '-c', str(processors[0])]
        tell('1,000 documents, one processor', measure([*one, tolva, 'check', '-r', small]))
    return 0 if ratio >= LEAST_RATIO else 1


if __name__ == '__main__':
    sys.exit(main())

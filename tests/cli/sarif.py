#!/usr/bin/python3
"""Validates what `tolva check --format sarif` prints against the schema of SARIF 2.1.0:
  sarif.py <schema> <tolva> [argument of tolva...] -- <document>...
"""

import json
import subprocess
import sys

import jsonschema


def main():
    end = sys.argv.index('--')
    tolva, documents = sys.argv[2:end], sys.argv[end + 1:]
    with open(sys.argv[1], encoding='utf-8-sig') as file:
        validator = jsonschema.Draft7Validator(json.load(file))
    outcome = subprocess.run([*tolva, 'check', '--format', 'sarif', 'none.xml', *documents], check=False,
                             capture_output=True)
    log = json.loads(outcome.stdout)
    faults = [f'{fault.json_path}: {fault.message[:300]}' for fault in validator.iter_errors(log)]
    run = log['runs'][0]
    if not run['results'] or not run['invocations'][0]['toolExecutionNotifications']:
        faults.append('there is nothing to validate')
    print('\n'.join(faults) or f'{len(run["results"])} results')
    return 1 if faults else 0


if __name__ == '__main__':
    sys.exit(main())

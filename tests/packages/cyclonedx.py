#!/usr/bin/python3
"""Validates lists of contents against the schema of CycloneDX 1.5:
  cyclonedx.py <folder with the schemas> <list>...
"""

import json
import pathlib
import sys

import jsonschema

BASE = "http://cyclonedx.org/schema/"


def read(path):
    return json.loads(pathlib.Path(path).read_text(encoding="utf-8"))


def main():
    folder = pathlib.Path(sys.argv[1])
    store = {BASE + path.name: read(path) for path in folder.glob("*.schema.json")}
    schema = store[BASE + "bom-1.5.SNAPSHOT.schema.json"]
    resolver = jsonschema.RefResolver(BASE, schema, store=store)
    validator = jsonschema.Draft7Validator(schema, resolver=resolver)
    faults = [f"{path}: {fault.path}: {fault.message[:300]}"
              for path in sys.argv[2:] for fault in validator.iter_errors(read(path))]
    print("\n".join(faults) or f"{len(sys.argv) - 2} lists of contents")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())

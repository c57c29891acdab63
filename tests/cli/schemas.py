#!/usr/bin/python3
"""Tries the tool's schemas on documents:
  schemas.py <tolva> <tolva_samples> <examples> [number of random documents]

XML Schemas, with xmllint. The strict form accepts examples, new documents and what the library writes of
random content, and refuses what the library refuses. The lax form accepts besides whatever the library
accepts of examples that were changed.

JSON Schemas, with Python's jsonschema. They accept exactly what the tool reads as a document.
"""

import collections
import json
import multiprocessing
import pathlib
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET

import jsonschema


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def refused_by(schema, files):
    """The names of those files that xmllint finds invalid."""
    refused = set()
    for start in range(0, len(files), 500):
        command = ['xmllint', '--noout', '--nonet', '--schema', schema, *files[start:start + 500]]
        outcome = subprocess.run(command, capture_output=True, text=True, check=False)
        for line in outcome.stderr.splitlines():
            if line.endswith(' fails to validate'):
                refused.add(line.removesuffix(' fails to validate'))
            elif 'failed to compile' in line or 'internal error' in line:
                raise RuntimeError(line)
    return refused


def variants(example):
    """What the library reads as it is, and the strict form refuses: unknown attributes, children in
    reverse, a great number."""
    unknown, turned, great = (ET.parse(example).getroot() for _ in range(3))
    for element in unknown.iter():
        element.set('Unknown', '1')
    for element in turned.iter():
        element[:] = reversed(element)
    has_order = any(len({child.tag for child in element}) > 1 for element in turned.iter())
    numbers = [(element, name) for element in great.iter() for name, value in element.items()
               if value.isdigit() and name not in ('BypassVersion', 'SerialNumber', 'VendorID', 'SN', 'Port',
                                                   'RefId', 'Version', 'transactionID', 'version')]
    for element, name in numbers[:1]:
        element.set(name, '99999999999')
    return [unknown] + [turned] * has_order + [great] * bool(numbers)


def check_xml(tolva, document, folder, example):
    faults = []

    def expect(form, kind, files, accepted):
        refused = refused_by(schemas[form], files)
        wrong = refused if accepted else set(files) - refused
        verb = 'refuses' if accepted else 'accepts'
        faults.extend(f'{document}: the {form} form {verb} {kind}: {name}' for name in sorted(wrong)[:5])
        return len(files)

    schemas = {'strict': folder / 'strict.xsd', 'lax': folder / 'lax.xsd', 'common': folder / 'common.xsd'}
    run(tolva, 'schema', 'xsd', document, '-o', schemas['strict'])
    run(tolva, 'schema', 'xsd', document, '--lax', '-o', schemas['lax'])
    run(tolva, 'schema', 'xsd', '-o', schemas['common'])
    run(tolva, 'new', document, '-o', folder / 'random-least.xml')
    run(tolva, 'new', document, '--full', '-o', folder / 'random-full.xml')
    changed = []
    for index, root in enumerate(variants(example)):
        changed.append(str(folder / f'variant-{index}.xml'))
        ET.ElementTree(root).write(changed[-1], encoding='utf-8', xml_declaration=True)

    names = lambda pattern: sorted(str(file) for file in folder.glob(pattern))
    written = [str(example), *names('random-*.xml')]
    count = 0
    for form in schemas:
        count += expect(form, 'what the library writes', written, True)
        count += expect(form, 'what the library refuses', names('refused-*.xml'), False)
    count += expect('lax', 'what the library reads', names('altered-*.xml') + changed, True)
    count += expect('strict', 'what the library does not write', changed, False)
    return count, faults


def check_json(tolva, document, folder, _):
    schema = json.loads(run(tolva, 'schema', 'json', document))
    jsonschema.Draft202012Validator.check_schema(schema)
    validators = {'': jsonschema.Draft202012Validator(schema)}
    for name in schema['$defs']:
        validators[name] = jsonschema.Draft202012Validator({'$ref': f'#/$defs/{name}', '$defs': schema['$defs']})
    count = 0
    faults = []
    with open(folder / 'values.jsonl', encoding='utf-8') as values:
        for line in values:
            value = json.loads(line)
            count += 1
            if validators[value['definition']].is_valid(value['json']) != value['valid'] and len(faults) < 5:
                verb = 'refuses' if value['valid'] else 'accepts'
                faults.append(f'{document}: the JSON Schema {verb} {value["definition"]} '
                              f'{json.dumps(value["json"])[:300]}')
    return count, faults


def check(task):
    function, *arguments = task
    return (function.__name__, *function(*arguments))


def main():
    tolva, samples, examples, *number = sys.argv[1:]
    with tempfile.TemporaryDirectory() as temporary:
        folder = pathlib.Path(temporary)
        run(samples, folder, *(number or ['1000']))
        documents = [one['name'] for one in json.loads(run(tolva, 'explain', '--format', 'json'))['documents']]
        tasks = [(function, tolva, document, folder / document, pathlib.Path(examples) / f'{document}.xml')
                 for function in (check_json, check_xml) for document in documents]
        counts = collections.Counter()
        failed = False
        with multiprocessing.Pool() as pool:
            for name, count, faults in pool.imap_unordered(check, tasks):
                counts[name] += count
                failed = failed or bool(faults)
                print('\n'.join(faults), end='\n' if faults else '')
    print(f'{len(documents)} documents: {counts["check_xml"]} verdicts on XML, {counts["check_json"]} on JSON')
    return 1 if failed else 0


if __name__ == '__main__':
    sys.exit(main())

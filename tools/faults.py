"""Finds the places in C++ sources where a small fault can be put.

The places are found line by line, by patterns: clang-format leaves spaces around operators, and none
around the brackets of templates. A fault that does not compile is no harm: it is not counted.
"""

import dataclasses
import re

COMMENT = re.compile(r"//.*|/\*[\s\S]*?\*/")
LITERAL = re.compile(r"""(?:u8|[LuU])?(?:"(?:\\.|[^"\\\n])*"|\B'(?:\\.|[^'\\\n])+')""")
LEFT_ALONE = re.compile(r"\s*(#|static_assert|template <|using |.*\bRequire\()")

COMPARISONS = {
    "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"],
    "==": ["!="], "!=": ["=="],
}
OPERATORS = {"+": "-", "-": "+", "+=": "-=", "-=": "+=", "&&": "||", "||": "&&", "&": "|", "|": "&"}
WORDS = {"true": "false", "false": "true", "++": "--", "--": "++"}
RESULTS = {
    "kSuccess": "kFailed", "kFailed": "kSuccess", "kInvalidArgument": "kFailed",
    "S_OK": "E_FAIL", "S_FALSE": "S_OK", "TRUE": "FALSE", "FALSE": "TRUE",
}

OPERATOR = re.compile(r"(?<=[\w)\]] )([<>=!]=|[<>]|[-+]=?|&&?|\|\|?)(?= )")
WORD = re.compile(r"\b(?:true|false)\b|\+\+|--")
CONDITION = re.compile(r"\b(?:if|while) \(")
NUMBER = re.compile(r"(?<![\w'])(?:0x[0-9A-Fa-f]+|[1-9]\d*|0)(?=[uUlL]*(?![\w']))")
RETURNED = re.compile(r"(?<=\breturn )\w+(?=;)")
JUMP = re.compile(r"\b(?:break|continue)(?=;)")
STATEMENT = re.compile(r"(?:^ +|\) |\belse )(\*?[A-Za-z][\w.>\[\]-]*(?:\(.*\)| [-+|&]?= .*));$")
ROW = re.compile(r" +(?:Attr|Elem)<.*,$")
MODIFIER = re.compile(r"(?:(?<=\))|(?<=^ {8}))\.[A-Z]\w+\(")
SETTING = re.compile(r" +\.\w+ = .*,$")
NEEDED_SETTINGS = (".element", ".dialect", ".attributes", ".children")
PURE = re.compile(r" = 0;$")


@dataclasses.dataclass(frozen=True)
class Fault:
    path: str
    kind: str
    line: int  # from 1
    before: str
    after: str

    @property
    def key(self):
        return "\n".join([self.path, str(self.line), self.before, self.after])

    def apply(self, text):
        """The file with the fault; its lines keep their numbers."""
        lines = text.split("\n")
        lines[self.line - 1] = self.after
        return "\n".join(lines)


def faults_of_expressions(code):
    for found in OPERATOR.finditer(code):
        for other in COMPARISONS.get(found[0], []):
            yield "comparison", found.span(), other
        if found[0] in OPERATORS:
            yield "operator", found.span(), OPERATORS[found[0]]
    for found in WORD.finditer(code):
        yield "operator", found.span(), WORDS[found[0]]
    for found in CONDITION.finditer(code):
        end = end_of_brackets(code, found.end() - 1)
        condition = code[found.end() : end - 1]
        if end != 0 and ";" not in condition and " = " not in condition:
            yield "condition", (found.end(), end - 1), lambda text: f"!({text})"


def faults_of_constants(code):
    for found in NUMBER.finditer(code):
        if not PURE.match(code, found.start() - 3):
            value = int(found[0], 0)
            spell = hex if found[0].startswith("0x") else str
            yield "number", found.span(), spell(value + 1)
            if value > 0:
                yield "number", found.span(), spell(value - 1)


def faults_of_statements(code):
    for found in RETURNED.finditer(code):
        if found[0] in RESULTS:
            yield "result", found.span(), RESULTS[found[0]]
    for found in JUMP.finditer(code):
        yield "jump", found.span(), ""
    found = STATEMENT.search(code)
    if found and not found[1].startswith("TOLVA_"):
        yield "statement", found.span(1), ""


def faults_of_tables(code):
    found = ROW.match(code)
    if found:
        yield "row", found.span(), ""
    for found in MODIFIER.finditer(code):
        end = end_of_brackets(code, found.end() - 1)
        if end != 0:
            yield "modifier", (found.start(), end), ""
    found = SETTING.match(code)
    if found and not code.lstrip().startswith(NEEDED_SETTINGS):
        yield "modifier", found.span(), ""


def faults_of_literals(line, code):
    """Names, texts and reports of tables get another letter; a character becomes its neighbor."""
    for found in LITERAL.finditer(line):
        if not code[found.start() :].startswith("~"):
            continue  # in a comment
        letters = [place for place in range(*found.span()) if line[place].isalnum()]
        letters = [place for place in letters if line[place - 1] != "\\" and line[place] not in "LuU"]
        if letters:
            place = letters[len(letters) // 2]
            other = "y" if line[place] == "x" else "x"
            yield "text", (place, place + 1), other


def end_of_brackets(code, start):
    """The place after the bracket that closes the one at `start`; 0: it is in another line."""
    depth = 0
    for place in range(start, len(code)):
        depth += (code[place] == "(") - (code[place] == ")")
        if depth == 0:
            return place + 1
    return 0


def is_needless_break(codes, i):
    """Whether a switch ends here even without its `break`."""
    around = [code.strip() for code in codes[max(i - 1, 0) : i + 3]]
    return around[:2] == ["default:", "break;"] or around[1:] == ["break;", "default:", "break;"]


def without_comments_and_literals(text):
    """The same text, with their characters replaced."""
    both = re.compile(f"(?P<comment>{COMMENT.pattern})|{LITERAL.pattern}")

    def mask(found):
        return re.sub(r"[^\n]", " " if found["comment"] else "~", found[0])

    return both.sub(mask, text)


def find_faults(path, text):
    """All faults that can be put into a file, in the order of its lines."""
    codes = without_comments_and_literals(text).split("\n")
    for number, (line, code) in enumerate(zip(text.split("\n"), codes), 1):
        if LEFT_ALONE.match(code) or is_needless_break(codes, number - 1):
            continue
        code = code.rstrip()
        for kind, (start, end), new in [
            *faults_of_expressions(code), *faults_of_constants(code), *faults_of_statements(code),
            *faults_of_tables(code), *faults_of_literals(line, code),
        ]:
            replacement = new(line[start:end]) if callable(new) else new
            yield Fault(path, kind, number, line, line[:start] + replacement + line[end:])

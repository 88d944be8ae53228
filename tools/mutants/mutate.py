"""The many small ways to break a C++ source, each of which some test should notice."""
import re
from dataclasses import dataclass

from cpp import blank_out, closing, statements


@dataclass
class Mutant:
    """One way to break a source: the text between two positions is replaced."""
    kind: str
    start: int
    end: int
    replacement: str

    def apply(self, text):
        return text[:self.start] + self.replacement + text[self.end:]

    def line(self, text):
        return text.count("\n", 0, self.start) + 1

    def label(self, text):
        """How a mark names it, among those of its line: what is exchanged, or its kind."""
        if self.kind in _EXCHANGED:
            return f"{text[self.start:self.end]} -> {self.replacement}"
        return self.kind

    def difference(self, text):
        """The lines before, marked -, and after, marked +, without their indentation."""
        first = text.rfind("\n", 0, self.start) + 1
        last = text.find("\n", self.end)
        last = len(text) if last < 0 else last
        before = text[first:last]
        after = text[first:self.start] + self.replacement + text[self.end:last]
        return [f"{sign} {line.strip()}" for sign, lines in (("-", before), ("+", after))
                for line in lines.split("\n")]


# Operators stand between spaces; "<" and ">" of a template and "*" of a pointer do not.
_EXCHANGES = {
    "comparison": {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="},
    "arithmetic": {"+": "-", "-": "+", "*": "/", "/": "*", "+=": "-=", "-=": "+="},
    "logic": {"&&": "||", "||": "&&"},
    "truth": {"true": "false", "false": "true"},
    "extreme": {"qMin": "qMax", "qMax": "qMin", "expandedTo": "boundedTo", "boundedTo": "expandedTo"},
}
_EXCHANGED = {*_EXCHANGES, "number"}
_NUMBER = re.compile(r"(?<![\w.])(0x[0-9a-fA-F]+|\d+\.\d*|\d+)(?=[uUlLfF]*(?![\w.]))")
# What only asks for something later does the same a statement sooner.
_LATER = re.compile(r"(update|updateGeometry)\(")
# Where an object is set up, only what is added to a layout has to be in order.
_SET_UP = re.compile(r"(\w+(\(\))?(\.|->))*(set[A-Z]\w*|add(Widget|Layout|Stretch))\(|connect\(")
_ADDED = re.compile(r"(\w+(\.|->))?add(Widget|Layout|Stretch)\(")


def _exchanges(code):
    for kind, pairs in _EXCHANGES.items():
        for old, new in pairs.items():
            pattern = rf"\b{old}\b" if old[0].isalpha() else rf"(?<=\s){re.escape(old)}(?=\s)"
            for match in re.finditer(pattern, code):
                yield Mutant(kind, match.start(), match.end(), new)


def _numbers(code):
    for match in _NUMBER.finditer(code):
        word = match.group()
        if word.startswith("0x"):
            others = [hex(int(word, 16) + 1)]
        elif "." in word:
            value = float(word)
            others = [repr(value * 1.1 or 1.0), repr(value * 0.9 or -1.0)]
        else:
            others = [str(int(word) + 1), f"({int(word) - 1})" if word == "0" else str(int(word) - 1)]
        for other in others:
            yield Mutant("number", match.start(), match.end(), other)


def _negations(code, text):
    for match in re.finditer(r"!(?=[\w(])", code):
        yield Mutant("negation", match.start(), match.end(), "")
    for match in re.finditer(r"(?<=[(,=\s])-(?=[\w(])", code):
        yield Mutant("sign", match.start(), match.end(), "")
    for match in re.finditer(r"\bif \(", code):
        end = closing(code, match.end() - 1)
        condition = code[match.end():end]
        if not re.search(r"\s(==|!=|<|>|<=|>=|&&|\|\|)\s|^!|;", condition):
            yield Mutant("condition", match.end(), end, f"!({text[match.end():end]})")


def _is_order_observable(first, second):
    if _LATER.match(first) or _LATER.match(second):
        return False
    if _ADDED.match(first) and _ADDED.match(second):
        return True
    return not (_SET_UP.match(first) and _SET_UP.match(second))


def _statements(code, text):
    previous = None
    for statement in statements(code):
        if statement.is_jump() or statement.is_expression():
            yield Mutant("dropped", statement.start, statement.end, ";")
        swappable = statement.is_expression() and not statement.controlled
        if swappable and previous and previous.block == statement.block \
                and _is_order_observable(previous.text, statement.text):
            between = text[previous.end:statement.start]
            yield Mutant("order", previous.start, statement.end,
                         text[statement.start:statement.end] + between + text[previous.start:previous.end])
        previous = statement if swappable else None


def mutants(text):
    """All mutants of a source text, from its beginning to its end."""
    code = blank_out(text)
    found = [*_exchanges(code), *_numbers(code), *_negations(code, text), *_statements(code, text)]
    return sorted(found, key=lambda mutant: (mutant.start, mutant.end, mutant.replacement))

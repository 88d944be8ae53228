"""The marks by which a source accepts mutants that change nothing observable.

A mark is a comment of its own right above the line that it is about:

    // mutant [dropped; 0 -> 1]: why nobody can notice
    // the two
    code(0);
"""
import re
from dataclasses import dataclass

from mutate import mutants

_MARK = re.compile(r"// mutant \[([^]]*)\]:(.*)")


@dataclass
class Mark:
    """What is accepted of the code in one line, and why."""
    number: int  # of the mark's own line, from 1 on
    line: int  # of the code
    labels: tuple
    reason: str

    def accepts(self, mutant, text):
        return mutant.line(text) == self.line and mutant.label(text) in self.labels


def marks(text):
    """The marks of a source, from its beginning to its end."""
    lines = text.split("\n")
    found = []
    for index, line in enumerate(lines):
        match = _MARK.fullmatch(line.strip())
        if not match:
            continue
        reason = match.group(2).strip()
        end = index + 1
        is_own = True
        while end < len(lines) and lines[end].strip().startswith("//"):
            is_own = is_own and not _MARK.fullmatch(lines[end].strip())
            if is_own:
                reason += " " + lines[end].strip(" /")
            end += 1
        found.append(Mark(index + 1, end + 1, tuple(label.strip() for label in match.group(1).split(";")), reason))
    return found


def flaws(text):
    """What is wrong with the marks of a source by themselves: no reason, or no such mutant."""
    existing = mutants(text)
    for mark in marks(text):
        if not mark.reason.strip():
            yield f"{mark.number}: a mark without a reason"
        for label in mark.labels:
            if not any(mutant.line(text) == mark.line and mutant.label(text) == label for mutant in existing):
                yield f"{mark.number}: there is no mutant '{label}' in line {mark.line}"

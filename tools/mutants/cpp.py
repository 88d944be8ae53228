"""What has to be understood of C++ to break it: comments, literals and statements."""
import re
from dataclasses import dataclass

_NOT_CODE = re.compile(
    r"""//[^\n]*|/\*.*?\*/|^[ \t]*\#(?:[^\n]*\\\n)*[^\n]*|R"\((?:.*?)\)"|"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])+'""",
    re.DOTALL | re.MULTILINE)
_CONTROL = re.compile(r"\s*(?:else\b(?!\s*if)|else\s+if\b|if\b|for\b|while\b|switch\b|case\b|default\b)\s*")
_LABEL_END = re.compile(r"[^;?(]*?(?<!:):(?!:)")
_KEYWORD = re.compile(
    r"(return|break|continue|using|typedef|static|const|constexpr|auto|class|struct|enum|union|namespace|"
    r"template|public|protected|private|explicit|virtual|inline|friend|throw|goto|extern|Q_[A-Z]+_?[A-Z]*\b(?!\s+\w+\())\b")
_DECLARATION = re.compile(r"[\w:]+(?:<[^;=(]*>)?[\s*&]*[*&\s]\s*[\w:]+\s*(?:[=({\[;,]|$)")
_BLOCK_OPENER = re.compile(r"(?:[)\]{};]|\b(?:else|do|try|const|override|noexcept|mutable))\s*$")
_SCOPE = re.compile(r"\s*(?:namespace|class|struct|enum|union)\b")


def blank_out(text):
    """The text with comments, literals and preprocessor lines turned to spaces, position by position."""
    return _NOT_CODE.sub(lambda match: re.sub(r"[^\n]", " ", match.group()), text)


def without_comments(text):
    """The text without comments and the lines that they leave empty."""
    code = _NOT_CODE.sub(lambda match: "" if match.group().startswith(("//", "/*")) else match.group(), text)
    return "\n".join(line.rstrip() for line in code.split("\n") if line.strip())


def closing(code, opening):
    """The position of the parenthesis that closes the one at the given position."""
    depth = 0
    for position in range(opening, len(code)):
        depth += {"(": 1, ")": -1}.get(code[position], 0)
        if depth == 0:
            return position
    return len(code) - 1


@dataclass
class Statement:
    """A simple statement, less the "if (...)" and such before it, up to and with its semicolon."""
    start: int
    end: int
    controlled: bool
    block: int
    text: str

    def is_expression(self):
        """Whether it calls or assigns something, so that it can be left out."""
        return (re.match(r"[\w(*:+-]", self.text) is not None and not _KEYWORD.match(self.text)
                and not self.text.endswith(("= default;", "= delete;"))
                and (self.text.startswith(("Q_EMIT ", "delete ")) or not _DECLARATION.match(self.text)))

    def is_jump(self):
        return self.text in ("return;", "break;", "continue;")


def _skip_control(code, start, end):
    """Where the statement begins that hangs on the "if", "for" and so on at the start."""
    controlled = False
    while True:
        match = _CONTROL.match(code, start, end)
        if not match:
            break
        controlled = True
        start = match.end()
        if start < end and code[start] == "(":
            start = closing(code, start) + 1
        else:
            label = _LABEL_END.match(code, start, end)
            start = label.end() if label else start
    while start < end and code[start].isspace():
        start += 1
    return start, controlled


def statements(code):
    """The simple statements of blanked-out code, in the order of their ends."""
    found = []
    stack = []
    start = 0
    for position, character in enumerate(code):
        if character in "([":
            stack.append((character, start, position))
        elif character in ")]" and stack:
            stack.pop()
        elif character == "{":
            is_block = bool(_BLOCK_OPENER.search(code[max(0, position - 40):position])
                            or _SCOPE.match(code[start:position]))
            stack.append(("{" if is_block else "init", start, position))
            if is_block:
                start = position + 1
        elif character == "}" and stack:
            kind, outer, _ = stack.pop()
            start = position + 1 if kind == "{" and not (stack and stack[-1][0] in "([") else outer
        elif character == ";" and (not stack or stack[-1][0] == "{"):
            first, controlled = _skip_control(code, start, position)
            block = stack[-1][2] if stack else -1
            if block >= 0 and first < position:
                found.append(Statement(first, position + 1, controlled, block, code[first:position + 1]))
            start = position + 1
    return found

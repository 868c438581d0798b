"""The single-point changes that can be made to a C++ source.

The source is cut into tokens, not parsed. Where that is not enough to tell an operator from
something else (a template's brackets, a reference), the layout of clang-format is: binary operators
have blanks around them, the others have not. Changes that do not compile are sorted out later.
"""

import hashlib
import re
from dataclasses import dataclass

TOKEN = re.compile(
    r"""(?P<skipped>//[^\n]*|/\*.*?\*/|^[ \t]*\#(?:\\\n|[^\n])*|"(?:\\.|[^"\\\n])*"|\s+)
      | (?P<number>0[xX][\da-fA-F']+[uUlL]*|\d[\d']*(?:\.\d*)?(?:[eE][+-]?\d+)?[uUlLfF]*)
      | (?P<character>'(?:\\.|[^'\\\n])+')
      | (?P<word>[A-Za-z_]\w*)
      | (?P<operator><<=|>>=|\.\.\.|::|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|.)""",
    re.VERBOSE | re.DOTALL | re.MULTILINE)

BINARY = {
    "==": ["!="], "!=": ["=="], "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="],
    ">=": [">", "<"], "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["*"], "<<": [">>"],
    ">>": ["<<"], "&": ["|"], "|": ["&"], "^": ["&"], "&&": ["||"], "||": ["&&"], "+=": ["-="],
    "-=": ["+="], "|=": ["&="], "&=": ["|="],
}
DROPPED_CALLS = {
    "trim": "std::string", "to_lower_copy": "std::string", "to_upper_copy": "std::string",
    "normalize_symbol": "std::string", "normalize_command_name": "std::string",
    "unquote_value": "std::string", "without_carriage_return": "std::string_view",
    "without_leading_zeros": "std::string_view",
}
JUMPS = {"return", "break", "continue", "throw"}
NO_EXPRESSIONS = JUMPS | {
    "const", "constexpr", "static", "using", "namespace", "class", "struct", "template", "if",
    "for", "while", "do", "switch", "case", "default", "else", "try", "catch", "public", "private",
    "auto", "inline", "enum", "extern", "static_assert", "explicit", "operator", "friend",
}
PAIRS = {"(": ")", "{": "}", "[": "]"}


@dataclass(frozen=True)
class Mutant:
    file: str
    kind: str
    start: int
    end: int
    replacement: str
    text: str  # of the whole file, unchanged

    def mutated(self):
        return self.text[:self.start] + self.replacement + self.text[self.end:]

    def lines(self):
        """The lines touched, before and after, each as one line without its indentation."""
        first = self.text.rfind("\n", 0, self.start) + 1
        last = self.text.find("\n", self.end)
        before = self.text[first:last]
        after = self.text[first:self.start] + self.replacement + self.text[self.end:last]
        return " ".join(before.split()), " ".join(after.split())

    def line_number(self):
        return self.text.count("\n", 0, self.start) + 1

    def key(self):
        content = f"{self.file}\0{self.start}\0{self.end}\0{self.replacement}\0{self.text}"
        return hashlib.sha256(content.encode()).hexdigest()[:16]


@dataclass(frozen=True)
class Token:
    kind: str
    text: str
    start: int
    end: int


def tokens_of(text):
    return [Token(m.lastgroup, m.group(), m.start(), m.end())
            for m in TOKEN.finditer(text) if m.lastgroup != "skipped"]


def enumerations_in(text):
    """The name and the enumerators of every enumeration in a source."""
    for name, body in re.findall(r"enum class (\w+)[^{;]*\{([^}]*)\}", text):
        pieces = re.sub(r"//[^\n]*", "", body).split(",")
        yield name, [match.group() for piece in pieces if (match := re.search(r"\w+", piece))]


class Source:
    def __init__(self, file, text, enumerations):
        self.file = file
        self.text = text
        self.enumerations = enumerations
        self.tokens = tokens_of(text)
        self.found = []

    def mutants(self):
        for place, token in enumerate(self.tokens):
            self.change_constant(token)
            self.change_operator(place, token)
            self.negate_condition(place, token)
            self.drop_statement(place, token)
            self.swap_enumerator(place, token)
            self.drop_call(place, token)
        return self.found

    def add(self, kind, start, end, replacement):
        self.found.append(Mutant(self.file, kind, start, end, replacement, self.text))

    def replace(self, kind, token, replacement):
        self.add(kind, token.start, token.end, replacement)

    def at(self, place):
        return self.tokens[place].text if 0 <= place < len(self.tokens) else ""

    def closing(self, place):
        """The place of the bracket that closes the one at `place`."""
        depth = 0
        for i in range(place, len(self.tokens)):
            depth += (self.at(i) in PAIRS) - (self.at(i) in PAIRS.values())
            if depth == 0:
                return i
        raise ValueError(f"{self.file}: a bracket is not closed")

    def change_constant(self, token):
        if token.kind == "number":
            self.replace("constant", token, f"({token.text} + 1)")
            self.replace("constant", token, f"({token.text} - 1)")
        elif token.kind == "character":
            self.replace("constant", token, f"static_cast<char>({token.text} + 1)")
        elif token.text in ("true", "false"):
            self.replace("constant", token, "false" if token.text == "true" else "true")

    def change_operator(self, place, token):
        if token.kind != "operator":
            return
        before = self.text[token.start - 1]
        behind = self.text[token.end:token.end + 1]
        if before.isspace() and behind.isspace():
            for other in BINARY.get(token.text, []):
                self.replace("operator", token, other)
        elif token.text in ("++", "--"):
            self.replace("operator", token, "--" if token.text == "++" else "++")
        elif token.text == "~" and self.at(place - 1) != "::" and self.at(place + 2) != "(":
            self.replace("operator", token, "")
        elif token.text == "!" or (token.text == "-" and before in " (,{"):
            self.replace("operator", token, "")

    def negate_condition(self, place, token):
        if token.text in ("if", "while") and self.at(place + 1) == "(":
            parts = self.parts_of(place + 1)
            start, end = parts[-1]
            declared = re.match(r"const auto\*? (?:const )?(\w+) = ", self.text[start:end])
            if declared:
                self.add("condition", end, end, f"; !{declared.group(1)}")
            else:
                self.negate(start, end)
        elif token.text == "for":
            parts = self.parts_of(place + 1)
            if len(parts) == 3:
                self.negate(*parts[1])
        elif token.text == "?":
            self.negate(self.start_of_question(place), self.tokens[place - 1].end)

    def negate(self, start, end):
        start += len(self.text[start:end]) - len(self.text[start:end].lstrip())
        if start < end:
            self.add("condition", start, end, f"!({self.text[start:end]})")

    def parts_of(self, opening):
        """The parts between the semicolons within a pair of parentheses."""
        closing = self.closing(opening)
        start, parts, depth = self.tokens[opening].end, [], 0
        for i in range(opening + 1, closing):
            depth += (self.at(i) in PAIRS) - (self.at(i) in PAIRS.values())
            if self.at(i) == ";" and depth == 0:
                parts.append((start, self.tokens[i].start))
                start = self.tokens[i].end
        return parts + [(start, self.tokens[closing].start)]

    def start_of_question(self, place):
        depth = 0
        for i in range(place - 1, -1, -1):
            depth += (self.at(i) in PAIRS.values()) - (self.at(i) in PAIRS)
            if depth < 0 or depth == 0 and self.at(i) in ("return", "=", "+=", ",", ";", "}"):
                return self.tokens[i + 1].start
        raise ValueError(f"{self.file}: a question has no start")

    def drop_statement(self, place, token):
        behind_condition = self.ends_condition(place - 1) or self.at(place - 1) == "else"
        line = self.text.rfind("\n", 0, token.start) + 1
        is_first = self.text[line:token.start].isspace() and self.at(place - 1) in (";", "}", ":")
        if not (behind_condition or is_first or self.at(place - 1) == "{"):
            return
        if token.text in JUMPS:
            if not behind_condition and token.text not in ("break", "throw"):
                return
        elif not self.is_expression(place):
            return
        depth = 0
        for i in range(place, len(self.tokens)):
            if self.at(i) == "{" and depth == 0:
                return
            depth += (self.at(i) in PAIRS) - (self.at(i) in PAIRS.values())
            if depth < 0:
                return
            if self.at(i) == ";" and depth == 0:
                self.add("statement", token.start, self.tokens[i].start, "")
                return

    def ends_condition(self, place):
        if self.at(place) != ")":
            return False
        depth = 0
        for i in range(place, -1, -1):
            depth += (self.at(i) == ")") - (self.at(i) == "(")
            if depth == 0:
                return self.at(i - 1) in ("if", "for", "while")
        return False

    def is_expression(self, place):
        token = self.tokens[place]
        if token.text in ("++", "--", "*"):
            return True
        if token.kind != "word" or token.text in NO_EXPRESSIONS:
            return False
        while self.at(place + 1) == "::" and self.tokens[place + 2].kind == "word":
            place += 2
        return self.at(place + 1) in ("(", "=", "+=", "-=", "|=", "&=", ".", "->", "[", "++", "--")

    def swap_enumerator(self, place, token):
        if self.at(place + 1) != "::":
            return
        # Several enumerations may have one name, in classes of their own.
        for name, enumerators in self.enumerations:
            if name == token.text and self.at(place + 2) in enumerators:
                other = enumerators.index(self.at(place + 2)) + 1
                self.replace("enumerator", self.tokens[place + 2],
                             enumerators[other % len(enumerators)])
                return

    def drop_call(self, place, token):
        if token.text not in DROPPED_CALLS or self.at(place + 1) != "(":
            return
        first = place
        while self.at(first - 1) == "::":
            first -= 2
        if self.tokens[first - 1].kind == "word" and self.at(first - 1) != "return":
            return  # a declaration
        self.add("call", self.tokens[first].start, token.end, DROPPED_CALLS[token.text])

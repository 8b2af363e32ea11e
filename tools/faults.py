"""Finds the faults that tools/mutate puts into a C++ source: textually, with a tokenizer that knows enough of the language,
and counts on clang-format for the rest."""

import dataclasses
import re

TOKEN = re.compile(r"""
    (?P<blank>\s+ | //[^\n]* | /\*.*?\*/)
  | (?P<directive>\#(?:\\\n|[^\n])*)
  | (?P<string>(?:u8|[uUL])?"(?:\\.|[^"\\\n])*"\w*)
  | (?P<character>(?:u8|[uUL])?'(?:\\.|[^'\\\n])+')
  | (?P<number>\.?\d(?:[eEpP][+-]|'?[\w.])*)
  | (?P<word>[A-Za-z_]\w*)
  | (?P<sign><=>|->\*|<<=|>>=|\.\.\.|::|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|.)
""", re.VERBOSE | re.DOTALL)
CLOSING = {"(": ")", "[": "]", "{": "}", "<": ">"}
COMPARISONS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}
BOOLEANS = {"true": "false", "false": "true", "&&": "||", "||": "&&"}
JUMPS = {"return", "throw", "break", "continue"}
# What holds no faults, from the word on to that sign or to the end of the bracket behind it, and why.
LEFT_OUT = {
    "static_assert": ";",  # the compiler notices
    "using": ";",  # another name
    "template": "<",  # parameters choose by type
    "requires": "(",  # the same
    "if constexpr": "(",  # the same
    "noexcept": "(",  # no value that a program sees
    "reserve": "(",  # a hint: without it the same is computed
    "case": ":",  # a changed label is mostly another one, which does not compile; instead it is left out
}


@dataclasses.dataclass(frozen=True, order=True)
class Fault:
    file: str
    start: int  # what stands in the file from here
    end: int  # to here
    kind: str
    new: str  # becomes this
    line: int
    text: str  # of that line
    change: str  # for people

    def __str__(self):
        return f"{self.file}:{self.line}  {self.kind}  {self.change}"


@dataclasses.dataclass
class Token:
    kind: str
    text: str
    start: int
    end: int
    is_spaced: bool  # behind a blank
    match: int = -1  # the bracket that belongs to this one
    is_left_out: bool = False


class Source:
    def __init__(self, name, text):
        self.name, self.text, self.tokens, self.faults = name, text, [], []
        is_spaced = True
        for found in TOKEN.finditer(text):
            if found.lastgroup not in ("blank", "directive"):
                self.tokens.append(Token(found.lastgroup, found[0], *found.span(), is_spaced))
            is_spaced = found.lastgroup == "blank"
        self.match_brackets()
        self.leave_out()

    def at(self, i):
        return self.tokens[i].text if 0 <= i < len(self.tokens) else ""

    def words(self, first, end):
        return [token.text for token in self.tokens[first:end]]

    def is_binary(self, i):
        """Whether an operator stands between two values: a bracket or a reference has no blank on one side."""
        return self.tokens[i].is_spaced and i + 1 < len(self.tokens) and self.tokens[i + 1].is_spaced

    def match_brackets(self):
        opened = []
        for i, token in enumerate(self.tokens):
            is_angle = token.text in ("<", ">", ">>") and not self.is_binary(i) and self.at(i - 1) != "operator"
            for sign in token.text if is_angle or token.text in CLOSING.values() else "":
                if opened and sign == CLOSING[self.at(opened[-1])]:
                    token.match = opened.pop()
                    self.tokens[token.match].match = i
            if token.text in CLOSING and (is_angle or token.text != "<"):
                opened.append(i)

    def leave_out(self):
        for i, token in enumerate(self.tokens):
            word = "if constexpr" if token.text == "constexpr" and self.at(i - 1) == "if" else token.text
            first, end = i, i
            if token.text == "<" and token.match > i:
                # Template arguments are types and sizes, but for a number in front: `event<1, &X::y>`.
                first, end = i + (2 if self.tokens[i + 1].kind == "number" else 1), token.match
            elif self.words(i, i + 2) == ["[", "["]:
                end = token.match  # attributes
            elif token.text in ("operator", "extern"):
                end = i + 2  # the name of an operator or of a language
            elif self.words(i, i + 3) == ["=", "0", ";"] and self.at(i - 1) in (")", "const", "noexcept", "override"):
                end = i + 2  # a pure virtual function
            elif LEFT_OUT.get(word) in CLOSING:
                end = self.tokens[i + 1].match if self.at(i + 1) == LEFT_OUT[word] else i
            elif word in LEFT_OUT:
                end = next(at for at in range(i, len(self.tokens)) if self.at(at) == LEFT_OUT[word]) + 1
            for left_out in self.tokens[first:end]:
                left_out.is_left_out = True

    def find_faults(self):
        for i, token in enumerate(self.tokens):
            if not token.is_left_out:
                self.change_token(i, token)
            if token.text == "{" and self.is_block(i):
                self.change_block(i)
        return sorted(self.faults)

    def add(self, kind, start, end, new):
        line_start, line_end = self.text.rfind("\n", 0, start) + 1, self.text.find("\n", end)
        before, after = self.text[line_start:start], self.text[end:line_end]
        old = self.text[start:end]
        shown = [old] if kind == "statement left out" else [before + old + after, before + new + after]
        shown = [" ".join(lines.split()) for lines in shown]
        change = " -> ".join(f"`{line}`" if len(line) < 160 else f"`{line[:157]}...`" for line in shown)
        line, text = self.text.count("\n", 0, start) + 1, (before + old + after).split("\n")[0].strip()
        self.faults.append(Fault(self.name, start, end, kind, new, line, text, change))

    def change_token(self, i, token):
        kind, new = None, None
        if token.kind == "number":
            kind, new = "constant off by one", off_by_one(token.text)
        elif token.kind == "character" and re.fullmatch(r"\w*'\w'", token.text):
            kind, new = "constant off by one", token.text[:-2] + chr(ord(token.text[-2]) + 1) + "'"
        elif token.kind == "string":
            kind, new = "string changed", changed_string(token.text)
        elif token.text in COMPARISONS and self.is_binary(i):
            kind, new = "comparison moved", COMPARISONS[token.text]
        elif token.text in BOOLEANS and (token.kind == "word" or self.is_binary(i)):
            kind, new = "Boolean turned", BOOLEANS[token.text]
        elif token.text == "!":
            kind, new = "Boolean turned", ""
        if kind:
            self.add(kind, token.start, token.end, new)

    def is_block(self, i):
        """Whether this brace opens statements, in place of a class, a namespace or values."""
        before = i - 1
        while self.at(before) in ("const", "noexcept", "override", "final", "mutable"):
            before -= 1
        if self.at(before) == ")":
            return self.at(self.tokens[before].match - 1) != "requires"
        if self.at(before) in ("else", "do", "try", "]", ";", "}"):
            return True
        if self.at(before) == ":":
            return self.tokens[before].is_left_out  # of a case
        if self.at(before) == "{":
            return self.is_block(before)
        while self.tokens[before].kind == "word" or self.at(before) in ("::", "<", ">", "&", "*"):
            before -= 1
        return self.at(before) == "->"  # the type of what a lambda gives

    def change_block(self, opening):
        closing, before, i = self.tokens[opening].match, None, opening + 1
        while i < closing:
            simple = []
            end = self.end_of_statement(i, simple)
            for first, behind in simple:
                if self.can_be_left_out(first, behind, closing, first == i):
                    new = "" if self.at(behind - 1) == ":" else ";"
                    self.add("statement left out", self.tokens[first].start, self.tokens[behind - 1].end, new)
            if before is not None and self.can_be_exchanged(before, i, end):
                one = slice(self.tokens[before].start, self.tokens[i - 1].end)
                other = slice(self.tokens[i].start, self.tokens[end - 1].end)
                new = self.text[other] + self.text[one.stop:other.start] + self.text[one]
                self.add("statements exchanged", one.start, other.stop, new)
            before, i = i, end

    def end_of_statement(self, i, simple):
        """The token behind the statement that begins there; appends the parts of it that are statements without a block."""
        word = self.at(i)
        if word == "{":
            return self.tokens[i].match + 1
        if word in ("if", "for", "while", "switch", "catch"):
            condition = i + 2 if self.at(i + 1) == "constexpr" else i + 1
            end = self.end_of_statement(self.tokens[condition].match + 1, simple)
            return self.end_of_statement(end + 1, simple) if word == "if" and self.at(end) == "else" else end
        if word == "try":
            end = self.end_of_statement(i + 1, simple)
            while self.at(end) == "catch":
                end = self.end_of_statement(end, simple)
            return end
        end, last = i, ":" if word in ("case", "default") else ";"
        while self.at(end) != last:
            end = max(self.tokens[end].match, end) + 1
        simple.append((i, end + 1))
        return end + 1

    def declared(self, i):
        """The name that the statement declares, or None; a bracket for names that are bound to parts."""
        end = i
        while self.tokens[end].kind == "word" or self.at(end) in ("::", "*", "&", "&&", "<"):
            end = max(self.tokens[end].match, end) + 1
        words = self.words(i, end)
        if self.tokens[i].kind != "word" or words[0] in JUMPS | {"delete"}:
            return None
        if "auto" in words and self.at(end) == "[":
            return "["
        return words[-1] if len(words) > 1 and self.tokens[end - 1].kind == "word" and words[-2] != "::" else None

    def can_be_left_out(self, first, behind, closing, is_whole):
        words, name, is_last = self.words(first, behind), self.declared(first), behind == closing
        if len(words) == 1 or self.tokens[first].is_left_out and words[0] != "case":
            return False
        if words[:3] == ["(", "void", ")"] or "reserve" in words:
            return False  # tells the compiler something
        if name:
            # Where a name is used nothing compiles without its declaration. Others do something as long as they are there,
            # but what only keeps an object alive shows under sanitizers alone.
            return name not in ["[", "alive", *self.words(behind, closing)] and not {"(", "{"}.isdisjoint(words)
        if words[0] == "return" and is_whole:
            return not is_last  # no result at the end of a function: the compiler notices
        return words[0] != "break" or not is_last

    def can_be_exchanged(self, first, second, end):
        one, other = self.words(first, second), self.words(second, end)
        if self.tokens[first].is_left_out or {one[0], other[0]} & (JUMPS | {"case", "default", ";"}):
            return False  # behind a jump it is left out, which is a fault of its own
        if one == other or self.declared(first) or self.declared(second):
            return False  # the same again; or a value, which mostly may as well be computed a statement earlier or later
        targets = assigned(one), assigned(other)
        uses = (f" {target} " in f" {' '.join(words)} " for target, words in zip(targets, (other, one)))
        return not all(targets) or any(uses)  # else neither depends on the other


def assigned(words):
    """What a plain assignment without calls assigns to, else ''."""
    signs = [sign for sign in words if re.fullmatch(r"[-+*/|&^]?=", sign)]
    return " ".join(words[: words.index(signs[0])]) if signs and "(" not in words else ""


def off_by_one(number):
    """One more; one less than the largest of a kind, such as 255, as one more may not compile."""
    number = number.replace("'", "")
    prefix, digits = re.match(r"(0[xX]|)((?<=[xX])[0-9A-Fa-f]+|\d*)", number).groups()
    value = int(digits or "0", 16 if prefix else 10)
    value += -1 if value >= 127 and value & (value + 1) == 0 else 1
    return f"{prefix}{value:0{len(digits)}{'X' if prefix else 'd'}}{number[len(prefix + digits):]}"


def changed_string(literal):
    """With a letter less, or one more where there are hardly any. What has a suffix has a form, too, and keeps it."""
    prefix, body, suffix = re.fullmatch(r'(\w*)"(.*)"(\w*)', literal).groups()
    pieces = re.findall(r"\\x[0-9A-Fa-f]+|\\u[0-9A-Fa-f]{4}|\\.|.", body)
    letters = [i for i, piece in enumerate(pieces) if piece.isalnum() if suffix or piece.isalpha()]
    if suffix and letters:
        pieces[letters[-1]] = "1" if pieces[letters[-1]] == "0" else "0"
    elif len(letters) > 1:
        del pieces[letters[len(letters) // 2]]
    else:
        pieces.append("x")
    return f'{prefix}"{"".join(pieces)}"{suffix}'

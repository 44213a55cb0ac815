# SPDX-License-Identifier: MIT
"""Makes faulty versions of a C++ source with a few rewriting rules.

The rules expect a source in the layout of clang-format: operators have spaces
around them, and a function starts in the first column. The rules do not parse C++.
They may make a fault that does not compile, which does no harm.
"""

import re
from typing import NamedTuple


class Fault(NamedTuple):
    rule: str
    start: int
    end: int
    replacement: str


def masked(text):
    """Blanks comments, literals and directives. The length stays the same."""
    token = re.compile(
        r"//[^\n]*|/\*.*?\*/|R\"\((?:.*?)\)\"|\"(?:\\.|[^\"\\])*\"|"
        r"(?<![0-9A-Fa-f])'(?:\\.|[^'\\])*'|^[ ]*#(?:\\\n|[^\n])*",
        re.DOTALL | re.MULTILINE)

    def blank(match):
        piece = match[0]
        filler = "S" if piece[0] in "\"'R" else " "
        return re.sub(r"[^\n]", filler, piece)

    masked_text = token.sub(blank, text)
    # Faults in assertions do not compile, and the brackets of a template are not
    # comparisons.
    for pattern in (r"static_assert\(.*?\);", r"template <.*?>"):
        masked_text = re.sub(
            pattern, lambda match: re.sub(r"[^\n]", " ", match[0]),
            masked_text, flags=re.DOTALL)
    return masked_text


def replaced(rule, table):
    """Returns a rule that replaces one operator or word by another."""
    pattern = re.compile("|".join(
        rf"(?<![\w:]){re.escape(old)}(?!\w)" if old[0].isalpha()
        else rf"(?<= ){re.escape(old)}(?=\s)" for old in table))

    def apply(code, _text):
        for match in pattern.finditer(code):
            yield Fault(rule, *match.span(), table[match[0]])
    return apply


flip_comparison = replaced("flip a comparison", {
    "==": "!=", "!=": "==", "<=": ">", ">=": "<", "<": ">=", ">": "<=",
    "&&": "||", "||": "&&"})
move_bound = replaced("off by one", {
    "<=": "<", ">=": ">", "<": "<=", ">": ">="})
RESULTS = {
    "ZTK_SUCCESS": "ZTK_REJECTED", "ZTK_WARNING": "ZTK_SUCCESS",
    "ZTK_REJECTED": "ZTK_SUCCESS", "ZTK_CONNECTED": "ZTK_NOT_CONNECTED",
    "ZTK_NOT_CONNECTED": "ZTK_CONNECTED", "true": "false", "false": "true",
    "kSuccess": "kError", "kError": "kSuccess", "kNoDevice": "kBusy",
    "kExclusiveAccess": "kBusy", "kBusy": "kError", "kTimeout": "kError",
    "kNotPermitted": "kError", "kPipeStalled": "kError"}
swap_result = replaced("swap a result code", RESULTS)


def negate(code, _text):
    for match in re.finditer(r"(?<=[( ])!(?=[\w(:*])", code):
        yield Fault("flip a comparison", *match.span(), "")


def count_one_more(code, text):
    for match in re.finditer(r"(?<![\w.])(0x[0-9A-Fa-f]+|\d+)(u?)(?![\w.])",
                             code):
        octal = re.fullmatch(r"0[0-7]+", match[1]) is not None
        number = int(match[1], 8 if octal else 0) + 1
        form = (f"0{number:o}" if octal else
                f"0x{number:X}" if match[1].startswith("0x") else str(number))
        yield Fault("off by one", *match.span(), form + match[2])


def closing(code, start):
    """Returns the position of the bracket that closes the one at `start`."""
    depth = 0
    for place in range(start, len(code)):
        if code[place] in "([{":
            depth += 1
        elif code[place] in ")]}":
            depth -= 1
            if depth == 0:
                return place
    return -1


def drop_statement(code, _text):
    # This matches calls, assignments, increments, break and continue, but not
    # declarations and functions.
    statement = re.compile(
        r"(?:(?<=[;{}):])|(?<=\belse))\s+(?P<text>"
        r"(?:(?:break|continue)|\+\+[\w.>\-]+|[*\w:.\[\]\->]+\+\+|"
        r"(?:[*\w:.]|->|\[[^\];]*\])+(?:\(|\s(?:[-+|&*]|<<|>>)?=\s)"
        r"[^;{}]*))(?=;)")
    for match in statement.finditer(code):
        words = match["text"].split()
        if words[0] not in ("return", "using", "delete", "goto", "if", "for",
                            "while", "switch", "else", "case", "default:"):
            yield Fault("drop a statement", *match.span("text"), "")
    for match in re.finditer(r"\bif (?:constexpr )?\(", code):
        last = closing(code, match.end() - 1)
        yield Fault("drop a statement", match.end(), last, "false")


def arguments(code, start, last):
    """Returns the positions of the arguments between two brackets."""
    places, depth, begin = [], 0, start + 1
    for place in range(start + 1, last + 1):
        if place == last or (code[place] == "," and depth == 0):
            while begin < place and code[begin].isspace():
                begin += 1
            places.append((begin, place))
            begin = place + 1
        elif code[place] in "([{":
            depth += 1
        elif code[place] in ")]}":
            depth -= 1
    return places


def swap_arguments(code, text):
    for match in re.finditer(r"[\w>](\()", code):
        last = closing(code, match.start(1))
        places = arguments(code, match.start(1), last)
        pieces = [text[begin:end] for begin, end in places]
        # A function in the first column is a declaration and not a call.
        if not code[code.rfind("\n", 0, match.start()) + 1].isspace():
            continue
        # In a declaration, each parameter is a type and a name.
        if any(re.match(r"(?:const )?[\w:<>]+ [*&]*\w+$|[\w:]+ \*\w*$", piece)
               for piece in pieces):
            continue
        for first, second, left, right in zip(places, places[1:], pieces,
                                              pieces[1:]):
            if left != right:
                between = text[first[1]:second[0]]
                yield Fault("swap two arguments", first[0], second[1],
                            right + between + left)


RULES = (flip_comparison, move_bound, negate, count_one_more, drop_statement,
         swap_result, swap_arguments)


def faults_in(text):
    """Returns all faults of a source, sorted by position."""
    code = masked(text)
    found = {fault for rule in RULES for fault in rule(code, text)}
    return sorted(found, key=lambda fault: (fault.start, fault))


def with_fault(text, fault):
    return text[:fault.start] + fault.replacement + text[fault.end:]


def function_of(text, fault):
    """Returns the name of the function that contains the fault, or ""."""
    before = text[:fault.start]
    heads = list(re.finditer(r"^[A-Za-z_][^\n;{}=#]*?(\w+)\(", before, re.M))
    if not heads or re.search(r"^}", before[heads[-1].start():], re.M):
        return ""
    return heads[-1][1]


def description(text, fault):
    """Describes the fault in one line: the dropped text, or the changed line."""
    if fault.rule == "drop a statement":
        begin, end = fault.start, fault.end
        if fault.replacement:
            begin = text.rfind("\n", 0, begin) + 1
            end += 1
        return " ".join(text[begin:end].split())
    changed = with_fault(text, fault)
    begin = changed.rfind("\n", 0, fault.start) + 1
    end = changed.find("\n", fault.start + len(fault.replacement))
    return " ".join(changed[begin:end if end >= 0 else None].split())

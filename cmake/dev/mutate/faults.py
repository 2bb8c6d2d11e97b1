"""The faults that can be planted into a C++ source, one at a time."""
import dataclasses
import re


@dataclasses.dataclass(frozen=True)
class Fault:
    file: str
    line: int  # counted from 1
    before: str
    after: str

    def __str__(self):
        return f"{self.file}:{self.line}\n    - {self.before.strip()}\n    + {self.after.strip()}"


# What is replaced, and by what. The code is formatted: binary operators stand between spaces.
REPLACEMENTS = [(re.compile(pattern), after) for pattern, after in (
    (r" == ", " != "), (r" != ", " == "),
    (r" < ", " <= "), (r" <= ", " < "), (r" > ", " >= "), (r" >= ", " > "),
    (r" \+ ", " - "), (r" - ", " + "), (r" \+= ", " -= "), (r" -= ", " += "),
    (r" && ", " || "), (r" \|\| ", " && "),
    (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
    (r"(?<![\w.'])0(?![\w.'])", "1"), (r"(?<![\w.'])1(?![\w.'])", "0"),
    (r"\+\+(?=\w)", "--"), (r"--(?=\w)", "++"),
    (r"(?<=[( ])!(?=[\w(])", ""),
    (r"\b(if|while) \((?!const|auto)(.*)\) \{", r"\1 (!(\2)) {"),
    (r"^( *)return [^;{]+;$", r"\1return {};"),
    (r"\bbreak;", "continue;"), (r"\bcontinue;", "break;"),
)]
# A call or an assignment on a line of its own can be left out, or the function be left before it.
STATEMENT = re.compile(r"^( *)(?:[\w:.\[\]*>-]+(?:<[\w:, ]+>)?\(.*\)|[\w.\[\]*>()-]+ [-+|&]?= .+|(?:\+\+|--)[\w.>-]+);$")
NO_STATEMENT = re.compile(r"^ *(?:return|using|delete|throw|static_assert|friend|case|if|for|while|goto)\b")
HIDDEN = re.compile(r'//.*|"(?:[^"\\]|\\.)*"|\'(?:[^\'\\]|\\.)*\'')


def faults_of(file, text):
    """All faults that can be planted into the text of a file, in its order."""
    faults = []
    begins = True  # whether a statement can begin on this line
    for number, line in enumerate(text.split("\n"), 1):
        # Comments and texts keep their length, so that what is found stands at the same place.
        code = HIDDEN.sub(lambda match: "_" * len(match.group()), line)
        follows, begins = begins, not code.strip() or code.rstrip().endswith((";", "{", "}", ":"))
        if re.match(r"\s*(#|\*|/\*|template|static_assert|constexpr static_assert)", code) or "= 0;" in code:
            continue
        for pattern, after in REPLACEMENTS:
            for match in pattern.finditer(code):
                planted = re.sub(r"\\(\d)", lambda group: line[slice(*match.span(int(group[1])))], after)
                faults.append(Fault(file, number, line, line[:match.start()] + planted + line[match.end():]))
        statement = STATEMENT.match(code)
        if statement and follows and not NO_STATEMENT.match(code):
            indent = statement.group(1)
            faults.append(Fault(file, number, line, indent + ";"))
            faults.append(Fault(file, number, line, f"{indent}return; {line.strip()}"))
    return [fault for fault in faults if fault.before != fault.after]

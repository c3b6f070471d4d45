# SPDX-License-Identifier: MIT
"""Where faults can be planted by rule, and which. The compiler's own view of a file tells."""
import hashlib
import json
import re
import shlex
import shutil
import subprocess

from plot import Misplanted

QUERY = "clang-query-14"

COMPARISONS = {"<": ("<=", ">"), "<=": ("<", ">="), ">": (">=", "<"), ">=": (">", "<="),
               "==": ("!=",), "!=": ("==",)}
SIGNS = {"+": ("-",), "-": ("+",), "+=": ("-=",), "-=": ("+=",)}
LOGIC = {"&&": ("||",), "||": ("&&",)}
OPERATORS = {"comparison": COMPARISONS, "sign": SIGNS, "logic": LOGIC}

# Calls without which something is left as it was, or nobody is told.
DELETED_CALL = re.compile(
    r"(?:.*(?:\.|->|::))?(connect|save\w*|show\w*|update\w*|setNotice|start|stop|clear|reset|"
    r"erase|restore\w*|write\w*|remove\w*)\s*\(", re.DOTALL)

# Functions for which the order of their arguments does not matter.
SYMMETRIC = re.compile(r"\b((min|max|minmax|hypot|dot|dotProduct|angleBetween|CanConvert|MassInVacuo|MadeGood|isSameSight)(<[\w: ]+>)?\(|hypot\([^()]*,)\s*$")
LAMBDA = re.compile(r"\]\s*(\([^()]*\))?\s*(-> \w+ )?\{$")
STATEMENT = "hasParent(stmt(anyOf(compoundStmt(), ifStmt(), forStmt(), whileStmt(), " \
            "cxxForRangeStmt())))"
HERE = "isExpansionInMainFile(), unless(isInTemplateInstantiation())"
# A text has no sign: + joins.
NO_TEXT = "unless(hasType(hasUnqualifiedDesugaredType(recordType(hasDeclaration(namedDecl(" \
          "hasAnyName(\"::std::basic_string\", \"::QString\", \"::QByteArray\")))))))"


def operation(kind, more=""):
    names = ", ".join(f'"{name}"' for name in OPERATORS[kind])
    return f"binaryOperation({HERE}, hasAnyOperatorName({names}), " \
           f"hasLHS(expr().bind(\"left\")), hasRHS(expr().bind(\"right\")){more})"


def same_parameters(first):
    """A call whose arguments number first and the next go into parameters of one type."""
    return f"callExpr({HERE}, hasArgument({first}, expr().bind(\"left\")), " \
           f"hasArgument({first + 1}, expr().bind(\"right\")), callee(functionDecl(" \
           f"hasParameter({first}, hasType(hasUnqualifiedDesugaredType(type().bind(\"type\")))), " \
           f"hasParameter({first + 1}, hasType(hasUnqualifiedDesugaredType(type(" \
           f"equalsBoundNode(\"type\"))))))))"


QUESTIONS = [
    ("fixed", "decl(isExpansionInMainFile(), anyOf(varDecl(isConstexpr()), functionDecl(isConstexpr()), "
              "staticAssertDecl(), enumDecl()))"),
    ("comparison", operation("comparison")),
    ("sign", operation("sign", ", " + NO_TEXT)),
    ("logic", operation("logic")),
    ("minus", f"unaryOperator({HERE}, hasOperatorName(\"-\"), "
              "hasUnaryOperand(expr().bind(\"right\")))"),
    ("constant", f"expr({HERE}, anyOf(integerLiteral(), floatLiteral()))"),
    ("index", f"arraySubscriptExpr({HERE}, hasIndex(expr(hasType(isInteger())).bind(\"right\")))"),
    ("index", f"cxxOperatorCallExpr({HERE}, hasOverloadedOperatorName(\"[]\"), "
              "hasArgument(1, expr(hasType(isInteger())).bind(\"right\")))"),
    ("call", f"callExpr({HERE}, {STATEMENT})"),
    ("assignment", f"binaryOperation({HERE}, isAssignmentOperator(), hasLHS(memberExpr()), "
                   f"{STATEMENT})"),
    ("return", f"returnStmt({HERE}, hasAncestor(stmt(anyOf(ifStmt(), forStmt(), whileStmt(), "
               "cxxForRangeStmt()))))"),
    *(("swapped", same_parameters(first)) for first in range(5)),
]
ASKED = "\n".join(["set traversal IgnoreUnlessSpelledInSource", "set output diag",
                   "set bind-root true", *(f"match {question}" for _, question in QUESTIONS)])
BOUND = re.compile(r'^.*?:\d+:\d+:\{(\d+):(\d+)-(\d+):(\d+)\}: note: "(\w+)" binds here')


class Fault:
    """One change of a piece of a file: parts are texts and (begin, end) of what stays."""

    def __init__(self, rule, file, text, piece, parts, fixed=False, relaxed=None):
        self.rule, self.file, self.piece, self.parts = rule, file, piece, parts
        self.statement = parts == [";"]
        self.fixed = fixed      # the compiler has to know it
        self.relaxed = relaxed  # what stands for the word that makes it so, and where
        begin, end = piece
        self.first = text.count("\n", 0, begin) + 1
        self.last = text.count("\n", 0, end) + 1
        line = text.rfind("\n", 0, begin) + 1
        rest = text.find("\n", end)
        self.old = text[line:rest].strip()
        self.new = (text[line:begin] + self.planted(text) + text[end:rest]).strip()

    def planted(self, text):
        return "".join(part if isinstance(part, str) else text[slice(*part)]
                       for part in self.parts)

    @property
    def where(self):
        return f"{self.file}:{self.first}"


def constants(text, begin, end):
    written = text[begin:end].replace("'", "")
    if re.fullmatch(r"\d+[uUlL]*", written):
        digits = re.match(r"\d+", written)[0]
        suffix, value = written[len(digits):], int(digits)
        if len(digits) > 1 and digits[0] == "0":
            return
        yield "constant + 1", f"{value + 1}{suffix}"
        if value >= 10:
            yield "constant x 1.1", f"{round(value * 1.1)}{suffix}"
    elif re.fullmatch(r"(\d+\.\d*|\.\d+|\d+)([eE][-+]?\d+)?", written):
        yield "constant + 1", f"({written} + 1)"
        if float(written):
            yield "constant x 1.1", f"({written} * 1.1)"


def deleted(kind, text, begin, end):
    """The statement with its semicolon, if it is one that may go."""
    rest = re.compile(r"\s*;").match(text, end)
    before = text[:begin].rstrip()
    if not rest or not re.search(r"([{};):]|\belse|\bemit)$", before):
        return None
    if before.endswith("emit"):
        return len(before) - len("emit"), rest.end()
    if kind == "return" and LAMBDA.search(before):
        return None  # all that it does
    if kind == "call":
        called = DELETED_CALL.match(text[begin:end])
        if not called or called[1] == "setNotice" and "{}" not in text[begin:end]:
            return None
    return begin, rest.end()


def relaxed(text, begin, end):
    """What a constexpr variable is called so that it is made at the start of the program."""
    head = re.match(r"((?:static |inline )*)constexpr (?=[\w:<>, ]+[^*&]\b\w+(\[\w*\])?\s*[={(])",
                    text[begin:end])
    if not head or not re.compile(r"\s*[;,]").match(text, end):
        return None
    return (begin, begin + head.end()), ("static inline " if "static" in head[1] else head[1]) + \
        "const "


def faults_of(kind, text, found):
    """(rule, piece, parts) for one match."""
    begin, end = found["root"]
    left, right = found.get("left"), found.get("right")
    if re.fullmatch(r"Q_[A-Z_]+|emit", text[begin:end]):
        return  # what a macro of the toolkit stands for
    if kind in OPERATORS:
        match = re.search(r"^[\s)]*(\S+?)[\s(]*$", text[left[1]:right[0]])
        for other in OPERATORS[kind].get(match[1] if match else "", ()):
            at = left[1] + match.start(1)
            yield f"{kind} {match[1]} to {other}", (begin, end), \
                [(begin, at), other, (at + len(match[1]), end)]
    elif kind == "minus" and text[begin] == "-":
        yield "sign left out", (begin, end), [(begin + 1, end)]
    elif kind == "constant" and not re.match(r"\s*>", text[end:]):  # the size of a type
        for rule, other in constants(text, begin, end):
            yield rule, (begin, end), [other]
    elif kind == "index":
        for change in (" + 1", " - 1"):
            yield f"index{change}", right, ["(", right, ")" + change]
    elif kind == "swapped" and text[left[1]:right[0]].strip() == "," and \
            text[slice(*left)] != text[slice(*right)] and not SYMMETRIC.search(text[:left[0]]):
        yield "swapped arguments", (left[0], right[1]), [right, (left[1], right[0]), left]
    elif kind in ("call", "assignment", "return"):
        piece = deleted(kind, text, begin, end)
        if piece:
            yield f"deleted {kind}", piece, [";"]


def read_answer(answer, text):
    """[(kind, {name: (begin, end)})] of what clang-query prints, question after question."""
    lines = [0]
    for line in text.split("\n"):
        lines.append(lines[-1] + len(line) + 1)
    question, found, matches = 0, {}, []
    for line in answer.splitlines():
        match = BOUND.match(line)
        if match:
            numbers = [int(number) for number in match.groups()[:4]]
            found[match[5]] = (lines[numbers[0] - 1] + numbers[1] - 1,
                               lines[numbers[2] - 1] + numbers[3] - 1)
        if match and match[5] == "root":  # which comes last
            matches.append((QUESTIONS[question][0], found))
            found = {}
        if re.match(r"Match #\d+:", line):
            found = {}
        if re.fullmatch(r"\d+ match(es)?\.", line):
            question += 1
    if question != len(QUESTIONS):
        raise Misplanted(answer[-2000:])
    return matches


class Reader:
    """Finds the places of files of the plot, and remembers them."""

    def __init__(self, plot):
        self.plot = plot
        if not shutil.which(QUERY):
            raise Misplanted(f"{QUERY} is not there: sweep_packages in tools/setup/packages.sh")
        commands = json.loads((plot.build / "compile_commands.json").read_text())
        self.commands = {str(each["file"]): each for each in commands}
        self.kept = plot.folder / "places"
        self.kept.mkdir(exist_ok=True)

    def flags(self, name):
        """Of the file itself; for a header those of a source that lies near it."""
        path = str(self.plot.source / name)

        def distance(other):
            shared = len([1 for a, b in zip(path.split("/"), other.split("/")) if a == b])
            return (other != path, other.rsplit(".", 1)[0] != path.rsplit(".", 1)[0], -shared,
                    "/tests/" in other, other)
        words = shlex.split(self.commands[min(self.commands, key=distance)]["command"])
        wanted, words = [], iter(words)
        for word in words:
            if word == "-isystem":
                wanted += [word, next(words)]
            elif re.match(r"-[DI]|-std", word):
                wanted.append(word)
        return wanted

    def ask(self, name):
        questions = self.plot.folder / "questions"
        questions.write_text(ASKED)
        done = subprocess.run(
            [QUERY, "-f", questions, name, "--", "-x", "c++", "-w",
             "-fdiagnostics-print-source-range-info", "-fno-caret-diagnostics",
             *self.flags(name)], cwd=self.plot.source, capture_output=True, text=True)
        return done.stdout + done.stderr

    def faults(self, name):
        # Columns are counted in bytes.
        content = self.plot.contents[name]
        text = content.decode("latin-1")
        digest = hashlib.sha256(ASKED.encode() + content).hexdigest()
        kept = self.kept / digest
        if not kept.exists():
            kept.write_text(json.dumps(read_answer(self.ask(name), text)))
        matches = json.loads(kept.read_text())
        fixed = {tuple(found["root"]): relaxed(text, *found["root"])
                 for kind, found in matches if kind == "fixed"}
        faults = {}
        for kind, found in matches:
            for rule, piece, parts in faults_of(kind, text, found) if kind != "fixed" else ():
                parts = [part if isinstance(part, str) else tuple(part) for part in parts]
                around = [(each, word) for each, word in fixed.items()
                          if each[0] <= piece[0] and piece[1] <= each[1]]
                word = around[0][1] if len(around) == 1 else None
                faults.setdefault((tuple(piece), rule), Fault(
                    rule, name, text, tuple(piece), parts, bool(around) and not word, word))
        return [faults[key] for key in sorted(faults)]

"""Random formulas with what they are worth, by an evaluator of its own.

usage: formula_reference.py SEED COUNT

One line a formula, fields separated by tabs: text, printed form, x, y, z, outcome, detail. The outcome is
"value", then the detail is the value; or the number of the error, then the detail is the printed form of the
failing node. Numbers within printed forms stand between "#", for the reader knows how it prints them.
"""

import math
import random
import sys

RANGE, DOMAIN, DIVISION = 3, 2, 1

# The level of a form in the text: a higher one binds more tightly.
CONDITION, OR, AND, NOT, COMPARISON, SUM, PRODUCT, SIGN, POWER, ATOM = range(10)

BINARY = {
    "+": (SUM, lambda a, b: a + b),
    "-": (SUM, lambda a, b: a - b),
    "*": (PRODUCT, lambda a, b: a * b),
    "/": (PRODUCT, None),
    "^": (POWER, None),
    "==": (COMPARISON, lambda a, b: float(a == b)),
    "!=": (COMPARISON, lambda a, b: float(a != b)),
    "<": (COMPARISON, lambda a, b: float(a < b)),
    "<=": (COMPARISON, lambda a, b: float(a <= b)),
    ">": (COMPARISON, lambda a, b: float(a > b)),
    ">=": (COMPARISON, lambda a, b: float(a >= b)),
    "and": (AND, None),
    "or": (OR, None),
}
SPELLINGS = {"and": ("and", "&&"), "or": ("or", "||"), "^": ("^", "**")}
CONSTANTS = {"pi": 3.141592653589793, "e": 2.718281828459045}


class Failure(Exception):
    def __init__(self, code, node):
        super().__init__(code)
        self.code, self.node = code, node


def half_away(x):
    whole = float(math.trunc(x))
    return math.copysign(whole + math.copysign(1, x) if abs(x - whole) >= 0.5 else whole, x)


FUNCTIONS = {
    "sin": lambda x: math.sin(x / 180 * math.pi),
    "cos": lambda x: math.cos(x / 180 * math.pi),
    "tan": lambda x: math.tan(x / 180 * math.pi),
    "asin": lambda x: math.asin(x) * (180 / math.pi),
    "acos": lambda x: math.acos(x) * (180 / math.pi),
    "atan": lambda x: math.atan(x) * (180 / math.pi),
    "sinh": math.sinh,
    "cosh": math.cosh,
    "tanh": math.tanh,
    "sqrt": math.sqrt,
    "floor": lambda x: math.copysign(float(math.floor(x)), x) if abs(x) < 1 and x >= 0 else float(math.floor(x)),
    "ceil": lambda x: math.copysign(float(math.ceil(x)), x) if abs(x) < 1 and x <= 0 else float(math.ceil(x)),
    "abs": abs,
    "round": half_away,
    "rad": lambda x: x / 180 * math.pi,
    "deg": lambda x: x * 180 / math.pi,
}


def logarithm(x, function, node):
    if math.isnan(x):
        return x
    if x == 0:
        raise Failure(RANGE, node)
    if x < 0:
        raise Failure(DOMAIN, node)
    return function(x)


def call(name, x, node):
    if name == "ln":
        return logarithm(x, math.log, node)
    if name == "lg":
        return logarithm(x, math.log10, node)
    if math.isnan(x):
        return x
    try:
        return FUNCTIONS[name](x)
    except ValueError:
        raise Failure(DOMAIN, node) from None
    except OverflowError:
        raise Failure(RANGE, node) from None


def power(a, b, node):
    if a == 0 and b < 0:
        raise Failure(RANGE, node)
    try:
        result = math.pow(a, b)
    except ValueError:
        raise Failure(DOMAIN, node) from None
    except OverflowError:
        raise Failure(RANGE, node) from None
    if result == 0 and a != 0:
        raise Failure(RANGE, node)
    return result


def evaluate(node, values):
    result = compute(node, values)
    if math.isinf(result):
        raise Failure(RANGE, node)
    return result


def compute(node, values):
    kind = node[0]
    if kind == "number":
        return node[1]
    if kind == "name":
        return values[node[1]]
    if kind == "if":
        return evaluate(node[2] if evaluate(node[1], values) != 0 else node[3], values)
    if kind in ("and", "or"):
        first = evaluate(node[1], values) != 0
        return float(first if first == (kind == "or") else evaluate(node[2], values) != 0)
    if kind == "call":
        return call(node[1], evaluate(node[2], values), node)
    a = evaluate(node[1], values)
    if kind == "minus":
        return -a
    if kind == "not":
        return float(a == 0)
    b = evaluate(node[2], values)
    if kind == "^":
        return power(a, b, node)
    if kind == "/":
        if b == 0 or math.isinf(a / b) or math.isnan(a / b):
            raise Failure(DIVISION, node)
        return a / b
    return BINARY[kind][1](a, b)


def number_text(value):
    return repr(value) if random.random() < 0.7 else "%.17e" % value


def printed_number(value):
    if math.isinf(value):
        return "1e999"
    return "#%r#" % value


def printed(node):
    kind = node[0]
    if kind == "number":
        return printed_number(node[1])
    if kind == "name":
        return node[1]
    if kind == "if":
        return "if(%s) %s else %s" % tuple(map(printed, node[1:]))
    if kind == "call":
        return "%s(%s)" % (node[1], printed(node[2]))
    if kind == "minus":
        return "-" + printed(node[1])
    if kind == "not":
        return "not " + printed(node[1])
    a, b = printed(node[1]), printed(node[2])
    if kind == "or":
        return "%s or %s" % (a, b)
    return "(%s^%s)" % (a, b) if kind == "^" else "(%s %s %s)" % (a, kind, b)


def blank():
    return random.choice(("", "", " ", "  ", "\n", "\r\n"))


def wrapped(node, least):
    """The text of a node that must bind at least so tightly; sometimes in parentheses that nobody needs."""
    text, level = written(node)
    if level < least or random.random() < 0.1:
        return "(" + blank() + text + blank() + ")"
    return text


def written(node):
    kind = node[0]
    if kind == "number":
        return ("1e999" if math.isinf(node[1]) else number_text(node[1])), ATOM
    if kind == "name":
        return node[1], ATOM
    if kind == "call":
        return node[1] + blank() + "(" + wrapped(node[2], CONDITION) + ")", ATOM
    if kind == "minus":
        return "-" + blank() + wrapped(node[1], SIGN), SIGN
    if kind == "not":
        if random.random() < 0.5:
            return "!" + blank() + wrapped(node[1], SIGN), SIGN
        return "not " + wrapped(node[1], NOT), NOT
    if kind == "if":
        if random.random() < 0.5:
            return "if%s(%s) %s else %s" % (
                blank(), wrapped(node[1], CONDITION), wrapped(node[2], CONDITION), wrapped(node[3], CONDITION)), CONDITION
        return "%s ? %s : %s" % (
            wrapped(node[1], OR), wrapped(node[2], CONDITION), wrapped(node[3], CONDITION)), CONDITION
    level = BINARY[kind][0]
    left, right = level, level + 1
    if kind == "^":
        left, right = ATOM, SIGN  # binds to the right; a sign may follow
    elif level == COMPARISON:
        left = level + 1  # does not chain
    gap = blank() if kind not in ("and", "or") else " "
    return (wrapped(node[1], left) + gap + random.choice(SPELLINGS.get(kind, (kind,))) + gap
            + wrapped(node[2], right)), level


def random_number():
    choice = random.random()
    if choice < 0.5:
        return float(random.randrange(0, 5))
    if choice < 0.8:
        return random.uniform(0, 100)
    if choice < 0.97:
        return random.choice((1e-308, 5e-324, 1e308, 0.5, 90.0, 180.0, 1e16, 1e-9, 720.0))
    return math.inf


def random_tree(depth):
    if depth == 0 or random.random() < 0.15:
        if random.random() < 0.4:
            return ("number", random_number())
        return ("name", random.choice(("x", "x", "y", "z", "pi", "e")))
    choice = random.random()
    if choice < 0.1:
        return (random.choice(("minus", "not")), random_tree(depth - 1))
    if choice < 0.3:
        return ("call", random.choice([*FUNCTIONS, "ln", "lg"]), random_tree(depth - 1))
    if choice < 0.38:
        return ("if", random_tree(depth - 1), random_tree(depth - 1), random_tree(depth - 1))
    kind = random.choice(("+", "-", "*", "/", "+", "-", "*", *BINARY))
    return (kind, random_tree(depth - 1), random_tree(depth - 1))


def random_value():
    choice = random.random()
    if choice < 0.04:
        return math.nan
    if choice < 0.06:
        return random.choice((math.inf, -math.inf))
    if choice < 0.3:
        return random.choice((0.0, 1.0, -1.0, 2.0, 1e200, -1e-200))
    return random.uniform(-10, 10)


def main():
    random.seed(int(sys.argv[1]))
    sys.stdout.reconfigure(newline="\n")
    for _ in range(int(sys.argv[2])):
        tree = random_tree(random.randrange(1, 7))
        values = {name: random_value() for name in "xyz"}
        try:
            result = evaluate(tree, {**values, **CONSTANTS})
            outcome = ("value", repr(result))
        except Failure as failure:
            outcome = (str(failure.code), printed(failure.node))
        text = written(tree)[0].replace("\r\n", "\\r\\n").replace("\n", "\\n")
        print(text, printed(tree), *(repr(values[name]) for name in "xyz"), *outcome, sep="\t")


main()

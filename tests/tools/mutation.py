#!/usr/bin/env python3
"""The ways to break a source: each sample's mutants, nothing where there is no code, and the marks that accept some."""
import os
import sys
import unittest
from pathlib import Path
from types import SimpleNamespace

PROJECT = Path(__file__).resolve().parents[2]
os.environ["DEV_ROOT"] = str(PROJECT)
sys.path.insert(0, str(PROJECT / "tools" / "mutants"))
from cpp import without_comments  # noqa: E402
from marks import flaws, marks  # noqa: E402
from mutants import Task, unneeded_marks  # noqa: E402
from mutate import mutants  # noqa: E402


def broken(body):
    """The bodies that a function's body is broken into."""
    head, tail = "void f(int a, int b)\n{\n    ", "\n}\n"
    text = head + body + tail
    return sorted(mutant.apply(text)[len(head):-len(tail)] for mutant in mutants(text))


class Mutation(unittest.TestCase):
    def test_comparisons_and_conditions(self):
        self.assertEqual(broken("return a < b;"), ["return a <= b;"])
        self.assertEqual(broken("return a != b && !c;"), ["return a != b && c;", "return a != b || !c;",
                                                          "return a == b && !c;"])
        self.assertEqual(broken("if (a)\n        return;"), ["if (!(a))\n        return;", "if (a)\n        ;"])
        self.assertIn('if (!(f("a"))) b;', broken('if (f("a")) b;'))

    def test_numbers(self):
        self.assertEqual(broken("return 7;"), ["return 6;", "return 8;"])
        self.assertEqual(broken("return 0;"), ["return (-1);", "return 1;"])
        self.assertEqual(broken("return 0x0f;"), ["return 0x10;"])
        self.assertEqual(broken("return 0.5;"), ["return 0.45;", "return 0.55;"])

    def test_arithmetic(self):
        self.assertEqual(broken("return a + b;"), ["return a - b;"])
        self.assertEqual(broken("return qMin(a, -b);"), ["return qMax(a, -b);", "return qMin(a, b);"])

    def test_statements(self):
        self.assertEqual(broken("call(a);"), [";"])
        self.assertEqual(broken("m = a;\n    call(b);"), [";\n    call(b);", "call(b);\n    m = a;", "m = a;\n    ;"])
        self.assertEqual(broken("const int c = call(a);"), [])
        self.assertEqual(broken("w->setA(a);\n    connect(b);"), [";\n    connect(b);", "w->setA(a);\n    ;"])
        self.assertIn("l.addWidget(b);\n    l.addStretch();", broken("l.addStretch();\n    l.addWidget(b);"))
        self.assertEqual(broken("QPainter painter(this);"), [])
        self.assertEqual(broken("m = a;\n    update();"), [";\n    update();", "m = a;\n    ;"])

    def test_statements_under_labels_and_in_lambdas(self):
        self.assertEqual(broken("switch (a) {\n    default:\n        call(b);\n    }"),
                         ["switch (a) {\n    default:\n        ;\n    }"])
        self.assertIn("run([] { ; });", broken("run([] { call(); });"))

    def test_no_code(self):
        self.assertEqual(broken("// 1 < 2, call();"), [])
        self.assertEqual(broken("/* a + b */"), [])
        self.assertEqual(broken('return "1 + 1";'), [])
        self.assertEqual(mutants("#define A 1\n#include <b>\nX::~X() = default;\n"), [])
        self.assertEqual(broken("QVector<int*> a;"), [])

    def test_comments_do_not_count(self):
        self.assertEqual(without_comments('a; // b\n/* c\n d */\n\nf("// g"); \n'), 'a;\nf("// g");')


class Marks(unittest.TestCase):
    head = "void f()\n{\n"
    tail = "    a(0);\n    b(1);\n}\n"

    def accepted(self, comment):
        """The labels of the mutants that the mark in the comment accepts."""
        text = self.head + comment + self.tail
        return [mutant.label(text) for mutant in mutants(text) for mark in marks(text) if mark.accepts(mutant, text)]

    def flaws(self, comment):
        return list(flaws(self.head + comment + self.tail))

    def test_accepts_what_it_names_in_its_line(self):
        self.assertEqual(self.accepted("    // mutant [0 -> 1]: why\n"), ["0 -> 1"])
        self.assertEqual(self.accepted("    // mutant [order; dropped]: why\n    // so\n"), ["dropped", "order"])
        self.assertEqual(self.accepted("    // mutant [order]: why\n    // mutant [dropped]: so\n"),
                         ["dropped", "order"])
        self.assertEqual(self.accepted("    // a mutant [dropped]: why\n"), [])

    def test_reason(self):
        found = marks("// mutant [order]: why\n// so\na();\n")
        self.assertEqual([(mark.number, mark.line, mark.reason) for mark in found], [(1, 3, "why so")])

    def test_flaws(self):
        self.assertEqual(self.flaws("    // mutant [0 -> 1]: why\n"), [])
        self.assertEqual(self.flaws("    // mutant [0 -> 1]:\n"), ["3: a mark without a reason"])
        self.assertEqual(self.flaws("    // mutant [1 -> 2]: why\n"), ["3: there is no mutant '1 -> 2' in line 4"])

    def test_unneeded(self):
        text = self.head + "    // mutant [0 -> 1]: why\n" + self.tail
        tasks = [Task("x.cpp", text, mutant, [], [], "", any(mark.accepts(mutant, text) for mark in marks(text)))
                 for mutant in mutants(text)]

        def unneeded(fate):
            return unneeded_marks(tasks, SimpleNamespace(of=lambda task: fate))
        self.assertEqual(unneeded("killed"), ["x.cpp:3: no mutant needs the mark '0 -> 1'"])
        self.assertEqual(unneeded("survived"), [])
        self.assertEqual(unneeded(None), [])  # not tried yet

    def test_sources_have_no_flaws(self):
        found = [f"{path.name}:{flaw}" for path in (PROJECT / "src").rglob("*.cpp") for flaw in flaws(path.read_text())]
        self.assertEqual(found, [])


if __name__ == "__main__":
    unittest.main()

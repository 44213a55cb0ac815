#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Applies the rules of scripts/fault_rules.py to pieces of C++.

Usage: fault_rules_test.py ROOT
"""

import sys
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, f"{sys.argv[1]}/scripts")
import fault_rules  # noqa: E402


def made(text):
    """Returns for each rule the texts with its faults."""
    found = {}
    for fault in fault_rules.faults_in(text):
        found.setdefault(fault.rule, []).append(
            fault_rules.with_fault(text, fault))
    return found


class Rules(unittest.TestCase):
    def test_a_comparison_is_flipped_and_its_bound_moved(self):
        self.assertEqual(made("return b < c;"), {
            "flip a comparison": ["return b >= c;"],
            "off by one": ["return b <= c;"]})
        self.assertEqual(made("return b == c;"), {
            "flip a comparison": ["return b != c;"]})

    def test_and_becomes_or_and_a_negation_is_removed(self):
        self.assertEqual(made("return a && !b;"), {
            "flip a comparison": ["return a || !b;", "return a && b;"]})

    def test_a_reference_and_a_template_are_not_comparisons(self):
        self.assertEqual(made("void F(T &&x, std::vector<int> y) {}"), {})
        self.assertEqual(made("template <typename T, int N>\nT F();"), {})

    def test_numbers_grow_by_one_and_keep_their_form(self):
        self.assertEqual(made("return 7u | 0x0F | 0600;"), {"off by one": [
            "return 8u | 0x0F | 0600;", "return 7u | 0x10 | 0600;",
            "return 7u | 0x0F | 0601;"]})

    def test_names_texts_and_comments_are_not_changed(self):
        self.assertEqual(made('return kX2 + "1 < 2";  // 3 == 3\n'), {})
        self.assertEqual(made("#define A 1\n/* 2 */ static_assert(2 < 3);"), {})

    def test_calls_assignments_and_jumps_are_dropped(self):
        text = "{\n  Send(a);\n  b->c = d;\n  ++e;\n  break;\n  return f;\n}"
        self.assertEqual(made(text), {"drop a statement": [
            text.replace("Send(a)", ""), text.replace("b->c = d", ""),
            text.replace("++e", ""), text.replace("break", "")]})

    def test_a_declaration_is_kept(self):
        self.assertEqual(made("{\n  const Code result = Send(a);\n}"), {})

    def test_the_condition_of_an_if_becomes_false(self):
        self.assertEqual(
            made("{\n  if (Has(a)) return b;\n}"),
            {"drop a statement": ["{\n  if (false) return b;\n}"]})

    def test_results_are_swapped(self):
        self.assertEqual(made("return ZTK_SUCCESS;"), {
            "swap a result code": ["return ZTK_REJECTED;"]})
        self.assertEqual(made("return port::kBusy;"), {})
        self.assertEqual(made("return true;"), {
            "swap a result code": ["return false;"]})

    def test_two_successive_arguments_are_swapped(self):
        self.assertEqual(made("  F(a, G(b, c), d)"), {
            "swap two arguments": [
                "  F(G(b, c), a, d)", "  F(a, d, G(b, c))",
                "  F(a, G(c, b), d)"]})

    def test_parameters_and_equal_arguments_are_kept(self):
        self.assertEqual(made("int F(int a, const char *b);"), {})
        self.assertEqual(made("int F(int /*a*/, char /*b*/) {"), {})
        self.assertEqual(made("  F(a, a)"), {})


class Description(unittest.TestCase):
    def test_contains_the_dropped_text_or_the_changed_line(self):
        text = "{\n  if (a == b) {\n    Send(c);\n  }\n}"
        self.assertEqual(
            [f"{fault.rule}: {fault_rules.description(text, fault)}"
             for fault in fault_rules.faults_in(text)],
            ["drop a statement: if (a == b)",
             "flip a comparison: if (a != b) {",
             "drop a statement: Send(c)"])


    def test_contains_the_function(self):
        text = ("int A(int b) {\n  return 1;\n}\n\nconstexpr int kC = 2;\n\n"
                "int D(int e,\n      int f) {\n  return 3;\n}\n")
        self.assertEqual([fault_rules.function_of(text, fault)
                          for fault in fault_rules.faults_in(text)],
                         ["A", "", "D"])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])

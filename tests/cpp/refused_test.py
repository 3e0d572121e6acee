#!/usr/bin/python3
"""What the C++ front refuses when it is compiled, and in which words: refused_test.py COMPILER INCLUDE"""
import re
import subprocess
import sys
import unittest

COMPILER, INCLUDE = sys.argv[1:3]

CHAIN = '#include "hux/chain.hpp"\n'  # for statements that begin with it
START = """
#include "hux/hux.hpp"
hux::image<std::uint8_t, 3> bytes(4, 4);
const hux::image<std::uint8_t, 3> constant(4, 4);
hux::image<double, 3> doubles(4, 4);
hux::image<float, 1> floats(4, 4);
"""


class Refused(unittest.TestCase):
    def compiled(self, statement):
        start = CHAIN * statement.startswith("hux::chain") + START
        run = subprocess.run([COMPILER, "-std=c++20", "-fsyntax-only", "-I", INCLUDE, "-x", "c++", "-"],
                             input=f"{start}void f() {{ {statement} }}\n", capture_output=True, text=True)
        return run.returncode, run.stderr

    def refuses(self, statement, *words):
        code, text = self.compiled(statement)
        self.assertNotEqual(code, 0, f"{statement} is compiled")
        for word in words:
            self.assertRegex(re.sub(r"[‘’']", "", text), word)

    def test_what_is_right_is_compiled(self):
        code, text = self.compiled("hux::add(constant, bytes, bytes, {.shift = 1}); hux::add(floats, floats, floats);")
        self.assertEqual(code, 0, text)

    def test_members_that_are_not_there(self):
        # The message names the table that has no such member, and the type.
        self.refuses("hux::add(doubles, doubles, doubles);", "constraints not satisfied|constraint not satisfied|because",
                     r"exists<.*members::add<T, C>|exists<.*add<(T, C|double, 3)>", "double")
        self.refuses("hux::filter_gauss(floats, bytes, hux::mask_size::m3x3);", "view")

    def test_options_that_a_type_does_not_have(self):
        self.refuses("hux::add(floats, floats, floats, {.shift = 1});", "shift|no_options|initializer list")

    def test_const_destinations(self):
        self.refuses("hux::add(bytes, bytes, constant);", "deleted")

    def test_results_that_are_dropped(self):
        code, text = self.compiled("hux::nothrow::add(bytes, bytes, bytes); hux::nothrow::sum(bytes);")
        self.assertEqual(code, 0, text)
        self.assertEqual(len(re.findall(r"warning: ignoring return", text)), 2, text)

    def test_what_chains_do_not_hold(self):
        chain = "hux::chain c; auto b = c.input(bytes); auto f = c.input(floats); "
        code, text = self.compiled(chain + "c.filter_box(b, {5, 5}); (void)c.sum(b); (void)c.filter_min(f, {3, 3});")
        self.assertEqual(code, 0, text)
        self.refuses(chain + "c.transpose(b);", "hux::chain::transpose: .*end the chain there.*call hux::transpose")
        self.refuses(chain + "(void)c.sum(f);", "hux::chain::sum: of floats, the order of pixels tells.*call hux::sum")
        self.refuses(chain + "c.filter_box(f, {5, 5});", "hux::chain::filter_box: .*run on from row to row")
        self.refuses(chain + "(void)c.norm_l2(b);", "hux::chain::norm_l2: ")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])

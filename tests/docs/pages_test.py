"""Compares what the programs' pages tell with what the programs take: pages_test.py QUORVELCTL SIMULATOR"""

import pathlib
import re
import subprocess
import sys
import unittest

from simulator import Simulator

QUORVELCTL, SIMULATOR = sys.argv[1:3]
DOCS = pathlib.Path(__file__).parents[2] / "docs"
OPTION = re.compile(r"(?<![\w-])--[a-z][a-z0-9-]*")


def page(name):
    return (DOCS / name).read_text()


def manual(program):
    done = subprocess.run([program, "--manual", "man"], check=True, text=True,
                          stdout=subprocess.PIPE)
    return re.sub(r"\\f[BIR]", "", done.stdout).replace("\\-", "-")


def section(text, heading):
    return text.split(f"\n{heading}\n")[1].split("\n## ")[0]


def named(rows):
    """What stands in backticks in the first cells of tables."""
    return {code for row in re.findall(r"^\| (`[^|]*?) \|", rows.replace("\\|", "/"), re.MULTILINE)
            for code in re.findall(r"`([^`]*)`", row)}


class Quorvelctl(unittest.TestCase):
    def setUp(self):
        self.manual, self.page = manual(QUORVELCTL), page("quorvelctl.md")
        self.commands = {tuple(command.split()) for command in
                         re.findall(r"^\.SS quorvelctl (.*)$", self.manual, re.MULTILINE)}

    def test_page_names_every_command(self):
        codes = [tuple(code.split()) for code in re.findall(r"`([a-z][^`]*)`", self.page)]
        self.assertIn(("wan", "list"), self.commands)
        self.assertEqual([command for command in self.commands
                          if not any(code[:len(command)] == command for code in codes)], [])

    def test_every_command_of_the_tables_is_one(self):
        groups = {command[:1] for command in self.commands}
        tables = "".join(re.findall(r"^\| Command \|.*\n(?:\|.*\n)*", self.page, re.MULTILINE))
        found = [tuple(code.split()) for code in named(tables)]
        self.assertIn(("wan", "enable", "WAN"), found)
        self.assertEqual([code for code in found if code not in groups
                          and not {code[:1], code[:2]} & self.commands], [])

    def test_every_option_is_one(self):
        known = set(OPTION.findall(self.manual)) | set(OPTION.findall(manual(SIMULATOR)))
        # "--pppox-..." stands for all options that begin so.
        self.assertEqual([option for option in set(OPTION.findall(self.page)) - known if not (
            option.endswith("-") and any(other.startswith(option) for other in known))], [])


class GatewaySimulator(unittest.TestCase):
    def setUp(self):
        self.page = page("simulator.md")

    def test_page_names_every_option_and_no_other(self):
        self.assertEqual(set(OPTION.findall(self.page)) | {"--control"},
                         set(OPTION.findall(manual(SIMULATOR))))

    def test_page_names_every_control_command_and_no_other(self):
        with Simulator(SIMULATOR, "modern") as home:
            known = home.control("help")
        self.assertEqual(named(section(self.page, "## Control port")),
                         set(known.split("; ")))

    def test_every_fault_is_one(self):
        faults = section(self.page, "## Faults")
        table = faults.split("| option | meaning |")[0]
        examples = re.findall(r"^- `([^`]*)`", faults, re.MULTILINE)
        self.assertIn("refuse", named(table))
        self.assertIn("hang 3", examples)
        with Simulator(SIMULATOR, "modern") as home:
            for fault in [*named(table), *examples]:
                home.control(f"add-fault {fault}")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])

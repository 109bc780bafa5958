"""Runs each example against a simulated gateway: examples_test.py SIMULATOR FOLDER"""

import os
import pathlib
import subprocess
import sys
import unittest

from simulator import PATIENCE, Program, Simulator

SIMULATOR, FOLDER = sys.argv[1:3]
SOURCES = pathlib.Path(__file__).parents[2] / "examples"
ENVIRONMENT = {**os.environ, "GATEWAY_PASSWORD": "admin", "PPPOE_PASSWORD": "horse battery"}


def gateway(scenario, *options):
    return Simulator(SIMULATOR, scenario, *options)


def run(example, *arguments, typed="", environment=None):
    done = subprocess.run(
        [f"{FOLDER}/{example}", *arguments], env=environment or ENVIRONMENT, input=typed, text=True,
        stdout=subprocess.PIPE, timeout=PATIENCE)
    return done.returncode, done.stdout


class Examples(unittest.TestCase):
    def test_each_is_less_than_a_page(self):
        lines = {source.name: len(source.read_text().splitlines())
                 for source in SOURCES.glob("*.cpp")}
        self.assertEqual(len(lines), 7)
        self.assertEqual({name: n for name, n in lines.items() if n >= 60}, {})

    def test_identity_is_read(self):
        with gateway("modern") as home:
            self.assertEqual(run("1-identity", home.address), (0, """\
model     QV-4400X Home
serial    QV44X1720001903
firmware  3.2.0-r7
address   02:00:5E:10:01:01
DSL       yes
wireless  yes
telephony yes
"""))

    def test_wrong_password_is_told(self):
        wrong = {**ENVIRONMENT, "GATEWAY_PASSWORD": "adnim"}
        with gateway("modern") as home:
            self.assertEqual(run("1-identity", home.address, environment=wrong), (1, ""))

    def test_connection_is_followed(self):
        with gateway("modern") as home:
            follower = Program(f"{FOLDER}/2-follow-connection", home.address, "5", env=ENVIRONMENT)
            self.assertEqual(follower.line(), "connected")
            home.control("status eth-0 linkstate 0")
            self.assertEqual(follower.line(), "not connected")
            home.control("status eth-0 linkstate 1")
            self.assertEqual(follower.line(), "connected")
            home.control("fault refuse")
            self.assertEqual(follower.line(), "unknown")
            home.control("clear")
            self.assertEqual(follower.line(), "connected")
            self.assertEqual(follower.status(), 0)

    def test_window_draws_while_a_request_gets_no_answer(self):
        with gateway("modern") as home:
            follower = Program(f"{FOLDER}/2-follow-connection", home.address, "2", env=ENVIRONMENT)
            self.assertEqual(follower.line(), "connected")
            home.control("fault hang")
            home.wait_for_request()
            follower.wait_for_error_output(20)
        # The gateway is gone, and with it the connection that the request waits on.
        self.assertEqual(follower.line(), "unknown")
        self.assertEqual(follower.status(), 0)

    def test_connection_becomes_pppoe(self):
        with gateway("modern") as home:
            self.assertEqual(run("3-switch-to-pppoe", home.address, "ada@isp.example"), (0, """\
wan-1 was dhcp and is pppoe
connected as 198.51.100.25
"""))
            self.assertEqual(home.control("stored wan-1 linktype"), "pppoe")
            self.assertEqual(home.control("stored pppox-1 username"), "ada@isp.example")
            self.assertEqual(home.control("stored pppox-1 password"), "horse battery")

    def test_radios_change_in_one_request(self):
        with gateway("dual") as home:
            self.assertEqual(run("4-change-radios", home.address, "attic"), (0, """\
attic, wpa2
attic, wpa_both
"""))
            self.assertEqual(home.control("stored wireless_ap-0 ssid"), "attic")
            self.assertEqual(home.control("stored wireless-0 ap0_ssid"), "attic")
            writes = [request for request in home.requests() if "<key>save</key>" in request]
            self.assertEqual(len(writes), 1)
            self.assertIn('<set inst="wireless_ap-0">', writes[0])
            self.assertIn('<set inst="wireless-0">', writes[0])

    def test_radios_of_the_older_kind_are_left_alone(self):
        with gateway("classic") as home:
            before = home.control("stored wireless_ap-0 ssid")
            self.assertEqual(run("4-change-radios", home.address, "attic"), (1, ""))
            self.assertEqual(home.control("stored wireless_ap-0 ssid"), before)

    def test_calls_are_shown_by_screens(self):
        with gateway("modern") as home:
            status, output = run("5-call-history", home.address, "0", typed="\n" * 4)
        lines = output.splitlines()
        self.assertEqual(status, 0)
        self.assertEqual(lines[0], "45 calls")
        self.assertEqual(lines[1], "2023-12-31 18:30:42  5550171 -> 5550142  95 s")
        self.assertEqual(lines[-1], "2024-03-03 22:49:26  2025550123 -> 5550142  0 s")
        self.assertEqual([i for i, line in enumerate(lines) if line == "-- Enter for more --"],
                         [11, 22, 33, 44])
        self.assertEqual(len(lines), 50)

    def test_line_without_calls_shows_none(self):
        with gateway("modern") as home:
            self.assertEqual(run("5-call-history", home.address, "2"), (0, "0 calls\n"))

    def test_many_gateways_answer_each_for_itself(self):
        with gateway("classic") as a, gateway("modern") as b, gateway("dual") as c, \
                gateway("modern", "--fault", "http:503 on=login") as closed:
            homes = [a.address, b.address, c.address, closed.address]
            self.assertEqual(run("6-many-gateways", *homes), (0, f"""\
{a.address}: QV-1200A, 1.4.12
{b.address}: QV-4400X Home, 3.2.0-r7
{c.address}: QV-5200D Home, 3.4.1-r2
{closed.address}: no gateway, or it refused the login
"""))

    def test_wait_is_aborted(self):
        with gateway("modern", "--fault", "hang key=fwversion") as home:
            asking = Program(f"{FOLDER}/7-abort-a-wait", home.address, env=ENVIRONMENT)
            self.assertEqual(asking.line(), "Asking. Enter gives up.")
            asking.type("\n")
            self.assertEqual(asking.line(), "Given up.")
            self.assertEqual(asking.status(), 0)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])

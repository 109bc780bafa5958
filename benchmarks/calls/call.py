"""Asks a gateway for its firmware, as a person's script does: call.py ADDRESS post|session.

For each number that comes in on standard input it makes as many calls and prints how many
nanoseconds they took, on the clock and of processor time.
"""

import sys
import time
import xml.etree.ElementTree

import requests

REQUEST = """<xmlrequest version="1.0.1">
 <query inst="sysmgr-0">
  <key>fwversion</key>
  <value></value>
 </query>
</xmlrequest>
"""
HEADERS = {"Content-Type": "application/x-www-form-urlencoded", "Cookie": "SID=1"}


def firmware(post, url):
    reply = post(url, data=REQUEST, headers=HEADERS, timeout=20)
    entries = {}
    for entry_of in xml.etree.ElementTree.fromstring(reply.text):
        for entry in entry_of:
            entries[entry_of.tag + "." + entry.tag] = entry.text
    return entries["sysmgr-0.fwversion"]


def main(address, manner):
    post = requests.Session().post if manner == "session" else requests.post
    url = "http://" + address + "/cgi-bin/webapp"
    for line in sys.stdin:
        start, start_cpu = time.perf_counter_ns(), time.process_time_ns()
        for _ in range(int(line)):
            assert firmware(post, url) == "6.2.14.9"
        print(time.perf_counter_ns() - start, time.process_time_ns() - start_cpu, flush=True)


main(*sys.argv[1:])

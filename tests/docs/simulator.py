"""A simulated gateway, and programs that run beside it."""

import queue
import re
import socket
import subprocess
import threading
import time

PATIENCE = 60  # seconds: only a failure takes that long


class Simulator:
    """A gateway for the length of a `with` block, ruled over its control port."""

    def __init__(self, program, scenario, *options):
        self._command = [program, "--scenario", scenario, "--control-port", "0", *options]

    def __enter__(self):
        self._process = subprocess.Popen(self._command, stdout=subprocess.PIPE, text=True)
        line = self._process.stdout.readline()
        ports = re.search(r"http://(127\.0\.0\.1:\d+), control port (\d+)$", line)
        if not ports:
            raise AssertionError(f"the simulator said {line!r}")
        self.address = ports[1]
        self._control = socket.create_connection(("127.0.0.1", int(ports[2])), PATIENCE)
        self._answers = self._control.makefile("r")
        return self

    def __exit__(self, *_):
        self._control.close()
        self._process.terminate()
        self._process.communicate(timeout=PATIENCE)

    def control(self, command):
        """Gives a command and returns what follows "ok" in the answer."""
        self._control.sendall(command.encode() + b"\n")
        answer = self._answers.readline().strip()
        if answer.split(" ")[0] != "ok":
            raise AssertionError(f"{command}: {answer}")
        return answer[3:]

    def wait_for_request(self):
        """Waits until one more request has come, whether or not it is answered."""
        before = self.control("requests")
        deadline = time.monotonic() + PATIENCE
        while self.control("requests") == before:
            if time.monotonic() > deadline:
                raise AssertionError("no request came")

    def requests(self):
        """The requests so far, each with its head."""
        lines = [self._answers.readline() for _ in range(int(self.control("transcript")))]
        exchanges = re.split(r"(?m)^==== \d+: .*\n", "".join(lines))[1:]
        return [exchange.split("---- reply")[0] for exchange in exchanges]


class Program:
    """A running program, whose output is waited for."""

    def __init__(self, *command, env=None):
        self._process = subprocess.Popen(
            command, env=env, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
            stderr=subprocess.PIPE)
        self._out = self._collect(self._process.stdout)
        self._err = self._collect(self._process.stderr)

    @staticmethod
    def _collect(stream):
        pieces = queue.Queue()

        def read():
            with stream:
                while piece := stream.read1(4096):
                    pieces.put(piece.decode())
            pieces.put("")

        threading.Thread(target=read, daemon=True).start()
        return pieces

    def line(self):
        """The next line of standard output."""
        text = ""
        while not text.endswith("\n"):
            piece = self._out.get(timeout=PATIENCE)
            if not piece:
                raise AssertionError(f"the program ended after {text!r}")
            text += piece
        return text[:-1]

    def wait_for_error_output(self, length):
        """Waits until it has written so many more characters to standard error."""
        while length > 0:
            piece = self._err.get(timeout=PATIENCE)
            if not piece:
                raise AssertionError("the program ended")
            length -= len(piece)

    def type(self, text):
        self._process.stdin.write(text.encode())
        self._process.stdin.flush()

    def status(self):
        status = self._process.wait(timeout=PATIENCE)
        self._process.stdin.close()
        return status

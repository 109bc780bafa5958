"""Does what the documents tell their readers to do: documents.py SOURCE SCRATCH DOCUMENT...

The documents are followed in the given order by a reader with a fresh clone and an empty home. What
a fenced block is stands behind its fence:

    sh              commands, one a line, each of which must succeed
    console         commands behind "$ ", continued behind a backslash, and what they print; "..."
                    alone on a line stands for any lines
    cpp             a whole program if it has a main, which is given a gateway's address, otherwise
                    statements, for which fragment.cpp has what a host has
    output          what the cpp block before it prints with the scenario "modern"
    cmake           a piece of a project; it must configure
    json            a scenario; the simulator must take it
    text            neither input nor output; nothing is done with it
    LANGUAGE FILE   an excerpt of that file of the clone, or else a file that the reader makes

A command between the lines of the text, in backticks, must stand in a block that is run, or in what
CI runs (RUNS below), there perhaps with more behind it.

Ports differ from run to run: the first time that a document shows one it is learnt, and from then
on the document's number means the real one.
"""

import contextlib
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import threading
import time

PATIENCE = 120  # seconds: only a failure takes that long
BUILDING = 1800
PORT = re.compile(r"(127\.0\.0\.1:|control port )(\d+)")
MARK = "--done-5f1c--"
COMMAND = re.compile(
    r"`((?:[A-Z_]+=\S+ )*(?:\./\w|scripts/\w|(?:ctest|cpack|cmake|git|apt|apt-get) )[^`]*)`")
# What CI does beside following the documents.
RUNS = [".ci/run", "check", "tests/docs/CMakeLists.txt", "tests/quorvelctl/CMakeLists.txt",
        "tests/install/debian-packages-test"]


class Wrong(Exception):
    """What a document shows is not so."""


class Shell:
    """The reader's shell: one bash per document, with whatever was started in it."""

    def __init__(self, folder, environment):
        ours, self._commands = os.pipe()
        self._process = subprocess.Popen(
            ["bash", "-c", "trap 'kill $(jobs -p) 2>/dev/null' EXIT;"
             f" while IFS= read -r -d '' -u {ours} line; do"
             f" eval \"$line\" {ours}<&-; echo \"{MARK}$?\"; done"], cwd=folder, env=environment,
            pass_fds=[ours], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT, start_new_session=True)
        os.close(ours)
        self._text = ""
        self._news = threading.Condition()
        threading.Thread(target=self._read, daemon=True).start()

    def _read(self):
        while piece := self._process.stdout.read1(4096):
            with self._news:
                self._text += piece.decode(errors="replace")
                self._news.notify()

    def run(self, command, is_enough=lambda output: True, patience=PATIENCE):
        """The exit status and the output, which for background programs is waited for."""
        os.write(self._commands, command.encode() + b"\0")
        deadline = time.monotonic() + patience
        mark = re.compile(re.escape(MARK) + r"(\d+)\n")
        with self._news:
            while True:
                done = mark.search(self._text)
                output = mark.sub("", self._text)
                late = time.monotonic() > deadline
                if done and (late or " &" not in command or int(done[1]) or is_enough(output)):
                    self._text = ""
                    return int(done[1]), output
                if late:
                    raise Wrong(f"doesn't end: {command}\n{output}")
                self._news.wait(1)

    def close(self):
        os.close(self._commands)
        try:
            os.killpg(self._process.pid, signal.SIGTERM)
        except ProcessLookupError:
            pass
        self._process.wait(PATIENCE)


class Block:
    def __init__(self, document, line, info, text):
        self.document, self.line, self.text = document, line, text
        self.language, _, self.file = info.partition(" ")

    def __str__(self):
        return f"{self.document}:{self.line}"


def blocks_of(document, text):
    fence, start, lines = None, 0, []
    for number, line in enumerate(text.splitlines(), 1):
        if fence is None and line.startswith("```"):
            fence, start, lines = line[3:].strip(), number, []
        elif fence is not None and line.startswith("```"):
            yield Block(document, start, fence, "".join(lines))
            fence = None
        else:
            lines.append(line + "\n")


def without_blocks(text):
    return re.sub(r"^```.*?^```$", "", text, flags=re.MULTILINE | re.DOTALL)


def commands_run(clone, documents):
    """The text of all that CI runs."""
    texts = [(clone / file).read_text() for file in RUNS]
    for document in documents:
        texts += [block.text for block in blocks_of(document, (clone / document).read_text())
                  if block.language in ("sh", "console")]
    return "\n".join(line for text in texts for line in any_build(text).splitlines()
                     if not line.lstrip().startswith("#"))


def any_build(command):
    """The command for whichever build folder."""
    return re.sub(r"build/(release|install)(?=/)", "$build", command.replace('"', ""))


def has_main(block):
    return "int main(" in block.text


def expect_run(program, blocks):
    """A program that the reader makes is started below the folder in which it is made."""
    folder = re.escape(os.path.dirname(program.file))
    start = re.compile(rf"^\$ (?:\w+=\S+ )*{folder}/", re.MULTILINE)
    if not any(block.language == "console" and start.search(block.text) for block in blocks):
        raise Wrong(f"{program}: a program that nobody runs")


def expect_all_run(document, text, runs):
    for command in COMMAND.findall(without_blocks(text)):
        if any_build(command) not in runs:
            raise Wrong(f"{document}: a command that nobody runs: {command}")


class Reader:
    """Follows one document."""

    def __init__(self, clone, home, document, environment):
        self._clone, self._home = clone, home
        self._shell = Shell(clone, environment)
        self._ports = {}
        self._snippet = None
        self._blocks = list(blocks_of(document, (clone / document).read_text()))

    def follow(self):
        done = {"sh": self._sh, "console": self._console, "cpp": self._cpp, "output": self._output,
                "cmake": self._cmake, "json": self._json, "text": self._text}
        for block in self._blocks:
            if block.language not in done:
                raise Wrong(f"{block}: '{block.language}' says not what to do with this block")
            if block.language != "output":
                self._expect_no_snippet()
            if block.file:
                self._file(block)
            else:
                done[block.language](block)
        self._expect_no_snippet()

    def close(self):
        self._shell.close()

    def _file(self, block):
        path = self._clone / block.file
        if path.exists():
            if block.text not in path.read_text():
                raise Wrong(f"{block}: that's not what stands in {block.file}")
            return
        if has_main(block):
            expect_run(block, self._blocks)
        path = pathlib.Path(block.file.replace("~", str(self._home), 1))
        path = self._clone / path
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(self._real(block.text))

    def _real(self, text):
        """The text with the ports as they are in this run."""
        for shown, real in self._ports.items():
            text = re.sub(rf"\b{shown}\b", real, text)
        return text

    def _run(self, block, command, *rest, **others):
        status, output = self._shell.run(self._real(command), *rest, **others)
        if status != 0:
            raise Wrong(f"{block}: status {status} from: {command}\n{output}")
        return output

    def _text(self, block):
        if re.search(r"^\$ ", block.text, re.MULTILINE):
            raise Wrong(f"{block}: a command that nobody runs")

    def _sh(self, block):
        for command in block.text.replace("\\\n", " ").splitlines():
            self._run(block, command, patience=BUILDING)

    def _console(self, block):
        command, expected = "", []
        for line in [*block.text.splitlines(), "$ "]:
            if line.startswith("$ ") and command:
                self._expect(block, command, expected)
            if line.startswith("$ "):
                command, expected = line[2:], []
            elif command.endswith("\\") and not expected:
                command = command[:-1] + line
            else:
                expected.append(line)

    def _expect(self, block, command, expected):
        names = []

        def port(found):
            if found[2] in self._ports:
                return found[1] + self._ports[found[2]]
            names.append(found[2])
            return found[1] + "PORT"

        lines = [PORT.sub(port, self._real(line)) for line in expected]
        pattern = "".join(
            r"(?:.*\n)*?" if line == "..." else
            re.escape(line).replace("PORT", r"(\d+)") + r"\n" for line in lines)
        matches = re.compile(pattern).fullmatch
        builds = "..." in expected and " &" not in command
        output = self._run(block, command, matches, patience=BUILDING if builds else PATIENCE)
        found = matches(output)
        if not found:
            raise Wrong(f"{block}: {command}\nprints:\n{output}instead of:\n"
                        + "".join(line + "\n" for line in expected))
        self._ports.update(zip(names, found.groups()))

    def _expect_no_snippet(self):
        if self._snippet:
            raise Wrong(f"{self._snippet}: no output block tells what this prints")

    def _cpp(self, block):
        self._snippet = block

    def _output(self, block):
        snippet, self._snippet = self._snippet, None
        if not snippet:
            raise Wrong(f"{block}: the output of nothing")
        expected = block.text.splitlines()
        if not set(expected) - {"", "..."}:
            raise Wrong(f"{block}: a line must show that this has run")
        program = self._build(snippet)
        with self._gateway(snippet, "modern") as address:
            if has_main(snippet):
                self._expect(snippet, f"{program} {address}", expected)
                return
            self._expect(snippet, f"{program} {address} & fragment=$!", expected)
            # It prints nothing more, and ends by this signal and by none of its own.
            ended = 128 + signal.SIGTERM
            self._expect(snippet, f"kill $fragment && wait $fragment; [ $? -eq {ended} ]", [])

    def _build(self, block):
        folder = self._home / "snippet"
        folder.mkdir(exist_ok=True)
        source = folder / ("main.cpp" if has_main(block) else "fragment.inc")
        source.write_text(f'#line {block.line + 1} "{block.document}"\n{block.text}')
        main = source if has_main(block) else self._clone / "tests/docs/fragment.cpp"
        simulator = ""
        if "quorvel-simulator/" in block.text:
            simulator = (f"-I{self._clone}/simulator/include -lgtest"
                         f" {self._clone}/build/install/simulator/libQuorvelSimulator.a")
        self._run(block, f"c++ -std=c++17 -fPIC -I{folder} {main} -o {folder}/program {simulator}"
                         " -Wl,-rpath,$(pkg-config --variable=libdir quorvelapi1)"
                         " $(pkg-config --cflags --libs quorvelapi1)")
        return folder / "program"

    def _cmake(self, block):
        folder = self._home / "cmake-snippet"
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir()
        (folder / "main.cpp").write_text("int main() {}\n")
        (folder / "CMakeLists.txt").write_text(
            "cmake_minimum_required(VERSION 3.20)\nproject(Host LANGUAGES CXX)\n"
            "add_executable(host main.cpp)\n" + block.text)
        self._run(block, f"cmake -S {folder} -B {folder}/build -G Ninja"
                         f" -DCMAKE_PREFIX_PATH={self._home}/quorvel")

    def _json(self, block):
        scenario = self._home / "scenario.json"
        scenario.write_text(block.text)
        with self._gateway(block, scenario):
            pass

    @contextlib.contextmanager
    def _gateway(self, block, scenario):
        """A gateway, and its address as it stands in commands."""
        address = "127.0.0.1:00001"
        self._expect(block, f"quorvel-gateway-sim --scenario {scenario} & scenario=$!",
                     [f"quorvel-gateway-sim: listening on http://{address}"])
        yield address
        self._ports.pop("00001")
        self._run(block, "kill $scenario && wait $scenario")


def fresh_clone(source, folder):
    files = subprocess.run(
        ["git", "-C", source, "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
        check=True, stdout=subprocess.PIPE, text=True).stdout.split("\0")
    for file in filter(None, files):
        if (source / file).exists():
            (folder / file).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy2(source / file, folder / file)


def main(source, scratch, documents):
    shutil.rmtree(scratch, ignore_errors=True)
    clone, home = scratch / "clone", scratch / "home"
    clone.mkdir(parents=True)
    home.mkdir()
    fresh_clone(source, clone)
    cache = subprocess.run(["ccache", "--get-config", "cache_dir"], check=True, text=True,
                           stdout=subprocess.PIPE).stdout.strip()
    environment = {
        **os.environ, "HOME": str(home), "PATH": f"{home}/quorvel/bin:{os.environ['PATH']}",
        "PKG_CONFIG_PATH": ":".join(str(home / "quorvel" / lib / "pkgconfig")
                                    for lib in ("lib", "lib/x86_64-linux-gnu", "lib64")),
        # What is built already need not be built again.
        "CCACHE_DIR": cache, "CCACHE_BASEDIR": str(clone), "CCACHE_NOHASHDIR": "1",
        "CCACHE_SLOPPINESS": "include_file_mtime,include_file_ctime,pch_defines,time_macros"}
    runs = commands_run(clone, documents)
    failed = 0
    for document in documents:
        reader = Reader(clone, home, document, environment)
        try:
            expect_all_run(document, (clone / document).read_text(), runs)
            reader.follow()
            print(f"{document}: as it says", flush=True)
        except Wrong as wrong:
            failed += 1
            print(f"{document}: FAILED\n{wrong}", flush=True)
        finally:
            reader.close()
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]), sys.argv[3:]))

"""Draws the diagrams or the pictures anew and compares what they say: drawings_test.py SOURCE SCRIPT

Only the words count, as places and sizes depend on the fonts of the machine; and of the words not
those that are others each time, ports and times of day.
"""

import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

FLEETING = re.compile(r"(?<=127\.0\.0\.1:)\d+|\d\d:\d\d:\d\d")


def words(drawing):
    texts = [element.text for element in ElementTree.parse(drawing).iter() if element.tag.endswith(
        ("}text", "}title"))]
    return sorted(FLEETING.sub("#", text) for text in texts if text)


source, script = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
with tempfile.TemporaryDirectory() as fresh:
    subprocess.run([source / script, fresh], check=True)
    drawn = {drawing.name: words(drawing) for drawing in pathlib.Path(fresh).iterdir()}
kept = {drawing.name: words(drawing) for drawing in (source / "docs" / script.name).glob("*.svg")}
if not drawn or not all(drawn.values()) or drawn != kept:
    stale = [name for name in drawn.keys() | kept.keys() if drawn.get(name) != kept.get(name)]
    sys.exit(f"run {script}: {', '.join(stale) or 'nothing'} is not as it would be drawn")

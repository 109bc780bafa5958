"""Draws the diagrams anew and compares what they say: diagrams_test.py SOURCE

Only the words count, as places and sizes depend on the fonts of the machine.
"""

import pathlib
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree


def words(picture):
    texts = [element.text for element in ElementTree.parse(picture).iter() if element.tag.endswith(
        ("}text", "}title"))]
    return sorted(filter(None, texts))


source = pathlib.Path(sys.argv[1])
stale = []
with tempfile.TemporaryDirectory() as fresh:
    subprocess.run([source / "scripts/diagrams", fresh], check=True)
    drawn = sorted(pathlib.Path(fresh).iterdir())
    for picture in drawn:
        kept = source / "docs/diagrams" / picture.name
        if not kept.exists() or words(picture) != words(kept) or not words(picture):
            stale.append(picture.name)
if stale or not drawn:
    sys.exit(f"run scripts/diagrams: {', '.join(stale) or 'nothing'} is not as its source says")

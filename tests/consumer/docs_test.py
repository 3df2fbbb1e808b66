#!/usr/bin/python3
"""What the installed pages point to is installed: pages, pictures, headings, headers, programs. And
they speak of nothing that only a folder of sources has.
   docs_test.py PREFIX"""
import pathlib
import re
import sys

prefix = pathlib.Path(sys.argv[1])
docs = prefix / "share/doc/radsel"
include = prefix / "include"
headers = "".join(header.read_text() for header in include.rglob("*.h"))
faults = []


def slugs(page):
    headings = re.findall(r"^#+ +(.*)$", page.read_text(), re.M)
    return {re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-") for heading in headings}


def link_is_good(page, target):
    if re.match(r"\w+:", target):
        return True
    name, _, heading = target.partition("#")
    file = page.parent / name if name else page
    return file.is_file() and (not heading or heading in slugs(file))


def name_is_good(name):
    """A header, a page, a program or a library that is named in passing."""
    if name.endswith(".h"):
        return any(include.rglob(name))
    if name.endswith(".md"):
        return (docs / name).is_file()
    if name.startswith("examples/"):
        return (docs / name).exists()
    if (prefix / "bin" / name).is_file() or any(prefix.rglob(f"{name}.pc")):
        return True
    return re.search(rf"\b{name}\b", headers)


NAMES = re.compile(r"(?<![\w/.:])((?:[a-z_0-9-]+/)*[a-z_0-9-]+\.(?:h|md)|examples/[\w/.]+\w|"
                   r"radsel_(?!DIR)[a-z_]+)(?![\w.]*\()")

pages = sorted(docs.rglob("*.md"))
for page in pages:
    text = page.read_text()
    bad = [target for target in re.findall(r"\]\(([^)\s]+)\)", text) if not link_is_good(page, target)]
    if page.name != "CHANGELOG.md":  # which speaks of what is gone, too
        bad += [name for name in NAMES.findall(text) if not name_is_good(name)]
        bad += re.findall(r"\./(?:test|bench)\b|\b(?:src|tools|tests|reference_host|workbench)/[\w/]+", text)
    faults += [f"{page.name}: {thing}" for thing in bad]

pictures = {target for page in pages for target in re.findall(r"!\[[^]]*\]\(([^)]+)\)", page.read_text())}
if len(pages) < 8 or not pictures:
    faults.append(f"only {len(pages)} pages, {len(pictures)} pictures")
sys.exit("\n".join(faults) or None)

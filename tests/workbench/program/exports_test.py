#!/usr/bin/python3
"""What leaves the workbench, read by programs of others: the workbook by openpyxl, the drawings by
ezdxf. The CSV file for programs and the JSON file of the same run say what is to be there.
Usage: exports_test.py PROGRAM DATA_FOLDER"""

import csv
import json
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

import ezdxf
import openpyxl

# Of the workbook's columns those that count, add up or measure.
NUMBERS = re.compile(r"( (W|°C|mm|%|l|DN|m³/h)|^(Elementi|Pezzi|DN))$")

failures = []


def expect(condition, *what):
    if not condition:
        failures.append(" ".join(str(part) for part in what))


def run(program, data, building, folder):
    subprocess.run(
        [program, "--batch", "--csv-plain", "--building", building, "--output", folder]
        + ["--catalogues", data / "catalogues", "--valve-catalogues", data / "valves"],
        check=True, stdout=subprocess.DEVNULL,
        env=os.environ | {
             "RADSEL_HKBLOCKDIR": str(data / "drawing/heizkoerper.dxf"),
             "RADSEL_VEBLOCKDIR": str(data / "drawing/ventile.dxf"),
             "TGA_DATA_SINGLE": str(data / "root"), "XDG_CONFIG_HOME": str(folder)})


def calculated(formula, sheet):
    """What a spreadsheet would show for the formulas that the workbook has."""
    def cells(match):
        return str([cell.value for row in sheet[match[0]] for cell in row if cell.value is not None])
    text = formula[1:].replace("IF(", "when(").replace("SUM(", "sum(")
    text = re.sub(r"[A-Z]+\d+:[A-Z]+\d+", cells, text)
    text = re.sub(r"\b([A-Z]+\d+)\b", lambda match: repr(value_of(sheet[match[1]])), text)
    return eval(text, {"sum": sum, "when": lambda test, yes, no: yes if test else no})


def value_of(cell):
    return calculated(cell.value, cell.parent) if cell.data_type == "f" else cell.value


def check_cell(cell, heading, text):
    where = f"{cell.parent.title} {cell.coordinate} ({heading})"
    if text == "":
        expect(cell.value is None, where, "is not empty:", cell.value)
    elif NUMBERS.search(heading):
        expect(cell.data_type in "nf", where, "is no number but", cell.data_type)
        expect(abs(value_of(cell) - float(text)) < 0.06, where, value_of(cell), "instead of", text)
    else:
        expect(cell.data_type == "s", where, "is no text but", cell.data_type)
        expect(cell.value == text, where, cell.value, "instead of", text)


def check_schedule(book, shown, rows):
    sheet = book["Corpi scaldanti"]
    expect(sheet.max_row == len(rows), "rows:", sheet.max_row, "instead of", len(rows))
    headings = [cell.value for cell in sheet[1]]
    expect(headings == rows[0], "headings:", headings)
    sums = 0
    for number, row in enumerate(rows[1:], 2):
        for cell, heading, text in zip(sheet[number], headings, row):
            # Where a program has to tell a text from a formula, its CSV file has a sign in front.
            check_cell(cell, heading, text[1:] if text.startswith("'") else text)
            isSum = row[2].startswith("totale") and NUMBERS.search(heading) and text
            expect((cell.data_type == "f") == bool(isSum), cell.coordinate, "formula:", cell.value)
            if isSum:
                sums += 1
                remembered = shown["Corpi scaldanti"][cell.coordinate].value
                expect(abs(remembered - value_of(cell)) < 1e-9, cell.coordinate, "shows", remembered)
    expect(sums >= 3 * 6, "only", sums, "formulas")


def check_order(book, name, items, fields):
    sheet = book[name]
    for number, item in enumerate(items, 2):
        for cell, heading, field in zip(sheet[number], sheet[1], fields):
            text = item.get(field, "")
            check_cell(cell, heading.value, "" if field == "sections" and text == 0 and cell.value is None
                       else str(text))
    total = sheet.cell(len(items) + 2, len(fields))
    expect(total.data_type == "f", name, "has no formula but", total.value)
    expect(value_of(total) == sum(item["count"] for item in items), name, "total", total.value)


def check_drawing(path):
    drawing = ezdxf.readfile(path)
    audit = drawing.audit()
    for fault in audit.errors + audit.fixes:
        expect(False, path.name, fault.message)
    return drawing


def check_plan(path, schedule):
    drawing = check_drawing(path)
    # The reader gives handles to what has none, so the file itself is asked.
    groups = path.read_text(encoding="cp1252").split("\n")
    pairs = [(groups[i].strip(), groups[i + 1].strip()) for i in range(0, len(groups) - 1, 2)]
    handles = [value for code, value in pairs if code == "5"]
    expect(len(handles) == len(set(handles)), "handles are given twice")
    expect({entity.dxf.handle for entity in drawing.modelspace()} <= set(handles), "handles lack")
    seed = drawing.header["$HANDSEED"]
    expect(int(seed, 16) > max(int(handle, 16) for handle in handles if handle != seed), "seed")
    for layer in drawing.layers:
        expect(not re.search(r"\s", layer.dxf.name), "layer", layer.dxf.name)
    wanted = sorted((room["radiator"]["type"], f'{room["radiator"]["output"]:.0f}')
                    for floor in schedule["floors"] for room in floor["rooms"] if "radiator" in room)
    found = sorted((insert.get_attrib_text("H_TYP"), insert.get_attrib_text("H_LEISTUNG"))
                   for insert in drawing.modelspace().query("INSERT") if insert.attribs)
    expect(found == wanted, "radiators:", found, "instead of", wanted)


def main():
    program, data = sys.argv[1], Path(sys.argv[2]).resolve()
    with tempfile.TemporaryDirectory() as scratch:
        folder = Path(scratch)
        building = json.loads((data / "buildings/villa-dei-tigli.json").read_text())
        names = {"Soggiorno": "=1+1", "Cucina": "@SUM(A1)", "Studio": "1.01", "Veranda": "<è & \"ì\">"}
        for floor in building["floors"]:
            for room in floor["rooms"]:
                room["name"] = names.get(room["name"], room["name"])
        (folder / "casa.json").write_text(json.dumps(building))
        run(program, data, folder / "casa.json", folder)

        with open(folder / "corpi-scaldanti.csv", encoding="utf-8", newline="") as file:
            rows = list(csv.reader(file, delimiter=";"))
        schedule = json.loads((folder / "corpi-scaldanti.json").read_text())
        book = openpyxl.load_workbook(folder / "corpi-scaldanti.xlsx")
        shown = openpyxl.load_workbook(folder / "corpi-scaldanti.xlsx", data_only=True)
        check_schedule(book, shown, rows)
        check_order(book, "Ordine corpi scaldanti", schedule["radiators"],
                    ["maker", "kind", "product", "type", "height", "depth", "length", "sections",
                     "orderNumber", "count"])
        check_order(book, "Ordine valvole", schedule["valves"],
                    ["maker", "name", "number", "DN", "count"])
        expect(all(re.fullmatch(r"\d{36}", valve["number"]) for valve in schedule["valves"]), "codes")
        expect(sum("orderNumber" in item for item in schedule["radiators"]) >= 5, "order numbers")
        check_plan(folder / "pianta.dxf", schedule)
        for library in sorted((data / "drawing").glob("*.dxf")):
            check_drawing(library)
    for failure in failures[:40]:
        print(failure)
    return 1 if failures else 0


sys.exit(main())

"""The data sheet in a browser: what it shows, and that it shows nothing else."""

import json
import math
import os
import pathlib
import re
import shutil
import subprocess

import pytest

from browser import Browser, find_chromium

TOOL = os.environ["TAVRIN_TOOL"]
EXAMPLES = pathlib.Path(os.environ["TAVRIN_EXAMPLES"])

if find_chromium() is None or shutil.which("tidy") is None:
    pytest.skip("chromium or tidy is not installed here", allow_module_level=True)

MARKUP = "<script>document.title = 'run'</script><img src=x onerror=alert(1)>&amp;\"' --></svg>"
LONG = "WithoutAnyBlankAndWithoutAnyEndThatASheetCouldHaveRoomForInOneLine" * 2


def hostile():
    """Many modes and slots, markup or a long text wherever a definition has a text."""
    lines = ["[printer]", f"ModelName={MARKUP}", f"Version={MARKUP}", f"IPAddress={MARKUP}",
             f"{MARKUP}=1", "PrinterSize=1200,300,90", "PrintMargin=25", "SupportExtend=1",
             "HeadBandSize=53,7", "DefaultMode=7", "NumOfColor=3", "NumOfInkType=2",
             "InkType001Code=1", f"InkType001Name={MARKUP}", "InkType002Code=2",
             f"InkType002Name={LONG}", "Mode=" + ",".join(map(str, range(1, 31))),
             "LimitationMode=1,7,30", "PrinterInkSlotNum=20"]
    for number, name in enumerate(["Cyan", f"{MARKUP} Light Magenta", LONG], 1):
        lines += [f"Color{number:03}Code={number}", f"Color{number:03}Name={name}"]
    for number in range(1, 31):
        lines += [f"Mode{number}={number * 100},{number}", f"Mode{number}SliceSize=0.0{number:02}",
                  f"Mode{number}ColorThickness=1", f"Mode{number}LimitedContinuous=2147483647"]
    for number in range(1, 21):
        lines += [f"ColorCodeInkSlot{number}={number % 4 + 1}",
                  f"InkTypeCodeInkSlot{number}={number % 2 + 1}"]
    return "\n".join(lines) + "\n"


SOURCES = {name: (EXAMPLES / f"{name}.ini").read_text()
           for name in ("full-colour", "compact", "minimal")}
SOURCES["hostile"] = hostile()
SOURCES["odd"] = ("[printer]\nVersion=1\nModelName=\x01\xfc\nPrinterSize=-3,0.1,99999999\nMode=1\n"
                  "PrintMargin=-1\nMode1=1,1\nMode1SliceSize=0\nMode1ColorThickness=1\n"
                  "SupportExtend=-2\nSupportThickness=-1\nPrinterInkSlotNum=1\n"
                  "ColorCodeInkSlot1=9\nInkTypeCodeInkSlot1=9\n")


@pytest.fixture(scope="module")
def browser():
    chromium = Browser()
    yield chromium
    chromium.close()


def show(definition, output_format):
    shown = subprocess.run([TOOL, "show", f"--format={output_format}", definition], check=True,
                           stdout=subprocess.PIPE)
    return shown.stdout


@pytest.fixture(scope="module", params=SOURCES)
def sheet(request, tmp_path_factory):
    """The page and the facts of one definition."""
    directory = tmp_path_factory.mktemp(request.param)
    definition = directory / "definition.ini"
    definition.write_bytes(SOURCES[request.param].encode("latin-1"))
    page = directory / "sheet.html"
    page.write_bytes(show(definition, "html"))
    return page, json.loads(show(definition, "json"))


# The texts of the tables as the page shows them, beside the titles of their columns or rows.
TABLES = """(() => {
  const text = (element) => element.innerText.replace(/\\s+/g, ' ').trim();
  const all = (element, what) => [...element.querySelectorAll(what)];
  const rows = (style) => all(document, 'table.' + style).map((table) =>
    all(table, 'tbody tr').map((row) => [...row.children].map(text)));
  return {title: document.title, heading: text(document.querySelector('h1')),
          identity: all(document, 'dd').map(text), facts: Object.fromEntries(rows('facts').flat()),
          modes: rows('modes').flat(), limited: all(document, 'tr.limited').length,
          slots: rows('slots').flat(), categories: rows('categories').flat(),
          fills: all(document, '.slots .swatch rect').map((rect) => rect.getAttribute('fill')),
          curve: document.querySelector('polyline').getAttribute('points')};
})()"""


def millimetres(micrometres):
    text = f"{abs(micrometres) / 1000:.3f}".rstrip("0").rstrip(".")
    return f"{'-' if micrometres < 0 else ''}{text} mm"


def without_tag(text):
    return re.sub(r" ?(partly )?built-in$", "", text)


def test_shows_the_values_that_programs_get(browser, sheet):
    page, facts = sheet
    browser.open(page)
    seen = browser.evaluate(TABLES)
    identity, volume, support = facts["identity"], facts["buildVolume"], facts["support"]
    # What is no character is one escape here and another there.
    assert without_tag(seen["heading"])[-9:] == identity["modelName"][-9:] or "\\x" in seen["heading"]
    assert seen["identity"][0] == " ".join(identity["version"].split())
    assert without_tag(seen["identity"][3]).split(",")[0] == str(facts["defaultModeNumber"])
    table = {name: without_tag(value) for name, value in seen["facts"].items()}
    for name, value in [("Width", volume["widthUm"]), ("Depth", volume["depthUm"]),
                        ("Height", volume["heightUm"]), ("Print margin", volume["printMarginUm"]),
                        ("Top support", support["topThicknessUm"]),
                        ("Detach layer", support["detachLayerUm"])]:
        assert table[name] == millimetres(value), name
    for side in support["sideThicknesses"]:
        name = f"Side support at {millimetres(side['modelHeightUm'])}"
        assert table[name] == millimetres(side["thicknessUm"])
    assert table["Size code (\u22122 to 6)"] == str(support["sizeCode"])
    machine = facts["machine"]
    for name, key in [("Smoothing", "smoothing"), ("Bidirectional feed", "feedBiDirection"),
                      ("Wrap reduction", "wrapReduction"), ("Automatic cleaning", "autoCleaning"),
                      ("Nozzle check while printing", "checkNozzleWhilePrinting")]:
        assert table[name] == ("on" if machine[key] else "off"), name
    assert table["Head band"] == f"{machine['headBandMm']:g} mm"

    def mode_row(mode):
        limit = mode["continuousLimit"]
        return [f"{mode['number']}"
                + (" default" if mode["number"] == facts["defaultModeNumber"] else "")
                + (" limited" if mode["limited"] else "")
                + ("" if limit is None else f" limit {limit}"),
                f"{mode['sliceUm']} \u00b5m",
                "none" if mode["layers"] is None else str(mode["layers"]),
                f"{mode['firstValue']} / {mode['secondValue']}"]

    assert [[" ".join(cell.split()) for cell in row] for row in seen["modes"]] == [
        mode_row(mode) for mode in facts["printModes"]]
    assert seen["limited"] == sum(mode["limited"] for mode in facts["printModes"])
    assert [[row[0].lstrip("? "), *row[1:]] for row in seen["slots"]] == [
        [str(slot["number"]), " ".join((slot["inkName"] or "unknown ink").split()), slot["inkId"],
         str(slot["colorCode"]), str(slot["inkTypeCode"])] for slot in facts["inkSlots"]]
    assert [(row[0], row[2]) for row in seen["categories"]] == [
        (str(category["index"]), ", ".join(map(str, category["slotNumbers"])) or "none")
        for category in facts["inkCategories"]]


def test_is_still_and_alone_and_fits(browser, sheet):
    page, _ = sheet
    for width, dark in ((1280, False), (375, True)):
        browser.open(page, width, dark=dark)
        assert browser.requests() == [f"file://{page}"]
        assert browser.remarks() == []
        assert browser.evaluate("document.documentElement.scrollWidth") == width
        # Nothing reaches out of the sheet, nor lies cut in it but the labels of narrow bars.
        assert browser.evaluate("""[...document.querySelectorAll('article *:not(.category *)')]
            .filter((element) => element.getBoundingClientRect().right > innerWidth)
            .map((element) => element.outerHTML)""") == []
        assert browser.evaluate("""[...document.querySelectorAll('.drawing text')].filter((text) => {
              const inner = text.getBoundingClientRect();
              const outer = text.closest('svg').getBoundingClientRect();
              return inner.left < outer.left - 1 || inner.right > outer.right + 1;
            }).map((text) => text.textContent)""") == []
        background = browser.evaluate("getComputedStyle(document.body).backgroundColor")
        assert background == ("rgb(14, 18, 21)" if dark else "rgb(238, 241, 244)")
    for what in ("script", "img", "link", "[src]", "[href]", "[onload]", "[onerror]", "[id]"):
        assert browser.evaluate(f"document.querySelectorAll('{what}').length") == 0, what
    assert browser.evaluate("""[...document.querySelectorAll('svg')].every((svg) =>
        svg.firstElementChild.tagName === 'title' && svg.firstElementChild.textContent)""")
    assert browser.evaluate("""[...document.querySelectorAll('tr')].every((row) =>
        row.firstElementChild.tagName === 'TH' && row.firstElementChild.scope)""")


def test_is_clean_and_in_ascii(sheet):
    page, _ = sheet
    page.read_bytes().decode("ascii")
    tidy = subprocess.run(["tidy", "-quiet", "-errors", "-utf8", page], capture_output=True,
                          text=True, check=False)
    assert (tidy.returncode, tidy.stderr) == (0, "")


def test_the_example_is_as_it_is_known(browser, tmp_path):
    """Against values that are worked out here, not by the tool."""
    page = tmp_path / "sheet.html"
    page.write_bytes(show(EXAMPLES / "full-colour.ini", "html"))
    browser.open(page)
    seen = browser.evaluate(TABLES)
    assert seen["title"] == "Tavrin FC-500 \u2013 data sheet"
    assert seen["identity"] == ["2.4.1", "192.0.2.50", "6", "2"]
    assert seen["modes"][4] == ["10 limited limit 4", "64 \u00b5m", "4687", "600 / 2"]
    assert [fill for fill in seen["fills"] if fill] == [
        "#ffffff", "#00a0dc", "#dc0a7b", "#ffe000", "#17181a"]
    # The curve: 2 mm and the tangent of 2 degrees over detach layer, top support and model.
    points = [tuple(map(float, point.split(","))) for point in seen["curve"].split()]

    def thickness(height):
        return 2.0 + math.tan(math.radians(2.0)) * (3.5 + 0.15 + height)

    (left, low), (right, high) = points[0], points[-1]
    scale = (low - high) / (thickness(300.0) - thickness(0.0))
    assert len(points) > 40 and left < right and scale > 0
    for x, y in points:
        height = 300.0 * (x - left) / (right - left)
        assert abs((low - y) / scale - (thickness(height) - thickness(0.0))) < 0.02
    # The drawing: 500 x 480 x 300 mm on one scale, 5 mm of them the margin.
    corners = browser.evaluate("""['margin', 'area', 'wall'].map((style) =>
        document.querySelector('polygon.' + style).getAttribute('points'))""")
    floor, area, wall = [[tuple(map(float, corner.split(","))) for corner in polygon.split()]
                         for polygon in corners]
    per_mm = math.dist(floor[0], floor[1]) / 500.0
    assert abs(math.dist(floor[1], floor[2]) / per_mm - 480.0) < 0.5
    assert abs(math.dist(wall[1], wall[2]) / per_mm - 300.0) < 0.5
    assert abs(math.dist(area[0], area[1]) / per_mm - 490.0) < 0.5
    # It hangs at the machine as one sheet of paper.
    assert len(re.findall(rb"/Type\s*/Page\b", browser.pdf())) == 1


def test_what_the_definition_does_not_give_is_named(browser, tmp_path):
    page = tmp_path / "sheet.html"
    page.write_bytes(show(EXAMPLES / "compact.ini", "html"))
    browser.open(page)
    facts = browser.evaluate(TABLES)["facts"]
    built_in = {name for name, value in facts.items() if value.endswith(" built-in")}
    assert "Head band" in built_in and "Smoothing" in built_in and "Detach layer" in built_in
    assert not built_in & {"Width", "Print margin", "Top support"}


def test_findings_and_several_definitions_are_on_the_page(browser, tmp_path):
    definition = tmp_path / "a.ini"
    definition.write_text("[printer]\nVersion=1\nPrintMargn=5\n")
    page = tmp_path / "sheet.html"
    both = subprocess.run([TOOL, "show", "--format=html", definition, EXAMPLES / "minimal.ini"],
                          check=True, stdout=subprocess.PIPE)
    page.write_bytes(both.stdout)
    browser.open(page)
    assert browser.evaluate("document.querySelectorAll('article').length") == 2
    assert browser.evaluate("document.querySelector('.verdict').innerText") == "check: 1 warning"
    finding = browser.evaluate("document.querySelector('.findings tbody').innerText")
    assert re.match(r"3\s+warning\s+PrintMargn: .*PrintMargin.* \[unknown-key\]$", finding)

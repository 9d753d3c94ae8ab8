"""Writes workbooks (Office Open XML, ".xlsx") whose cells are text.

The same sheets always give the same parts, so that a workbook can be compared
with its sources part by part.
"""

import dataclasses
import io
import zipfile
from xml.sax.saxutils import escape, quoteattr

MAIN = "http://schemas.openxmlformats.org/spreadsheetml/2006/main"
RELATIONS = "http://schemas.openxmlformats.org/officeDocument/2006/relationships"
PACKAGE = "http://schemas.openxmlformats.org/package/2006"
CONTENT = "application/vnd.openxmlformats-officedocument.spreadsheetml"
XML = '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n'

# ZIP knows no earlier time.
NO_TIME = (1980, 1, 1, 0, 0, 0)

LINE_HEIGHT = 14  # points

# Places in cellXfs below.
TEXT, HEADER = 0, 1
STYLES = f"""{XML}<styleSheet xmlns="{MAIN}">
<fonts count="2">
<font><sz val="10"/><name val="Arial"/><family val="2"/></font>
<font><b/><sz val="10"/><color rgb="FFFFFFFF"/><name val="Arial"/><family val="2"/></font>
</fonts>
<fills count="3">
<fill><patternFill patternType="none"/></fill>
<fill><patternFill patternType="gray125"/></fill>
<fill><patternFill patternType="solid"><fgColor rgb="FF1F4E79"/></patternFill></fill>
</fills>
<borders count="1"><border><left/><right/><top/><bottom/><diagonal/></border></borders>
<cellStyleXfs count="1"><xf numFmtId="0" fontId="0" fillId="0" borderId="0"/></cellStyleXfs>
<cellXfs count="2">
<xf numFmtId="49" fontId="0" fillId="0" borderId="0" xfId="0" applyNumberFormat="1" \
applyAlignment="1"><alignment vertical="top" wrapText="1"/></xf>
<xf numFmtId="49" fontId="1" fillId="2" borderId="0" xfId="0" applyNumberFormat="1" \
applyFont="1" applyFill="1" applyAlignment="1"><alignment vertical="center" wrapText="1"/></xf>
</cellXfs>
<cellStyles count="1"><cellStyle name="Normal" xfId="0" builtinId="0"/></cellStyles>
</styleSheet>
"""


@dataclasses.dataclass
class Sheet:
    name: str
    widths: list  # of the columns, in characters
    header: list  # cells of the first row, which stays in view
    rows: list  # lists of cells


def cell(column, row, text, style):
    place = f'{chr(ord("A") + column)}{row}'
    if not text:
        return f'<c r="{place}" s="{style}"/>'
    text = escape(text)
    return f'<c r="{place}" s="{style}" t="inlineStr"><is><t xml:space="preserve">{text}</t></is></c>'


def row_xml(number, cells, style, widths):
    # Room for every line: a spreadsheet does not find the height out by itself.
    lines = max(-(-len(text) // (width - 2)) for text, width in zip(cells, widths))
    cells = "".join(cell(column, number, text, style) for column, text in enumerate(cells))
    return f'<row r="{number}" ht="{LINE_HEIGHT * max(lines, 1)}">{cells}</row>\n'


def sheet_xml(sheet):
    columns = "".join(
        f'<col min="{n}" max="{n}" width="{width}" style="{TEXT}" customWidth="1"/>'
        for n, width in enumerate(sheet.widths, 1)
    )
    rows = "".join(row_xml(n, cells, TEXT, sheet.widths) for n, cells in enumerate(sheet.rows, 2))
    return (
        f'{XML}<worksheet xmlns="{MAIN}"><sheetPr><pageSetUpPr fitToPage="1"/></sheetPr>'
        '<sheetViews><sheetView workbookViewId="0">'
        '<pane ySplit="1" topLeftCell="A2" activePane="bottomLeft" state="frozen"/>'
        '<selection pane="bottomLeft" activeCell="A2" sqref="A2"/></sheetView></sheetViews>'
        f'<sheetFormatPr defaultRowHeight="{LINE_HEIGHT}"/><cols>{columns}</cols>\n'
        f"<sheetData>\n{row_xml(1, sheet.header, HEADER, sheet.widths)}{rows}</sheetData>\n"
        '<pageSetup orientation="landscape" fitToWidth="1" fitToHeight="0"/></worksheet>\n'
    )


def relation(number, kind, target):
    return f'<Relationship Id="rId{number}" Type="{RELATIONS}/{kind}" Target="{target}"/>'


def relations_xml(relations):
    return f'{XML}<Relationships xmlns="{PACKAGE}/relationships">{"".join(relations)}</Relationships>\n'


def workbook_xml(sheets):
    entries = "".join(
        f'<sheet name={quoteattr(sheet.name)} sheetId="{n}" r:id="rId{n}"/>'
        for n, sheet in enumerate(sheets, 1)
    )
    return f'{XML}<workbook xmlns="{MAIN}" xmlns:r="{RELATIONS}"><sheets>{entries}</sheets></workbook>\n'


def content_types_xml(count):
    def override(part, kind):
        return f'<Override PartName="/xl/{part}.xml" ContentType="{CONTENT}.{kind}+xml"/>'

    parts = [override("workbook", "sheet.main"), override("styles", "styles")]
    parts += [override(f"worksheets/sheet{n}", "worksheet") for n in range(1, count + 1)]
    return (
        f'{XML}<Types xmlns="{PACKAGE}/content-types">'
        f'<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>'
        f'<Default Extension="xml" ContentType="application/xml"/>{"".join(parts)}</Types>\n'
    )


def workbook_parts(sheets):
    """The parts of a workbook, their text by their name."""
    count = len(sheets)
    relations = [relation(n, "worksheet", f"worksheets/sheet{n}.xml") for n in range(1, count + 1)]
    relations.append(relation(count + 1, "styles", "styles.xml"))
    parts = {
        "[Content_Types].xml": content_types_xml(count),
        "_rels/.rels": relations_xml([relation(1, "officeDocument", "xl/workbook.xml")]),
        "xl/workbook.xml": workbook_xml(sheets),
        "xl/_rels/workbook.xml.rels": relations_xml(relations),
        "xl/styles.xml": STYLES,
    }
    for n, sheet in enumerate(sheets, 1):
        parts[f"xl/worksheets/sheet{n}.xml"] = sheet_xml(sheet)
    return parts


def pack(parts):
    """The octets of the workbook."""
    octets = io.BytesIO()
    with zipfile.ZipFile(octets, "w") as package:
        for name, text in parts.items():
            info = zipfile.ZipInfo(name, NO_TIME)
            info.compress_type = zipfile.ZIP_DEFLATED
            package.writestr(info, text.encode())
    return octets.getvalue()


def unpack(path):
    """The parts of a workbook file, as workbook_parts gives them."""
    with zipfile.ZipFile(path) as package:
        return {name: package.read(name).decode() for name in package.namelist()}

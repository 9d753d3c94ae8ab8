"""Two-stage tables: one value for each code point U+0000 to U+FFFF.

The code points are cut into 256 pages of 256.  Equal pages are kept once: the
first stage says which page a code point's high octet uses, the second stage
holds the pages one behind the other.
"""

PAGE_SIZE = 256


def split(values):
    """The 65,536 `values` as (first stage, list of pages)."""
    first_stage, pages, number_of = [], [], {}
    for start in range(0, len(values), PAGE_SIZE):
        page = tuple(values[start : start + PAGE_SIZE])
        if page not in number_of:
            number_of[page] = len(pages)
            pages.append(page)
        first_stage.append(number_of[page])
    return first_stage, pages


def cpp_rows(values, columns=16):
    """Values as comma-separated lines of a C++ initialiser."""
    rows = []
    for start in range(0, len(values), columns):
        rows.append("    " + ", ".join(str(value) for value in values[start : start + columns]) + ",")
    return "\n".join(rows)


def cpp_table(name, value_type, values):
    """The two arrays `<name>Pages` and `<name>Values` as C++ text."""
    first_stage, pages = split(values)
    flat = [value for page in pages for value in page]
    return (
        f"inline constexpr std::uint8_t {name}Pages[{len(first_stage)}] = {{\n"
        f"{cpp_rows(first_stage)}\n}};\n\n"
        f"inline constexpr {value_type} {name}Values[{len(flat)}] = {{\n"
        f"{cpp_rows(flat)}\n}};\n"
    )


def cpp_character_table(name, values):
    """The same for values that are one printable ASCII character each."""
    first_stage, pages = split(values)
    rows = []
    for page in pages:
        text = "".join(page)
        rows += [f'    "{text[start : start + 64]}"' for start in range(0, PAGE_SIZE, 64)]
    literal = "\n".join(rows)
    return (
        f"inline constexpr std::uint8_t {name}Pages[{len(first_stage)}] = {{\n"
        f"{cpp_rows(first_stage)}\n}};\n\n"
        f"inline constexpr char {name}Values[] =\n{literal};\n"
    )


def cpp_header(guard, comment, body):
    """A whole header: comment lines, guard, namespace, `body`."""
    head = "\n".join(f"// {line}".rstrip() for line in comment.rstrip("\n").split("\n"))
    return (
        f"{head}\n\n#ifndef {guard}\n#define {guard}\n\n#include <cstdint>\n\n"
        f"namespace cantorel {{\n\n// clang-format off\n\n{body}\n// clang-format on\n\n"
        f"}}  // namespace cantorel\n\n#endif  // {guard}\n"
    )

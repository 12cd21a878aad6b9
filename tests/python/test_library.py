import ast
import inspect
import os
import subprocess
import sys
import xml.etree.ElementTree

import pytest
import zorvane

from conftest import ROOT


def test_a_library_is_a_mapping(library):
    assert library["BATCH_96"].name == "Batch_96"
    assert "batch_96" in library and "nothing" not in library and 3 not in library
    assert len(library) == len(list(library)) == len(library.keys())
    with pytest.raises(KeyError, match="nothing"):
        library["nothing"]


def test_names_in_other_encodings_find_their_plates(tmp_path):
    path = tmp_path / "latin.dat"
    path.write_bytes(b"PLATE Gr\xf6\xdfe\r\nROWS 2\r\nCOLS 2\r\n\r\nPLATE Gr\xc3\xb6\xc3\x9fe\r\nROWS 3\r\n")
    library = zorvane.Library(path)
    assert [library[name].rows for name in library] == [2, 3]
    assert list(library)[1] == "Größe"


def test_an_edit_is_saved_and_read_back(library, file):
    plate = library["Sitting_96x3"]
    before = library.text
    plate.sub_wells["Drop1"].depth = 1.2345
    plate.sub_wells["Drop2"].style = "square"
    plate.x_pitch = 9.0625
    plate.add_sub_well("Extra", like="Drop1")
    plate.exchange_sub_wells("Drop1", "Drop2")
    plate.remove_sub_well("drop3")
    library.replace(plate)
    assert library.text != before
    library.save()

    saved = zorvane.Library(file)["Sitting_96x3"]
    assert list(saved.sub_wells) == ["Drop2", "Reservoir", "Drop1", "Extra"]
    assert saved.sub_wells["Drop1"].depth == saved.sub_wells["Extra"].depth == 1.2345
    assert saved.sub_wells["Drop2"].style == "SQUARE"
    assert saved.x_pitch == 9.0625 and saved.drops()[0, 0, 1, 0] == 27.4425
    with open(str(file) + "~", newline="") as backup:
        assert backup.read() == before


def test_a_file_that_another_program_has_changed_is_left_alone(library, file):
    with open(file, "a") as changed:
        changed.write("; changed\n")
    library.append(zorvane.Plate("PLATE New\nROWS 1\nCOLS 1\n"))
    with pytest.raises(zorvane.Error) as raised:
        library.save()
    assert raised.value.number == 1101
    assert "New" not in zorvane.Library(file)


def test_what_a_plate_does_not_allow_is_an_error_with_a_number(library):
    plate = library["Sitting_96x3"]
    drop = plate.sub_wells["Drop1"]
    failing = [
        (1102, lambda: plate.rename_sub_well("Drop1", "Drop2")),
        (1102, lambda: plate.add_sub_well("a.b", "Drop1")),
        (1102, lambda: library.append(plate)),
        (1102, lambda: setattr(drop, "style", "OVAL")),
        (1102, lambda: zorvane.Plate("ROWS 3\n")),
        (6, lambda: setattr(drop, "depth", float("nan"))),
        (6, lambda: setattr(plate, "x_pitch", 1e300)),
        (6, lambda: plate.move(dx=1e300)),
        (9, lambda: plate.well_name(99999)),
        (9, lambda: plate.well_name(-1)),
        (9, lambda: plate.to_svg(selected=["Q1"])),
        (53, lambda: zorvane.Library("no such file")),
        (6, lambda: zorvane.Plate("PLATE P\n" + "".join(f"TAG t{i}\nWELL w{i}\n" for i in range(20000)))),
    ]
    for number, call in failing:
        with pytest.raises(zorvane.Error) as raised:
            call()
        assert (raised.value.number, str(raised.value)) == (number, raised.value.description)
        assert raised.value.source
    plate.remove_sub_well("Drop1")
    with pytest.raises(zorvane.Error):
        drop.depth = 1
    for call in (lambda: setattr(plate, "rows", 99999), lambda: zorvane.Plate(5), lambda: plate.well_name("A1"),
                 lambda: plate.to_svg(wells=5)):
        with pytest.raises(TypeError):
            call()
    for wells in ({"A1": "red"}, {"A1": "#12345G"}, {"A1": "#-12345"}):
        with pytest.raises(ValueError):
            plate.to_svg(wells=wells)


def test_findings_say_where(tmp_path):
    path = tmp_path / "bad.dat"
    path.write_text("PLATE A\nROWS x\n")
    finding = next(each for each in zorvane.Library(path).check() if each.line == 2)
    assert (finding.column, finding.length, finding.line_text) == (6, 1, "ROWS x")
    assert finding.severity in ("error", "warning") and finding.message


def test_pictures_are_svg_with_what_was_asked_for(library):
    plate = library["Batch_96"]
    plain = plate.to_svg()
    assert plate._repr_svg_() == plain
    xml.etree.ElementTree.fromstring(plain)
    drawn = plate.to_svg(scale=100, wells={"A1": "#12ab34", "H12": (None, "pH 7")})
    assert "#12ab34" in drawn and "pH 7" in drawn and "#12ab34" not in plain
    assert 'width="640' in plate.to_svg(width=640, height=480)


def test_every_name_has_a_stub_and_a_docstring():
    tree = ast.parse((ROOT / "python/zorvane/__init__.pyi").read_text())
    for stub in (node for node in tree.body if isinstance(node, ast.ClassDef)):
        actual = getattr(zorvane, stub.name)
        names = {node.name for node in stub.body if isinstance(node, ast.FunctionDef)}
        names |= {node.target.id for node in stub.body if isinstance(node, ast.AnnAssign)}
        if actual is zorvane.Error:
            continue  # its attributes are those of each error, tested above
        public = {name for name in vars(actual) if not name.startswith("_")}
        assert public == {name for name in names if not name.startswith("_")}
        assert all(hasattr(actual, name) for name in names)
        for name in public:
            assert inspect.getdoc(getattr(actual, name)), f"{stub.name}.{name}"
        for function in (node for node in stub.body if isinstance(node, ast.FunctionDef)):
            arguments = [each.arg for each in function.args.args[1:] + function.args.kwonlyargs]
            signature = inspect.getdoc(getattr(actual, function.name)) or ""
            if function.name in public and "(self" in signature:
                assert all(f"{name}: " in signature for name in arguments), f"{stub.name}.{function.name}"
    assert set(zorvane.__all__) == {node.name for node in tree.body if isinstance(node, ast.ClassDef)} | {"__version__"}


def test_the_example_runs(file, tmp_path):
    picture = tmp_path / "near.svg"
    run = subprocess.run([sys.executable, ROOT / "examples/notebook.py", file, "Sitting_96x3", picture],
                         check=True, capture_output=True, text=True, env=os.environ)
    assert run.stdout.splitlines() == ["Sitting_96x3: 384 wells, rms 0.000000", "A1 at 268.303 88.9 z 13.2"]
    assert picture.read_text().count("#2f7fd6") == 192

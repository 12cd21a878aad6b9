import csv
import io
import subprocess
import time

import numpy as np
import pytest
import zorvane

COLUMNS = """PLATE Wide
ROWS 32
COLS 48
ROWLABEL A
COLLABEL 1
XPITCH 2.25
YPITCH 2.25
XOVERALL 127.76
YOVERALL 85.48
HEIGHT 10.4
"""
SUB_WELL = "WELL {name}\nXOFFSET {x}\nYOFFSET 5\nWELLSIZEX 0.5\nWELLSIZEY 0.25\nDEPTH 1.3\n"
WIDE = COLUMNS + "".join(SUB_WELL.format(name=f"D{i}", x=4 + i / 2) for i in range(3))


def printed(tool, *arguments):
    text = subprocess.run([tool, *arguments, "--csv"], check=True, capture_output=True, text=True).stdout
    rows = list(csv.DictReader(io.StringIO(text)))
    return lambda *names: np.array([[float(row[name]) for name in names] for row in rows])


def test_arrays_are_what_the_tool_prints(library, file, tool):
    for name in library:
        plate = library[name]
        if not plate.sub_wells:
            continue
        column = printed(tool, "wells", file, name)
        shape = plate.rows, plate.columns, -1
        for numbers, names in ((plate.centroids(), ("x", "y")), (plate.envelopes(), ("xmin", "ymin", "xmax", "ymax"))):
            printed_numbers = column(*names).reshape(shape)
            assert np.abs(numbers - printed_numbers).max() < 0.0005 + 1e-9  # it prints three decimals


def test_drops_are_in_the_order_of_well_numbers():
    plate = zorvane.Plate(WIDE)
    drops = plate.drops()
    assert drops.shape == (3, 32, 48, 3)
    assert drops[2, 4, 10] == pytest.approx([27.5, 14, 9.1])
    table = plate.table()
    number = plate.well_number("E11.D2")
    assert table["well"][number] == plate.well_name(number) == "E11.D2"
    assert [table[key][number] for key in ("sub_well", "row", "column")] == ["D2", 4, 10]
    assert [table[key][number] for key in ("x", "y", "size_x", "size_y")] == [27.5, 14, 0.5, 0.25]
    assert drops.reshape(-1, 3)[number] == pytest.approx([27.5, 14, 9.1])
    assert table["z"][number] == drops[2, 4, 10, 2]


def test_drops_of_a_large_plate_take_less_than_a_millisecond():
    plate = zorvane.Plate(WIDE)
    best = min(timed(plate.drops) for _ in range(50))
    assert best < 1e-3


def timed(call):
    began = time.perf_counter()
    call()
    return time.perf_counter() - began


def test_plates_without_wells_or_with_too_many():
    empty = zorvane.Plate("PLATE Empty\n")
    assert empty.drops().shape == (0, 0, 0, 3)
    assert empty.centroids().shape == (0, 0, 2)
    assert empty.well_names() == [] and empty.table()["x"].size == 0
    without = zorvane.Plate("PLATE None\nROWS 2\nCOLS 3\n")
    assert without.drops().shape == (0, 2, 3, 3)
    with pytest.raises(zorvane.Error) as raised:
        without.centroids()
    assert raised.value.number == 9
    huge = zorvane.Plate("PLATE Huge\nROWS 32767\nCOLS 32767\nWELL A\nXOFFSET 1\n")
    for call in (huge.centroids, huge.envelopes, huge.drops, huge.table):
        with pytest.raises(zorvane.Error, match="32767 wells"):
            call()


def test_calibration_maps_arrays_of_any_shape_both_ways():
    plate = np.array([[0, 0], [90, 0], [0, 60], [90, 60]])
    stage = plate * [2, -3] + [1000, 500]
    calibration = zorvane.Calibration(plate, stage)
    assert calibration.matrix == pytest.approx(np.array([[2, 0, 1000], [0, -3, 500]]), abs=1e-9)
    points = np.arange(24.0).reshape(3, 4, 2)
    assert calibration.to_stage(points) == pytest.approx(points * [2, -3] + [1000, 500])
    assert calibration.to_plate(calibration.to_stage(points)) == pytest.approx(points)
    assert calibration.residuals.shape == (4, 2) and calibration.rms < 1e-9

    mirrored = zorvane.Calibration([[0, 0], [9, 0]], [[5, 5], [14, 5]], mirrored=True)
    assert mirrored.to_stage([0, 1]) == pytest.approx([5, 4])

    for points in ([[1, 1]], [[1, 1], [1, 1]], [[0, 0], [1, 1], [2, 2]], [[0, 0], [1, np.nan]]):
        with pytest.raises(zorvane.Error):
            zorvane.Calibration(points, points)
    for points in ([1, 2, 3], [[1, 2, 3]], 5, [["a", "b"]]):
        with pytest.raises((TypeError, ValueError)):
            zorvane.Calibration(points, points)

import os
import pathlib
import shutil

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]
LIBRARY = ROOT / "data" / "Plates(Tarvo).Dat"


@pytest.fixture
def file(tmp_path):
    """A copy of the library of sample plates."""
    return shutil.copy(LIBRARY, tmp_path / "Plates.Dat")


@pytest.fixture
def library(file):
    import zorvane

    return zorvane.Library(file)


@pytest.fixture
def tool():
    """The command-line tool; its answers are what the module must agree with."""
    path = os.environ.get("ZORVANE_TOOL")
    if not path:
        pytest.skip("the tool is not built")
    return path

import doctest
import re

import pytest

from conftest import ROOT


@pytest.mark.parametrize("page", ["README.md", "docs/python.md"])
def test_the_samples_of_the_documentation(page, file, tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    blocks = re.findall(r"^```python\n(.*?)^```", (ROOT / page).read_text(), re.M | re.S)
    samples = doctest.DocTestParser().get_doctest("\n".join(blocks), {}, page, None, 0)
    results = doctest.DocTestRunner(optionflags=doctest.IGNORE_EXCEPTION_DETAIL).run(samples)
    assert results.attempted > 1 and results.failed == 0

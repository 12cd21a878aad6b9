import doctest
import re

from conftest import ROOT


def test_the_samples_of_the_documentation(file, tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    blocks = re.findall(r"^```python\n(.*?)^```", (ROOT / "docs/python.md").read_text(), re.M | re.S)
    samples = doctest.DocTestParser().get_doctest("\n".join(blocks), {}, "docs/python.md", None, 0)
    results = doctest.DocTestRunner(optionflags=doctest.IGNORE_EXCEPTION_DETAIL).run(samples)
    assert results.attempted > 20 and results.failed == 0

"""Runs last: each function that the operations and plans are said to reach has run in the tests before this."""
import pytest
from hux import _hux, _table


def test_every_function_that_is_said_to_be_reached_has_run():
    ran = set(_hux.called())
    if not {"huxiAdd_8u_C1RSfs", "huxiFilterBox_8u_C1R"} <= ran:
        pytest.skip("the other tests have not run")
    # Asked by way of hux.c, or by the module itself.
    by_others = {"huxiGetLibVersion", "huxiFilterWienerGetBufferSize", "huxiResizeSqrPixelGetBufSize"}
    missing = set(_table.FUNCTIONS) - ran - by_others
    assert not missing, sorted(missing)[:20]

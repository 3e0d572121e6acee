"""The extension module: what the package itself uses."""
from typing import Any

def __getattr__(name: str) -> Any: ...

"""The command line, which is a program of its own."""

import os
import shutil
from typing import Optional


def find_tool() -> Optional[str]:
    """The path of kavi-tn: named by KAVI_TN, or found by PATH; None where there is none."""
    return os.environ.get("KAVI_TN") or shutil.which("kavi-tn")

"""python3 -m kavi: the command line kavi-tn."""

import sys

from kavi import _kavi

sys.exit(_kavi.run_tool(["kavi-tn", *sys.argv[1:]]))

"""What differs between the systems, under the same names."""

import sys

if sys.platform == "win32":
    from ._windows import *
else:
    from ._linux import *

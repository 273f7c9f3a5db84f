"""What differs between the systems, under the same names."""

import sys

if sys.platform == "win32":
    from ._windows import (
        DESTRUCTORS,
        LIBRARY_NAME,
        c_numeric_locale,
        encode_path,
        interface_of,
        path_of,
        release,
        text_encoding,
    )
else:
    from ._linux import (
        DESTRUCTORS,
        LIBRARY_NAME,
        c_numeric_locale,
        encode_path,
        interface_of,
        path_of,
        release,
        text_encoding,
    )

__all__ = [
    "DESTRUCTORS",
    "LIBRARY_NAME",
    "c_numeric_locale",
    "encode_path",
    "interface_of",
    "path_of",
    "release",
    "text_encoding",
]

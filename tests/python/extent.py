"""How much the tests try."""

import os

# Set by scripts/check_thoroughly.sh.
THOROUGHLY = bool(os.environ.get("QUILL_INP_TEST_THOROUGHLY"))

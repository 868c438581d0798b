"""Numbers as expressions."""

import math


def expression(number):
    """Returns an expression with the value of a number, which the names `nan` and `inf` are not."""
    if number is None or math.isfinite(number):
        return repr(number)
    sign = "-" if math.copysign(1.0, number) < 0 else ""
    return f"float('{sign}{abs(number)}')"

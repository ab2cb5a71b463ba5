#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The pressure curve's heights, computed without floating point: a check on the panel's arithmetic.

Prints a line for each threshold, 0 to 200: the heights at 1 to 199. With a file's name as argument,
compares the file with that instead.
"""

import sys
from fractions import Fraction


def toward_zero(number, divisor):
    """Of whole numbers, the quotient cut off toward zero."""
    quotient = abs(number) // abs(divisor)
    return quotient if (number < 0) == (divisor < 0) else -quotient


def inverse_parabola(threshold, t):
    """The whole part of the g >= 0 at which b g^2 + c g = t, found by trying whole numbers."""
    b = Fraction(100 - threshold, 102300)
    c = 1 - 1023 * b

    def reaches(g):
        return b * g * g + c * g <= t
    low, high = 0, 1024
    while high - low > 1:
        middle = (low + high) // 2
        low, high = (middle, high) if reaches(middle) else (low, middle)
    return low


def parabola(threshold, x):
    a = Fraction(threshold - 100, 102300)
    f = x * (1 - 1023 * a) + a * x * x
    return toward_zero(f.numerator, f.denominator)


def height(threshold, j):
    if threshold < 100:
        q = toward_zero(inverse_parabola(threshold, 5 * j), 5)
        return 200 - max(200 - q, 0)
    q = toward_zero(parabola(threshold, 1000 - 5 * j), 5)
    return 200 - max(400 - 2 * j - q, 0)


def main():
    text = "".join(
        " ".join(str(height(threshold, j)) for j in range(1, 200)) + "\n"
        for threshold in range(201))
    if len(sys.argv) == 1:
        sys.stdout.write(text)
        return 0
    with open(sys.argv[1], encoding="ascii") as file:
        return 0 if file.read() == text else "the results in the file are others"


if __name__ == "__main__":
    sys.exit(main())

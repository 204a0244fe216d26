"""The numbers of the workloads; bench/peerbench/gen.h draws the same ones for our part."""
import math

MULTIPLIER = 6364136223846793005
INCREMENT = 1442695040888963407
STATES = 1 << 64

SURFACE_SIDE = 140
CONTOUR_LEVELS = [-1.9 + 0.2 * k for k in range(20)]
ISO_LEVEL = 0.85


def uniform(seed):
    """Endless numbers of [0, 1)."""
    state = seed
    while True:
        state = (state * MULTIPLIER + INCREMENT) % STATES
        yield (state >> 11) * 2.0**-53


def scattered(seed, count):
    """Rows (x, y, value, colour) of points in the square from -10 to 10."""
    random = uniform(seed)
    rows = []
    for _ in range(count):
        x = -10 + 20 * next(random)
        y = -10 + 20 * next(random)
        rows.append((x, y, math.sin(0.5 * x) * math.cos(0.4 * y) + 0.05 * x, 0.01 * x * x - 0.02 * y))
    return rows


def axis(nodes, low=-10, high=10):
    return [low + (high - low) * i / (nodes - 1) for i in range(nodes)]


def lattice(side):
    """The side * side nodes of the square as an array of (x, y), x running faster."""
    import numpy
    x, y = numpy.meshgrid(axis(side), axis(side))
    return numpy.column_stack([x.ravel(), y.ravel()])


def wavy_field(side):
    """Values over the lattice as an array [y][x]."""
    import numpy
    x, y = numpy.meshgrid(axis(side), axis(side))
    return numpy.sin(x) * numpy.cos(y) + 0.1 * x


def dented_ball(side):
    """A volume over the cube from -1 to 1 as an array [z][y][x]."""
    import numpy
    z, y, x = numpy.meshgrid(*[axis(side, -1, 1)] * 3, indexing="ij")
    dents = numpy.sin(6 * x) * numpy.sin(6 * y) * numpy.sin(6 * z)
    return numpy.sqrt(x * x + y * y + z * z) + 0.05 * dents


def write_surface(path):
    """The surface of W9, W10 and S2 as rows of x, y, z, a blank line after each row of nodes."""
    with open(path, "w") as file:
        for y in axis(SURFACE_SIDE):
            for x in axis(SURFACE_SIDE):
                z = 3 * math.sin(0.8 * x) * math.cos(0.6 * y) * math.exp(-(x * x + y * y) / 80)
                file.write(f"{x:.9g} {y:.9g} {z:.9g}\n")
            file.write("\n")


def write_table(path):
    """The table of W11."""
    with open(path, "w") as file:
        for row in scattered(1011, 20000):
            file.write("\t".join(f"{number:.9g}" for number in row) + "\n")

"""W11: a text table into an array."""
from routine import Routine


def told(table):
    rows, columns = table.shape
    return f"{rows}x{columns}, sum {table.sum():.4f}"


def numpy_table(path):
    import numpy
    return Routine(lambda: numpy.loadtxt(path), told)


def pandas_table(path):
    import pandas
    return Routine(lambda: pandas.read_csv(path, header=None, sep="\t").values, told)

"""The lit surface with axes and colour bar by matplotlib: matplotlib_surface.py DATA BACKEND WIDTH HEIGHT [PICTURE].

Without a picture the window stays open."""
import sys

import matplotlib
import numpy

SIDE = 140
DOTS_PER_INCH = 100


def main(data, backend, width, height, picture=None):
    matplotlib.use(backend)
    from matplotlib import pyplot
    columns = numpy.loadtxt(data)
    x, y, z = (column.reshape(SIDE, SIDE) for column in columns.T)
    figure = pyplot.figure(figsize=(int(width) / DOTS_PER_INCH, int(height) / DOTS_PER_INCH), dpi=DOTS_PER_INCH)
    axes = figure.add_subplot(projection="3d")
    colours = matplotlib.cm.ScalarMappable(matplotlib.colors.Normalize(z.min(), z.max()), matplotlib.cm.rainbow)
    axes.plot_surface(x, y, z, rstride=1, cstride=1, facecolors=colours.to_rgba(z), shade=True, linewidth=0,
                      antialiased=False)
    axes.set_xlabel("X")
    axes.set_ylabel("Y")
    axes.set_zlabel("Z")
    figure.colorbar(colours, ax=axes)
    if picture is None:
        pyplot.show()
    else:
        figure.savefig(picture)


if __name__ == "__main__":
    main(*sys.argv[1:])

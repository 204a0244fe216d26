"""What is compared with whom: the table of workloads."""
from dataclasses import dataclass, replace

from contestants import Contestant, PictureProcess, Window, Worker

PYTHON = "/usr/bin/python3"  # the one that Debian's modules belong to
OPENBLAS = {"LD_LIBRARY_PATH": "/usr/lib/x86_64-linux-gnu/openblas-pthread"}
GDAL_IN_DOUBLE = {"GDAL_USE_AVX": "NO", "GDAL_USE_SSE": "NO"}
GNUPLOT_WITH_WINDOWS = {"GNUPLOT_DRIVER_DIR": "{gnuplot-qt}/usr/lib/gnuplot"}
PICTURE_SIZE = "1000,800"
PANE_SIZE = "800,664"  # of the picture in our own window as it opens


@dataclass
class Peer:
    name: str
    contestant: Contestant
    packages: tuple
    goal: float = None  # our time to theirs, at most; None for a peer that does other work or less of it
    threads: str = "1"
    note: str = ""


@dataclass
class Workload:
    name: str
    work: str
    ours: Contestant
    compared: str  # finds the numbers of a check that have to agree
    tolerance: float  # how far they may lie apart, as a share of the larger one
    peers: list
    needs: tuple = ()  # packages
    also: str = ""  # a further name

    @property
    def packages(self):
        return {package for peer in self.peers for package in peer.packages} | set(self.needs)


def ours(workload):
    return Worker(["{build}/bench/peerbench/tessaplot-peerbench", workload])


def routine(name, *arguments, **environment):
    return Worker([PYTHON, "{peers}/serve.py", name, *arguments], PYTHONPATH="{peers}", **environment)


def formula_reader(name):
    return Worker(["{build}/bench/peers/peer-" + name])


def gnuplot(terminal):
    script = f"data='{{surface}}'; terminal='{terminal} size {PICTURE_SIZE}'; picture='{{picture}}'"
    return PictureProcess(["{gnuplot-nox}/usr/bin/gnuplot-nox", "-e", script, "{peers}/drawing/surface.gp"])


def gnuplot_window(terminal):
    script = f"data='{{surface}}'; terminal='{terminal} size {PANE_SIZE}'"
    return Window(["{gnuplot-qt}/usr/bin/gnuplot-qt", "-e", script, "{peers}/drawing/surface.gp"],
                  **GNUPLOT_WITH_WINDOWS)


def python_picture(script, choice):
    return PictureProcess([PYTHON, f"{{peers}}/drawing/{script}", "{surface}", choice, *PICTURE_SIZE.split(","),
                           "{picture}"])


def python_window(script, choice):
    return Window([PYTHON, f"{{peers}}/drawing/{script}", "{surface}", choice, *PANE_SIZE.split(",")])


SCIPY = ("python3-scipy",)
SCIPY_ON_OPENBLAS = ("python3-scipy", "libopenblas0-pthread")
GDAL = ("libgdal32", "python3-numpy")
VTK = ("python3-vtk9", "python3-numpy")
MATPLOTLIB = ("python3-matplotlib",)
GNUPLOT = ("gnuplot-nox",)
GNUPLOT_QT = ("gnuplot-qt",)
FOR_PICTURES = ("xvfb", "python3-pil")
FOR_WINDOWS = FOR_PICTURES + ("openbox",)

WORKLOADS = [
    Workload("W1", "inverse squared distance, 10,000 points, value and colour, 100x100 nodes", ours("W1"),
             r"rms (\S+) (\S+)", 1e-5, [
        Peer("GDAL, double", routine("gridding.gdal_inverse_distance", **GDAL_IN_DOUBLE), GDAL, 0.3, "all"),
        Peer("GDAL, double", routine("gridding.gdal_inverse_distance", **GDAL_IN_DOUBLE), GDAL, 0.3),
        Peer("GDAL, AVX", routine("gridding.gdal_inverse_distance"), GDAL, threads="all", note="single precision"),
        Peer("scipy cdist, matrix product by OpenBLAS", routine("gridding.scipy_inverse_distance", **OPENBLAS),
             SCIPY_ON_OPENBLAS, 1.0, "all"),
    ]),
    Workload("W2", "five nearest of 20,000 points, 200x200 nodes", ours("W2"), r"rms (\S+)", 1e-3, [
        Peer("scipy cKDTree", routine("gridding.scipy_nearest", "-1"), SCIPY, 0.6, "all", "value only"),
        Peer("scipy cKDTree", routine("gridding.scipy_nearest", "1"), SCIPY, 0.6, "1", "value only"),
        Peer("GDAL, radius just wide enough", routine("gridding.gdal_nearest", "0.42"), GDAL, 1.0, "all", "value only"),
    ]),
    Workload("W3", "multiquadric, 500 points, 100x100 nodes", ours("W3"), r"rms (\S+)", 1e-5, [
        Peer("scipy RBFInterpolator, OpenBLAS", routine("gridding.scipy_multiquadric", **OPENBLAS), SCIPY_ON_OPENBLAS,
             0.7, threads, "value only") for threads in ("1", "all")
    ]),
    Workload("W4", "thin plate spline, 497 points, 100x100 nodes", ours("W4"), r"rms (\S+)", 1e-3, [
        Peer("scipy RBFInterpolator, OpenBLAS", routine("gridding.scipy_thin_plate", **OPENBLAS), SCIPY_ON_OPENBLAS,
             0.7, threads, "value only") for threads in ("1", "all")
    ]),
    Workload("W5", "Delaunay triangles, 4,900 points", ours("W5"), r"(\d+) triangles", 0.01, [
        Peer("Qhull by matplotlib", routine("geometry.matplotlib_delaunay"), MATPLOTLIB, 1.0),
        Peer("Qhull by scipy", routine("geometry.scipy_delaunay"), SCIPY, 1.0),
        Peer("vtkDelaunay2D", routine("geometry.vtk_delaunay"), VTK, 1.0),
    ]),
    Workload("W6", "contours, 500x500 nodes, 20 levels", ours("W6"), r"(\d+) segments", 1e-3, [
        Peer("contourpy, serial", routine("geometry.contourpy_lines", "serial", "1"), ("python3-contourpy",), 0.7),
        Peer("contourpy, threaded", routine("geometry.contourpy_lines", "threaded", "2"), ("python3-contourpy",), 0.7,
             "all"),
        Peer("VTK Flying Edges, joined", routine("geometry.vtk_lines"), VTK, 1.0),
    ]),
    Workload("W7", "iso-surface with normals, 101^3 nodes", ours("W7"), r"(\d+) triangles", 1e-3, [
        Peer("scikit-image marching cubes", routine("geometry.skimage_iso_surface"), ("python3-skimage",), 0.4),
        Peer("VTK Flying Edges", routine("geometry.vtk_iso_surface", "vtkFlyingEdges3D"), VTK, 1.0),
        Peer("VTK marching cubes", routine("geometry.vtk_iso_surface", "vtkMarchingCubes"), VTK, 1.0),
    ]),
    Workload("W8", "a formula, 1,000,000 calls", ours("W8"), r"sum (\S+)", 1e-9, [
        Peer("fparser", formula_reader("fparser"), ("libfparser-dev",), 0.8),
        Peer("muParser", formula_reader("muparser"), ("libmuparser-dev",), 0.8),
    ]),
    Workload("W9", "document of 19,600 rows to a picture of 1000x800, eight samples, whole process",
             PictureProcess(["{build}/apps/tessaplot-cli/tessaplot-cli", "render", "{document}", "{picture}", "--size",
                             PICTURE_SIZE.replace(",", "x")]), r"(\d+)% coloured", 0.75, [
        Peer("gnuplot, pngcairo", gnuplot("pngcairo"), GNUPLOT, 0.9),
        Peer("gnuplot, png", gnuplot("png truecolor"), GNUPLOT, note="no smoothing"),
        Peer("VTK from Python, no samples", python_picture("vtk_surface.py", "0"), VTK, 0.6, "all"),
        Peer("VTK from Python, 4 samples", python_picture("vtk_surface.py", "4"), VTK, 1.0, "all"),
        Peer("matplotlib, Agg", python_picture("matplotlib_surface.py", "Agg"), MATPLOTLIB, 1.0),
    ], needs=FOR_PICTURES, also="S1"),
    Workload("W10", "a turned frame of that surface, two samples", ours("W10"), r"(\d+)% coloured", 0.75, [
        Peer("VTK off-screen, 4 samples", routine("turning.vtk_frames", "{surface}", "4"), VTK, 0.5,
             "all"),
        Peer("VTK off-screen, no samples", routine("turning.vtk_frames", "{surface}", "0"), VTK,
             threads="all", note="no smoothing"),
    ], needs=FOR_PICTURES),
    Workload("W11", "text table, 20,000 rows of 4 numbers", ours("W11"), r"sum (\S+)", 1e-9, [
        Peer("numpy.loadtxt", routine("tables.numpy_table", "{table}"), ("python3-numpy",), 0.8),
        Peer("pandas read_csv", routine("tables.pandas_table", "{table}"), ("python3-pandas",), 0.8),
    ]),
    Workload("S2", "start-up: from the command to the surface of 19,600 rows in a window",
             Window(["{build}/apps/tessaplot/tessaplot", "{document}"]), r"(\d+)% coloured", 0.75, [
        Peer("gnuplot, qt", gnuplot_window("qt"), GNUPLOT_QT, 1.0),
        Peer("gnuplot, x11", gnuplot_window("x11"), GNUPLOT_QT, 1.0),
        Peer("VTK from Python, no samples", python_window("vtk_surface.py", "0"), VTK, 1.0, "all"),
        Peer("VTK from Python, 4 samples", python_window("vtk_surface.py", "4"), VTK, 1.0, "all"),
        Peer("matplotlib, Tk", python_window("matplotlib_surface.py", "TkAgg"),
             MATPLOTLIB + ("python3-tk", "python3-pil.imagetk"), 1.0),
        Peer("matplotlib, Qt", python_window("matplotlib_surface.py", "Qt5Agg"),
             MATPLOTLIB + ("python3-pyqt5",), 1.0),
    ], needs=FOR_WINDOWS),
]


def chosen(names, word=""):
    """The workloads of these names, all of them if there is none, with the peers that have the word in their name."""
    wanted = {name.upper() for name in names}
    found = [workload for workload in WORKLOADS if not wanted or wanted & {workload.name, workload.also}]
    unknown = wanted - {name for workload in found for name in (workload.name, workload.also)}
    if unknown:
        raise SystemExit("There is no workload " + ", ".join(sorted(unknown)) + ".")
    return [replace(workload, peers=[peer for peer in workload.peers if word in peer.name]) for workload in found]

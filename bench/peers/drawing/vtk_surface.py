"""The lit surface with axes and colour bar by VTK: vtk_surface.py DATA SAMPLES WIDTH HEIGHT [PICTURE].

Without a picture the window stays open."""
import sys
from array import array

import vtkmodules.vtkInteractionStyle  # noqa: F401
import vtkmodules.vtkRenderingFreeType  # noqa: F401
import vtkmodules.vtkRenderingOpenGL2  # noqa: F401
from vtkmodules.vtkCommonCore import vtkFloatArray, vtkLookupTable, vtkPoints
from vtkmodules.vtkCommonDataModel import vtkStructuredGrid
from vtkmodules.vtkFiltersCore import vtkPolyDataNormals
from vtkmodules.vtkFiltersGeometry import vtkStructuredGridGeometryFilter
from vtkmodules.vtkIOImage import vtkPNGWriter
from vtkmodules.vtkRenderingAnnotation import vtkCubeAxesActor, vtkScalarBarActor
from vtkmodules.vtkRenderingCore import (vtkActor, vtkPolyDataMapper, vtkRenderer, vtkRenderWindow,
                                         vtkRenderWindowInteractor, vtkWindowToImageFilter)

SIDE = 140
RAINBOW = ((0xa0, 0x64, 0xdc), (0x20, 0x20, 0xf0), (0x10, 0xe0, 0x20), (0xf0, 0xe0, 0x10), (0xff, 0x10, 0x20))
BLACK = (0, 0, 0)


def float_array(numbers, components):
    result = vtkFloatArray()
    result.SetNumberOfComponents(components)
    result.SetVoidArray(numbers, len(numbers), 1)
    return result


def read_surface(path):
    """The smooth surface; the numbers are returned with it since VTK only refers to them."""
    with open(path) as file:
        numbers = array("f", map(float, file.read().split()))
    heights = numbers[2::3]
    points = vtkPoints()
    points.SetData(float_array(numbers, 3))
    grid = vtkStructuredGrid()
    grid.SetDimensions(SIDE, SIDE, 1)
    grid.SetPoints(points)
    grid.GetPointData().SetScalars(float_array(heights, 1))
    surface = vtkStructuredGridGeometryFilter()
    surface.SetInputData(grid)
    normals = vtkPolyDataNormals()
    normals.SetInputConnection(surface.GetOutputPort())
    normals.SplittingOff()
    normals.ConsistencyOff()
    normals.Update()
    return normals, (numbers, heights)


def rainbow(low, high):
    table = vtkLookupTable()
    table.SetNumberOfTableValues(256)
    for i in range(256):
        place = i / 255 * (len(RAINBOW) - 1)
        k = min(int(place), len(RAINBOW) - 2)
        share = place - k
        table.SetTableValue(i, *((a + (b - a) * share) / 255 for a, b in zip(RAINBOW[k], RAINBOW[k + 1])), 1)
    table.SetTableRange(low, high)
    return table


def lit_actor(normals, table):
    mapper = vtkPolyDataMapper()
    mapper.SetInputConnection(normals.GetOutputPort())
    mapper.SetLookupTable(table)
    mapper.UseLookupTableScalarRangeOn()
    mapper.InterpolateScalarsBeforeMappingOn()
    actor = vtkActor()
    actor.SetMapper(mapper)
    actor.GetProperty().SetInterpolationToPhong()
    actor.GetProperty().SetSpecular(0.3)
    actor.GetProperty().SetSpecularPower(20)
    return actor


def axes(bounds, camera):
    frame = vtkCubeAxesActor()
    frame.SetBounds(bounds)
    frame.SetCamera(camera)
    frame.SetFlyModeToOuterEdges()
    for axis in range(3):
        frame.GetTitleTextProperty(axis).SetColor(BLACK)
        frame.GetLabelTextProperty(axis).SetColor(BLACK)
    for lines in (frame.GetXAxesLinesProperty(), frame.GetYAxesLinesProperty(), frame.GetZAxesLinesProperty()):
        lines.SetColor(BLACK)
    return frame


def colour_bar(table):
    bar = vtkScalarBarActor()
    bar.SetLookupTable(table)
    bar.SetNumberOfLabels(7)
    bar.SetWidth(0.08)
    bar.SetHeight(0.6)
    bar.SetPosition(0.9, 0.2)
    bar.GetLabelTextProperty().SetColor(BLACK)
    return bar


def make_window(path, samples, width, height, off_screen):
    """The window, drawn on its first Render(), its renderer, and what has to live as long."""
    normals, numbers = read_surface(path)
    table = rainbow(*normals.GetOutput().GetScalarRange())
    renderer = vtkRenderer()
    renderer.SetBackground(1, 1, 1)
    camera = renderer.GetActiveCamera()
    camera.SetPosition(-20, -35, 28)
    camera.SetFocalPoint(0, 0, 0)
    camera.SetViewUp(0, 0, 1)
    renderer.AddActor(lit_actor(normals, table))
    renderer.AddActor(axes(normals.GetOutput().GetBounds(), camera))
    renderer.AddActor(colour_bar(table))
    renderer.ResetCamera()
    window = vtkRenderWindow()
    window.SetOffScreenRendering(off_screen)
    window.SetMultiSamples(samples)
    window.SetSize(width, height)
    window.AddRenderer(renderer)
    return window, renderer, numbers


def save(window, path):
    image = vtkWindowToImageFilter()
    image.SetInput(window)
    image.ReadFrontBufferOff()
    image.ShouldRerenderOff()
    writer = vtkPNGWriter()
    writer.SetFileName(path)
    writer.SetInputConnection(image.GetOutputPort())
    writer.Write()


def main(data, samples, width, height, picture=None):
    window, renderer, numbers = make_window(data, int(samples), int(width), int(height), picture is not None)
    window.Render()
    if picture is not None:
        save(window, picture)
        return
    interactor = vtkRenderWindowInteractor()
    interactor.SetRenderWindow(window)
    interactor.Start()


if __name__ == "__main__":
    main(*sys.argv[1:])

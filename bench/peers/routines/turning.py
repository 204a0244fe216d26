"""W10: frames of the lit surface while it turns."""
import os
import sys

from pixels import coloured_share
from routine import Routine

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "drawing"))
from vtk_surface import make_window  # noqa: E402

STEPS = 30
DEGREES = 4


def vtk_frames(data, samples):
    from vtkmodules.util.numpy_support import vtk_to_numpy
    from vtkmodules.vtkRenderingCore import vtkWindowToImageFilter
    window, renderer, numbers = make_window(data, int(samples), 1000, 800, True)
    window.Render()

    def work():
        for _ in range(STEPS):
            renderer.GetActiveCamera().Azimuth(DEGREES)
            renderer.ResetCameraClippingRange()
            window.Render()
            window.WaitForCompletion()
        return numbers

    def check(_):
        image = vtkWindowToImageFilter()
        image.SetInput(window)
        image.ReadFrontBufferOff()
        image.ShouldRerenderOff()
        image.Update()
        pixels = vtk_to_numpy(image.GetOutput().GetPointData().GetScalars())
        return f"{coloured_share(map(tuple, pixels[::7].tolist())):.0%} coloured"

    return Routine(work, check, repeats=STEPS)

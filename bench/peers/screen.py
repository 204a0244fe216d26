"""A virtual display of the bench's own, whose pixels can be looked at while programs draw."""
import mmap
import os
import shutil
import signal
import struct
import subprocess
import tempfile
import time
from collections import Counter

from pixels import is_coloured

WIDTH, HEIGHT = 1280, 1024
SAMPLED = 8  # every so many rows and columns
HEADER_NUMBERS = 25
HEADER_SIZE, HEADER_BYTES_PER_LINE, HEADER_COLOURS = 0, 12, 19
BYTES_OF_A_COLOUR = 12
START_LIMIT = 10  # seconds
SETTLING = 0.4  # seconds until server and window manager have nothing more to do


class Screen:
    """Xvfb, with a window manager if asked: without one a window may never become active."""

    def __init__(self, managed):
        self.folder = tempfile.mkdtemp(prefix="screen-")
        self.processes = []
        try:
            self.name = self._start_server()
            if managed:
                self._start_manager()
            self._map_pixels()
        except BaseException:
            self.close()
            raise

    def _start_server(self):
        said, says = os.pipe()
        command = ["Xvfb", "-displayfd", str(says), "-screen", "0", f"{WIDTH}x{HEIGHT}x24", "-nolisten", "tcp",
                   "-fbdir", self.folder]
        self.processes.append(subprocess.Popen(command, pass_fds=[says], stderr=subprocess.DEVNULL))
        os.close(says)
        with os.fdopen(said) as answer:
            number = answer.readline().strip()
        if not number:
            raise RuntimeError("the virtual display does not start")
        return ":" + number

    def _start_manager(self):
        sign = os.path.join(self.folder, "managed")
        self.processes.append(subprocess.Popen(["openbox", "--sm-disable", "--startup", f"touch {sign}"],
                                               env=os.environ | {"DISPLAY": self.name}, stdout=subprocess.DEVNULL,
                                               stderr=subprocess.DEVNULL))
        limit = time.monotonic() + START_LIMIT
        while not os.path.exists(sign):
            if time.monotonic() > limit:
                raise RuntimeError("the window manager does not start")
            time.sleep(0.02)
        time.sleep(SETTLING)

    def _map_pixels(self):
        """The file is an X window dump: a header of big-endian numbers, a colour table, then bytes in the order blue,
        green, red, unused."""
        with open(os.path.join(self.folder, "Xvfb_screen0"), "rb") as file:
            self.file = mmap.mmap(file.fileno(), 0, prot=mmap.PROT_READ)
        header = struct.unpack(f">{HEADER_NUMBERS}I", self.file[:4 * HEADER_NUMBERS])
        self.start = header[HEADER_SIZE] + header[HEADER_COLOURS] * BYTES_OF_A_COLOUR
        self.stride = header[HEADER_BYTES_PER_LINE]

    def sample(self):
        """Some of the pixels, cheaply."""
        pixels = memoryview(self.file)[self.start:self.start + self.stride * HEIGHT].cast("I")
        line = self.stride // 4
        return b"".join(pixels[y * line:y * line + WIDTH:SAMPLED].tobytes() for y in range(0, HEIGHT, SAMPLED))

    def save(self, path):
        """Everything, as a picture file; needs PIL."""
        from PIL import Image
        data = self.file[self.start:self.start + self.stride * HEIGHT]
        Image.frombuffer("RGB", (WIDTH, HEIGHT), data, "raw", "BGRX", self.stride, 1).save(path)

    def close(self):
        for process in reversed(self.processes):
            process.send_signal(signal.SIGTERM)
            process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)


def coloured_in(sample):
    """How many pixels of a sample are coloured."""
    return sum(count for pixel, count in Counter(memoryview(sample).cast("I")).items()
               if is_coloured(pixel >> 16 & 255, pixel >> 8 & 255, pixel & 255))

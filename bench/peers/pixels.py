"""Tells a coloured surface from paper, ink and the grey of windows."""
from collections import Counter

LEAST_SATURATION = 100  # of 255, between the strongest and the weakest channel


def is_coloured(red, green, blue):
    return max(red, green, blue) - min(red, green, blue) > LEAST_SATURATION


def coloured_share(pixels):
    """The share of the coloured among hashable (red, green, blue)."""
    counts = Counter(pixels)
    return sum(count for pixel, count in counts.items() if is_coloured(*pixel)) / sum(counts.values())


def share_of_file(path):
    """The share of the coloured in a picture file, and its size in words; needs PIL."""
    from PIL import Image
    with Image.open(path) as image:
        width, height = image.size
        return coloured_share(image.convert("RGB").getdata()), f"{width}x{height}"

"""An output in motion."""
import shutil

from matplotlib import animation
from PIL import Image

from .maps import map_of, title_of
from .stored import Fault

FORMATS = (".gif", ".mp4")
DPI = 100


class Gif(animation.PillowWriter):
    """Spreads the 256 colours of a frame over those in use, so that no bands appear."""

    def finish(self):
        self._frames = [frame.convert("RGB").quantize(256, Image.Quantize.FASTOCTREE)
                        for frame in self._frames]
        super().finish()


def moving(results, output, records, options):
    """Draws an output at all the records, one after the other, with one scale for all."""
    if options.picture.endswith(".gif"):
        film = Gif(fps=options.fps)
    elif shutil.which("ffmpeg"):
        film = animation.FFMpegWriter(fps=options.fps)
    else:
        raise Fault("an MP4 needs the program ffmpeg: install the Debian package ffmpeg, or let "
                    "the name end in .gif")
    picture, drawn = map_of(results, output, records, options)
    with film.saving(picture, options.unfinished, DPI):
        for record in records:
            drawn.show(record, title_of(results, output, record))
            film.grab_frame(facecolor="white")

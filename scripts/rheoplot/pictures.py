"""The file of a picture: it comes into being as a whole or not at all."""
import os
import subprocess
from contextlib import contextmanager

from .stored import Fault


@contextmanager
def whole_picture(path, source):
    """Gives a name beside `path` to write to; at the end that file takes the name `path`. If
    anything fails before, what has stood under `path` stays as it was.

    source: the results file, which must not be overwritten
    """
    _require_ordinary(path, source)
    unfinished = None
    try:
        unfinished = _create_beside(path)
        yield unfinished
        os.replace(unfinished, path)
    except (OSError, subprocess.CalledProcessError) as error:
        reason = getattr(error, "strerror", None) or "is the disk full?"
        raise Fault(f"{path} cannot be written: {reason}") from error
    finally:
        if unfinished and os.path.exists(unfinished):
            os.remove(unfinished)


def _require_ordinary(path, source):
    folder = os.path.dirname(path) or "."
    if not os.path.isdir(folder):
        raise Fault(f"there is no folder {folder} for {path}")
    if not os.path.exists(path):
        return
    if os.path.exists(source) and os.path.samefile(path, source):
        raise Fault(f"{path} is the results file itself: give another name for the picture")
    if not os.path.isfile(path):
        raise Fault(f"{path} is a folder or a device: give another name for the picture")


def _create_beside(path):
    """An empty file that nobody had before. It keeps the ending, which tells the format."""
    stem, ending = os.path.splitext(path)
    number = 1
    while True:
        name = f"{stem}.part{number}{ending}"
        try:
            os.close(os.open(name, os.O_WRONLY | os.O_CREAT | os.O_EXCL, 0o666))
            return name
        except FileExistsError:
            number += 1

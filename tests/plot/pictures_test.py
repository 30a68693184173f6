import errno
import os
import pathlib
import tempfile
import unittest
from unittest import mock

from support import FOLDER, basin, changed, plot

from rheoplot.pictures import whole_picture
from rheoplot.stored import Fault


class PicturesTest(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(dir=FOLDER))
        self.path = self.folder / "depth.png"

    def files(self):
        return sorted(os.listdir(self.folder))

    def test_a_picture_is_there_as_a_whole_or_not_at_all(self):
        self.path.write_text("before")
        with self.assertRaises(ZeroDivisionError):
            with whole_picture(str(self.path), "results.h5") as name:
                pathlib.Path(name).write_text("half")
                raise ZeroDivisionError
        self.assertEqual((self.files(), self.path.read_text()), (["depth.png"], "before"))
        with whole_picture(str(self.path), "results.h5") as name:
            self.assertTrue(name.endswith(".png"))
            pathlib.Path(name).write_text("after")
            self.assertEqual(self.path.read_text(), "before")
        self.assertEqual((self.files(), self.path.read_text()), (["depth.png"], "after"))

    def test_nobody_elses_file_is_written_to(self):
        other = self.folder / "depth.part1.png"
        other.write_text("mine")
        with whole_picture(str(self.path), "results.h5") as name:
            pathlib.Path(name).write_text("after")
        self.assertEqual(other.read_text(), "mine")

    def test_a_full_disk_keeps_the_earlier_picture(self):
        for command, ending in (("map", "png"), ("map", "pdf"), ("animate", "gif"),
                                ("flood", "svg"), ("hydrographs", "png")):
            path = self.path.with_suffix("." + ending)
            path.write_text("before")
            full = OSError(errno.ENOSPC, os.strerror(errno.ENOSPC))
            with mock.patch("os.replace", side_effect=full):
                status, out, err = plot(command, basin(), "-o", path)
            self.assertEqual((status, out), (1, ""))
            self.assertEqual(err, f"plot: {path} cannot be written: No space left on device\n")
            self.assertEqual(path.read_text(), "before")
            path.unlink()
        self.assertEqual(self.files(), [])

    def test_a_disk_without_room_for_a_picture_is_told(self):
        for device in ("/dev/full",):
            with mock.patch("rheoplot.pictures._create_beside", return_value=self.folder / "p.png"):
                (self.folder / "p.png").symlink_to(device)
                status, _, err = plot("map", basin(), "-o", self.path)
            self.assertEqual(status, 1)
            self.assertIn("cannot be written: No space left on device", err)
        self.assertEqual(self.files(), [])

    def test_the_results_are_never_overwritten(self):
        results = changed(basin(), lambda file: None)
        before = results.read_bytes()
        os.symlink(results, self.path)
        os.link(results, self.folder / "hard.png")
        os.rename(results, self.folder / "run.png")
        os.symlink(self.folder / "run.png", results)
        for name in ("depth.png", "hard.png", "run.png"):
            for command in ("map", "flood", "hydrographs"):
                status, _, err = plot(command, self.folder / "run.png", "-o", self.folder / name)
                self.assertEqual(status, 1)
                self.assertIn("is the results file itself: give another name for the picture", err)
            self.assertEqual((self.folder / name).read_bytes(), before)

    def test_devices_and_places_without_a_folder_are_refused(self):
        os.mkfifo(self.path)
        with self.assertRaisesRegex(Fault, "depth.png is a folder or a device: give another name"):
            with whole_picture(str(self.path), "results.h5"):
                pass
        with self.assertRaisesRegex(Fault, "there is no folder /nowhere for /nowhere/a.png"):
            with whole_picture("/nowhere/a.png", "results.h5"):
                pass
        with self.assertRaisesRegex(Fault, "/proc/a.png cannot be written: "):
            with whole_picture("/proc/a.png", "results.h5"):
                pass


if __name__ == "__main__":
    unittest.main()

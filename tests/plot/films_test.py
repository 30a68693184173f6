import os
import shutil
import unittest
from unittest import mock

import numpy as np
from PIL import Image
from support import basin, picture, plot


class FilmsTest(unittest.TestCase):
    def test_a_gif_has_a_frame_per_record_and_one_scale(self):
        path = picture("depth.gif")
        status, out, err = plot("animate", basin(), "-o", path, "--fps", "4")
        self.assertEqual((status, err), (0, ""))
        self.assertEqual(out, f"{path}: basin: water depth, 5 records\n")
        with Image.open(path) as film:
            self.assertEqual(film.n_frames, 5)
            frames = []
            for k in range(5):
                film.seek(k)
                self.assertEqual(film.info["duration"], 250)
                frames.append(np.asarray(film.convert("RGB"), int))
        width = frames[0].shape[1]
        bar = np.s_[100:, int(0.9 * width):]
        for frame in frames[1:]:
            self.assertGreater(np.abs(frame - frames[0]).max(), 50)
            self.assertLess(np.abs(frame[bar] - frames[0][bar]).max(), 20)

    def test_records_can_be_left_out(self):
        path = picture("some.gif")
        self.assertEqual(plot("animate", basin(), "-o", path, "--every", 2)[0], 0)
        with Image.open(path) as film:
            self.assertEqual(film.n_frames, 3)

    @unittest.skipUnless(shutil.which("ffmpeg"), "the Debian package ffmpeg is not installed")
    def test_an_mp4_is_written(self):
        path = picture("speed.mp4")
        self.assertEqual(plot("animate", basin(), "--output", "flow_velocity", "-o", path)[0], 0)
        with open(path, "rb") as film:
            self.assertEqual(film.read(12)[4:8], b"ftyp")

    def test_without_ffmpeg_an_mp4_is_refused(self):
        with mock.patch.dict(os.environ, PATH="/nowhere"):
            status, _, err = plot("animate", basin(), "-o", picture("no.mp4"))
        self.assertEqual(status, 1)
        self.assertIn("install the Debian package ffmpeg", err)
        self.assertFalse(os.path.exists(picture("no.mp4")))


if __name__ == "__main__":
    unittest.main()

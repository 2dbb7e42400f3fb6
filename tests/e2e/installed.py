"""The program as it is installed: it starts from its own place and finds its pictures, its font and its icons there."""

import os
import pathlib
import subprocess
import tempfile

from harness.program import Session

Build = pathlib.Path(os.environ["MELVOR"]).parents[1]


def main():
    with tempfile.TemporaryDirectory(prefix="melvor-installed-") as folder:
        prefix = pathlib.Path(folder)
        subprocess.run(["cmake", "--install", Build, "--prefix", prefix], check=True, stdout=subprocess.DEVNULL)
        entry = next(prefix.glob("share/applications/*.desktop")).read_text()
        keys = dict(line.split("=", 1) for line in entry.splitlines() if "=" in line)
        icons = list(prefix.glob(f"share/icons/hicolor/*/apps/{keys['Icon']}.*"))
        assert len(icons) == 10 and all(icon.stat().st_size for icon in icons), icons
        os.environ["MELVOR"] = str(prefix / "bin" / keys["Exec"])
        with Session("installed") as session:  # a missing font stops the start with a box
            assert session.interrupt() == 0
            assert "cannot read" not in session.machine.log("melvor"), session.machine.log("melvor")


main()

"""The program as it is installed: it starts from its own place and finds its pictures and its font there."""

import os
import pathlib
import shutil
import subprocess
import tempfile

from harness.program import Session

Build = pathlib.Path(os.environ["MELVOR"]).parents[1]
Validators = [["desktop-file-validate"], ["appstreamcli", "validate", "--no-net"]]
Named = ["share/applications/*.desktop", "share/metainfo/*.metainfo.xml"]


def check_entry(prefix):
    """What the desktop reads is in order, and what it names is there."""
    files = [next(prefix.glob(pattern)) for pattern in Named]
    for validator, file in zip(Validators, files):
        if shutil.which(validator[0]):
            subprocess.run([*validator, file], check=True)
    keys = dict(line.split("=", 1) for line in files[0].read_text().splitlines() if "=" in line)
    icons = list(prefix.glob(f"share/icons/hicolor/*/apps/{keys['Icon']}.*"))
    assert len(icons) == 10 and all(icon.stat().st_size for icon in icons), icons
    return prefix / "bin" / keys["Exec"]


def main():
    with tempfile.TemporaryDirectory(prefix="melvor-installed-") as folder:
        prefix = pathlib.Path(folder)
        subprocess.run(["cmake", "--install", Build, "--prefix", prefix], check=True, stdout=subprocess.DEVNULL)
        os.environ["MELVOR"] = str(check_entry(prefix))
        with Session("installed") as session:  # a missing font stops the start with a box
            assert session.interrupt() == 0
            assert "cannot read" not in session.machine.log("melvor"), session.machine.log("melvor")


if __name__ == "__main__":
    main()

"""The Debian packages of the peers: which are here, and how the others come."""
import glob
import os
import subprocess
import tempfile

# Each excludes the other, so the one that is not installed can be unpacked beside; it then needs its libraries.
EXCLUSIVE = ("gnuplot-nox", "gnuplot-qt")
LIBRARIES_OF_EXCLUSIVE = ("gnuplot-data", "libedit2", "libgd3", "liblua5.4-0", "libpangocairo-1.0-0",
                          "libqt5printsupport5", "libqt5svg5", "libwxgtk3.2-1")


class Packages:
    def __init__(self, root):
        self.root = root
        self.unpacked = os.path.join(root, "build", "peers", "unpacked")
        self.installed = installed()

    def folder(self, package):
        """Where an exclusive package has its usr/, None if it is not here."""
        if package in self.installed:
            return ""
        beside = os.path.join(self.unpacked, package)
        return beside if os.path.isdir(beside) else None

    def is_here(self, package):
        return package in self.installed or package in EXCLUSIVE and self.folder(package) is not None

    def missing(self, packages):
        return [package for package in packages if not self.is_here(package)]

    def install(self, packages):
        """With the words and the rights of ./run."""
        wanted = [package for package in packages if package not in EXCLUSIVE]
        subprocess.run(["bash", "-c", '. packaging/setup.sh && ensure_packages "$@"', "bash", *wanted,
                        *LIBRARIES_OF_EXCLUSIVE], cwd=self.root, check=True)
        for package in self.missing(set(packages) & set(EXCLUSIVE)):
            self._unpack(package)

    def _unpack(self, package):
        os.makedirs(self.unpacked, exist_ok=True)
        with tempfile.TemporaryDirectory() as folder:
            os.chmod(folder, 0o777)  # apt downloads as a user of its own.
            subprocess.run(["apt-get", "download", "-qq", package], cwd=folder, check=True)
            archive, = glob.glob(os.path.join(folder, "*.deb"))
            subprocess.run(["dpkg", "-x", archive, os.path.join(self.unpacked, package)], check=True)


def installed():
    """The names of all installed packages."""
    told = subprocess.check_output(["dpkg-query", "-W", "-f", "${Package} ${db:Status-Status}\n"], text=True)
    return {name for name, status in map(str.split, told.splitlines()) if status == "installed"}

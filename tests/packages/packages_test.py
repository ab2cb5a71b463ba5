# SPDX-FileCopyrightText: 2026 The QVTblt developers
# SPDX-License-Identifier: MIT
"""The Debian packages: their contents, and installing, using and removing them in a clean Debian.

Usage: packages_test.py PACKAGES CODENAME [unittest's arguments], PACKAGES being make-packages' folder
and CODENAME the release of Debian that they were made for
"""

import os
import pathlib
import plistlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

SOURCE = pathlib.Path(__file__).resolve().parent.parent.parent
NAMES = ("kcm-qvtblt", "qvtblt", "tdsg-driver", "tdsg-driver-access")  # for users
DEVELOPMENT = "qvtblt-dev"
PROGRAMS = {"qvtblt": "qvtblt", "qvtbltctl": "qvtblt", "tdsg-driver": "tdsg-driver"}


def run(*command, **options):
    """Runs a program to its end; on failure, shows its output."""
    options.setdefault("timeout", 300)
    result = subprocess.run([str(word) for word in command], text=True, stdout=subprocess.PIPE,
                            stderr=subprocess.STDOUT, **options)
    if result.returncode != 0:
        raise AssertionError(f"{command} gave {result.returncode}: {result.stdout[-3000:]}")
    return result.stdout


def field(package, name):
    return run("dpkg-deb", "--field", package, name).strip()


class Contents(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.unpacked = pathlib.Path(tempfile.mkdtemp(prefix="qvtblt-packages-"))
        cls.addClassCleanup(shutil.rmtree, cls.unpacked)
        for package in PACKAGES:
            run("dpkg-deb", "--extract", package, cls.unpacked)
        cls.usr = cls.unpacked / "usr"

    def programs_and_modules(self):
        files = [file for file in self.unpacked.rglob("*")
                 if file.is_file() and file.read_bytes().startswith(b"\x7fELF")]
        self.assertEqual({file.name for file in files}, {*PROGRAMS, "QVTblt.so", "kcm_qvtblt.so"})
        return files

    def test_each_language_is_there(self):
        languages = sorted(folder.name for folder in SOURCE.glob("resources/*.lproj"))
        self.assertGreater(len(languages), 5)
        for language in languages:
            texts = [f"qvtblt/{language}/InfoPlist.strings"]
            if language != "en.lproj":
                texts += [f"qvtblt/{language}/QVTblt.qm", f"tdsg-driver/{language}/tdsg-driver.qm"]
            for text in texts:
                self.assertTrue((self.usr / "share" / text).is_file(), text)

    def test_lintian_has_nothing_to_say(self):
        as_root = ["--allow-root"] if os.geteuid() == 0 else []
        run("lintian", "--fail-on", "error,warning", *as_root, *PACKAGES)

    def test_all_have_the_projects_version(self):
        text = (SOURCE / "CMakeLists.txt").read_text()
        version = re.search(r"^project\(QVTblt VERSION (\S+)", text, re.MULTILINE)[1]
        self.assertEqual({field(package, "Version") for package in PACKAGES}, {version})

    def test_are_hardened_and_stripped(self):
        for file in self.programs_and_modules():
            with self.subTest(file=file.name):
                text = run("readelf", "--wide", "--file-header", "--program-headers", "--dynamic",
                           "--sections", "--dyn-syms", file)
                self.assertIn("DYN (", text)
                self.assertIn("GNU_RELRO", text)
                self.assertRegex(text, r"\bBIND_NOW\b|\bNOW\b")
                self.assertNotRegex(text, r"GNU_STACK.* RWE ")
                self.assertNotIn(".symtab", text)
                if file.name != "kcm_qvtblt.so":  # it has no array that could overflow
                    self.assertIn("__stack_chk_fail", text)
                if file.suffix != ".so":
                    self.assertRegex(text, r"FLAGS_1.*\bPIE\b")
                    self.assertRegex(text, r"__\w+_chk@")

    def test_do_not_know_where_they_were_built(self):
        for file in self.unpacked.rglob("*"):
            if file.is_file():
                self.assertNotIn(str(SOURCE).encode(), file.read_bytes(), file)

    def test_desktop_entries_and_metadata_are_valid(self):
        entries = sorted(self.usr.glob("share/applications/*"))
        self.assertEqual([entry.name for entry in entries],
                         ["org.quorvia.next-profile.desktop", "org.quorvia.qvtblt.desktop",
                          "org.quorvia.tdsg-driver.desktop"])
        for entry in entries:
            self.assertEqual(run("desktop-file-validate", entry), "")
            icon = re.search(r"^Icon=(.*)$", entry.read_text(), re.MULTILINE)[1]
            pictures = sorted(self.usr.glob(f"share/icons/hicolor/*/apps/{icon}.*"))
            self.assertEqual(len(pictures), 9)
            for picture in pictures:
                if picture.suffix == ".png":
                    size = picture.parent.parent.name
                    self.assertEqual(run("identify", "-format", "%wx%h", picture), size)
        metadata = list(self.usr.glob("share/metainfo/*"))
        self.assertEqual(len(metadata), 2)
        for file in metadata:
            run("appstreamcli", "validate", "--no-net", file)

    def test_the_drivers_unit_is_valid(self):
        service = (self.usr / "share/dbus-1/services/org.quorvia.AppleEvents.TdSg.service").read_text()
        unit = re.search(r"^SystemdService=(.*)$", service, re.MULTILINE)[1]
        text = (self.usr / "lib/systemd/user" / unit).read_text()
        for key, other in (("Exec", "ExecStart"), ("Name", "BusName")):
            value = re.search(rf"^{key}=(.*)$", service, re.MULTILINE)[1]
            self.assertIn(f"\n{other}={value}\n", text)
        self.check_unit(unit)

    def test_the_followers_unit_is_valid(self):
        self.assertIn("follow", self.check_unit("qvtblt-follow.service"))

    def check_unit(self, unit):
        """Checks a unit, and returns what it says."""
        text = (self.usr / "lib/systemd/user" / unit).read_text()
        # The program is not installed here, so check the unit with the unpacked one.
        copy = self.unpacked / unit
        copy.write_text(text.replace("ExecStart=", f"ExecStart={self.unpacked}"))
        said = run("systemd-analyze", "--user", "--man=no", "verify", copy,
                   env=os.environ | {"XDG_RUNTIME_DIR": str(self.unpacked)})
        self.assertNotIn(unit, said)
        return text

    def test_the_virtual_pens_quirks_are_valid(self):
        run("libinput", "quirks", "validate", "--data-dir", self.usr / "share/libinput")

    def options(self, program):
        said = run(self.usr / "bin" / program, "--help")
        return set(re.findall(r"(?<![\w-])--[\w-]+", said.split("Options:")[1]))

    def manual(self, program):
        return run("man", "--warnings", "--encoding=UTF-8", "--local-file",
                   self.usr / f"share/man/man1/{program}.1.gz", env=os.environ | {"MANWIDTH": "98"})

    def test_manual_pages_tell_of_every_option_and_of_no_other(self):
        for program in PROGRAMS:
            with self.subTest(program=program):
                text = self.manual(program)
                self.assertNotRegex(text, "warning|can't")
                told = set(re.findall(r"(?<![\w-])--[\w-]+", text)) - {"--user", "--json", "--now"}
                self.assertEqual(told, self.options(program))

    def complete(self, line):
        """Returns a shell's completions for a line."""
        words = line.split(" ")
        script = """
            . /usr/share/bash-completion/bash_completion
            _completion_loader "$1"
            compopt() { :; } # which is for a shell that really completes
            COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
            [[ $(complete -p "$1") =~ -F\\ ([^ ]+) ]] && "${BASH_REMATCH[1]}" "$1"
            printf '%s\\n' "${COMPREPLY[@]}" """
        said = run("bash", "-c", script, "bash", *words, cwd=self.unpacked, env={
            "PATH": f"{self.usr}/bin:/usr/bin:/bin", "XDG_DATA_DIRS": f"{self.usr}/share",
            "HOME": str(self.unpacked), "BASH_COMPLETION_USER_DIR": str(self.unpacked)})
        return set(said.split())

    def test_a_shell_completes_every_option_and_command(self):
        for program in PROGRAMS:
            with self.subTest(program=program):
                self.assertEqual(self.complete(f"{program} --"), self.options(program))
        commands = re.findall(r"^  ([\w-]+) ", run(self.usr / "bin/qvtbltctl", "--help"), re.MULTILINE)
        self.assertEqual({word for word in self.complete("qvtbltctl ") if word[0] != "-"},
                         set(commands))
        self.assertEqual(self.complete("qvtbltctl usb-mode f"), {"fast"})
        self.assertEqual(self.complete("qvtbltctl sim "), {"tap"})
        self.assertEqual(self.complete("qvtbltctl profile "),
                         {"delete", "export", "import", "list", "next", "rename", "save", "use"})
        self.assertEqual(self.complete("qvtbltctl profile import us"), {"usr"})
        self.assertEqual(self.complete("qvtbltctl profile list --"), {"--json"})
        self.assertEqual(self.complete("qvtbltctl check us"), {"usr"})
        self.assertEqual(self.complete("qvtbltctl show u"), {"usr"})
        self.assertEqual(self.complete("qvtbltctl show --"), {"--json"})
        self.assertEqual(self.complete("qvtblt --render us"), {"usr"})
        self.assertLessEqual({"none", "20737"}, self.complete("tdsg-driver --simulate "))


def obstacle():
    """Returns what stands in the way of a clean root, or an empty string."""
    if os.geteuid() != 0:
        return "only root can make one"
    return "" if run("apt-get", "indextargets", "Origin: Debian") else "apt knows no archive"


@unittest.skipIf(obstacle(), obstacle())
class CleanRoot(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.mkdtemp(prefix="qvtblt-root-")
        cls.addClassCleanup(shutil.rmtree, folder)
        cls.root = pathlib.Path(folder) / "root"
        run(SOURCE / "scripts/make-root", CODENAME, cls.root, timeout=600)
        for package in USERS_PACKAGES:
            shutil.copy(package, cls.root / "opt")
        cls.home = cls.root / "home/person"
        cls.home.mkdir()
        os.chown(cls.home, 1000, 1000)
        with open(cls.root / "etc/passwd", "a", encoding="ascii") as users:
            users.write("person:x:1000:1000::/home/person:/bin/bash\n")

    def in_root(self, *command, user=0):
        """Runs a program in the root in its own process namespace, which ends with all its
        children."""
        script = """
            mount -t proc proc "$0/proc" && mount -t tmpfs tmpfs "$0/tmp" &&
            mkdir -m 700 "$0/tmp/runtime" && chown "$1" "$0/tmp/runtime" &&
            exec chroot --userspec "$1:$1" "$0" "${@:2}" """
        return run("unshare", "--mount", "--pid", "--fork", "--kill-child", "bash", "-c", script,
                   self.root, str(user), *command, stdin=subprocess.DEVNULL, env={
                       "DEBIAN_FRONTEND": "noninteractive", "HOME": "/home/person" if user else "/root",
                       "LANG": "C.UTF-8", "PATH": "/usr/sbin:/usr/bin:/sbin:/bin",
                       "XDG_RUNTIME_DIR": "/tmp/runtime"})

    def in_session(self, script):
        """Runs a shell's script as a user, on a session bus that knows what is installed."""
        return self.in_root("dbus-run-session", "--", "bash", "-euc", script, user=1000)

    def files(self):
        """Returns all files in the root, except the user's and the package manager's."""
        own = ("home/person/", "opt/", "tmp/", "var/cache/", "var/lib/apt/", "var/lib/dpkg/",
               "var/log/")
        names = {str(file.relative_to(self.root)) for file in self.root.rglob("*")}
        return {name for name in names if not name.startswith(own)}

    def test_install_run_and_remove(self):
        self.in_root("apt-get", "update", "--quiet")
        wanted = ", ".join(field(package, name)
                           for package in USERS_PACKAGES for name in ("Depends", "Recommends"))
        others = [wish for wish in wanted.split(", ") if wish.split(" ")[0] not in (*NAMES, "")]
        self.in_root("apt-get", "satisfy", "--yes", "--quiet", ", ".join(others))
        before = self.files()

        said = self.in_root("apt-get", "install", "--yes", "--quiet",
                            *(f"/opt/{package.name}" for package in USERS_PACKAGES))
        self.assertIn("\n0 upgraded, 4 newly installed, 0 to remove", said)
        installed = self.files()
        self.assertLess(before, installed)

        self.check_programs()
        self.check_completion_of_entries()
        self.check_system_settings()

        self.in_root("apt-get", "purge", "--yes", "--quiet", *NAMES)
        self.assertEqual(self.files() ^ before, set())
        folder = self.home / "Library/Preferences/QuorviaTablet/config"
        self.assertEqual([file.name for file in folder.iterdir()], ["20737.plist"])
        settings = plistlib.loads((folder / "20737.plist").read_bytes())
        self.assertEqual(settings["Key"]["Scrollbar0"], 1)

    def check_programs(self):
        version = field(PACKAGES[0], "Version")
        for program in PROGRAMS:
            self.assertEqual(self.in_root(program, "--version"), f"{program} {version}\n")
        # The bus starts the driver, which finds no tablet here.
        self.assertIn("none attached", self.in_session("qvtbltctl status || true"))
        said = self.in_session("""
            tdsg-driver --simulate >/tmp/driver.log & driver=$!
            until grep -q ^ready /tmp/driver.log; do sleep 0.1; done
            qvtbltctl set Key/Scrollbar0 1
            qvtblt --render /tmp/pages && ls /tmp/pages
            kill $driver""")
        self.assertLessEqual({"keyPage.png", "noDevice.png"}, set(said.split()))

    def check_completion_of_entries(self):
        said = self.in_session("""
            compopt() { :; }
            . /usr/share/bash-completion/completions/qvtbltctl
            COMP_WORDS=(qvtbltctl set "") COMP_CWORD=2
            _qvtbltctl qvtbltctl
            printf '%s\\n' "${COMPREPLY[@]}" """)
        self.assertIn("Pen/PressureThreshold", said.splitlines())
        self.assertIn("Key/Key0/App", said.splitlines())
        self.assertNotIn("Tablet/", said)

    def check_system_settings(self):
        listed = self.in_session("QT_QPA_PLATFORM=offscreen systemsettings --list")
        self.assertRegex(listed, r"(?m)^kcm_qvtblt +- ")
        # The module asks the driver as soon as it is shown.
        said = self.in_session("""
            tdsg-driver --simulate >/tmp/driver.log & driver=$!
            until grep -q ^ready /tmp/driver.log; do sleep 0.1; done
            QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software systemsettings kcm_qvtblt &
            for ((i = 0; i < 300; ++i)); do
                ! grep '^query from ' /tmp/driver.log || break
                sleep 0.1
            done
            kill $!
            kill $driver""")
        self.assertRegex(said, r"(?m)^query from .*: 20737$")


PACKAGES = sorted(pathlib.Path(sys.argv.pop(1)).glob("*.deb"))
CODENAME = sys.argv.pop(1)
USERS_PACKAGES = [package for package in PACKAGES if not package.name.startswith(DEVELOPMENT)]
if {package.name.split("_")[0] for package in PACKAGES} != {*NAMES, DEVELOPMENT}:
    sys.exit("packages_test.py: packaging/make-packages has not made its packages there")

if __name__ == "__main__":
    unittest.main()

#!/usr/bin/env python3
# SPDX-FileCopyrightText: Norvane contributors
# SPDX-License-Identifier: MIT

"""What the dev script decides on machines of every kind, played with fake tools.

A machine is a folder of programs that is all the script finds on its PATH. The fakes write down how
they were called.
"""

import os
import shutil
import signal
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

CHECKOUT = Path(__file__).resolve().parents[2]

# What every system has. Anything else that the script calls is a fake or missing.
BASICS = ["awk", "basename", "bash", "cat", "chmod", "cut", "dirname", "env", "find", "flock",
          "grep", "head", "ls", "mkdir", "mv", "nproc", "paste", "readlink", "realpath", "rm", "setsid",
          "sha256sum", "sleep", "sort", "sync", "tar", "touch", "true", "uname"]

TOOLS = ["c++", "git", "ninja", "pkg-config", "python3", "Xvfb", "openbox", "xdotool",
         "import", "xprop", "dbus-run-session", "fc-list", "valgrind", "ctest"]

PACKAGING = ["dh", "dpkg-buildpackage", "lintian"]

# Leaves a package, and the sources it was made of beside it, as the real one does.
BUILD_PACKAGE = """cat debian/control >/dev/null; touch ../libnorvane0_1_amd64.deb ../norvane_1_amd64.changes"""

QMAKE = """case "$2" in
QT_VERSION) echo {version} ;;
QT_INSTALL_PREFIX) echo {prefix} ;;
QT_INSTALL_LIBS) echo {prefix}/lib ;;
QT_INSTALL_PLUGINS) echo {prefix}/plugins ;;
QT_HOST_BINS) echo {prefix}/bin ;;
esac"""

APT_GET = """case " $* " in
*" indextargets "*--format*) echo http://mirror.example/debian ;;
*" indextargets "*) echo an index ;;
*" update "*) : >{home}/updated ;;
*" --download-only "*) [ -z "{needs_update}" ] || [ -e {home}/updated ] ;;
*" install "*) cp -a {home}/packages/. {home}/ ;;
esac"""

MAKE_ROOT = """mkdir -p "$making"/{usr/bin,etc,var}
ln -s usr/bin "$making/bin"; ln -s usr/lib "$making/lib"; ln -s usr/sbin "$making/sbin\""""


class Machine:
    def __init__(self, folder):
        self.home = folder
        self.bin = folder / "bin"
        self.bin.mkdir()
        self.calls_file = folder / "calls"
        self.calls_file.touch()
        self.environment = {"PATH": str(self.bin), "HOME": str(folder), "LC_ALL": "C.UTF-8"}
        for name in BASICS + ["cp", "ln"]:
            (self.bin / name).symlink_to(shutil.which(name))
        self.fake("id", '[ "$1" = -u ] && echo 0 || echo root')

    def fake(self, name, script="", folder=None):
        path = (folder or self.bin) / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(f'#!{shutil.which("bash")}\necho "{name} $*" >>{self.calls_file}\n{script}\n')
        path.chmod(0o755)

    def has_tools(self, where=None):
        folder = (where or self.home) / "bin"
        for name in TOOLS:
            self.fake(name, folder=folder)
        self.fake("cmake", '[ "$1" != --version ] || echo cmake version 3.31.6', folder)

    def has_qt(self, version, where=None):
        folder = where or self.home
        prefix = self.home / "qt"
        self.fake("qmake6", QMAKE.format(version=version, prefix=prefix), folder / "bin")
        for entry in ("lib/cmake/Qt6Widgets/Qt6WidgetsConfig.cmake", "plugins/iconengines/libqsvgicon.so",
                      "bin/lrelease"):
            path = folder / "qt" / entry
            path.parent.mkdir(parents=True, exist_ok=True)
            path.touch(mode=0o755)

    def is_debian(self, offers, needs_update=False):
        """A package manager that installs the tools and this version of Qt."""
        self.fake("dpkg")
        self.fake("apt-get", APT_GET.format(home=self.home, needs_update=needs_update or ""))
        self.fake("apt-cache", f"echo '  Candidate: {offers}'")
        packages = self.home / "packages"
        self.has_tools(packages)
        self.has_qt(offers, packages)

    def makes_roots(self, script=MAKE_ROOT):
        """The folder is the argument before the last, or the archive goes to the standard output."""
        self.fake("mmdebstrap", 'making=${@: -2:1}\n' + script)
        self.fake("bwrap")

    def start(self, *arguments, checkout=CHECKOUT):
        return subprocess.Popen([shutil.which("bash"), str(checkout / "dev"), *arguments],
                                env=self.environment, stdout=subprocess.PIPE,
                                stderr=subprocess.STDOUT, text=True)

    def dev(self, *arguments, **options):
        process = self.start(*arguments, **options)
        output, _ = process.communicate(timeout=60)
        return process.returncode, output

    def calls(self, name):
        return [line for line in self.calls_file.read_text().splitlines()
                if line.split(" ")[0] == name]

    def cache(self):
        folder = self.home / ".cache/norvane"
        return sorted(path.name for path in folder.iterdir()) if folder.exists() else []


class DevTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.machine = Machine(Path(folder.name))

    def test_uses_what_the_system_has_and_installs_nothing(self):
        self.machine.has_tools()
        self.machine.has_qt("6.10.1")
        self.machine.is_debian("6.10.1")
        status, output = self.machine.dev("test", "-R", "Some")
        self.assertEqual(status, 0, output)
        self.assertEqual(self.machine.calls("apt-get"), [])
        self.assertIn("cmake --preset debug", self.machine.calls("cmake"))
        self.assertIn("cmake --build --preset debug", self.machine.calls("cmake"))
        [test] = self.machine.calls("ctest")
        self.assertTrue(test.endswith("-R Some"), test)

    def test_passes_the_status_of_the_tests_on(self):
        self.machine.has_tools()
        self.machine.has_qt("6.8.0")
        self.machine.fake("ctest", "exit 8")
        self.assertEqual(self.machine.dev("test")[0], 8)

    def test_installs_what_is_missing(self):
        self.machine.is_debian("6.8.2+dfsg-4")
        status, output = self.machine.dev("test")
        self.assertEqual(status, 0, output)
        installs = [call for call in self.machine.calls("apt-get") if " install " in call]
        self.assertTrue(installs)
        for package in ("qt6-base-dev", "qt6-svg-plugins", "g++", "ninja-build", "xvfb"):
            self.assertIn(f" {package}", installs[-1])
        for call in installs:
            self.assertIn("--no-install-recommends", call)
            self.assertIn("--no-remove", call)
        self.assertIn("Installing with apt-get", output)
        self.assertEqual(self.machine.calls("mmdebstrap"), [])
        self.assertEqual(len(self.machine.calls("ctest")), 1)

    def test_installs_only_what_is_missing(self):
        self.machine.has_tools()
        self.machine.has_qt("6.8.2")
        self.machine.is_debian("6.8.2")
        (self.machine.bin / "openbox").unlink()
        status, output = self.machine.dev("test")
        self.assertEqual(status, 0, output)
        install = [call for call in self.machine.calls("apt-get") if " install " in call][-1]
        self.assertEqual(install.split(" install ")[1], "openbox")

    def test_reads_the_package_lists_when_a_package_cannot_be_fetched(self):
        self.machine.is_debian("6.8.2", needs_update=True)
        status, output = self.machine.dev("test")
        self.assertEqual(status, 0, output)
        self.assertEqual(len([c for c in self.machine.calls("apt-get") if " update" in c]), 1)

    def test_says_what_needs_root(self):
        self.machine.is_debian("6.8.2")
        self.machine.fake("id", '[ "$1" = -u ] && echo 1000 || echo user')
        status, output = self.machine.dev("test")
        self.assertEqual(status, 1)
        self.assertRegex(output, "needs root: .*apt-get install --no-install-recommends .*qt6-base-dev")
        self.assertEqual(self.machine.calls("ctest"), [])

    def test_ends_with_one_clear_line_where_nothing_can_be_installed(self):
        self.machine.has_qt("6.4.2")
        status, output = self.machine.dev("test")
        self.assertEqual(status, 1)
        self.assertEqual(len(output.splitlines()), 1, output)
        for package in ("Qt 6.8 or later", "qt6-base-dev", "cmake", "xvfb"):
            self.assertIn(package, output)

    def test_makes_a_private_root_where_the_system_is_too_old(self):
        self.machine.has_tools()
        self.machine.has_qt("6.4.2")
        self.machine.is_debian("6.4.2")
        self.machine.makes_roots()
        status, output = self.machine.dev("test", "-R", "Some")
        self.assertEqual(status, 0, output)
        [call] = self.machine.calls("mmdebstrap")
        self.assertIn("qt6-base-dev", call)
        self.assertTrue(call.endswith("deb http://mirror.example/debian trixie main"), call)
        self.assertEqual([c for c in self.machine.calls("apt-get") if " install " in c], [])
        entered = self.machine.calls("bwrap")[-1]
        self.assertTrue(entered.endswith("/dev test -R Some"), entered)
        self.assertEqual(self.machine.calls("ctest"), [])
        self.assertEqual(len(self.machine.cache()), 2, self.machine.cache())

        self.machine.dev("test")
        self.assertEqual(len(self.machine.calls("mmdebstrap")), 1)

    def test_makes_another_root_for_the_heavy_tools(self):
        self.machine.has_tools()
        (self.machine.bin / "valgrind").unlink()
        self.machine.has_qt("6.4.2")
        self.machine.is_debian("6.4.2")
        self.machine.makes_roots()
        self.machine.dev("test")
        self.machine.dev("bench")
        light, heavy = self.machine.calls("mmdebstrap")
        self.assertNotIn("valgrind", light)
        self.assertIn("valgrind", heavy)

    def test_makes_a_small_root_for_the_documentation(self):
        self.machine.is_debian("6.4.2")
        self.machine.makes_roots()
        status, output = self.machine.dev("docs")
        self.assertEqual(status, 0, output)
        [call] = self.machine.calls("mmdebstrap")
        self.assertIn("--include=doxygen ", call)

    def test_leaves_nothing_behind_when_the_root_cannot_be_made(self):
        self.machine.is_debian("6.4.2")
        self.machine.makes_roots(MAKE_ROOT + "\nexit 25")
        status, output = self.machine.dev("test")
        self.assertEqual(status, 1)
        self.assertIn("could not be made", output)
        self.assertEqual(self.machine.cache(), ["lock"])

    def test_leaves_nothing_behind_when_interrupted(self):
        for number, expected in ((signal.SIGINT, 130), (signal.SIGTERM, 143), (signal.SIGHUP, 129)):
            with self.subTest(signal=number):
                self.setUp()
                started = self.machine.home / "started"
                self.machine.is_debian("6.4.2")
                self.machine.makes_roots(MAKE_ROOT + f"\n: >{started}\nsleep 60")
                process = self.machine.start("test")
                deadline = time.monotonic() + 30
                while not started.exists() and time.monotonic() < deadline:
                    time.sleep(0.01)
                self.assertIn("making", self.machine.cache())
                process.send_signal(number)
                process.communicate(timeout=30)
                self.assertEqual(process.returncode, expected)
                self.assertEqual(self.machine.cache(), ["lock"])

    def test_clears_what_a_killed_run_left(self):
        left = self.machine.home / ".cache/norvane/making/usr/half"
        left.mkdir(parents=True)
        self.machine.is_debian("6.4.2")
        self.machine.makes_roots()
        status, output = self.machine.dev("test")
        self.assertEqual(status, 0, output)
        [root] = [name for name in self.machine.cache() if name != "lock"]
        self.assertFalse((self.machine.home / ".cache/norvane" / root / "usr/half").exists())

    def checkout(self):
        """A copy of the script in a repository of its own, for commands that leave files there."""
        folder = self.machine.home / "checkout"
        shutil.copytree(CHECKOUT / "scripts", folder / "scripts")
        shutil.copytree(CHECKOUT / "debian", folder / "debian")
        shutil.copy(CHECKOUT / "dev", folder)
        (folder / "examples").mkdir()
        return folder

    def can_package(self):
        self.machine.has_tools()
        self.machine.has_qt("6.8.2")
        self.machine.is_debian("6.8.2")
        for name in PACKAGING:
            self.machine.fake(name)
        self.machine.fake("git", "printf 'debian/control\\0'")
        self.machine.fake("dpkg-buildpackage", BUILD_PACKAGE)
        for name in ("bwrap", "mmdebstrap"):
            self.machine.fake(name)
        return self.checkout()

    def test_makes_packages_of_a_copy_and_tries_them(self):
        folder = self.can_package()
        status, output = self.machine.dev("package", checkout=folder)
        self.assertEqual(status, 0, output)
        self.assertTrue((folder / "build/package/libnorvane0_1_amd64.deb").exists())
        self.assertTrue((folder / "build/package/norvane/debian/control").exists())
        [lintian] = self.machine.calls("lintian")
        self.assertIn("--fail-on error", lintian)
        [trial] = self.machine.calls("mmdebstrap")
        self.assertIn("trixie /dev/null deb http://mirror.example/debian", trial)
        self.assertNotIn("qt6", trial)

    def test_tells_which_step_of_the_packages_failed(self):
        folder = self.can_package()
        self.assertEqual(self.machine.dev("package", "try", checkout=folder)[0], 1)
        self.machine.fake("mmdebstrap", "exit 25")
        status, output = self.machine.dev("package", checkout=folder)
        self.assertEqual(status, 1)
        self.assertIn("do not do what they should", output)
        self.machine.fake("lintian", "exit 2")
        self.assertNotEqual(self.machine.dev("package", checkout=folder)[0], 0)
        self.assertEqual(len(self.machine.calls("mmdebstrap")), 1)

    def test_installs_the_package_tools_for_packages_only(self):
        self.machine.is_debian("6.8.2")
        self.machine.dev("test")
        self.assertNotIn("debhelper", "".join(self.machine.calls("apt-get")))
        self.machine.dev("package", "build", checkout=self.checkout())
        install = [call for call in self.machine.calls("apt-get") if " install " in call][-1]
        self.assertEqual(install.split(" install ")[1], "debhelper dpkg-dev lintian")

    def test_asks_to_delete_a_root_that_lacks_something(self):
        self.machine.environment["NORVANE_PRIVATE_ROOT"] = "/some/root"
        self.machine.is_debian("6.4.2")
        self.machine.makes_roots()
        status, output = self.machine.dev("test")
        self.assertEqual(status, 1)
        self.assertIn("/some/root lacks", output)
        self.assertEqual(self.machine.calls("mmdebstrap"), [])

    def test_makes_the_documentation_without_a_toolchain(self):
        folder = self.checkout()
        shutil.copytree(CHECKOUT / "docs", folder / "docs")
        self.machine.is_debian("6.8.2")
        self.machine.fake("doxygen", folder=self.machine.home / "packages/bin")
        status, output = self.machine.dev("docs", checkout=folder)
        self.assertEqual(status, 0, output)
        [install] = [call for call in self.machine.calls("apt-get")
                     if " install " in call and "--download-only" not in call]
        self.assertEqual(install.split(" install ")[1], "doxygen")
        self.assertEqual(self.machine.calls("doxygen"), ["doxygen docs/Doxyfile"])
        # Where the pages look for them.
        self.assertTrue((folder / "build/docs/images/ribbon.png").exists())

        self.machine.fake("doxygen", "exit 1")
        self.assertEqual(self.machine.dev("docs", checkout=folder)[0], 1)

    def test_tells_commands_that_it_does_not_know(self):
        self.assertEqual(self.machine.dev("nonsense")[0], 2)
        status, output = self.machine.dev("help")
        self.assertEqual(status, 0)
        self.assertIn("./dev COMMAND", output)
        self.machine.has_tools()
        self.machine.has_qt("6.8.2")
        status, output = self.machine.dev("bench", "nonsense")
        self.assertEqual(status, 1)
        self.assertIn("no benchmark named nonsense", output)


if __name__ == "__main__":
    unittest.main()

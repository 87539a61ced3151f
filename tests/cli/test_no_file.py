"""Files that are not there, or may not be read or written, are handed to every command."""

from __future__ import annotations

import os
import pwd
import tempfile
import unittest
from pathlib import Path

from bad_input_case import APPLY, READERS, BadInputCase
from on_windows import NO_DEVICES, NO_LINKS, NO_MODES, not_on_windows
from support import REFUSED, Cli, copy_program


class SoundFileTest(BadInputCase):
    def test_every_command_takes_the_file_while_it_is_sound(self) -> None:
        for reader in READERS:
            self.check(reader, reader.content, sound=True)


class NoFileTest(BadInputCase):
    def test_a_missing_file(self) -> None:
        for reader in READERS:
            self.prepare(reader)
            self.assert_refused(reader)

    def test_a_folder(self) -> None:
        for reader in READERS:
            self.prepare(reader)
            (self.folder / reader.file).mkdir()
            self.assert_refused(reader)

    @not_on_windows(NO_DEVICES)
    def test_a_pipe_that_nobody_writes_to(self) -> None:
        for reader in READERS:
            self.prepare(reader)
            os.mkfifo(self.folder / reader.file)
            self.assert_refused(reader)

    @not_on_windows(NO_DEVICES)
    def test_a_device_without_end(self) -> None:
        for reader in READERS:
            self.prepare(reader)
            (self.folder / reader.file).symlink_to("/dev/zero")
            self.assert_refused(reader)

    @not_on_windows(NO_LINKS)
    def test_a_link_to_itself(self) -> None:
        for reader in READERS:
            self.prepare(reader)
            (self.folder / reader.file).symlink_to(reader.file)
            self.assert_refused(reader)

    def test_a_file_of_three_gigabytes(self) -> None:
        for reader in READERS:
            self.prepare(reader, b"")
            os.truncate(self.folder / reader.file, 3 << 30)
            self.assert_refused(reader)


@not_on_windows(NO_MODES)
class LockedFileTest(BadInputCase):
    """The program runs as a user who is bound by file modes, also where root runs the tests."""

    def setUp(self) -> None:
        super().setUp()
        if os.geteuid() == 0:
            programs = tempfile.TemporaryDirectory(prefix="vendlingua-cli-")
            self.addCleanup(programs.cleanup)
            Path(programs.name).chmod(0o755)
            self.folder.chmod(0o777)
            program = copy_program(Path(programs.name))
            self.cli = Cli(self.folder, program, user=pwd.getpwnam("nobody").pw_uid)

    def test_every_command_takes_the_file_while_it_is_not_locked(self) -> None:
        for reader in READERS:
            self.prepare(reader, reader.content)
            for path in self.folder.iterdir():
                path.chmod(0o666)
            self.assert_taken(reader)

    def test_a_file_that_may_not_be_read(self) -> None:
        for reader in READERS:
            self.prepare(reader, reader.content)
            locked = self.folder / reader.file
            locked.chmod(0)
            names = self.names()
            result = self.cli.run(*reader.arguments)
            self.assertEqual(result.status, REFUSED, (reader.command, result))
            self.assertIn(f"{reader.file}: ", result.out + result.err)
            self.assertEqual(self.names(), names, reader.command)
            locked.chmod(0o600)
            self.assertEqual(locked.read_bytes(), reader.content, reader.command)

    def test_a_file_that_may_not_be_written(self) -> None:
        for reader in READERS:
            writers = ("put", "new-language", "apply", "rename", "display-type")
            if reader.arguments[0] in writers and reader is not APPLY:
                self.prepare(reader, reader.content)
                (self.folder / reader.file).chmod(0o444)
                self.assert_refused(reader)


if __name__ == "__main__":
    unittest.main()

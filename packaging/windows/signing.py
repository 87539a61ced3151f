"""Signs programs for Windows, where the environment names a certificate.

    packaging/windows/signing.py FILE

VENDLINGUA_CERTIFICATE is a file with certificate and key (PKCS #12), VENDLINGUA_CERTIFICATE_PASSWORD its password,
VENDLINGUA_TIMESTAMP the address of a timestamp server, if there is to be one.
"""

from __future__ import annotations

import os
import subprocess
import sys
import tempfile
from pathlib import Path


def is_asked_for() -> bool:
    return bool(os.environ.get("VENDLINGUA_CERTIFICATE"))


def sign(program: Path) -> None:
    """Does nothing where no certificate is named."""
    if not is_asked_for():
        return
    signed = program.with_suffix(".signed")
    command = ["osslsigncode", "sign", "-h", "sha256", "-n", "Vendlingua", "-pkcs12", os.environ["VENDLINGUA_CERTIFICATE"]]
    if "VENDLINGUA_TIMESTAMP" in os.environ:
        command += ["-ts", os.environ["VENDLINGUA_TIMESTAMP"]]
    # A password among the arguments would be seen by everybody on this system.
    with tempfile.NamedTemporaryFile("w") as password:
        password.write(os.environ.get("VENDLINGUA_CERTIFICATE_PASSWORD", ""))
        password.flush()
        command += ["-readpass", password.name, "-in", str(program), "-out", str(signed)]
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
    signed.replace(program)


if __name__ == "__main__":
    sign(Path(sys.argv[1]))

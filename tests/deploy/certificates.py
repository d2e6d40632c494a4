# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Certificates for tests, made by openssl."""
import pathlib
import subprocess


def openssl(*arguments):
    subprocess.run(["openssl", *map(str, arguments)], check=True, stdin=subprocess.DEVNULL,
                   stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)


class Authority:
    """A certificate authority with its files in a folder: ca.crt, ca.key, and what it issues."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.folder.mkdir()
        openssl("req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj", "/CN=Test authority",
                "-keyout", self.folder / "ca.key", "-out", self.folder / "ca.crt")

    @property
    def file(self):
        return str(self.folder / "ca.crt")

    def issue(self, name, common_name, hosts=()):
        """Returns the files of a certificate and of its key."""
        key, request, certificate = (self.folder / f"{name}.{end}" for end in ("key", "csr", "crt"))
        openssl("req", "-newkey", "rsa:2048", "-nodes", "-subj", f"/CN={common_name}", "-keyout", key, "-out", request)
        extensions = self.folder / f"{name}.ext"
        extensions.write_text(f"subjectAltName={','.join(hosts)}\n" if hosts else "")
        openssl("x509", "-req", "-in", request, "-CA", self.folder / "ca.crt", "-CAkey", self.folder / "ca.key",
                "-CAcreateserial", "-days", "2", "-extfile", extensions, "-out", certificate)
        return str(certificate), str(key)


SERVER_HOSTS = ("DNS:localhost", "IP:127.0.0.1")

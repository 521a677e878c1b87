# SPDX-License-Identifier: GPL-3.0-or-later
"""Plain FTP server for the publishing tests, one user, on 127.0.0.1.

usage: ftp_server.py PORT HOME USER PASSWORD CUT_FLAG

While the file CUT_FLAG exists, the next upload breaks off after its first
4096 bytes have been written (the server drops the transfer) and the flag is
removed: a connection that breaks half way through a file.
"""
import errno
import os
import sys

from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.filesystems import AbstractedFS
from pyftpdlib.handlers import FTPHandler
from pyftpdlib.servers import FTPServer

port, home, user, password, cut_flag = sys.argv[1:6]
CUT_AFTER = 4096


class CutFile:
    def __init__(self, f):
        self.f = f
        self.written = 0

    def write(self, data):
        room = CUT_AFTER - self.written
        if len(data) > room:
            self.f.write(data[:room])
            self.written = CUT_AFTER
            raise OSError(errno.ECONNRESET, "connection cut half way")
        self.written += len(data)
        return self.f.write(data)

    def __getattr__(self, name):
        return getattr(self.f, name)


class CuttingFS(AbstractedFS):
    def open(self, filename, mode):
        f = super().open(filename, mode)
        if "w" in mode and os.path.exists(cut_flag):
            os.remove(cut_flag)
            return CutFile(f)
        return f


authorizer = DummyAuthorizer()
authorizer.add_user(user, password, home, perm="elradfmwMT")
FTPHandler.authorizer = authorizer
FTPHandler.abstracted_fs = CuttingFS
FTPServer(("127.0.0.1", int(port)), FTPHandler).serve_forever()

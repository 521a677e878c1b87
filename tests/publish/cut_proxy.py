# SPDX-License-Identifier: GPL-3.0-or-later
"""A TCP relay on 127.0.0.1 that can break a connection half way through a file.

usage: cut_proxy.py LISTEN_PORT TARGET_PORT CUT_FLAG WATCHED_FILE CUT_AFTER

Bytes pass both ways. A connection opened while the file CUT_FLAG exists is
slowed down (512 bytes every 10 ms towards the server); once WATCHED_FILE
(the temporary file the upload writes on the server) exists, CUT_AFTER more
bytes pass and both sides of the connection are closed, and the flag is
removed. Other connections pass at full speed.
"""
import os
import selectors
import socket
import sys
import threading
import time

listen_port, target_port, cut_flag, watched, cut_after = sys.argv[1:6]
CUT_AFTER = int(cut_after)
PIECE = 512


def relay(client):
    server = socket.create_connection(("127.0.0.1", int(target_port)))
    cutting = os.path.exists(cut_flag)
    left = None  # bytes still to pass once the watched file is there
    sel = selectors.DefaultSelector()
    sel.register(client, selectors.EVENT_READ, server)
    sel.register(server, selectors.EVENT_READ, client)
    try:
        while True:
            for key, _ in sel.select(timeout=1):
                source, sink = key.fileobj, key.data
                upload = source is client
                data = source.recv(PIECE if cutting and upload else 65536)
                if not data:
                    return
                if cutting and upload:
                    if left is None and os.path.exists(watched):
                        left = CUT_AFTER
                    if left is not None:
                        if len(data) >= left:
                            sink.sendall(data[:left])
                            os.remove(cut_flag)
                            return
                        left -= len(data)
                    time.sleep(0.01)
                sink.sendall(data)
    except OSError:
        pass
    finally:
        for s in (client, server):
            try:
                s.shutdown(socket.SHUT_RDWR)
            except OSError:
                pass
            s.close()


listener = socket.socket()
listener.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
listener.bind(("127.0.0.1", int(listen_port)))
listener.listen(8)
while True:
    conn, _ = listener.accept()
    threading.Thread(target=relay, args=(conn,), daemon=True).start()

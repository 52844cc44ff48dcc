#!/usr/bin/python3
"""A SQL server up to its login: encrypts with a certificate, and says what it got to read.

    tls_sql_server.py CERTIFICATE KEY

Prints its port, then for a client that trusts it the count of bytes of the login, else "refused"; then it ends.
"""
import socket
import ssl
import struct
import sys

listener = socket.create_server(("127.0.0.1", 0))
print(listener.getsockname()[1], flush=True)
line = listener.accept()[0]


def exactly(count):
    data = b""
    while len(data) < count:
        piece = line.recv(count - len(data))
        if not piece:
            raise EOFError
        data += piece
    return data


def receive():
    return exactly(struct.unpack(">H", exactly(8)[2:4])[0] - 8)


def send(kind, data):
    line.sendall(struct.pack(">BBHHBB", kind, 1, len(data) + 8, 0, 0, 0) + data)


try:
    receive()
    # Its answer to the first message: version, "encryption is on".
    send(4, b"\x00\x00\x0b\x00\x06\x01\x00\x11\x00\x01\xff" + b"\x0f\0\0\0\0\0" + b"\x01")
    context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
    context.maximum_version = ssl.TLSVersion.TLSv1_2
    context.load_cert_chain(sys.argv[1], sys.argv[2])
    incoming, outgoing = ssl.MemoryBIO(), ssl.MemoryBIO()
    tls = context.wrap_bio(incoming, outgoing, server_side=True)
    shaken = False
    while not shaken:
        try:
            tls.do_handshake()
            shaken = True
        except ssl.SSLWantReadError:
            pass
        if outgoing.pending:
            send(0x12, outgoing.read())
        if not shaken:
            incoming.write(receive())
    while True:
        try:
            print(len(tls.read(4096)), flush=True)
            break
        except ssl.SSLWantReadError:
            incoming.write(exactly(1))
except (EOFError, OSError):
    print("refused", flush=True)

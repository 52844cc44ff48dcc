#!/usr/bin/python3
"""An SMTP server for one test: real, on loopback, with the faults that the test asks for.

Prints its port once it listens. Keeps each message as N.json: the envelope, how it came, and what Python's
mail library reads in it. Ends with the process that started it.
"""

import argparse
import asyncio
import base64
import ctypes
import email.policy
import json
import logging
import pathlib
import signal
import ssl

from aiosmtpd.smtp import SMTP, AuthResult


def described(part):
    return part.get_content_type() + ": " + (part.get_filename() or part.get_content().replace("\r\n", "\n"))


def read_message(content):
    message = email.message_from_bytes(content, policy=email.policy.default)
    defects = [defect for part in message.walk() for defect in part.defects]
    defects += [defect for name in message.keys() for defect in message[name].defects]
    defects += [line for line in content.split(b"\r\n") if len(line) > 998 or b"\r" in line or b"\n" in line]
    defects += [] if content.split(b"\r\n\r\n")[0].isascii() else ["a head beyond ASCII"]
    parts = [part for part in message.walk() if not part.is_multipart()]
    return {
        "summary": " | ".join([str(message["subject"]), *map(described, parts)]),
        "headers": {name.lower(): str(value) for name, value in message.items()},
        "charsets": [part.get_content_charset("") for part in parts],
        "contents": [base64.b64encode(part.get_payload(decode=True)).decode() for part in parts],
        "defects": [repr(defect) for defect in defects],
    }


class Handler:
    def __init__(self, arguments):
        self.folder = pathlib.Path(arguments.folder)
        self.refuse = arguments.refuse
        self.count = 0

    async def handle_MAIL(self, server, session, envelope, address, options):
        envelope.mail_from = address
        return "550 5.1.0 sender unknown here" if address == self.refuse else "250 OK"

    async def handle_RCPT(self, server, session, envelope, address, options):
        envelope.rcpt_tos.append(address)
        return "550 5.1.1 no such mailbox" if address == self.refuse else "250 OK"

    async def handle_DATA(self, server, session, envelope):
        if self.refuse == "message":
            return "554 5.7.1 looks like spam"
        self.count += 1
        kept = {
            "from": envelope.mail_from,
            "recipients": envelope.rcpt_tos,
            "tls": session.ssl is not None,
            "login": session.auth_data.decode() if session.auth_data else "",
            **read_message(envelope.original_content),
        }
        (self.folder / f"{self.count}.json").write_text(json.dumps(kept))
        return "250 OK"


class Server(SMTP):
    """gone: drops the line in the middle of the message; stall: takes the message and never answers."""

    fault = ""

    def data_received(self, data):
        with open(f"{self.event_handler.folder}/heard", "ab") as heard:
            heard.write(data)
        super().data_received(data)

    async def smtp_DATA(self, argument):
        if not self.fault:
            return await super().smtp_DATA(argument)
        await self.push("354 go on")
        if self.fault == "gone":
            self.transport.abort()
        await asyncio.sleep(3600)


def canned(text):
    """A command's answer from the command line: its lines; after a 334 it waits for a line, said again as {}."""

    async def answer(self, argument):
        self.session.extended_smtp, self.session.host_name = True, "client"
        said = b""
        for line in text.encode().split(b"\n"):
            await self.push(line.replace(b"{}", said))
            if line.startswith(b"334"):
                said = (await self._reader.readline()).strip()

    return answer


async def serve(arguments):
    def check(server, session, envelope, mechanism, data):
        good = arguments.login in (None, (data.login + b":" + data.password).decode())
        return AuthResult(success=good, handled=False, auth_data=data.login if good else None)

    options = {"hostname": "localhost", "auth_require_tls": False, "authenticator": check}
    options["auth_required"] = arguments.login is not None
    tls = None
    if arguments.tls:
        tls = ssl.create_default_context(ssl.Purpose.CLIENT_AUTH)
        tls.load_cert_chain(f"{arguments.folder}/certificate.pem", f"{arguments.folder}/key.pem")
    if arguments.tls == "offered":
        options |= {"tls_context": tls, "require_starttls": arguments.login is not None}
    handler = Handler(arguments)
    Server.fault = arguments.fault
    for command, _, text in (answer.partition("=") for answer in arguments.answer):
        setattr(Server, "smtp_" + command, canned(text))
    protocol = asyncio.Protocol if arguments.fault == "mute" else lambda: Server(handler, **options)
    at_once = tls if arguments.tls == "at once" else None
    loop = asyncio.get_running_loop()
    server = await loop.create_server(protocol, "127.0.0.1", arguments.port, ssl=at_once)
    print(server.sockets[0].getsockname()[1], flush=True)
    await asyncio.Event().wait()


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("folder")
    parser.add_argument("--port", type=int, default=0)
    parser.add_argument("--login", help="user:password, which is then the only one and must be given")
    parser.add_argument("--refuse", default="", help="an address, or 'message'")
    parser.add_argument("--answer", action="append", default=[], help="COMMAND=lines of its answer")
    parser.add_argument("--fault", default="", choices=["", "gone", "stall", "mute"])
    parser.add_argument("--tls", choices=["offered", "at once"])
    arguments = parser.parse_args()
    ctypes.CDLL(None).prctl(1, signal.SIGTERM)  # PR_SET_PDEATHSIG
    logging.getLogger("mail").setLevel(logging.CRITICAL)
    asyncio.run(serve(arguments))


if __name__ == "__main__":
    main()

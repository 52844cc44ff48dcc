#!/usr/bin/python3
"""Takes mail by SMTP on loopback and keeps each message as a file.

The files are called 0001.eml, 0002.eml, … in the order of arrival and are whole when their name appears. Two
lines stand before the message itself: X-Envelope-From and X-Envelope-To, the recipients as the server received
them, with ", " between them. Any login is taken, unless --user and --password name the one that is. Addresses
whose domain ends in .invalid are refused, as those of mailboxes that aren't there, and messages beyond --limit.
With --describe each has its parts beside it in NNNN.json.
It ends with the process that started it, or on SIGTERM or SIGINT.
"""

import argparse
import asyncio
import email
import email.policy
import json
import logging
import pathlib
import re
import signal
import sys

from aiosmtpd.smtp import SMTP, AuthResult, LoginPassword

sys.dont_write_bytecode = True  # nothing appears beside the installed files
from parent import end_with_parent


def described(content):
    """A message's decoded parts, for the roads."""
    message = email.message_from_bytes(content, policy=email.policy.default)
    parts = [part for part in message.walk() if not part.is_multipart()]
    files = [part.get_filename() for part in parts if part.get_filename()]
    texts = [part.get_content() for part in parts if part.get_content_maintype() == "text" and not part.get_filename()]
    return {
        "from": str(message.get("From", "")),
        "to": ", ".join(str(message.get(name, "")) for name in ("To", "Cc", "X-Envelope-To")),
        "subject": str(message.get("Subject", "")),
        "contains": "\n".join(texts).replace("\r\n", "\n"),
        "attachment": ", ".join(files),
    }


class Folder:
    """Handler of the server: numbered files in one folder."""

    def __init__(self, path, describe):
        self.path = pathlib.Path(path)
        self.describe = describe
        self.path.mkdir(parents=True, exist_ok=True)

    def next_name(self):
        taken = [int(file.stem) for file in self.path.glob("*.eml") if re.fullmatch(r"\d+", file.stem)]
        return f"{max(taken, default=0) + 1:04}.eml"

    async def handle_RCPT(self, server, session, envelope, address, options):
        if address.lower().rstrip(".").endswith(".invalid"):
            return f"550 5.1.1 {address}: no such mailbox"
        envelope.rcpt_tos.append(address)
        return "250 OK"

    async def handle_DATA(self, server, session, envelope):
        head = f"X-Envelope-From: {envelope.mail_from}\r\nX-Envelope-To: {', '.join(envelope.rcpt_tos)}\r\n"
        name = self.next_name()
        draft = self.path / (name + ".part")
        content = head.encode() + envelope.original_content
        draft.write_bytes(content)
        if self.describe:
            (self.path / name).with_suffix(".json").write_text(json.dumps(described(content)))
        draft.rename(self.path / name)
        return f"250 OK: kept as {name}"


def authenticator(user, password):
    def check(server, session, envelope, mechanism, data):
        good = isinstance(data, LoginPassword) and (
            user is None or (data.login == user.encode() and data.password == password.encode())
        )
        return AuthResult(success=good, handled=False)

    return check


async def serve(arguments):
    folder = Folder(arguments.folder, arguments.describe)
    check = authenticator(arguments.user, arguments.password)
    loop = asyncio.get_running_loop()
    server = await loop.create_server(
        lambda: SMTP(
            folder, data_size_limit=arguments.limit, hostname="localhost", auth_require_tls=False, authenticator=check
        ),
        host="127.0.0.1",
        port=arguments.port,
    )
    stop = asyncio.Event()
    for end in (signal.SIGTERM, signal.SIGINT):
        loop.add_signal_handler(end, stop.set)
    port = server.sockets[0].getsockname()[1]
    print(f"Mail for 127.0.0.1:{port} goes to {folder.path}", flush=True)
    await stop.wait()
    server.close()


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--folder", required=True, help="where the messages go")
    parser.add_argument("--describe", action="store_true", help="keeps what the roads read beside each message")
    parser.add_argument("--port", type=int, default=2525, help="0 takes a free one")
    parser.add_argument("--user", help="the one login that is taken")
    parser.add_argument("--password", default="")
    parser.add_argument("--limit", type=int, default=33_554_432, help="bytes of the longest message that is taken")
    arguments = parser.parse_args()
    logging.getLogger("mail").setLevel(logging.ERROR)
    end_with_parent()
    try:
        asyncio.run(serve(arguments))
    except OSError as error:
        sys.exit(f"No mail is taken on port {arguments.port}: {error}")


if __name__ == "__main__":
    main()

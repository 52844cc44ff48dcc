#!/usr/bin/python3
"""Prints the messages that the mail catcher has kept in a folder as JSON, decoded, oldest first."""

import email
import email.policy
import json
import pathlib
import sys


def described(path):
    message = email.message_from_bytes(path.read_bytes(), policy=email.policy.default)
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


print(json.dumps([described(path) for path in sorted(pathlib.Path(sys.argv[1]).glob("*.eml"))]))

#!/usr/bin/python3
"""Serves the picture folders that documents for outside name, on loopback, and nothing else of a company.

The first line on the terminal names the address. It ends with the process that started it, or on SIGTERM or SIGINT.
"""

import argparse
import http.server
import pathlib
import re
import signal
import sys

sys.dont_write_bytecode = True  # nothing appears beside the installed files
from parent import end_with_parent


def handler(company):
    class Pictures(http.server.BaseHTTPRequestHandler):
        def do_GET(self):
            asked = re.fullmatch(r"/(web|imagens2)/([\w .-]+\.(jpg|png|gif))", self.path.replace("%20", " "))
            # Links are followed first: what leads out of the company isn't its own.
            file = (company / asked[1] / asked[2]).resolve() if asked else None
            if file is None or not file.is_relative_to(company.resolve()) or not file.is_file():
                return self.send_error(404)
            content = file.read_bytes()
            self.send_response(200)
            self.send_header("Content-Type", "image/jpeg" if asked[3] == "jpg" else f"image/{asked[3]}")
            self.send_header("Content-Length", str(len(content)))
            self.end_headers()
            self.wfile.write(content)

        def log_message(self, *_):
            pass

    return Pictures


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--company", required=True, type=pathlib.Path, help="the folder that holds web and imagens2")
    parser.add_argument("--port", type=int, default=2580, help="0 takes a free one")
    arguments = parser.parse_args()
    end_with_parent()
    try:
        server = http.server.ThreadingHTTPServer(("127.0.0.1", arguments.port), handler(arguments.company))
    except OSError as error:
        sys.exit(f"No pictures are served on port {arguments.port}: {error}")
    print(f"Pictures on http://127.0.0.1:{server.server_port}/ from {arguments.company}", flush=True)
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(0))
    try:
        server.serve_forever()
    except KeyboardInterrupt:
        pass


if __name__ == "__main__":
    main()

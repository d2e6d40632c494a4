# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""The page's files on a free port, with a configuration of the test."""
import functools
import http.server
import json
import pathlib
import threading

WEB = pathlib.Path(__file__).resolve().parents[2] / "web"


class PageServer:
    """Serves the page. `configuration` is an object, or the text of a file that is no good. `others` are
    further files, {path: text}. The page can be one that is installed, in a `folder`."""

    def __init__(self, configuration, others=None, folder=WEB):
        files = self._files = dict(others or {})
        self.configure(configuration)
        class Handler(http.server.SimpleHTTPRequestHandler):
            extensions_map = {".html": "text/html", ".js": "text/javascript", ".css": "text/css",
                              ".json": "application/json", ".svg": "image/svg+xml"}

            def do_GET(self):
                if self.path not in files:
                    super().do_GET()
                    return
                data = files[self.path].encode()
                self.send_response(200)
                self.send_header("Content-Type", self.guess_type(self.path))
                self.send_header("Content-Length", str(len(data)))
                self.end_headers()
                self.wfile.write(data)

            def log_message(self, *_):
                pass

        self._server = http.server.ThreadingHTTPServer(
            ("127.0.0.1", 0), functools.partial(Handler, directory=str(folder)))
        threading.Thread(target=self._server.serve_forever, daemon=True).start()

    def configure(self, configuration):
        self._files["/config.json"] = configuration if isinstance(configuration, str) else json.dumps(configuration)

    @property
    def address(self):
        return f"http://127.0.0.1:{self._server.server_port}/"

    def close(self):
        self._server.shutdown()
        self._server.server_close()

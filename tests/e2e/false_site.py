"""A server between the program and the simulated site that answers chosen requests with bytes of its own."""
import http.client
import os
import re
import socket
import ssl
import threading
import urllib.parse

from release_case import CERTIFICATES

# Of one connection, not of the whole site.
HOP_BY_HOP = {"connection", "content-length", "host", "keep-alive", "transfer-encoding"}


class FalseSite:
    """Passes requests on to a site and its answers back, one request for each connection, over TLS if it is secure."""

    def __init__(self, site=None, is_secure=True):
        self._site = site and urllib.parse.urlsplit(site).netloc
        self._fault = None
        # [(method, target)] of all requests that arrived whole.
        self.seen = []
        self._context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER) if is_secure else None
        if is_secure:
            self._context.load_cert_chain(os.path.join(CERTIFICATES, "site.pem"), os.path.join(CERTIFICATES, "key.pem"))
        self._listener = socket.create_server(("127.0.0.1", 0))
        self.address = "%s://127.0.0.1:%d" % ("https" if is_secure else "http", self._listener.getsockname()[1])
        threading.Thread(target=self._accept, daemon=True).start()

    def answer(self, request, parts):
        """From now on, requests whose "METHOD target" matches get these parts, and then the end of the connection."""
        self._fault = (re.compile(request), parts)

    def recover(self):
        self._fault = None

    def count(self, request):
        return sum(bool(re.match(request, "%s %s" % each)) for each in self.seen)

    def stop(self):
        self._listener.close()

    def _accept(self):
        while True:
            try:
                connection, _ = self._listener.accept()
            except OSError:
                return
            threading.Thread(target=self._serve, args=(connection,), daemon=True).start()

    def _serve(self, connection):
        # A client may go away at any point, above all while it is sent too much.
        try:
            if self._context:
                connection = self._context.wrap_socket(connection, server_side=True)
            with connection:
                self._respond(connection)
        except OSError:
            pass

    def _respond(self, connection):
        stream = connection.makefile("rb")
        words = stream.readline().decode("latin-1").split()
        if len(words) != 3:
            return
        headers = http.client.parse_headers(stream)
        body = stream.read(int(headers.get("Content-Length", 0)))
        self.seen.append((words[0], words[1]))
        fault = self._fault
        if fault and fault[0].match("%s %s" % (words[0], words[1])):
            for part in fault[1]():
                connection.sendall(part)
        else:
            connection.sendall(self._passed_on(words[0], words[1], headers, body))

    def _passed_on(self, method, target, headers, body):
        if not self._site:
            return b"HTTP/1.1 200 OK\r\nContent-Length: 0\r\nConnection: close\r\n\r\n"
        site = http.client.HTTPConnection(self._site, timeout=30)
        kept = {name: value for name, value in headers.items() if name.lower() not in HOP_BY_HOP}
        site.request(method, target, body or None, kept)
        answer = site.getresponse()
        content = answer.read()
        site.close()
        lines = ["HTTP/1.1 %d %s" % (answer.status, answer.reason), "Connection: close",
                 "Content-Length: %d" % len(content)]
        lines += ["%s: %s" % pair for pair in answer.getheaders() if pair[0].lower() not in HOP_BY_HOP]
        return "\r\n".join(lines).encode("latin-1") + b"\r\n\r\n" + content

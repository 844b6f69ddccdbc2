# Servers for http and https on 127.0.0.1, for tests: web_server.py DIRECTORY [NAME]
# The certificate is for that name, and for 127.0.0.1 without one.
# Prints the ports of both and the https certificate's file, and serves until its standard input ends.
import http.server, ssl, subprocess, sys, threading, time

directory = sys.argv[1]
host = sys.argv[2] if len(sys.argv) > 2 else "127.0.0.1"
certificate, key = directory + "/certificate.pem", directory + "/key.pem"
subprocess.run(["openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes",
                "-keyout", key, "-out", certificate, "-days", "2", "-subj", "/CN=Kivu-test",
                "-addext", "subjectAltName=" + ("DNS:" if len(sys.argv) > 2 else "IP:") + host],
               check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
ports = {}
# What holds an answer back, until the program ends.
never = threading.Event()


class Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def log_message(self, *arguments):
        pass

    def send(self, status, body=b"", length=None, **headers):
        self.send_response(status)
        for name, value in headers.items():
            self.send_header(name.replace("_", "-"), value)
        if length is None:
            length = len(body)
        if length >= 0:
            self.send_header("Content-Length", str(length))
        self.end_headers()
        self.wfile.write(body)
        self.wfile.flush()

    def do_GET(self):
        self.close_connection = True
        path = self.path.split("?")[0]
        scheme = "https" if self.server.safe else "http"
        if path.startswith("/file"):
            self.send(200, b"content of " + path.encode())
        elif path == "/404" or path == "/500":
            self.send(int(path[1:]), b"<html>an error's page</html>")
        elif path == "/206" or path == "/203":
            self.send(int(path[1:]), b"part")
        elif path == "/204":
            self.send(204, length=-1)
        elif path == "/short":
            self.send(200, b"0123456789", length=100)
        elif path == "/empty":
            self.send(200)
        elif path == "/large":
            self.send(200, b"x" * 4096, length=1 << 30)
        elif path == "/nolength":
            self.send(200, b"until the end", length=-1, Connection="close")
        elif path == "/chunks" or path == "/cutchunks":
            self.send(200, b"5\r\nchunk\r\n" + (b"0\r\n\r\n" if path == "/chunks" else b""), length=-1,
                      Transfer_Encoding="chunked")
        elif path == "/endless":
            self.send(200, length=-1, Connection="close")
            while True:
                self.wfile.write(b"x" * 65536)
        elif path == "/slow":
            self.send(200, b"first", length=100)
            never.wait()
        elif path == "/silent":
            never.wait()
        elif path == "/loop":
            self.send(302, b"moved", Location="/loop")
        elif path.startswith("/hops/"):
            left = int(path[6:])
            self.send(301, b"moved", Location="/hops/%d" % (left - 1) if left > 1 else "/file")
        elif path == "/to/http":
            self.send(302, Location="http://127.0.0.1:%d/file" % ports["http"])
        elif path == "/to/https":
            self.send(302, Location="https://%s:%d/file" % (host, ports["https"]))
        elif path == "/to/https/and/back":
            self.send(302, Location="https://%s:%d/to/http" % (host, ports["https"]))
        elif path == "/to/file":
            self.send(302, Location="file:///etc/hostname")
        elif path == "/nowhere":
            self.send(302, b"moved, but not where to")
        elif path == "/endless/redirection":
            self.send(302, length=-1, Location="/file", Connection="close")
            while True:
                self.wfile.write(b"x" * 65536)
        else:
            self.send(404)


class Server(http.server.ThreadingHTTPServer):
    daemon_threads = True

    def handle_error(self, request, client_address):
        pass


def serve(name):
    server = Server(("127.0.0.1", 0), Handler)
    server.safe = name == "https"
    if server.safe:
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(certificate, key)
        server.socket = context.wrap_socket(server.socket, server_side=True, do_handshake_on_connect=False)
    ports[name] = server.server_address[1]
    threading.Thread(target=server.serve_forever, daemon=True).start()


serve("http")
serve("https")
print(ports["http"], ports["https"], certificate, flush=True)
sys.stdin.read()

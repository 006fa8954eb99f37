"""The stand-in of the service, and what a test orders it to do."""

import json
import os
import ssl
import subprocess
import urllib.request
from contextlib import contextmanager
from pathlib import Path
from typing import Iterator

from processes import running

KEY = "e2e-key"
BUNDLE = Path("/etc/ssl/certs/ca-certificates.crt")
PAGES_PATH = "/user/api/v1/status-pages"
PAGES = [
    {"id": "web", "name": "Website", "health": "operational"},
    {"id": "api", "name": "Public API", "health": "degraded"},
    {"id": "docs", "name": "Docs & <b>Guides</b>", "health": "operational"},
]
NAMES = [page["name"] for page in PAGES]


class Service:
    def __init__(self, address: str, authority: Path) -> None:
        self._address = address
        self._authority = authority
        self._trust = ssl.create_default_context(cafile=str(authority))

    def trust_authority(self) -> None:
        """In the world of the tests only, where /etc is their own."""
        BUNDLE.write_bytes(self._authority.read_bytes())

    def reset(self) -> None:
        self.mend()
        self._order("PUT", "certificate", {"certificate": "valid"})
        self._order("PUT", "keys", {KEY: "full"})
        self.give(PAGES)
        self._order("DELETE", "requests")

    def give(self, pages: list[dict]) -> None:
        self._order("PUT", "pages", {"pages": pages})

    def change(self, page: str, **values: str) -> None:
        self._order("PATCH", f"pages/{page}", values)

    def show_certificate(self, kind: str) -> None:
        self._order("PUT", "certificate", {"certificate": kind})

    def fail(self, fault: str, path: str = PAGES_PATH, **details) -> None:
        self._order("POST", "faults", {"fault": fault, "path": path, **details})

    def mend(self) -> None:
        self._order("DELETE", "faults")

    def requests(self) -> list[dict]:
        return self._order("GET", "requests")

    def _order(self, method: str, what: str, order: dict | None = None):
        body = json.dumps(order).encode() if order is not None else None
        request = urllib.request.Request(f"{self._address}/simulator/{what}", data=body, method=method)
        with urllib.request.urlopen(request, context=self._trust, timeout=10) as answer:
            said = answer.read()
        return json.loads(said) if said else None


def service_host() -> tuple[str, int]:
    name, _, port = os.environ["LARKSPAN_E2E_HOST"].partition(":")
    return name, int(port or 443)


@contextmanager
def simulator() -> Iterator[Service]:
    name, port = service_host()
    binary = str(Path(os.environ["LARKSPAN_E2E_BINARIES"], "larkspan-simulator"))
    directory = str(Path(os.environ["LARKSPAN_E2E_WORLD"], "authority"))
    with running(binary, "--host", name, "--port", str(port), "--key", KEY, "--directory", directory,
                 stdout=subprocess.PIPE, text=True) as process:
        address = process.stdout.readline().strip()
        authority = Path(process.stdout.readline().strip().removeprefix("authority: "))
        yield Service(address, authority)

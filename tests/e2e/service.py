"""The service's stand-in, and the orders that a test gives it."""

import json
import os
import ssl
import subprocess
import urllib.request
from contextlib import contextmanager
from datetime import datetime
from pathlib import Path
from typing import Iterator

from processes import end

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
    def __init__(self) -> None:
        name, port = service_host()
        self._address = f"https://localhost:{port}"
        self._command = [str(Path(os.environ["LARKSPAN_E2E_BINARIES"], "larkspan-simulator")), "--host", name, "--port", str(port),
                         "--key", KEY, "--directory", str(Path(os.environ["LARKSPAN_E2E_WORLD"], "authority"))]
        self._process: subprocess.Popen | None = None
        # The server's certificate may be the fault that a test is about.
        self._trust = ssl.create_default_context()
        self._trust.check_hostname = False
        self._trust.verify_mode = ssl.CERT_NONE

    def start(self) -> None:
        if self._process:
            return
        self._process = subprocess.Popen(self._command, stdout=subprocess.PIPE, text=True)
        self._process.stdout.readline()
        authority = Path(self._process.stdout.readline().strip().removeprefix("authority: "))
        # In the environment of the tests only, which has its own /etc.
        BUNDLE.write_bytes(authority.read_bytes())

    def stop(self) -> None:
        if self._process:
            end(self._process)
        self._process = None

    def reset(self) -> None:
        self.start()
        self.mend()
        self._order("PUT", "certificate", {"certificate": "valid"})
        self.accept(KEY)
        self.give(PAGES)
        self.forget()

    def accept(self, *keys: str) -> None:
        """Makes these the account's keys."""
        self._order("PUT", "keys", dict.fromkeys(keys, "full"))

    def give(self, pages: list[dict]) -> None:
        self._order("PUT", "pages", {"pages": pages})

    def seed(self, name: str, **details: str) -> None:
        """Sets up an account with everything that an account can have, realistic and always the same."""
        self._order("PUT", "pages", {"seed": name, **details})
        self.forget()

    def change(self, page: str, **values: str) -> None:
        self._order("PATCH", f"pages/{page}", values)

    def open_incident(self, title: str, **details: str) -> str:
        """Opens an incident and returns its id."""
        return self._order("POST", "incidents", {"title": title, **details})["id"]

    def resolve_incident(self, incident: str) -> None:
        self._order("PATCH", f"incidents/{incident}", {"status": "resolved"})

    def plan_maintenance(self, title: str, **details: str) -> str:
        """Plans a maintenance and returns its id."""
        return self._order("POST", "maintenances", {"title": title, **details})["id"]

    def schedule(self, title: str, page: str, start: datetime, end: datetime) -> None:
        """Plans a maintenance for that time, as another client of the account would."""
        form = "%Y-%m-%dT%H:%M:%SZ"
        dates = {"start_at": start.strftime(form), "end_at": end.strftime(form)}
        self._ask("POST", "v1/maintenances", {"title": title, "status_page_id": page} | dates)

    def add_component_group(self, name: str, page: str) -> str:
        """Adds a component group and returns its id."""
        return self._ask("POST", "component-groups", {"name": name, "status_page_id": page})["id"]

    def add_component(self, name: str, group: str) -> str:
        """Adds a component and returns its id."""
        return str(self._ask("POST", "components", {"name": name, "group_id": group})["id"])

    def delete_component(self, component: str) -> None:
        self._ask("DELETE", f"components/{component}")

    def show_certificate(self, kind: str) -> None:
        self._order("PUT", "certificate", {"certificate": kind})

    def fail(self, fault: str, path: str = PAGES_PATH, **details) -> None:
        self._order("POST", "faults", {"fault": fault, "path": path, **details})

    def mend(self) -> None:
        self._order("DELETE", "faults")

    def forget(self) -> None:
        """Forgets the requests so far."""
        self._order("DELETE", "requests")

    def requests(self) -> list[dict]:
        return self._order("GET", "requests")

    def _order(self, method: str, what: str, order: dict | None = None):
        return self._send(method, f"simulator/{what}", order)

    def _ask(self, method: str, what: str, body: dict | None = None):
        """Sends a request as another client of the account would; returns the body of its answer, if any."""
        answer = self._send(method, f"user/api/{what}", body, {"Authorization": f"Bearer {KEY}", "X-API-KEY": KEY})
        return answer.get("data", answer) if answer else None

    def _send(self, method: str, path: str, content: dict | None, headers: dict[str, str] | None = None):
        body = json.dumps(content).encode() if content is not None else None
        request = urllib.request.Request(f"{self._address}/{path}", data=body, method=method, headers=headers or {})
        with urllib.request.urlopen(request, context=self._trust, timeout=10) as answer:
            said = answer.read()
        return json.loads(said) if said else None


def service_host() -> tuple[str, int]:
    name, _, port = os.environ["LARKSPAN_E2E_HOST"].partition(":")
    return name, int(port or 443)


@contextmanager
def simulator() -> Iterator[Service]:
    service = Service()
    service.start()
    try:
        yield service
    finally:
        service.stop()

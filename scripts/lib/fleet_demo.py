# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Shows a small site on this computer: three agents with virtual printers, a broker, the page, Prometheus and
an alert manager. scripts/fleet-demo installs and builds what it needs.

Usage: fleet_demo.py PROGRAMS [--picture FILE]
  PROGRAMS        the folder of vxprintagent, vx_week_of_use and roll.db
  --picture FILE  leaves a picture of the page, as Chromium shows it

In a terminal, it goes on after its story until Enter or Ctrl+C is pressed; otherwise it ends after the story.
"""
import contextlib
import http.server
import json
import os
import pathlib
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time
import urllib.error
import urllib.parse

ROOT = pathlib.Path(__file__).resolve().parents[2]
# The demonstration starts the same servers and the same browser as the tests.
sys.path += [str(ROOT / "tests" / room) for room in ("web", "metrics", "deploy")]
from agent_process import Process  # noqa: E402
from brokers import Nats, find_program, until  # noqa: E402
from chromium import Chromium, PageError  # noqa: E402
from page_server import PageServer  # noqa: E402
from shipped import DEPLOY, with_changes  # noqa: E402

SITE = "plant-1"
ROLL, RIBBON = 30480, 120015  # millimetres
LASTS = 3600  # seconds for which the printers are busy
# The times of what the demonstration waits for. Nobody helps these printers before the last.
JAM, PAUSE, OUT, HELP = 6, 8, 10, 900
JAMMED, PAUSED, EMPTY = "Packing 2", "Shipping 4", "Shipping 1"
LOW = "Shipping 2"  # of which a week is known, so its end can be foreseen
STOPPED = "goods-in"
# Name, model, kind of labels, what is left of labels and ribbon.
PRINTERS = {
    "goods-in": [("Goods in 1", "CedarMax", 100002, 0.83, 0.61), ("Goods in 2", "AlderMax", 100007, 0.37, 0.22),
                 ("Goods in 3", "BirchMax", 100010, 0.52, 0.78)],
    "packing": [("Packing 1", "CedarMax", 100003, 0.91, 0.44), (JAMMED, "CedarMax", 100004, 0.64, 0.35),
                ("Packing 3", "AlderMax", 100005, 0.23, 0.87), ("Packing 4", "BirchMax", 100006, 0.71, 0.09)],
    "shipping": [(EMPTY, "CedarMax", 100003, 0.04, 0.42), (LOW, "CedarMax", 100003, 0.07, 0.42),
                 ("Shipping 3", "AlderMax", 100011, 0.48, 0.31), (PAUSED, "BirchMax", 100012, 0.97, 0.55)],
}
ALERT_SECONDS = 5
SIGNALS = (signal.SIGINT, signal.SIGTERM, signal.SIGHUP)


class Ended(Exception):
    """A signal has asked for the end."""


class Signals:
    """Turns signals into an exception, but not while something starts that has to be ended afterwards."""

    def __init__(self):
        self.number, self._held = 0, False
        for number in SIGNALS:
            signal.signal(number, self._arrived)

    def _arrived(self, number, _frame):
        self.number = self.number or number
        if not self._held:
            self.ignore()
            raise Ended

    @staticmethod
    def ignore():
        for number in SIGNALS:
            signal.signal(number, signal.SIG_IGN)

    @contextlib.contextmanager
    def held(self):
        self._held = True
        try:
            yield
        finally:
            self._held = False
        if self.number:
            self.ignore()
            raise Ended


def short_temporary_folder():
    """The path of a socket has 107 bytes at most, and agents and browsers make some further down."""
    folder = tempfile.gettempdir()
    return folder if len(folder) <= 40 else "/tmp"


def remove(folder):
    """Removes a folder, in which children of a browser that was killed may still be ending."""
    for _ in range(100):
        shutil.rmtree(folder, ignore_errors=True)
        if not folder.exists():
            return
        time.sleep(0.1)
    print(f"fleet-demo: {folder} could not be removed", file=sys.stderr)


def identifier(kind, roll):
    return f"00000064{kind:06d}{roll:06X}"


class Printer:
    """A printer of the story, and what is left in it."""

    def __init__(self, name, model, kind, labels, ribbon):
        self.name, self.kind, self.roll = name, kind, 1
        self.busy_from = HELP if name in (JAMMED, PAUSED, EMPTY) else 0
        self.labels, self.ribbon = int(labels * ROLL), int(ribbon * RIBBON)
        values = {"StatusCode": "1", "SupplyIdentifier": identifier(kind, self.roll), "Mileage": self.labels,
                  "Ribbon1Identifier": 2001, "Ribbon1Mileage": self.ribbon, "SoftwareVersion": "4.2.0,boot 1.7"}
        if model == "AlderMax":
            values |= {"Ribbon2Identifier": 2004, "Ribbon2Mileage": self.ribbon * 3 // 4}
        self.record = {"name": name, "driver": f"Stratamark {model}", "values": values}

    def event(self, at, **values):
        return {"at": at, "printer": self.name, "values": values}

    def job(self, at, length):
        """Prints a batch of labels; when they end, a new roll is loaded half a minute later."""
        self.ribbon = self.ribbon - length if self.ribbon > length else RIBBON
        if self.labels > length:
            self.labels -= length
            return [self.event(at, Mileage=self.labels, Ribbon1Mileage=self.ribbon)]
        return self.run_out(at, at + 30)

    def run_out(self, at, loaded_at):
        self.roll += 1
        self.labels, self.busy_from = ROLL, loaded_at
        return [self.event(at, StatusCode="2", Mileage=0, SupplyIdentifier="0" * 20),
                self.event(loaded_at, StatusCode="1", Mileage=ROLL, SupplyIdentifier=identifier(self.kind, self.roll))]


def fleet(printers, chance):
    """The virtual printers of a computer, and what happens to them."""
    events = []
    for printer in printers:
        if printer.name == JAMMED:
            events += [printer.event(JAM, StatusCode="5"), printer.event(HELP, StatusCode="1")]
        if printer.name == PAUSED:
            events += [printer.event(PAUSE, StatusCode="19"), printer.event(HELP, StatusCode="1")]
        if printer.name == EMPTY:
            events += [printer.event(OUT - 6, Mileage=printer.labels // 2), *printer.run_out(OUT, HELP)]
    for at in range(1, LASTS):
        printer = chance.choice(printers)
        if at >= printer.busy_from:
            events += printer.job(at, 5 if printer.name == LOW else chance.randrange(60, 900))
    return {"printers": [printer.record | {"port": f"USB{number:03}"} for number, printer in enumerate(printers, 1)],
            "timeline": sorted(events, key=lambda event: event["at"])}


class Agent:
    """An agent on virtual printers, in a folder of its own."""

    def __init__(self, site, host, chance):
        self.site, self.host, self._process = site, host, None
        self._folder = site.folder / host
        self._folder.mkdir()
        printers = [Printer(*values) for values in PRINTERS[host]]
        (self._folder / "fleet.json").write_text(json.dumps(fleet(printers, chance)))
        (self._folder / "agent.json").write_text(json.dumps({
            "site": SITE, "host": host, "dataFolder": "data", "history": "history.db",
            "catalogue": str(site.programs / "roll.db"),
            "mqtt": {"url": f"mqtt://127.0.0.1:{site.broker.mqtt}", "natsTopics": True, "reconnectSeconds": 2},
            "metrics": {"listen": "127.0.0.1:0"}}))

    def start(self):
        self._process = Process(self._folder, "agent", [
            self.site.programs / "vxprintagent", "run", "--config", self._folder / "agent.json",
            "--virtual", self._folder / "fleet.json"], r"http://127\.0\.0\.1:(\d+)/metrics")

    def learn(self, printer, meters_left):
        """Gives it a history of the last week, without which no forecast is possible."""
        subprocess.run([self.site.programs / "vx_week_of_use", self._folder / "history.db", printer, str(meters_left)],
                       check=True)

    @property
    def port(self):
        """Where its metrics are, or None while it has not been started."""
        return self._process and self._process.port

    def kill(self):
        if self._process:
            self._process.kill()


class Notices(http.server.ThreadingHTTPServer):
    """Takes what the alert manager sends, in place of people's mailboxes."""

    def __init__(self):
        notices = self.taken = []

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_POST(self):
                body = json.loads(self.rfile.read(int(self.headers["Content-Length"])))
                notices.append((self.path.strip("/"), body["alerts"]))
                self.send_response(200)
                self.end_headers()

            def log_message(self, *_):
                pass

        super().__init__(("127.0.0.1", 0), Handler)
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def close(self):
        self.shutdown()
        self.server_close()


class Site:
    """Everything that runs."""

    def __init__(self, programs, stack, signals):
        self.programs, self._stack, self._signals = programs, stack, signals
        with signals.held():
            self.folder = pathlib.Path(tempfile.mkdtemp(prefix="vx-fleet-demo-", dir=short_temporary_folder()))
            stack.callback(remove, self.folder)
        self._keep_everything_here()
        self.broker = self._opened(Nats)
        self.page = self._opened(lambda: PageServer(
            {"title": "Plant 1", "broker": self.broker.address, "sites": [SITE], "user": ""}))
        self.notices = self._opened(Notices)
        chance = random.Random(1)
        self.agents = {host: Agent(self, host, chance) for host in PRINTERS}
        self.agents["shipping"].learn(LOW, 0.07 * ROLL / 1000)
        for agent in self.agents.values():
            stack.callback(agent.kill)
            self.start_agent(agent)
        self._start_alert_manager()
        self._start_prometheus()
        until(lambda: self._ask("alerts"), "Prometheus' answer")

    def _keep_everything_here(self):
        """Whatever a program that is killed leaves behind goes with this folder."""
        for name in ("TMPDIR", "XDG_RUNTIME_DIR"):
            os.environ[name] = str(self.folder)
        tempfile.tempdir = str(self.folder)

    def _opened(self, make):
        with self._signals.held():
            return self._stack.enter_context(contextlib.closing(make()))

    def _started(self, name, *options):
        """A server that says in its log at which port it listens."""
        with self._signals.held():
            process = Process(self.folder, name, [find_program(name), *map(str, options),
                                                  "--web.listen-address=127.0.0.1:0"],
                              r'Listening on" address=127\.0\.0\.1:(\d+)')
            self._stack.callback(process.stop)
        return process

    def start_agent(self, agent):
        with self._signals.held():
            agent.start()
        # Prometheus reads this file again when it changes.
        targets = self.folder / "prometheus/agents/plant-1.yml"
        targets.parent.mkdir(parents=True, exist_ok=True)
        changed = targets.with_suffix(".new")
        changed.write_text(json.dumps([{"labels": {"site": SITE, "instance": one.host},
                                        "targets": [f"127.0.0.1:{one.port}"]}
                                       for one in self.agents.values() if one.port]))
        changed.rename(targets)

    def _start_alert_manager(self):
        def to(receiver):
            return f"webhook_configs:\n      - url: 'http://127.0.0.1:{self.notices.server_port}/{receiver}'"
        text = with_changes((DEPLOY / "prometheus/alertmanager.yml").read_text(), {
            "email_configs:\n      - to: 'line@example.net'": to("line"),
            "email_configs:\n      - to: 'support@example.net'": to("support"),
            "group_wait: 30s": "group_wait: 1s", "group_interval: 5m": "group_interval: 1s"})
        (self.folder / "alertmanager.yml").write_text(text)
        self.alert_manager = self._started(
            "prometheus-alertmanager", f"--config.file={self.folder}/alertmanager.yml",
            f"--storage.path={self.folder}/alertmanager", "--cluster.listen-address=")

    def _start_prometheus(self):
        folder = self.folder / "prometheus"
        shipped = DEPLOY / "prometheus"
        (folder / "prometheus.yml").write_text(with_changes((shipped / "prometheus.yml").read_text(), {
            "scrape_interval: 15s": "scrape_interval: 1s", "evaluation_interval: 15s": "evaluation_interval: 1s",
            "127.0.0.1:9093": f"127.0.0.1:{self.alert_manager.port}"}))
        waits = f"for: {ALERT_SECONDS}s"
        (folder / "vxprint.rules.yml").write_text(with_changes((shipped / "vxprint.rules.yml").read_text(), {
            "for: 10m": waits, "for: 5m": waits, "for: 2m": waits, "for: 1m": waits}))
        self.prometheus = self._started("prometheus", f"--config.file={folder}/prometheus.yml",
                                        f"--storage.tsdb.path={folder}/data")

    def _ask(self, path, **parameters):
        try:
            return json.loads(self.prometheus.get(f"/api/v1/{path}?{urllib.parse.urlencode(parameters)}"))["data"]
        except urllib.error.HTTPError:  # it still reads its storage
            return None

    @property
    def alerts_address(self):
        """Distributions leave out the newer of Prometheus' two user interfaces, or the older."""
        for path in ("/classic/alerts", "/alerts"):
            with contextlib.suppress(urllib.error.HTTPError):
                self.prometheus.get(path)
                break
        return f"http://127.0.0.1:{self.prometheus.port}{path}"

    def has(self, expression):
        answer = self._ask("query", query=expression)
        return bool(answer and answer["result"])

    def firing(self, name, **labels):
        """An alert that Prometheus says is firing."""
        for alert in (self._ask("alerts") or {"alerts": []})["alerts"]:
            if alert["state"] == "firing" and {"alertname": name, **labels}.items() <= alert["labels"].items():
                return alert
        return None

    def noticed(self, name, **labels):
        """Who was told of an alert, and with which words."""
        for receiver, alerts in self.notices.taken:
            for alert in alerts:
                if alert["status"] == "firing" and {"alertname": name, **labels}.items() <= alert["labels"].items():
                    return receiver, alert["annotations"]["summary"]
        return None


class Teller:
    def __init__(self):
        self._began = time.monotonic()

    def __call__(self, text):
        seconds = int(time.monotonic() - self._began)
        print(f"{seconds // 60:02}:{seconds % 60:02}  {text}", flush=True)


def introduce(site):
    printers = sum(map(len, PRINTERS.values()))
    print(f"""
A site with {len(PRINTERS)} computers and {printers} label printers, all of them on this computer and reached from
it alone:

  the page         {site.page.address}
  alerts           {site.alerts_address}
  metrics          http://127.0.0.1:{site.agents["packing"].port}/metrics    of one of the three agents
  alert manager    amtool alert --alertmanager.url=http://127.0.0.1:{site.alert_manager.port}/
  MQTT broker      mqtt://127.0.0.1:{site.broker.mqtt}

Open the page in a browser. The levels change while labels are printed; printers with an error come first, and
beside them are the rolls that end first, the agents, and the latest events. Select a printer to see all of it.

For this demonstration an alert rings after {ALERT_SECONDS} seconds. In the rules of deploy/prometheus that takes 1 to 10
minutes, because nobody wants to be called for a roll that is just being changed.
""", flush=True)


def tell_alert(site, tell, name, **labels):
    alert = until(lambda: site.firing(name, **labels), f"the alert {name}")
    tell(f"ALERT {name}: {alert['annotations']['summary']}")
    receiver, summary = until(lambda: site.noticed(name, **labels), f"the message about {name}")
    tell(f"      the alert manager writes to \"{receiver}\": {summary}")


def play(site, picture, page):
    tell = Teller()
    number = sum(map(len, PRINTERS.values()))
    until(lambda: site.has(f"count(vx_printer_status_code != 255) == {number}"), "the reports of all printers")
    tell("all printers have reported")
    until(lambda: site.has(f'vx_printer_status_info{{printer="{JAMMED}",status="labels_jammed"}}'), "the jam")
    tell(f"the labels of {JAMMED} are jammed: on the page it is among the first now")
    until(lambda: site.has(f'vx_printer_status_info{{printer="{EMPTY}",status="out_of_labels"}}'), "the end of a roll")
    tell(f"{EMPTY} has run out of labels")
    tell_alert(site, tell, "VxPrinterError", printer=JAMMED)
    tell_alert(site, tell, "VxSupplyOut", printer=EMPTY)
    site.agents[STOPPED].kill()
    tell(f"the agent of {STOPPED} was killed: the page shows it and its printers as offline, because the broker "
         "publishes its will")
    tell_alert(site, tell, "VxAgentGone", instance=STOPPED)
    if picture:
        take_picture(page, picture)
        tell(f"a picture of the page is in {picture}")
    site.start_agent(site.agents[STOPPED])
    until(lambda: not site.firing("VxAgentGone"), "the end of the alert")
    tell(f"the agent of {STOPPED} was started again: its alert has ended")


def opened_page(site, stack, signals):
    """Opens the page at the beginning, because it shows the events since then."""
    with signals.held():
        browser = stack.enter_context(contextlib.closing(Chromium()))
    page = browser.open(site.page.address, width=1440, height=900)
    page.until("document.documentElement.dataset.state === 'live'")
    return page


def take_picture(page, file):
    for kind, least in (("error", 2), ("warning", 1), ("offline", len(PRINTERS[STOPPED]))):
        page.until(f"document.querySelectorAll('.tile[data-class={kind}]').length >= {least}")
    # What moves has come to rest.
    page.value("new Promise(done => setTimeout(done, 800))")
    page.picture(file)


def open_in_browser(address):
    """In a terminal on a desktop, the page opens by itself."""
    opener = shutil.which("xdg-open")
    if opener and sys.stdin.isatty() and (os.environ.get("DISPLAY") or os.environ.get("WAYLAND_DISPLAY")):
        subprocess.Popen([opener, address], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                         stderr=subprocess.DEVNULL, start_new_session=True)


def main():
    arguments = sys.argv[1:]
    if len(arguments) not in (1, 3) or arguments[1:2] not in ([], ["--picture"]):
        sys.exit(__doc__.strip())
    picture = pathlib.Path(arguments[2]).absolute() if len(arguments) == 3 else None
    # What is asked for is on this computer.
    os.environ["no_proxy"] = "127.0.0.1"
    signals, told = Signals(), False
    try:
        with contextlib.ExitStack() as stack:
            try:
                site = Site(pathlib.Path(arguments[0]).resolve(), stack, signals)
                introduce(site)
                open_in_browser(site.page.address)
                play(site, picture, picture and opened_page(site, stack, signals))
                told = True
                if sys.stdin.isatty():
                    print("\nThe printers go on for an hour. Press Enter to end.", flush=True)
                    sys.stdin.readline()
            finally:
                signals.ignore()
    except Ended:
        print("\nended, and removed everything", flush=True)
        sys.exit(0 if told and signals.number == signal.SIGINT else 128 + signals.number)
    except (AssertionError, OSError, PageError, subprocess.SubprocessError) as error:
        sys.exit(f"fleet-demo: {error}")
    print("\nended, and removed everything", flush=True)


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Checks what deploy/ has ready to use, with the programs that use it: promtool, amtool, a Prometheus
that scrapes an agent, and systemd.

test_prometheus.py DEPLOY VXPRINTAGENT PRINT_METRICS
"""
import http.server
import itertools
import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import threading
import time
import unittest
import urllib.error
import urllib.parse

from agent_process import Agent, Process, wait_for

DEPLOY = pathlib.Path(sys.argv[1])
VXPRINTAGENT, PRINT_METRICS = sys.argv[2:]


def run(*command, **options):
    done = subprocess.run([str(word) for word in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          encoding="utf-8", **options)
    return done.returncode, done.stdout


def complaints_in(log):
    return [line for line in log.read_text().splitlines() if "level=warn" in line or "level=error" in line]


class Files(unittest.TestCase):
    def test_the_configuration_is_valid(self):
        status, output = run("promtool", "check", "config", DEPLOY / "prometheus/prometheus.yml")
        self.assertEqual(status, 0, output)

    def test_the_alerts_ring_when_they_should(self):
        tests = sorted((DEPLOY / "prometheus").glob("*.test.yml"))
        self.assertTrue(tests)
        status, output = run("promtool", "test", "rules", *tests)
        self.assertEqual(status, 0, output)

    def test_every_alert_has_been_seen_to_ring(self):
        rules = (DEPLOY / "prometheus/vxprint.rules.yml").read_text()
        tests = "".join(path.read_text() for path in (DEPLOY / "prometheus").glob("*.test.yml"))
        expected = set()
        for block in re.split(r"\n {6}- eval_time:", tests)[1:]:
            name = re.search(r"alertname: (\w+)", block).group(1)
            expected |= {(name, labels.group(1)) for labels in
                         re.finditer(r"exp_labels: \{severity: \w+,(?: known_by: (\w+),)?", block)}
        alerts = {(name, known_by.group(1) if (known_by := re.search(r"known_by: (\w+)", rule)) else None)
                  for name, rule in re.findall(r"- alert: (\w+)\n(.*?)annotations:", rules, re.DOTALL)}
        self.assertEqual(alerts, expected)

    def test_the_alert_manager_takes_its_configuration(self):
        status, output = run("amtool", "check-config", DEPLOY / "prometheus/alertmanager.yml")
        self.assertEqual(status, 0, output)

    def test_the_alert_manager_starts_without_complaints(self):
        with tempfile.TemporaryDirectory() as folder:
            manager = Process(folder, "alertmanager", [
                "prometheus-alertmanager", f"--config.file={DEPLOY}/prometheus/alertmanager.yml",
                f"--storage.path={folder}/data", "--web.listen-address=127.0.0.1:0", "--cluster.listen-address="],
                r"Listening on\" address=127\.0\.0\.1:(\d+)")
            manager.stop()
            self.assertEqual(complaints_in(manager.log), [])

    def test_the_alert_manager_names_alerts_that_exist(self):
        rules = (DEPLOY / "prometheus/vxprint.rules.yml").read_text()
        alerts = re.findall(r"- alert: (\w+)", rules)
        manager = (DEPLOY / "prometheus/alertmanager.yml").read_text()
        for pattern in re.findall(r'alertname =~? "([^"]*)"', manager):
            for choice in pattern.split("|"):
                self.assertTrue(any(re.fullmatch(choice, alert) for alert in alerts), choice)

    @unittest.skipUnless(shutil.which("systemd-analyze"), "systemd is not installed")
    def test_systemd_accepts_the_unit(self):
        unit = (DEPLOY / "systemd/vxprintagent.service").read_text()
        self.assertIn("ExecStart=vxprintagent run ", unit)
        with tempfile.TemporaryDirectory() as folder:
            copy = pathlib.Path(folder) / "vxprintagent.service"
            copy.write_text(unit.replace("ExecStart=vxprintagent", f"ExecStart={VXPRINTAGENT}"))
            status, output = run("systemd-analyze", "verify", "--man=no", copy)
            self.assertEqual((status, output), (0, ""))
            # 0 is locked up and 10 unprotected, in tenths.
            status, output = run("systemd-analyze", "security", "--offline=true", "--threshold=20",
                                 "--no-pager", copy)
            self.assertEqual(status, 0, output)


class Dashboard(unittest.TestCase):
    """The parts of Grafana's model of a dashboard that can be checked without Grafana."""

    @classmethod
    def setUpClass(cls):
        cls.dashboard = json.loads((DEPLOY / "grafana/vxprint.json").read_text(encoding="utf-8"))
        cls.panels = cls.dashboard["panels"]

    def test_panels_are_told_apart(self):
        self.assertEqual(len({panel["id"] for panel in self.panels}), len(self.panels))
        self.assertEqual(len({panel["title"] for panel in self.panels}), len(self.panels))
        for panel in self.panels:
            self.assertTrue(panel["description"], panel["title"])
            references = [target["refId"] for target in panel["targets"]]
            self.assertEqual(len(set(references)), len(references), panel["title"])

    def test_panels_fill_the_grid_without_overlaps(self):
        taken = {}
        for panel in self.panels:
            place = panel["gridPos"]
            self.assertGreater(min(place["w"], place["h"]), 0, panel["title"])
            for cell in itertools.product(range(place["x"], place["x"] + place["w"]),
                                          range(place["y"], place["y"] + place["h"])):
                self.assertNotIn(cell, taken, f"{panel['title']} lies on {taken.get(cell)}")
                self.assertTrue(0 <= cell[0] < 24, f"{panel['title']} is wider than the grid")
                taken[cell] = panel["title"]
        # Grafana would move panels up into a hole.
        rows = {row for _, row in taken}
        self.assertEqual(rows, set(range(max(rows) + 1)))
        self.assertEqual(len(taken), 24 * len(rows))

    def test_everything_is_asked_of_the_data_source_that_was_chosen(self):
        variables = self.dashboard["templating"]["list"]
        self.assertEqual([each["name"] for each in variables if each["type"] == "datasource"], ["datasource"])
        self.assertEqual(variables[0]["query"], "prometheus")
        chosen = {"type": "prometheus", "uid": "${datasource}"}
        asked = [each for each in variables if each["type"] == "query"] + self.panels
        asked += [target for panel in self.panels for target in panel["targets"]]
        for each in asked:
            self.assertEqual(each["datasource"], chosen, each)

    def test_it_uses_what_grafana_has(self):
        # The names of panels, units (packages/grafana-data/src/valueFormats/categories.ts), calculations and
        # colours that Grafana 9 and later know.
        self.assertEqual(self.dashboard["schemaVersion"], 37)
        for panel in self.panels:
            with self.subTest(panel["title"]):
                self.assertIn(panel["type"], ("stat", "table", "bargauge", "timeseries", "state-timeline"))
                defaults = panel["fieldConfig"]["defaults"]
                self.assertIn(defaults.get("unit"), (None, "percentunit", "lengthm", "s"))
                if defaults.get("unit") == "percentunit":
                    # Otherwise the fullest roll would fill its bar, however little is left of it.
                    self.assertEqual((defaults["min"], defaults["max"]), (0, 1))
                steps = defaults.get("thresholds", {}).get("steps", [{"value": None}])
                self.assertIsNone(steps[0]["value"])
                values = [step["value"] for step in steps[1:]]
                self.assertEqual(values, sorted(values))
                self.assertLessEqual({step.get("color") for step in steps}, {None, "green", "orange", "red"})
                self.assertIn(panel.get("options", {}).get("reduceOptions", {}).get("calcs"), (None, ["lastNotNull"]))

    def test_every_severity_and_state_has_a_colour(self):
        rules = (DEPLOY / "prometheus/vxprint.rules.yml").read_text()
        expected = {"Alerts": set(re.findall(r"severity: (\w+)\n", rules)),
                    "Printers by severity": {"error", "warning", "information", "ok"}}
        for panel in self.panels:
            for override in panel["fieldConfig"]["overrides"]:
                if override["matcher"]["options"] == "Severity":
                    mappings = {each["id"]: each["value"] for each in override["properties"]}["mappings"]
                    self.assertEqual(set(mappings[0]["options"]), expected.pop(panel["title"]))
        self.assertEqual(expected, {})


class Other(http.server.BaseHTTPRequestHandler):
    """Serves printers of which everything is known, because the fleet's are too new for forecasts, and
    takes alerts like an alert manager."""
    text = b""
    alerts = []

    def do_GET(self):
        self.send_response(200)
        self.send_header("Content-Type", "application/openmetrics-text; version=1.0.0; charset=utf-8")
        self.end_headers()
        self.wfile.write(self.text)

    def do_POST(self):
        self.alerts += json.loads(self.rfile.read(int(self.headers["Content-Length"])))
        self.send_response(200)
        self.end_headers()

    def log_message(self, *_):
        pass


class ScrapedByPrometheus(unittest.TestCase):
    """A real Prometheus with the configuration of deploy/, with other addresses and shorter times."""

    @classmethod
    def setUpClass(cls):
        cls.folder = cls.enterClassContext(tempfile.TemporaryDirectory())
        folder = pathlib.Path(cls.folder)
        Other.text = subprocess.run([PRINT_METRICS, "--open"], check=True,
                                           stdout=subprocess.PIPE).stdout
        other = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Other)
        cls.addClassCleanup(other.server_close)
        threading.Thread(target=other.serve_forever, daemon=True).start()
        cls.addClassCleanup(other.shutdown)
        cls.agent = Agent(folder, VXPRINTAGENT)
        cls.addClassCleanup(cls.agent.kill)

        shutil.copytree(DEPLOY / "prometheus", folder / "prometheus")
        config = folder / "prometheus/prometheus.yml"
        text = config.read_text()
        cls.replaced(config, text, ("_interval: 15s", "_interval: 1s"),
                     ("127.0.0.1:9093", f"127.0.0.1:{other.server_port}"))
        rules = folder / "prometheus/vxprint.rules.yml"
        cls.replaced(rules, rules.read_text(), ("for: 5m", "for: 1s"), ("for: 1m", "for: 1s"))
        agents = folder / "prometheus/agents/plant-1.yml"
        text = agents.read_text()
        targets = text.index("targets:")
        agents.write_text(f"{text[:targets]}targets: ['127.0.0.1:{cls.agent.port}', "
                          f"'127.0.0.1:{other.server_port}']\n")
        cls.prometheus = Process(folder, "prometheus", [
            "prometheus", f"--config.file={config}", f"--storage.tsdb.path={folder}/data",
            "--web.listen-address=127.0.0.1:0"], r"Listening on\" address=127\.0\.0\.1:(\d+)")
        cls.addClassCleanup(cls.prometheus.stop)
        wait_for(cls.is_ready, "the answer of Prometheus")
        with (DEPLOY / "grafana/vxprint.json").open(encoding="utf-8") as file:
            cls.dashboard = json.load(file)

    @staticmethod
    def replaced(path, text, *replacements):
        for old, new in replacements:
            assert old in text, old
            text = text.replace(old, new)
        path.write_text(text)

    @classmethod
    def is_ready(cls):
        try:
            return cls.prometheus.get("/-/ready") != ""
        except urllib.error.HTTPError:  # it still reads its storage
            return False

    @classmethod
    def enterClassContext(cls, context):
        result = context.__enter__()
        cls.addClassCleanup(context.__exit__, None, None, None)
        return result

    def ask(self, path, **parameters):
        answer = json.loads(self.prometheus.get(f"/api/v1/{path}?{urllib.parse.urlencode(parameters)}"))
        self.assertEqual(answer["status"], "success", answer)
        return answer["data"]

    def query(self, expression):
        return self.ask("query", query=expression)["result"]

    def wait_until_scraped(self):
        wait_for(lambda: len(self.query('up{job="vxprintagent"} == 1')) == 2, "a scrape of both targets")
        # Two scrapes are needed for what increases.
        wait_for(lambda: self.query(
            'min(count_over_time(vx_supply_consumed_meters_total{printer="Shipping"}[1m])) > 1'), "a second scrape")

    def test_series_have_their_site_and_types(self):
        self.wait_until_scraped()
        self.assertEqual({series["metric"]["site"] for series in self.query("vx_printer_online")}, {"plant-1"})
        types = {name: entries[0]["type"] for name, entries in self.ask("metadata").items()
                 if name.startswith("vx_")}
        self.assertEqual(types["vx_printer_online"], "gauge")
        # Prometheus keeps the counter under the name that OpenMetrics gives it.
        self.assertEqual(types["vx_supply_consumed_meters"], "counter")

    def test_no_sample_is_refused(self):
        self.wait_until_scraped()
        for target in self.ask("targets")["activeTargets"]:
            self.assertEqual((target["health"], target["lastError"]), ("up", ""))
        self.assertEqual(complaints_in(self.prometheus.log), [])

    def chosen(self, expression, **values):
        """The expression as Grafana asks it, where everything is chosen or these values are."""
        for variable in ("site", "instance", "printer"):
            expression = expression.replace(f'=~"${variable}"', f'=~"{values.get(variable, ".*")}"')
        self.assertNotIn("$", expression)
        return expression

    def answer(self, target, **values):
        """The series that a panel gets: at this moment, or of the last quarter of an hour."""
        expression = self.chosen(target["expr"], **values)
        self.assertNotEqual(target["instant"], target["range"])
        if target["instant"]:
            return self.query(expression)
        now = time.time()
        return self.ask("query_range", query=expression, start=now - 900, end=now, step=15)["result"]

    def test_every_query_of_the_dashboard_has_an_answer(self):
        self.wait_until_scraped()
        # For the panel that shows what rings.
        wait_for(lambda: self.query('ALERTS{alertname="VxSupplyOut",alertstate="firing"}'), "an alert")
        targets = [target for panel in self.dashboard["panels"] for target in panel["targets"]]
        self.assertGreater(len(targets), 10)
        for target in targets:
            with self.subTest(target["expr"]):
                self.assertTrue(self.answer(target))

    def test_the_dashboard_shows_a_real_agents_printer(self):
        self.wait_until_scraped()
        chosen = {"site": "plant-1", "instance": f"127.0.0.1:{self.agent.port}", "printer": "Shipping"}
        for panel in self.dashboard["panels"]:
            # The agent has no history to forecast from, and its printers have no error at first.
            if panel["title"] in ("What ends first", "Alerts"):
                continue
            with self.subTest(panel["title"]):
                for target in panel["targets"]:
                    series = self.answer(target, **chosen)
                    self.assertTrue(series)
                    for each in series:
                        self.assertIn(each["metric"].get("printer"), (None, "Shipping"))
                        self.assertIn(each["metric"].get("instance"), (None, chosen["instance"]))

    def test_printers_of_one_name_at_two_computers_are_told_apart(self):
        self.wait_until_scraped()
        for panel in self.dashboard["panels"]:
            with self.subTest(panel["title"]):
                for target in panel["targets"]:
                    labels = [series["metric"] for series in self.answer(target)]
                    if any("printer" in each for each in labels):
                        self.assertTrue(all("instance" in each for each in labels))
                    if "legendFormat" in target:
                        legends = [self.legend(target["legendFormat"], each) for each in labels]
                        self.assertEqual(len(set(legends)), len(legends))

    def legend(self, text, labels):
        names = re.findall(r"{{(\w+)}}", text)
        self.assertTrue(names)
        self.assertLessEqual(set(names), labels.keys())
        return re.sub(r"{{(\w+)}}", lambda name: labels[name.group(1)], text)

    def test_tables_name_all_their_columns(self):
        self.wait_until_scraped()
        wait_for(lambda: self.query('ALERTS{alertname="VxSupplyOut",alertstate="firing"}'), "an alert")
        tables = [panel for panel in self.dashboard["panels"] if panel["type"] == "table"]
        self.assertEqual(len(tables), 4)
        for panel in tables:
            with self.subTest(panel["title"]):
                target, = panel["targets"]
                self.assertEqual(target["format"], "table")
                labels = {name for series in self.answer(target) for name in series["metric"]}
                # Alerts of a slot have its label, and those of a computer no printer.
                columns = {"Time", "Value"} | labels | ({"slot", "printer"} if panel["title"] == "Alerts" else set())
                *sorting, organizing = panel["transformations"]
                self.assertEqual(organizing["id"], "organize")
                # They are sorted while the columns have their first names.
                for each in sorting:
                    self.assertEqual(each["id"], "sortBy")
                    self.assertLessEqual({by["field"] for by in each["options"]["sort"]}, columns)
                hidden = organizing["options"]["excludeByName"].keys()
                renamed = organizing["options"]["renameByName"]
                self.assertEqual(hidden | renamed.keys(), columns)
                self.assertFalse(hidden & renamed.keys())
                for override in panel["fieldConfig"]["overrides"]:
                    self.assertEqual(override["matcher"]["id"], "byName")
                    self.assertIn(override["matcher"]["options"], renamed.values())

    def test_the_worst_printers_come_first(self):
        self.wait_until_scraped()
        panel, = [panel for panel in self.dashboard["panels"] if panel["title"] == "Printers by severity"]
        severities = [series["metric"]["severity"] for series in self.answer(panel["targets"][0])]
        order = ["error", "warning", "information", "ok"]
        self.assertEqual(severities, sorted(severities, key=order.index))
        self.assertGreater(len(set(severities)), 1)
        self.assertEqual(len(severities), len(self.query("vx_printer_status_info")))

    def test_every_choice_of_the_dashboard_has_values(self):
        self.wait_until_scraped()
        choices = [each for each in self.dashboard["templating"]["list"] if each["type"] == "query"]
        self.assertEqual([each["name"] for each in choices], ["site", "instance", "printer"])
        for choice in choices:
            with self.subTest(choice["name"]):
                series, label = re.fullmatch(r"label_values\((.*), (\w+)\)", choice["definition"]).groups()
                series = re.sub(r'=~"\$\w+"', '=~".*"', series)
                self.assertTrue(self.ask(f"label/{label}/values", **{"match[]": series}))

    def test_zz_an_agent_that_is_killed_rings(self):
        # The last one, because the others need the agent.
        self.wait_until_scraped()
        self.agent.kill()

        def rung():
            return [alert for alert in Other.alerts if alert["labels"]["alertname"] == "VxAgentGone"]
        alert = wait_for(rung, "the alert of an agent that is gone")[0]
        instance = f"127.0.0.1:{self.agent.port}"
        self.assertEqual(alert["labels"], {"alertname": "VxAgentGone", "instance": instance, "job": "vxprintagent",
                                           "known_by": "scrape", "severity": "warning", "site": "plant-1"})
        self.assertEqual(alert["annotations"]["summary"], f"no agent at {instance}")
        # Nothing is known of its printers any more.
        wait_for(lambda: not self.query('vx_printer_online{printer="Warehouse"}'), "the end of its series")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)

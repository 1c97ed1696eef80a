#!/usr/bin/env python3
"""Our sync beside curl and vdirsyncer, with the same calendar on the same Radicale, in one run.

usage: bench/caldav.py [EVENTS [TASKS]]     (5000 and 500)
Needs radicale and curl, and vdirsyncer for the peer; build/release/bin/quillon-bench from "make bench".
"""
import json
import pathlib
import random
import resource
import shutil
import socket
import subprocess
import sys
import tempfile
import time

BENCH = pathlib.Path(__file__).resolve().parent.parent / "build/release/bin/quillon-bench"
# Enough of them that the text packs no better than what people write.
WORDS = ["".join(random.Random(n).choices("abcdefghiklmnoprstuvw", k=3 + n % 7)) for n in range(2000)]
USER, PASSWORD = "alice", "secret"
QUERY = """<?xml version="1.0" encoding="utf-8"?>
<c:calendar-query xmlns:d="DAV:" xmlns:c="urn:ietf:params:xml:ns:caldav"><d:prop><d:getetag/><c:calendar-data/></d:prop>
<c:filter><c:comp-filter name="VCALENDAR"><c:comp-filter name="%s"/></c:comp-filter></c:filter></c:calendar-query>"""


def event(number):
    rule = "RRULE:FREQ=WEEKLY;COUNT=30\r\n" if number % 7 == 0 else ""
    notes = " ".join(random.Random(number).choices(WORDS, k=180))
    return (f"BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Bench//EN\r\nBEGIN:VEVENT\r\nUID:event-{number}\r\n"
            f"DTSTAMP:20260101T000000Z\r\nSUMMARY:Review of the plan {number}\r\nDESCRIPTION:{notes}\r\n"
            f"LOCATION:Room {number % 90}\r\nDTSTART:2026{1 + number % 12:02}{1 + number % 28:02}T{7 + number % 12:02}0000Z\r\n"
            f"DTEND:2026{1 + number % 12:02}{1 + number % 28:02}T{8 + number % 12:02}0000Z\r\n{rule}"
            "BEGIN:VALARM\r\nACTION:DISPLAY\r\nDESCRIPTION:x\r\nTRIGGER:-PT10M\r\nEND:VALARM\r\n"
            "END:VEVENT\r\nEND:VCALENDAR\r\n")


def task(number):
    return (f"BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Bench//EN\r\nBEGIN:VTODO\r\nUID:task-{number}\r\n"
            f"DTSTAMP:20260101T000000Z\r\nSUMMARY:Errand {number}\r\nDUE;VALUE=DATE:202606{1 + number % 28:02}\r\n"
            "END:VTODO\r\nEND:VCALENDAR\r\n")


def fill(folder, events, tasks):
    collection = folder / "data/collection-root/alice/team"
    collection.mkdir(parents=True)
    (collection / ".Radicale.props").write_text(json.dumps(
        {"tag": "VCALENDAR", "D:displayname": "Team", "C:supported-calendar-component-set": "VEVENT,VTODO"}))
    for number in range(events):
        (collection / f"event-{number}.ics").write_text(event(number), newline="")
    for number in range(tasks):
        (collection / f"task-{number}.ics").write_text(task(number), newline="")


def start_radicale(folder):
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        port = probe.getsockname()[1]
    (folder / "users").write_text(f"{USER}:{PASSWORD}\n")
    (folder / "config").write_text(
        f"[server]\nhosts = 127.0.0.1:{port}\n[auth]\ntype = htpasswd\nhtpasswd_filename = {folder}/users\n"
        f"htpasswd_encryption = plain\ndelay = 0\n[rights]\ntype = owner_only\n"
        f"[storage]\nfilesystem_folder = {folder}/data\n")
    server = subprocess.Popen(["radicale", "-C", str(folder / "config")], stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL)
    deadline = time.monotonic() + 30
    while time.monotonic() < deadline:
        try:
            socket.create_connection(("127.0.0.1", port), 1).close()
            return server, f"http://127.0.0.1:{port}/alice/team/"
        except OSError:
            time.sleep(0.1)
    server.kill()
    sys.exit("radicale does not start")


def report(folder, url, component):
    """One bare REPORT: seconds and bytes."""
    began = time.monotonic()
    out = folder / "report.xml"
    subprocess.run(["curl", "-sS", "-u", f"{USER}:{PASSWORD}", "-X", "REPORT", "-H", "Depth: 1", "-H",
                    "Content-Type: application/xml", "--data", QUERY % component, "-o", str(out), url], check=True)
    return time.monotonic() - began, out.stat().st_size


def properties(folder, url):
    """What our sync asks for before the listing; the first time the server computes its tokens."""
    began = time.monotonic()
    body = ('<propfind xmlns="DAV:"><prop><getctag xmlns="http://calendarserver.org/ns/"/><sync-token/></prop></propfind>')
    subprocess.run(["curl", "-sS", "-u", f"{USER}:{PASSWORD}", "-X", "PROPFIND", "-H", "Depth: 0", "--data", body, "-o",
                    str(folder / "properties.xml"), url], check=True)
    return time.monotonic() - began


def ours(folder, url, *more):
    result = subprocess.run([str(BENCH), "sync", str(folder / "bench.db"), url, USER, PASSWORD, *more],
                            capture_output=True, text=True)
    if result.returncode:
        sys.exit(f"quillon-bench failed: {result.stderr}")
    return json.loads(result.stdout)


def vdirsyncer(folder, url):
    """Seconds and CPU seconds of one sync."""
    config = folder / "vdirsyncer"
    if not config.exists():
        config.write_text(f'[general]\nstatus_path = "{folder}/status/"\n'
                          '[pair bench]\na = "here"\nb = "there"\ncollections = null\n'
                          f'[storage here]\ntype = "filesystem"\npath = "{folder}/vdir"\nfileext = ".ics"\n'
                          f'[storage there]\ntype = "caldav"\nurl = "{url}"\nusername = "{USER}"\npassword = "{PASSWORD}"\n')
        (folder / "vdir").mkdir()
        subprocess.run(["vdirsyncer", "-c", str(config), "discover"], input="y\n" * 9, text=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    began = time.monotonic()
    subprocess.run(["vdirsyncer", "-c", str(config), "sync"], check=True, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return (time.monotonic() - began,
            after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime)


def line(what, figure, unit, aim=None):
    missed = aim is not None and figure > aim
    print(f"{what:<58}{figure:10.2f} {unit:<4}" + (f"  aim {aim:8.2f}" + ("  <-- missed" if missed else "")
                                                    if aim is not None else ""), flush=True)


def main():
    events = int(sys.argv[1]) if len(sys.argv) > 1 else 5000
    tasks = int(sys.argv[2]) if len(sys.argv) > 2 else 500
    folder = pathlib.Path(tempfile.mkdtemp(prefix="quillon-bench-"))
    fill(folder, events, tasks)
    server, url = start_radicale(folder)
    try:
        print(f"{events} events and {tasks} tasks on Radicale")
        for component in ("VEVENT", "VTODO"):
            report(folder, url, component)  # the server builds its cache
        properties(folder, url)
        listing, size = report(folder, url, "VEVENT")
        listing_tasks, size_tasks = report(folder, url, "VTODO")
        line("curl: bare REPORTs", listing + listing_tasks, "s")
        line("      bytes", (size + size_tasks) / 1e6, "MB")
        line("curl: PROPFIND of the ctag", properties(folder, url), "s")
        first = ours(folder, url)
        again = ours(folder, url)  # reads the same listings and stores nothing: what parsing costs
        line("ours: first sync", first["wallMs"] / 1000, "s", 2 * (listing + listing_tasks) + again["cpuMs"] / 1000)
        line("      CPU", first["cpuMs"] / 1000, "s")
        line("      longest hold of the event loop", first["holdMs"], "ms", 50)
        line("      peak memory", first["peakMiB"], "MiB", 200)
        line("ours: nothing changed", again["wallMs"] / 1000, "s")
        line("      CPU", again["cpuMs"] / 1000, "s", 0.3 * events / 5000)
        line("      rows written", again["rows"], "", 0)
        line("      longest hold", again["holdMs"], "ms", 50)
        edit = ours(folder, url, "edit")
        line("ours: push of one edit, with the listing before it", edit["wallMs"] / 1000, "s")
        if shutil.which("vdirsyncer"):
            seconds, cpu = vdirsyncer(folder, url)
            line("vdirsyncer: first sync", seconds, "s")
            line("      CPU", cpu, "s")
            line("      ratio to ours", seconds * 1000 / first["wallMs"], "x")
            seconds, cpu = vdirsyncer(folder, url)
            line("vdirsyncer: nothing changed", seconds, "s")
            line("      CPU", cpu, "s")
            line("      ratio to ours", seconds * 1000 / again["wallMs"], "x")
    finally:
        server.kill()
        shutil.rmtree(folder, ignore_errors=True)


if __name__ == "__main__":
    main()

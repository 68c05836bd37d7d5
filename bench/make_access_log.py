#!/usr/bin/env python3
"""Writes an access log in accesslog.txt's columns: hour in columns 1-2, weekday in
column 6, month in columns 10-11, then page, browser and host, '|' between fields.

usage: make_access_log.py LINES OUT [--combined OUT2]
With --combined the same hits are also written in the combined log format, for peers.
"""
import random
import sys

AGENTS = [
    "Mozilla/4.0 (compatible; MSIE 5.0; Windows 98)",
    "Mozilla/4.0 (compatible; MSIE 4.01; Windows 95)",
    "Mozilla/4.0 (compatible; MSIE 5.5; Windows NT 5.0)",
    "Mozilla/4.7 [en] (X11; U; Linux 2.2.12 i686)",
    "Mozilla/4.08 [en] (Win98; I)",
    "Mozilla/3.01 (Macintosh; I; PPC)",
    "Mozilla/4.0 (compatible; MSIE 6.0; Windows NT 5.1)",
    "Mozilla/2.0 (compatible; MSIE 3.02; Win16)",
    "Mozilla/3.0 WebTV/1.2 (compatible; MSIE 2.0)",
    "Lynx/2.8.3rel.1 libwww-FM/2.14",
]
HOSTS = ["dial-%d.aol.com", "host%d.example.com", "ppp%d.isp.net", "lab%d.cs.example.edu",
         "gw%d.agency.gov", "m%d.example.co.uk", "h%d.example.de", "10.0.%d.1|", "x%d.example.jp"]
PAGES = ["/index.html", "/about.html", "/products/list.html", "/contact.html"]
MONTHS = ["Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"]


def main():
    lines = int(sys.argv[1])
    out = open(sys.argv[2], "w", newline="")
    combined = open(sys.argv[4], "w", newline="") if len(sys.argv) > 4 else None
    rng = random.Random(7)
    for _ in range(lines):
        hour, minute = rng.randrange(24), rng.randrange(60)
        weekday, month, day = rng.randrange(1, 8), rng.randrange(1, 13), rng.randrange(1, 29)
        agent, page = rng.choice(AGENTS), rng.choice(PAGES)
        host = rng.choice(HOSTS) % rng.randrange(256)
        out.write("%02d   %d   %02d/%02d/2026|%s|%s|%s\r\n" % (hour, weekday, month, day, page,
                                                            agent, host))
        if combined:
            combined.write('%s - - [%02d/%s/2026:%02d:%02d:00 +0000] "GET %s HTTP/1.0" 200 1024 '
                           '"-" "%s"\n' % (host.rstrip("|"), day, MONTHS[month - 1], hour, minute,
                                           page, agent))


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""Writes a hand-coded-looking HTML page of about SIZE bytes: paragraphs, headings, lists,
links, images, entities, and a few misspelled words in the prose.

usage: make_page.py SIZE_BYTES OUT
"""
import random
import sys

WORDS = ("the quick brown fox jumps over lazy dog while our visitors read every page of this "
         "small site about gardens houses rivers mountains music books travel and weather "
         "written by hand with care for readers who like plain text").split()
TYPOS = ["recieve", "seperate", "definately", "occured", "wierd", "untill", "accomodate"]


def sentence(rng):
    words = [rng.choice(WORDS) for _ in range(rng.randrange(6, 16))]
    if rng.random() < 0.2:
        words[rng.randrange(len(words))] = rng.choice(TYPOS)
    return " ".join(words).capitalize() + "."


def main():
    size, out = int(sys.argv[1]), sys.argv[2]
    rng = random.Random(11)
    parts = ["<HTML>\r\n<HEAD><TITLE>A garden of pages</TITLE></HEAD>\r\n<BODY BGCOLOR=\"#FFFFFF\">\r\n"]
    total = len(parts[0])
    n = 0
    while total < size:
        n += 1
        kind = n % 7
        if kind == 0:
            block = "<H2>Section %d</H2>\r\n" % n
        elif kind == 3:
            block = "<UL>\r\n" + "".join("<LI>%s</LI>\r\n" % sentence(rng) for _ in range(3)) + "</UL>\r\n"
        elif kind == 5:
            block = ('<P><A HREF="page%d.html">%s</A> <IMG SRC="img/p%d.gif" WIDTH=20 HEIGHT=20>'
                     '</P><HR>\r\n' % (n, sentence(rng), n))
        else:
            block = "<P>%s %s&nbsp;&amp; %s<BR>\r\n%s</P>\r\n" % (
                sentence(rng), sentence(rng), sentence(rng), sentence(rng))
        parts.append(block)
        total += len(block)
    parts.append("</BODY>\r\n</HTML>\r\n")
    with open(out, "w", newline="") as f:
        f.write("".join(parts))


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
# A packet modem on a pseudo-terminal that shares nothing with the modem models of the program: a
# call and a speed from the shop, prompts, echo, converse; it loses its power and comes back.
#
# plain_modem.py pk232|tnc|ptc LINK LOG
#
# LOG gets a line for each thing that happens: "POWER", "GOT" once bytes come, "CMD line", "AIR call
# line" for what would go on the air, and "GARBLED line" for what comes at another line speed than
# the modem's. SIGUSR1: the power goes, the device vanishes, and half a second later it is back.
# SIGUSR2: the power goes and comes back behind an adapter that stays; LOG gets "POWER" again.
import os
import select
import signal
import sys
import termios
import time
import tty

KIND, LINK, LOG = sys.argv[1:4]
ESC, BREAK, CANCEL, BACKSPACE = 27, 3, 24, 8
SPEEDS = {getattr(termios, "B%d" % n): n for n in (300, 1200, 2400, 4800, 9600, 19200, 38400)}
power_fails = False
power_blinks = False


def log(text):
    with open(LOG, "a", encoding="latin-1") as file:
        file.write(text + "\n")


def fail(*_):
    global power_fails
    power_fails = True


def blink(*_):
    global power_blinks
    power_blinks = True


class Modem:
    def __init__(self):
        self.from_the_shop()
        self.master, slave = os.openpty()
        tty.setraw(slave)
        self.path = os.ttyname(slave)
        os.close(slave)
        os.set_blocking(self.master, False)
        if os.path.islink(LINK):
            os.unlink(LINK)
        os.symlink(self.path, LINK)
        log("POWER")

    def from_the_shop(self):
        self.call = {"pk232": "PK232", "tnc": "N0CALL", "ptc": "NOCALL"}[KIND]
        self.speed = {"pk232": 1200, "tnc": 38400, "ptc": 38400}[KIND]
        self.next_speed = self.speed
        self.fresh = True  # looks for the speed of its line
        self.place = "text" if KIND == "tnc" else "menu"
        self.command = False
        self.line = bytearray()

    def off(self):
        os.unlink(LINK)
        os.close(self.master)

    def line_speed(self):
        return SPEEDS.get(termios.tcgetattr(self.master)[5], 0)

    def say(self, text):
        try:
            os.write(self.master, text.encode("latin-1"))
        except OSError:
            pass

    def take(self, data):
        for byte in data:
            self.take_byte(byte)

    def take_byte(self, byte):
        if KIND == "pk232" and self.fresh and byte == ord("*"):
            self.speed = self.next_speed = self.line_speed()
            self.fresh = False
            return
        if KIND == "pk232" and byte == BREAK:
            self.place, self.line = "menu", bytearray()
            return self.say("\r\ncmd:")
        if byte == CANCEL and KIND != "ptc":
            self.line, self.command = bytearray(), False
        elif byte == ESC and (KIND == "ptc" or (KIND == "tnc" and not self.line)):
            self.line, self.command = bytearray(), True
        elif byte == BACKSPACE:
            self.line = self.line[:-1]
        elif byte == 13:
            line, self.line = self.line.decode("latin-1").strip("\n"), bytearray()
            self.end_line(line)
        elif byte not in (0xC0, 0xFF) and not (byte == ord("*") and not self.line):
            self.line.append(byte)

    def end_line(self, line):
        command, self.command = self.command or self.place != "text", False
        if not line:
            return
        if not command:
            word = "AIR" if self.line_speed() == self.speed else "GARBLED"
            return log("%s %s %s" % (word, self.call, line))
        log("CMD " + line)
        self.obey(line)
        if KIND == "pk232" and self.place == "menu":
            self.say("cmd:")
        elif KIND == "ptc":
            self.say("cmd: " if self.place == "menu" else "")

    def obey(self, line):
        words = line.split()
        if KIND == "pk232":
            if words[0] == "MYCALL" and len(words) > 1:
                self.call = words[1]
            elif words[0] == "MYCALL":
                self.say("MYCALL   %s\r\n" % self.call)
            elif words[0] == "TB" and len(words) > 1:
                self.next_speed = int(words[1])
            elif words[0] == "RESTART":
                self.speed = self.next_speed
            elif words[0] == "K":
                self.place = "text"
        elif KIND == "tnc":
            if line.startswith("I") and len(line) > 1:
                self.call = line[1:]
            elif line == "I":
                self.say("* %s *\r\n" % self.call)
        elif words[0] == "MYCALL" and len(words) > 1:
            if not words[1].startswith(("WIDE", "RELAY", "ECHO")):
                self.call = words[1]
        elif words[0] == "MYCALL":
            self.say("*** MYCALL: %s\r\n" % self.call)
        elif words[0] == "PAC":
            self.place = "packet"
        elif words[0] == "K" and self.place == "packet":
            self.place = "text"
        elif words[0] in ("Q", "RESET"):
            self.place = "menu"


def serve(modem):
    global power_blinks
    got = False
    while not power_fails:
        if power_blinks:
            power_blinks = False
            modem.from_the_shop()
            log("POWER")
        poll = select.poll()
        poll.register(modem.master, select.POLLIN)
        events = poll.poll(5)
        if not events or not events[0][1] & select.POLLIN:
            time.sleep(0.002)
            continue
        try:
            data = os.read(modem.master, 4096)
        except OSError:
            continue
        if not got:
            log("GOT")
            got = True
        modem.take(data)


signal.signal(signal.SIGUSR1, fail)
signal.signal(signal.SIGUSR2, blink)
signal.signal(signal.SIGTERM, lambda *_: sys.exit(0))
while True:
    here = Modem()
    serve(here)
    here.off()
    power_fails = False
    time.sleep(0.5)
